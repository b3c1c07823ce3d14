"""What a simulator's process has. Made by "./dev generate" from src/qelg/items.inc."""

from __future__ import annotations

from typing import TYPE_CHECKING

if TYPE_CHECKING:
    import numpy as np
    import numpy.typing as npt


class MachineItems:
    """The machine.

    - ``Maker``: [Machine] "Maker": the maker of the machine.
    - ``Grade``: [Machine] "Grade": the grade of the machine: its model.
    - ``Remark``: [Machine] "Remark": a remark about the machine.
    - ``Diameter``: [Machine] "Diameter": the diameter of the screw.
    - ``MaxRamPos``: [Machine] "MaxRamPos": the farthest position of the ram.
    - ``ShotVolume``: [Machine] "ShotVolume": the largest volume of a shot.
    - ``Weight``: [Machine] "Weight": the largest weight of a shot.
    - ``MaxMachinePres``: [Machine] "MaxMachinePres": the highest injection pressure of the machine.
    - ``MaxFlowRate``: [Machine] "FR": the highest flow rate of the machine.
    - ``ClampForce``: [Machine] "Size": the clamp force of the machine.
    - ``BarrelCompressionCtrl``: [Machine] "BarrelCompressionCtrl": a code: whether and how the
      compression of the melt in the barrel counts.
    - ``NozzleVolume``: [Machine] "NozzleVolume": the volume of the nozzle.
    - ``MachineEnergyType``: [Machine] "MachineEnergyType": a code: what drives the machine.
    - ``HydraulicPressureTransferFactor``: [Machine] "HydraulicPressureTransferFactor": the ratio of
      the injection pressure to the hydraulic pressure (intensification).
    - ``PITCHSIZE``: [Machine] "PITCHSIZE": the pitch of the screw.
    - ``SCREWSPEED``: [Machine] "SCREWSPEED": the speed of the screw's rotation, beside
      "ScrewSpeed".
    - ``SCREWDIAFEED``: [Machine] "SCREWDIAFEED": the screw diameter in the feed zone.
    - ``SCREWDIATRANSITION``: [Machine] "SCREWDIATRANSITION": the screw diameter in the transition
      zone.
    - ``SCREWDIAMETERING``: [Machine] "SCREWDIAMETERING": the screw diameter in the metering zone.
    - ``CHANNELDEEPFEED``: [Machine] "CHANNELDEEPFEED": the channel depth in the feed zone.
    - ``CHANNELDEEPMETERING``: [Machine] "CHANNELDEEPMETERING": the channel depth in the metering
      zone.
    - ``SECTIONDEPFEED``: [Machine] "SECTIONDEPFEED": the length of the feed zone.
    - ``SECTIONDEPTRANSITION``: [Machine] "SECTIONDEPTRANSITION": the length of the transition zone.
    - ``SECTIONDEPMETERING``: [Machine] "SECTIONDEPMETERING": the length of the metering zone.
    - ``NUMBERPITCHFEED``: [Machine] "NUMBERPITCHFEED": the number of pitches in the feed zone.
    - ``NUMBERPITCHTRANSITION``: [Machine] "NUMBERPITCHTRANSITION": the number of pitches in the
      transition zone.
    - ``NUMBERPITCHMETERING``: [Machine] "NUMBERPITCHMETERING": the number of pitches in the
      metering zone.
    - ``NOZZLEDIAMETER``: [Machine] "NOZZLEDIAMETER": the diameter of the nozzle.
    - ``NOZZLELENGTH``: [Machine] "NOZZLELENGTH": the length of the nozzle.
    """

    Maker: str | None
    """[Machine] "Maker": the maker of the machine."""

    Grade: str | None
    """[Machine] "Grade": the grade of the machine: its model."""

    Remark: str | None
    """[Machine] "Remark": a remark about the machine."""

    Diameter: float | None
    """[Machine] "Diameter": the diameter of the screw."""

    MaxRamPos: float | None
    """[Machine] "MaxRamPos": the farthest position of the ram."""

    ShotVolume: float | None
    """[Machine] "ShotVolume": the largest volume of a shot."""

    Weight: float | None
    """[Machine] "Weight": the largest weight of a shot."""

    MaxMachinePres: float | None
    """[Machine] "MaxMachinePres": the highest injection pressure of the machine."""

    MaxFlowRate: float | None
    """[Machine] "FR": the highest flow rate of the machine."""

    ClampForce: float | None
    """[Machine] "Size": the clamp force of the machine."""

    BarrelCompressionCtrl: int | None
    """[Machine] "BarrelCompressionCtrl": a code: whether and how the compression of the melt in the
    barrel counts."""

    NozzleVolume: float | None
    """[Machine] "NozzleVolume": the volume of the nozzle."""

    MachineEnergyType: int | None
    """[Machine] "MachineEnergyType": a code: what drives the machine."""

    HydraulicPressureTransferFactor: float | None
    """[Machine] "HydraulicPressureTransferFactor": the ratio of the injection pressure to the
    hydraulic pressure (intensification)."""

    PITCHSIZE: float | None
    """[Machine] "PITCHSIZE": the pitch of the screw."""

    SCREWSPEED: float | None
    """[Machine] "SCREWSPEED": the speed of the screw's rotation, beside "ScrewSpeed"."""

    SCREWDIAFEED: float | None
    """[Machine] "SCREWDIAFEED": the screw diameter in the feed zone."""

    SCREWDIATRANSITION: float | None
    """[Machine] "SCREWDIATRANSITION": the screw diameter in the transition zone."""

    SCREWDIAMETERING: float | None
    """[Machine] "SCREWDIAMETERING": the screw diameter in the metering zone."""

    CHANNELDEEPFEED: float | None
    """[Machine] "CHANNELDEEPFEED": the channel depth in the feed zone."""

    CHANNELDEEPMETERING: float | None
    """[Machine] "CHANNELDEEPMETERING": the channel depth in the metering zone."""

    SECTIONDEPFEED: float | None
    """[Machine] "SECTIONDEPFEED": the length of the feed zone."""

    SECTIONDEPTRANSITION: float | None
    """[Machine] "SECTIONDEPTRANSITION": the length of the transition zone."""

    SECTIONDEPMETERING: float | None
    """[Machine] "SECTIONDEPMETERING": the length of the metering zone."""

    NUMBERPITCHFEED: float | None
    """[Machine] "NUMBERPITCHFEED": the number of pitches in the feed zone."""

    NUMBERPITCHTRANSITION: float | None
    """[Machine] "NUMBERPITCHTRANSITION": the number of pitches in the transition zone."""

    NUMBERPITCHMETERING: float | None
    """[Machine] "NUMBERPITCHMETERING": the number of pitches in the metering zone."""

    NOZZLEDIAMETER: float | None
    """[Machine] "NOZZLEDIAMETER": the diameter of the nozzle."""

    NOZZLELENGTH: float | None
    """[Machine] "NOZZLELENGTH": the length of the nozzle."""


