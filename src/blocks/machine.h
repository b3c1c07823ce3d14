#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [Machine]: the injection molding machine.
namespace qel::machine {

inline constexpr char kSection[] = "[Machine]";

inline constexpr Key<Text> kMaker{
    "Maker",
    {"Machine_ReadMaker"},
    {"Machine_WriteMaker"},
    "the maker of the machine",
    {.older = {"GetMachineMaker", "SetMachineMaker"}, .loader = "set_process_machine_Maker"}};
inline constexpr Key<Text> kGrade{
    "Grade",
    {"Machine_ReadGrade"},
    {"Machine_WriteGrade"},
    "the grade of the machine: its model",
    {.older = {"GetMachineGrade", "SetMachineGrade"}, .loader = "set_process_machine_Grade"}};
inline constexpr Key<Text> kLastModifiedDate{"LastModifiedDate",
                                             {"Machine_ReadLastModifiedDate"},
                                             {"Machine_WriteLastModifiedDate"},
                                             "when the data of the machine were last changed",
                                             {.older = {"GetMachineLastModifiedDate"}}};
inline constexpr Key<Text> kRemark{
    "Remark",
    {"Machine_ReadRemark"},
    {"Machine_WriteRemark"},
    "a remark about the machine",
    {.older = {"GetMachineRemark", "SetMachineRemark"}, .loader = "set_process_machine_Remark"}};
inline constexpr Key<Real> kDiameter{
    "Diameter",
    {"Machine_ReadDiameter"},
    {"Machine_WriteDiameter"},
    "the diameter of the screw",
    {.older = {"GetMachineScrewDiameter", "SetMachineScrewDiameter"},
     .loader = "set_process_machine_Diameter"}};
inline constexpr Key<Real> kMaxRamPos{
    "MaxRamPos",
    {"Machine_ReadMaxRamPos"},
    {"Machine_WriteMaxRamPos"},
    "the farthest position of the ram",
    {.older = {"GetMachineMaxRamPosition", "SetMachineMaxRamPosition"},
     .loader = "set_process_machine_MaxRamPos"}};
inline constexpr Key<Real> kShotVolume{
    "ShotVolume",
    {"Machine_ReadShotVolume"},
    {"Machine_WriteShotVolume"},
    "the largest volume of a shot",
    {.older = {"GetMachineShotVolume"}, .loader = "set_process_machine_ShotVolume"}};
inline constexpr Key<Real> kWeight{"Weight",
                                   {"Machine_ReadShotWeight"},
                                   {"Machine_WriteShotWeight"},
                                   "the largest weight of a shot",
                                   {.older = {"GetMachineShotWeight", "SetMachineShotWeight"},
                                    .loader = "set_process_machine_Weight"}};
inline constexpr Key<Real> kMaxMachinePres{
    "MaxMachinePres",
    {"Machine_ReadInjectionPressure"},
    {"Machine_WriteInjectionPressure"},
    "the highest injection pressure of the machine",
    {.older = {"GetMachineMaxPressure", "SetMachineMaxPressure"},
     .loader = "set_process_machine_MaxMachinePres"}};
inline constexpr Key<Real> kHoldingPressure{"HoldingPressure",
                                            {"Machine_ReadHoldingPressure"},
                                            {"Machine_WriteHoldingPressure"},
                                            "the highest holding pressure of the machine",
                                            {.older = {"GetMachineHoldingPressure"}}};
inline constexpr Key<Real> kInjectionSpeed{"InjectionSpeed",
                                           {"Machine_ReadInjectionSpeed"},
                                           {"Machine_WriteInjectionSpeed"},
                                           "the highest injection speed of the machine",
                                           {.older = {"GetMachineInjectionSpeed"}}};
inline constexpr Key<Real> kFR{"FR",
                               {"Machine_ReadFlowRate"},
                               {"Machine_WriteFlowRate"},
                               "the highest flow rate of the machine",
                               {.older = {"GetMachineMaxFlowRate", "SetMachineMaxFlowRate"},
                                .loader = "set_process_machine_MaxFlowRate"}};
inline constexpr Key<Real> kPlasticationRate{"PlasticationRate",
                                             {"Machine_ReadPlasticationRate"},
                                             {"Machine_WritePlasticationRate"},
                                             "how much material the screw melts in a unit of time",
                                             {.older = {"GetMachinePlasticationRate"}}};
inline constexpr Key<Real> kScrewSpeed{"ScrewSpeed",
                                       {"Machine_ReadScrewSpeed"},
                                       {"Machine_WriteScrewSpeed"},
                                       "the highest speed of the screw's rotation",
                                       {.older = {"GetMachineScrewSpeed"}}};
inline constexpr Key<Real> kNozzleContactForce{
    "NozzleContactForce",
    {"Machine_ReadNozzleContactForce"},
    {"Machine_WriteNozzleContactForce"},
    "the force with which the nozzle is held against the mold",
    {.older = {"GetMachineNozzleContactForce"}}};
inline constexpr Key<Real> kNozzleStroke{"NozzleStroke",
                                         {"Machine_ReadNozzleStroke"},
                                         {"Machine_WriteNozzleStroke"},
                                         "how far the nozzle can be moved",
                                         {.older = {"GetMachineNozzleStroke"}}};
inline constexpr Key<Real> kHeaterWattage{"HeaterWattage",
                                          {"Machine_ReadHeaterWattage"},
                                          {"Machine_WriteHeaterWattage"},
                                          "the power of the barrel's heaters",
                                          {.older = {"GetMachineHeaterWattage"}}};
inline constexpr Key<ZoneCount> kTemperatureControlZones{
    "TemperatureControlZones",
    {"Machine_ReadTemperatureControlZones"},
    {"Machine_WriteTemperatureControlZones"},
    "the number of temperature control zones, or a sum such as 4+2",
    {.older = {"GetMachineTemperatureControlZone"}}};
inline constexpr Key<Real> kSize{"Size",
                                 {"Machine_ReadClampForce"},
                                 {"Machine_WriteClampForce"},
                                 "the clamp force of the machine",
                                 {.older = {"GetMachineClampingForce", "SetMachineClampingForce"},
                                  .loader = "set_process_machine_ClampForce"}};
inline constexpr Key<Real> kOpeningStroke{"OpeningStroke",
                                          {"Machine_ReadOpeningStroke"},
                                          {"Machine_WriteOpeningStroke"},
                                          "how far the clamp can open",
                                          {.older = {"GetMachineOpeningStroke"}}};
inline constexpr Key<Real> kMaxDaylight{"MaxDaylight",
                                        {"Machine_ReadMaxDaylight"},
                                        {"Machine_WriteMaxDaylight"},
                                        "the largest distance between the platens (daylight)",
                                        {.older = {"GetMachineMaxDaylight"}}};
inline constexpr Key<Real> kMoldHeight{"MoldHeight",
                                       {"Machine_ReadMoldHeight"},
                                       {"Machine_WriteMoldHeight"},
                                       "the mold height that the machine takes",
                                       {.older = {"GetMachineMoldHeight"}}};
inline constexpr Key<Text> kDistanceBetweenTieBarsText{"DistanceBetweenTieBars(HxV)",
                                                       {"Machine_ReadDistanceBetweenTieBars"},
                                                       {"Machine_WriteDistanceBetweenTieBars"},
                                                       "the distance between the tie bars, as text",
                                                       {.older = {"GetMachineTieBarsDistance"}}};
inline constexpr Key<SizePair> kDistanceBetweenTieBars{
    "DistanceBetweenTieBars(HxV)",
    {"Machine_ReadDistanceBetweenTieBars"},
    {"Machine_WriteDistanceBetweenTieBars"},
    "the distance between the tie bars: horizontal, vertical"};
inline constexpr Key<Text> kPlatenSizeText{"PlatenSize(HxV)",
                                           {"Machine_ReadPlatenSize"},
                                           {"Machine_WritePlatenSize"},
                                           "the size of the platen, as text",
                                           {.older = {"GetMachinePlatenSize"}}};
inline constexpr Key<SizePair> kPlatenSize{"PlatenSize(HxV)",
                                           {"Machine_ReadPlatenSize"},
                                           {"Machine_WritePlatenSize"},
                                           "the size of the platen: horizontal, vertical"};
inline constexpr Key<Integer> kEjectorPoint{"EjectorPoint",
                                            {"Machine_ReadEjectorPoint"},
                                            {"Machine_WriteEjectorPoint"},
                                            "the number of ejector points",
                                            {.older = {"GetMachineEjectorPoint"}}};
inline constexpr Key<Real> kEjectorForce{"EjectorForce",
                                         {"Machine_ReadEjectorForce"},
                                         {"Machine_WriteEjectorForce"},
                                         "the force of the ejector",
                                         {.older = {"GetMachineEjectorForce"}}};
inline constexpr Key<Real> kEjectorStroke{"EjectorStroke",
                                          {"Machine_ReadEjectorStroke"},
                                          {"Machine_WriteEjectorStroke"},
                                          "how far the ejector can be moved",
                                          {.older = {"GetMachineEjectorStroke"}}};
inline constexpr Key<Real> kMachineWeight{"MachineWeight",
                                          {"Machine_ReadMachineWeight"},
                                          {"Machine_WriteMachineWeight"},
                                          "the weight of the machine",
                                          {.older = {"GetMachineWeight"}}};
inline constexpr Key<Text> kMachineDimensionText{"MachineDimension(LxWxH)",
                                                 {"Machine_ReadMachineDimension"},
                                                 {"Machine_WriteMachineDimension"},
                                                 "the size of the machine, as text",
                                                 {.older = {"GetMachineDimension"}}};
inline constexpr Key<SizeTriple> kMachineDimension{
    "MachineDimension(LxWxH)",
    {"Machine_ReadMachineDimension"},
    {"Machine_WriteMachineDimension"},
    "the size of the machine: length, width, height"};
inline constexpr Key<Integer> kBarrelCompressionCtrl{
    "BarrelCompressionCtrl",
    {"Machine_ReadBarrelCompressionCtrl"},
    {},
    "a code: whether and how the compression of the melt in the barrel counts",
    {.older = {"GetBarrelCompressionCtrlType"},
     .loader = "set_process_machine_BarrelCompressionCtrl"}};

// Only the loader takes these.
inline constexpr Key<Real> kNozzleVolume{"NozzleVolume",
                                         {},
                                         {},
                                         "the volume of the nozzle",
                                         {.loader = "set_process_machine_NozzleVolume"}};
inline constexpr Key<Integer> kMachineEnergyType{
    "MachineEnergyType",
    {},
    {},
    "a code: what drives the machine",
    {.loader = "set_process_machine_MachineEnergyType"}};
inline constexpr Key<Real> kHydraulicPressureTransferFactor{
    "HydraulicPressureTransferFactor",
    {},
    {},
    "the ratio of the injection pressure to the hydraulic pressure (intensification)",
    {.loader = "set_process_machine_HydraulicPressureTransferFactor"}};
inline constexpr Key<Real> kPITCHSIZE{
    "PITCHSIZE", {}, {}, "the pitch of the screw", {.loader = "set_process_machine_PITCHSIZE"}};
inline constexpr Key<Real> kSCREWSPEED{"SCREWSPEED",
                                       {},
                                       {},
                                       "the speed of the screw's rotation, beside \"ScrewSpeed\"",
                                       {.loader = "set_process_machine_SCREWSPEED"}};
inline constexpr Key<Real> kSCREWDIAFEED{"SCREWDIAFEED",
                                         {},
                                         {},
                                         "the screw diameter in the feed zone",
                                         {.loader = "set_process_machine_SCREWDIAFEED"}};
inline constexpr Key<Real> kSCREWDIATRANSITION{
    "SCREWDIATRANSITION",
    {},
    {},
    "the screw diameter in the transition zone",
    {.loader = "set_process_machine_SCREWDIATRANSITION"}};
inline constexpr Key<Real> kSCREWDIAMETERING{"SCREWDIAMETERING",
                                             {},
                                             {},
                                             "the screw diameter in the metering zone",
                                             {.loader = "set_process_machine_SCREWDIAMETERING"}};
inline constexpr Key<Real> kCHANNELDEEPFEED{"CHANNELDEEPFEED",
                                            {},
                                            {},
                                            "the channel depth in the feed zone",
                                            {.loader = "set_process_machine_CHANNELDEEPFEED"}};
inline constexpr Key<Real> kCHANNELDEEPMETERING{
    "CHANNELDEEPMETERING",
    {},
    {},
    "the channel depth in the metering zone",
    {.loader = "set_process_machine_CHANNELDEEPMETERING"}};
inline constexpr Key<Real> kSECTIONDEPFEED{"SECTIONDEPFEED",
                                           {},
                                           {},
                                           "the length of the feed zone",
                                           {.loader = "set_process_machine_SECTIONDEPFEED"}};
inline constexpr Key<Real> kSECTIONDEPTRANSITION{
    "SECTIONDEPTRANSITION",
    {},
    {},
    "the length of the transition zone",
    {.loader = "set_process_machine_SECTIONDEPTRANSITION"}};
inline constexpr Key<Real> kSECTIONDEPMETERING{
    "SECTIONDEPMETERING",
    {},
    {},
    "the length of the metering zone",
    {.loader = "set_process_machine_SECTIONDEPMETERING"}};
inline constexpr Key<Real> kNUMBERPITCHFEED{"NUMBERPITCHFEED",
                                            {},
                                            {},
                                            "the number of pitches in the feed zone",
                                            {.loader = "set_process_machine_NUMBERPITCHFEED"}};
inline constexpr Key<Real> kNUMBERPITCHTRANSITION{
    "NUMBERPITCHTRANSITION",
    {},
    {},
    "the number of pitches in the transition zone",
    {.loader = "set_process_machine_NUMBERPITCHTRANSITION"}};
inline constexpr Key<Real> kNUMBERPITCHMETERING{
    "NUMBERPITCHMETERING",
    {},
    {},
    "the number of pitches in the metering zone",
    {.loader = "set_process_machine_NUMBERPITCHMETERING"}};
inline constexpr Key<Real> kNOZZLEDIAMETER{"NOZZLEDIAMETER",
                                           {},
                                           {},
                                           "the diameter of the nozzle",
                                           {.loader = "set_process_machine_NOZZLEDIAMETER"}};
inline constexpr Key<Real> kNOZZLELENGTH{"NOZZLELENGTH",
                                         {},
                                         {},
                                         "the length of the nozzle",
                                         {.loader = "set_process_machine_NOZZLELENGTH"}};

inline constexpr const KeyInfo* kKeys[] = {&kMaker,
                                           &kGrade,
                                           &kLastModifiedDate,
                                           &kRemark,
                                           &kDiameter,
                                           &kMaxRamPos,
                                           &kShotVolume,
                                           &kWeight,
                                           &kMaxMachinePres,
                                           &kHoldingPressure,
                                           &kInjectionSpeed,
                                           &kFR,
                                           &kPlasticationRate,
                                           &kScrewSpeed,
                                           &kNozzleContactForce,
                                           &kNozzleStroke,
                                           &kHeaterWattage,
                                           &kTemperatureControlZones,
                                           &kSize,
                                           &kOpeningStroke,
                                           &kMaxDaylight,
                                           &kMoldHeight,
                                           &kDistanceBetweenTieBarsText,
                                           &kDistanceBetweenTieBars,
                                           &kPlatenSizeText,
                                           &kPlatenSize,
                                           &kEjectorPoint,
                                           &kEjectorForce,
                                           &kEjectorStroke,
                                           &kMachineWeight,
                                           &kMachineDimensionText,
                                           &kMachineDimension,
                                           &kBarrelCompressionCtrl,
                                           &kNozzleVolume,
                                           &kMachineEnergyType,
                                           &kHydraulicPressureTransferFactor,
                                           &kPITCHSIZE,
                                           &kSCREWSPEED,
                                           &kSCREWDIAFEED,
                                           &kSCREWDIATRANSITION,
                                           &kSCREWDIAMETERING,
                                           &kCHANNELDEEPFEED,
                                           &kCHANNELDEEPMETERING,
                                           &kSECTIONDEPFEED,
                                           &kSECTIONDEPTRANSITION,
                                           &kSECTIONDEPMETERING,
                                           &kNUMBERPITCHFEED,
                                           &kNUMBERPITCHTRANSITION,
                                           &kNUMBERPITCHMETERING,
                                           &kNOZZLEDIAMETER,
                                           &kNOZZLELENGTH};

inline constexpr SectionInfo kInfo{kSection, "Machine", "the injection molding machine", kKeys};

}  // namespace qel::machine

using CQELPROBlockIOMachine = qel::SectionBlock<qel::machine::kInfo>;