class HeatTransferItems:
    """The heat transfer.

    - ``HeatTransferType``: [MoldThermalBoundaryType] "Type": a code: how the heat transfer between
      melt and mold is given.
    - ``Flow``: [MoldThermalBoundaryType] "Flow": the heat transfer coefficient in filling, with a
      note such as its unit.
    - ``Pack``: [MoldThermalBoundaryType] "Pack": the heat transfer coefficient in packing, with a
      note such as its unit.
    - ``Detached``: [MoldThermalBoundaryType] "Detached_HTC": the heat transfer coefficient where
      the part has come off the mold, with a note such as its unit.
    - ``HotRunner``: [MoldThermalBoundaryType] "HotRunner_HTC": the heat transfer coefficient in the
      hot runner, with a note such as its unit.
    - ``UserMode``: [MoldThermalBoundaryType] "UserMode": a code of the user's mode.
    - ``NuNum``: [MoldThermalBoundaryType] "NuNum": the Nusselt number.
    """

    HeatTransferType: int | None
    """[MoldThermalBoundaryType] "Type": a code: how the heat transfer between melt and mold is
    given."""

    Flow: float | None
    """[MoldThermalBoundaryType] "Flow": the heat transfer coefficient in filling, with a note such
    as its unit."""

    Pack: float | None
    """[MoldThermalBoundaryType] "Pack": the heat transfer coefficient in packing, with a note such
    as its unit."""

    Detached: float | None
    """[MoldThermalBoundaryType] "Detached_HTC": the heat transfer coefficient where the part has
    come off the mold, with a note such as its unit."""

    HotRunner: float | None
    """[MoldThermalBoundaryType] "HotRunner_HTC": the heat transfer coefficient in the hot runner,
    with a note such as its unit."""

    UserMode: int | None
    """[MoldThermalBoundaryType] "UserMode": a code of the user's mode."""

    NuNum: float | None
    """[MoldThermalBoundaryType] "NuNum": the Nusselt number."""


class ProcessItems:
    """The whole process.

    - ``ProjectType``: [CaeHeader] "ProjectType": the project type: 8 co-injection, 11 two melt
      entrances; a second number is dropped.
    - ``FlagUNF``: [CaeHeader] "FlagUNF": a flag that goes to the simulator as it stands.
    - ``FlagEncapsulationCM``: [CaeHeader] "FlagEncapsulationCM": a flag of encapsulation that goes
      to the simulator as it stands.
    - ``TotalNodeEM``: [Summary] "TotalNodeEM": the number of melt entrances.
    - ``TotalNodeEC``: [Summary] "TotalNodeEC": the number of coolant entrances.
    - ``TotalGateCTL``: [Summary] "TotalGateCTL": the number of valve gates.
    - ``TotalNodeMB``: [Summary] "TotalNodeMB": the number of mold bases.
    - ``TotalNodeBC``: [Summary] "TotalNodeBC": the number of boundary conditions.
    - ``TotalNodeMMM``: [Summary] "TotalNodeMMM": the number of mold metal materials.
    - ``SymVolRatio``: [Summary] "SymVolRatio": how many times the part holds the modelled volume,
      where only a symmetric piece of it is modelled; an integer: 0.5 reads as 0.
    - ``TotalNodeHR``: [Summary] "TotalNodeHR": the number of heating rods.
    - ``TotalSTLNodeEC``: [Summary] "TotalSTLNodeEC": the number of coolant entrances of surface
      meshes.
    - ``TotalSTLNodeHR``: [Summary] "TotalSTLNodeHR": the number of heating rods of surface meshes.
    - ``TotalGrpCCL``: [Summary] "TotalGrpCCL": the number of cooling channel line groups.
    - ``TotalGrpCCS``: [Summary] "TotalGrpCCS": the number of cooling channel surface groups.
    - ``TotalOverFlowCTL``: [Summary] "TotalOverFlowCTL": the number of overflow valves.
    - ``IsTransientInletConv``: [Summary] "IsTransientInletConv": 1 where the resin's conversion at
      the inlet changes with time, else 0.
    - ``FlowCtrl``: [FlowCTL] "FlowCtrl": a code: which quantity controls filling.
    - ``VPSwitchCtrl``: [FlowCTL] "VPSwitchCtrl": the criterion of the V/P switch-over: 0 filled
      volume, 1 ram position, 2 injection pressure, 3 a further one over the filled volume.
    - ``PackingCtrl``: [FlowCTL] "PackingCtrl": a code: which quantity controls packing.
    - ``MoldTemperature``: [FlowCTL] "MoldTemperature": the mold temperature, in oC.
    - ``MeltTemperature``: [FlowCTL] "MeltTemperature": the melt temperature, in oC.
    - ``InjectionTime``: [FlowCTL] "InjectionTime": the injection time, in sec.
    - ``VolumeFilled``: [FlowCTL] "VolumeFilled": how much is filled when the V/P switch-over comes,
      for the criteria 0 and 3.
    - ``RamPosition``: [FlowCTL] "RamPosition": the ram position at which the V/P switch-over comes,
      for criterion 1.
    - ``InjectionPressure``: [FlowCTL] "InjectionPressure": the injection pressure at which the V/P
      switch-over comes, in MPa, for criterion 2.
    - ``CureEnterType``: [FlowCTL] "CureEnterType": a code: what makes curing begin.
    - ``CureEnterSwch``: [FlowCTL] "CureEnterSwch": the switch value at which curing begins.
    - ``CureEnterTime``: [FlowCTL] "CureEnterTime": the time at which curing begins, in sec.
    - ``SuckBack``: [RamPosition] "SuckBack": how far the screw is pulled back after plastication,
      to relieve the melt (suck-back).
    - ``flow_rate_ram_positions``: The flow rate ram positions, of shape (n,).
    - ``injection_pressure_ram_positions``: The injection pressure ram positions, of shape (n,).
    """

    ProjectType: int | None
    """[CaeHeader] "ProjectType": the project type: 8 co-injection, 11 two melt entrances; a second
    number is dropped."""

    FlagUNF: int | None
    """[CaeHeader] "FlagUNF": a flag that goes to the simulator as it stands."""

    FlagEncapsulationCM: int | None
    """[CaeHeader] "FlagEncapsulationCM": a flag of encapsulation that goes to the simulator as it
    stands."""

    TotalNodeEM: int | None
    """[Summary] "TotalNodeEM": the number of melt entrances."""

    TotalNodeEC: int | None
    """[Summary] "TotalNodeEC": the number of coolant entrances."""

    TotalGateCTL: int | None
    """[Summary] "TotalGateCTL": the number of valve gates."""

    TotalNodeMB: int | None
    """[Summary] "TotalNodeMB": the number of mold bases."""

    TotalNodeBC: int | None
    """[Summary] "TotalNodeBC": the number of boundary conditions."""

    TotalNodeMMM: int | None
    """[Summary] "TotalNodeMMM": the number of mold metal materials."""

    SymVolRatio: int | None
    """[Summary] "SymVolRatio": how many times the part holds the modelled volume, where only a
    symmetric piece of it is modelled; an integer: 0.5 reads as 0."""

    TotalNodeHR: int | None
    """[Summary] "TotalNodeHR": the number of heating rods."""

    TotalSTLNodeEC: int | None
    """[Summary] "TotalSTLNodeEC": the number of coolant entrances of surface meshes."""

    TotalSTLNodeHR: int | None
    """[Summary] "TotalSTLNodeHR": the number of heating rods of surface meshes."""

    TotalGrpCCL: int | None
    """[Summary] "TotalGrpCCL": the number of cooling channel line groups."""

    TotalGrpCCS: int | None
    """[Summary] "TotalGrpCCS": the number of cooling channel surface groups."""

    TotalOverFlowCTL: int | None
    """[Summary] "TotalOverFlowCTL": the number of overflow valves."""

    IsTransientInletConv: int | None
    """[Summary] "IsTransientInletConv": 1 where the resin's conversion at the inlet changes with
    time, else 0."""

    FlowCtrl: int | None
    """[FlowCTL] "FlowCtrl": a code: which quantity controls filling."""

    VPSwitchCtrl: int | None
    """[FlowCTL] "VPSwitchCtrl": the criterion of the V/P switch-over: 0 filled volume, 1 ram
    position, 2 injection pressure, 3 a further one over the filled volume."""

    PackingCtrl: int | None
    """[FlowCTL] "PackingCtrl": a code: which quantity controls packing."""

    MoldTemperature: float | None
    """[FlowCTL] "MoldTemperature": the mold temperature, in oC."""

    MeltTemperature: float | None
    """[FlowCTL] "MeltTemperature": the melt temperature, in oC."""

    InjectionTime: float | None
    """[FlowCTL] "InjectionTime": the injection time, in sec."""

    VolumeFilled: float | None
    """[FlowCTL] "VolumeFilled": how much is filled when the V/P switch-over comes, for the criteria
    0 and 3."""

    RamPosition: float | None
    """[FlowCTL] "RamPosition": the ram position at which the V/P switch-over comes, for criterion
    1."""

    InjectionPressure: float | None
    """[FlowCTL] "InjectionPressure": the injection pressure at which the V/P switch-over comes, in
    MPa, for criterion 2."""

    CureEnterType: int | None
    """[FlowCTL] "CureEnterType": a code: what makes curing begin."""

    CureEnterSwch: float | None
    """[FlowCTL] "CureEnterSwch": the switch value at which curing begins."""

    CureEnterTime: float | None
    """[FlowCTL] "CureEnterTime": the time at which curing begins, in sec."""

    SuckBack: float | None
    """[RamPosition] "SuckBack": how far the screw is pulled back after plastication, to relieve the
    melt (suck-back)."""

    flow_rate_ram_positions: npt.NDArray[np.float64]
    """The flow rate ram positions, of shape (n,)."""

    injection_pressure_ram_positions: npt.NDArray[np.float64]
    """The injection pressure ram positions, of shape (n,)."""


class InletItems:
    """An inlet.

    - ``InletControlType``: [FlowCTLInfo] "FlowCTL-%d]": the same two codes as the loader looks for
      them: the closing bracket belongs to the key.
    - ``FillTime``: [Flow-%ld] "FillTime": the filling time, in sec. Or [Flow-%ld] "TransTime": the
      filling time of transfer molding, in sec.
    - ``MeltTemp``: [Flow-%ld] "MeltTemp": the melt temperature, in oC. Or [Flow-%ld] "ResnTemp":
      the resin temperature of transfer molding, in oC.
    - ``MoldTemp``: [Flow-%ld] "MoldTemp": the mold temperature, in oC.
    - ``InjectPres``: [Flow-%ld] "InjectPres": the injection pressure, in MPa. Or [Flow-%ld]
      "TransPres": the pressure of transfer molding, in MPa.
    - ``FRDisplayType``: [Flow-%ld] "FRDisplayType": a code: how a front end shows the flow rate
      profile.
    - ``IPDisplayType``: [Flow-%ld] "IPDisplayType": a code: how a front end shows the injection
      pressure profile.
    - ``FRProfileType``: [Flow-%ld] "FRProfileType": a code: in which form the flow rate profile was
      entered.
    - ``IPProfileType``: [Flow-%ld] "IPProfileType": a code: in which form the injection pressure
      profile was entered.
    - ``MaxFR``: [Flow-%ld] "MaxFR": the limit of the flow rate, in cc/sec.
    - ``MaxFillingTime``: [Flow-%ld] "MaxFillingTime": the limit of the filling time, in sec. Or
      [Flow-%ld] "MaxTransferTime": the limit of the filling time of transfer molding, in sec.
    - ``FlowPackMode``: [Flow-%ld] "FlowPackMode": a code of the mode of filling and packing.
    - ``HotRunnerTemperatureDiff``: [Flow-%ld] "HotRunnerTemperatureDiff": how much the temperature
      of the hot runner differs from the melt's, in oC.
    - ``Material``: [Flow-%ld] "Material": the material that this inlet injects.
    - ``CoreEnterType``: [Flow-%ld] "CoreEnterType": a code: what makes the core material enter.
    - ``CoreEnterSwch``: [Flow-%ld] "CoreEnterSwch": the switch value at which the core material
      enters.
    - ``CoreEnterTime``: [Flow-%ld] "CoreEnterTime": the time at which the core material enters, in
      sec.
    - ``FluidTemp``: [Flow-%ld] "FluidTemp": the temperature of the fluid that is injected after the
      melt, in oC.
    - ``FluidEnterType``: [Flow-%ld] "FluidEnterType": a code: what makes the fluid enter.
    - ``FluidEnterSwch``: [Flow-%ld] "FluidEnterSwch": the switch value at which the fluid enters.
    - ``FluidEnterTime``: [Flow-%ld] "FluidEnterTime": the time at which the fluid enters, in sec.
    - ``FluidDelayTime``: [Flow-%ld] "FluidDelayTime": how long the fluid waits, in sec.
    - ``InitConv``: [Flow-%ld] "InitConv": how far the resin's curing reaction has gone (its
      conversion) at the start of filling.
    - ``PackTime``: [Pack-%d] "PackTime": the packing time, in sec. Or [Cure-%d] "CureTime": the
      curing time, in sec.
    - ``PackPres``: [Pack-%d] "PackPres": the packing pressure, in MPa. Or [Cure-%d] "CurePres": the
      curing pressure, in MPa.
    - ``PackSwch``: [Pack-%d] "PackSwch": the switch value at which packing takes over from filling.
      Or [Cure-%d] "CureSwch": the switch value at which curing takes over from packing.
    - ``MaxEOFRatio``: [Pack-%d] "MaxEOFRatio": the limit of the packing pressure, as a ratio to the
      pressure at the end of filling.
    - ``PPDisplayType``: [Pack-%d] "PPDisplayType": a code: how a front end shows the packing
      pressure profile. Or [Cure-%d] "CPDisplayType": a code: how a front end shows the curing
      pressure profile.
    - ``PPProfileType``: [Pack-%d] "PPProfileType": a code: in which form the packing pressure
      profile was entered. Or [Cure-%d] "PPProfileType": a code: in which form the curing pressure
      profile was entered; the key is the packing stage's.
    - ``MaxPressSlop``: [Pack-%d] "MaxPressSlop": the limit of the slope of the pressure.
    - ``Shutoff``: [Pack-%d] "Shutoff": a code: whether and how the inlet is shut off.
    - ``MaterialType``: [Pack-%d] "MaterialType": a code of the kind of material.
    - ``FluidPres``: [Pack-%d] "FluidPres": the pressure of the fluid, in MPa.
    - ``FluidMaxFR``: [Pack-%d] "FluidMaxFR": the limit of the fluid's flow rate, in cc/sec.
    - ``FluidProfileType``: [Pack-%d] "FluidProfileType": a code: in which form the fluid pressure
      profile was entered.
    - ``flow_rate``: The flow rate, of shape (n, 2).
    - ``injection_pressure``: The injection pressure, of shape (n, 2).
    - ``packing_pressure``: The packing pressure, of shape (n, 2).
    - ``fluid_pressure``: The fluid pressure, of shape (n, 2).
    - ``flow_rate_time_constants``: The flow rate time constants, of shape (n,).
    - ``injection_pressure_time_constants``: The injection pressure time constants, of shape (n,).
    - ``packing_pressure_time_constants``: The packing pressure time constants, of shape (n,).
    """

    InletControlType: int | None
    """[FlowCTLInfo] "FlowCTL-%d]": the same two codes as the loader looks for them: the closing
    bracket belongs to the key."""

    FillTime: float | None
    """[Flow-%ld] "FillTime": the filling time, in sec. Or [Flow-%ld] "TransTime": the filling time
    of transfer molding, in sec."""

    MeltTemp: float | None
    """[Flow-%ld] "MeltTemp": the melt temperature, in oC. Or [Flow-%ld] "ResnTemp": the resin
    temperature of transfer molding, in oC."""

    MoldTemp: float | None
    """[Flow-%ld] "MoldTemp": the mold temperature, in oC."""

    InjectPres: float | None
    """[Flow-%ld] "InjectPres": the injection pressure, in MPa. Or [Flow-%ld] "TransPres": the
    pressure of transfer molding, in MPa."""

    FRDisplayType: int | None
    """[Flow-%ld] "FRDisplayType": a code: how a front end shows the flow rate profile."""

    IPDisplayType: int | None
    """[Flow-%ld] "IPDisplayType": a code: how a front end shows the injection pressure profile."""

    FRProfileType: int | None
    """[Flow-%ld] "FRProfileType": a code: in which form the flow rate profile was entered."""

    IPProfileType: int | None
    """[Flow-%ld] "IPProfileType": a code: in which form the injection pressure profile was
    entered."""

    MaxFR: float | None
    """[Flow-%ld] "MaxFR": the limit of the flow rate, in cc/sec."""

    MaxFillingTime: float | None
    """[Flow-%ld] "MaxFillingTime": the limit of the filling time, in sec. Or [Flow-%ld]
    "MaxTransferTime": the limit of the filling time of transfer molding, in sec."""

    FlowPackMode: int | None
    """[Flow-%ld] "FlowPackMode": a code of the mode of filling and packing."""

    HotRunnerTemperatureDiff: float | None
    """[Flow-%ld] "HotRunnerTemperatureDiff": how much the temperature of the hot runner differs
    from the melt's, in oC."""

    Material: str | None
    """[Flow-%ld] "Material": the material that this inlet injects."""

    CoreEnterType: int | None
    """[Flow-%ld] "CoreEnterType": a code: what makes the core material enter."""

    CoreEnterSwch: float | None
    """[Flow-%ld] "CoreEnterSwch": the switch value at which the core material enters."""

    CoreEnterTime: float | None
    """[Flow-%ld] "CoreEnterTime": the time at which the core material enters, in sec."""

    FluidTemp: float | None
    """[Flow-%ld] "FluidTemp": the temperature of the fluid that is injected after the melt, in
    oC."""

    FluidEnterType: int | None
    """[Flow-%ld] "FluidEnterType": a code: what makes the fluid enter."""

    FluidEnterSwch: float | None
    """[Flow-%ld] "FluidEnterSwch": the switch value at which the fluid enters."""

    FluidEnterTime: float | None
    """[Flow-%ld] "FluidEnterTime": the time at which the fluid enters, in sec."""

    FluidDelayTime: float | None
    """[Flow-%ld] "FluidDelayTime": how long the fluid waits, in sec."""

    InitConv: float | None
    """[Flow-%ld] "InitConv": how far the resin's curing reaction has gone (its conversion) at the
    start of filling."""

    PackTime: float | None
    """[Pack-%d] "PackTime": the packing time, in sec. Or [Cure-%d] "CureTime": the curing time, in
    sec."""

    PackPres: float | None
    """[Pack-%d] "PackPres": the packing pressure, in MPa. Or [Cure-%d] "CurePres": the curing
    pressure, in MPa."""

    PackSwch: float | None
    """[Pack-%d] "PackSwch": the switch value at which packing takes over from filling. Or [Cure-%d]
    "CureSwch": the switch value at which curing takes over from packing."""

    MaxEOFRatio: float | None
    """[Pack-%d] "MaxEOFRatio": the limit of the packing pressure, as a ratio to the pressure at the
    end of filling."""

    PPDisplayType: int | None
    """[Pack-%d] "PPDisplayType": a code: how a front end shows the packing pressure profile. Or
    [Cure-%d] "CPDisplayType": a code: how a front end shows the curing pressure profile."""

    PPProfileType: int | None
    """[Pack-%d] "PPProfileType": a code: in which form the packing pressure profile was entered. Or
    [Cure-%d] "PPProfileType": a code: in which form the curing pressure profile was entered; the
    key is the packing stage's."""

    MaxPressSlop: float | None
    """[Pack-%d] "MaxPressSlop": the limit of the slope of the pressure."""

    Shutoff: int | None
    """[Pack-%d] "Shutoff": a code: whether and how the inlet is shut off."""

    MaterialType: int | None
    """[Pack-%d] "MaterialType": a code of the kind of material."""

    FluidPres: float | None
    """[Pack-%d] "FluidPres": the pressure of the fluid, in MPa."""

    FluidMaxFR: float | None
    """[Pack-%d] "FluidMaxFR": the limit of the fluid's flow rate, in cc/sec."""

    FluidProfileType: int | None
    """[Pack-%d] "FluidProfileType": a code: in which form the fluid pressure profile was
    entered."""

    flow_rate: npt.NDArray[np.float64]
    """The flow rate, of shape (n, 2)."""

    injection_pressure: npt.NDArray[np.float64]
    """The injection pressure, of shape (n, 2)."""

    packing_pressure: npt.NDArray[np.float64]
    """The packing pressure, of shape (n, 2)."""

    fluid_pressure: npt.NDArray[np.float64]
    """The fluid pressure, of shape (n, 2)."""

    flow_rate_time_constants: npt.NDArray[np.float64]
    """The flow rate time constants, of shape (n,)."""

    injection_pressure_time_constants: npt.NDArray[np.float64]
    """The injection pressure time constants, of shape (n,)."""

    packing_pressure_time_constants: npt.NDArray[np.float64]
    """The packing pressure time constants, of shape (n,)."""
