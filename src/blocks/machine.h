#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [Machine]: the injection molding machine.
namespace qel::machine {

inline constexpr char kSection[] = "[Machine]";

inline constexpr Key<Text> kMaker{"Maker", {"Machine_ReadMaker"}, {"Machine_WriteMaker"}, "the maker"};
inline constexpr Key<Text> kGrade{"Grade", {"Machine_ReadGrade"}, {"Machine_WriteGrade"}, "the grade"};
inline constexpr Key<Text> kLastModifiedDate{
    "LastModifiedDate", {"Machine_ReadLastModifiedDate"}, {"Machine_WriteLastModifiedDate"}, "the date of the last change"};
inline constexpr Key<Text> kRemark{"Remark", {"Machine_ReadRemark"}, {"Machine_WriteRemark"}, "a remark"};
inline constexpr Key<Real> kDiameter{"Diameter", {"Machine_ReadDiameter"}, {"Machine_WriteDiameter"}, "the screw diameter"};
inline constexpr Key<Real> kMaxRamPos{"MaxRamPos", {"Machine_ReadMaxRamPos"}, {"Machine_WriteMaxRamPos"}, "the longest ram position"};
inline constexpr Key<Real> kShotVolume{"ShotVolume", {"Machine_ReadShotVolume"}, {"Machine_WriteShotVolume"}, "the shot volume"};
inline constexpr Key<Real> kWeight{"Weight", {"Machine_ReadShotWeight"}, {"Machine_WriteShotWeight"}, "the shot weight"};
inline constexpr Key<Real> kMaxMachinePres{
    "MaxMachinePres", {"Machine_ReadInjectionPressure"}, {"Machine_WriteInjectionPressure"}, "the highest injection pressure"};
inline constexpr Key<Real> kHoldingPressure{
    "HoldingPressure", {"Machine_ReadHoldingPressure"}, {"Machine_WriteHoldingPressure"}, "the holding pressure"};
inline constexpr Key<Real> kInjectionSpeed{"InjectionSpeed", {"Machine_ReadInjectionSpeed"}, {"Machine_WriteInjectionSpeed"}, "the injection speed"};
inline constexpr Key<Real> kFR{"FR", {"Machine_ReadFlowRate"}, {"Machine_WriteFlowRate"}, "the highest flow rate"};
inline constexpr Key<Real> kPlasticationRate{
    "PlasticationRate", {"Machine_ReadPlasticationRate"}, {"Machine_WritePlasticationRate"}, "the plastication rate"};
inline constexpr Key<Real> kScrewSpeed{"ScrewSpeed", {"Machine_ReadScrewSpeed"}, {"Machine_WriteScrewSpeed"}, "the screw speed"};
inline constexpr Key<Real> kNozzleContactForce{
    "NozzleContactForce", {"Machine_ReadNozzleContactForce"}, {"Machine_WriteNozzleContactForce"}, "the contact force of the nozzle"};
inline constexpr Key<Real> kNozzleStroke{"NozzleStroke", {"Machine_ReadNozzleStroke"}, {"Machine_WriteNozzleStroke"}, "the nozzle's stroke"};
inline constexpr Key<Real> kHeaterWattage{"HeaterWattage", {"Machine_ReadHeaterWattage"}, {"Machine_WriteHeaterWattage"}, "the heater's wattage"};
inline constexpr Key<ZoneCount> kTemperatureControlZones{"TemperatureControlZones",
                                                         {"Machine_ReadTemperatureControlZones"},
                                                         {"Machine_WriteTemperatureControlZones"},
                                                         "the number of temperature control zones; 4+2 reads as 6"};
inline constexpr Key<Real> kSize{"Size", {"Machine_ReadClampForce"}, {"Machine_WriteClampForce"}, "the clamp force"};
inline constexpr Key<Real> kOpeningStroke{"OpeningStroke", {"Machine_ReadOpeningStroke"}, {"Machine_WriteOpeningStroke"}, "the opening stroke"};
inline constexpr Key<Real> kMaxDaylight{"MaxDaylight", {"Machine_ReadMaxDaylight"}, {"Machine_WriteMaxDaylight"}, "the largest daylight"};
inline constexpr Key<Real> kMoldHeight{"MoldHeight", {"Machine_ReadMoldHeight"}, {"Machine_WriteMoldHeight"}, "the mold height"};
inline constexpr Key<Text> kDistanceBetweenTieBarsText{"DistanceBetweenTieBars(HxV)",
                                                       {"Machine_ReadDistanceBetweenTieBars"},
                                                       {"Machine_WriteDistanceBetweenTieBars"},
                                                       "the distance between the tie bars, as text"};
inline constexpr Key<SizePair> kDistanceBetweenTieBars{"DistanceBetweenTieBars(HxV)",
                                                       {"Machine_ReadDistanceBetweenTieBars"},
                                                       {"Machine_WriteDistanceBetweenTieBars"},
                                                       "the distance between the tie bars: horizontal, vertical"};
inline constexpr Key<Text> kPlatenSizeText{
    "PlatenSize(HxV)", {"Machine_ReadPlatenSize"}, {"Machine_WritePlatenSize"}, "the size of the platen, as text"};
inline constexpr Key<SizePair> kPlatenSize{
    "PlatenSize(HxV)", {"Machine_ReadPlatenSize"}, {"Machine_WritePlatenSize"}, "the size of the platen: horizontal, vertical"};
inline constexpr Key<Integer> kEjectorPoint{
    "EjectorPoint", {"Machine_ReadEjectorPoint"}, {"Machine_WriteEjectorPoint"}, "the number of ejector points"};
inline constexpr Key<Real> kEjectorForce{"EjectorForce", {"Machine_ReadEjectorForce"}, {"Machine_WriteEjectorForce"}, "the ejector's force"};
inline constexpr Key<Real> kEjectorStroke{"EjectorStroke", {"Machine_ReadEjectorStroke"}, {"Machine_WriteEjectorStroke"}, "the ejector's stroke"};
inline constexpr Key<Real> kMachineWeight{"MachineWeight", {"Machine_ReadMachineWeight"}, {"Machine_WriteMachineWeight"}, "the machine's weight"};
inline constexpr Key<Text> kMachineDimensionText{
    "MachineDimension(LxWxH)", {"Machine_ReadMachineDimension"}, {"Machine_WriteMachineDimension"}, "the machine's size, as text"};
inline constexpr Key<SizeTriple> kMachineDimension{
    "MachineDimension(LxWxH)", {"Machine_ReadMachineDimension"}, {"Machine_WriteMachineDimension"}, "the machine's size: length, width, height"};
inline constexpr Key<Integer> kBarrelCompressionCtrl{
    "BarrelCompressionCtrl", {"Machine_ReadBarrelCompressionCtrl"}, {}, "the code of the barrel compression's control"};

// Only the simulator process takes these; no member reads or writes them.
inline constexpr Key<Real> kNozzleVolume{"NozzleVolume", {}, {}, "the volume of the nozzle"};
inline constexpr Key<Integer> kMachineEnergyType{"MachineEnergyType", {}, {}, "the code of what drives the machine"};
inline constexpr Key<Real> kHydraulicPressureTransferFactor{
    "HydraulicPressureTransferFactor", {}, {}, "the transfer factor of the hydraulic pressure"};
inline constexpr Key<Real> kPITCHSIZE{"PITCHSIZE", {}, {}, "the screw pitch"};
inline constexpr Key<Real> kSCREWSPEED{"SCREWSPEED", {}, {}, "the screw speed, beside \"ScrewSpeed\""};
inline constexpr Key<Real> kSCREWDIAFEED{"SCREWDIAFEED", {}, {}, "the screw diameter in the feed zone"};
inline constexpr Key<Real> kSCREWDIATRANSITION{"SCREWDIATRANSITION", {}, {}, "the screw diameter in the transition zone"};
inline constexpr Key<Real> kSCREWDIAMETERING{"SCREWDIAMETERING", {}, {}, "the screw diameter in the metering zone"};
inline constexpr Key<Real> kCHANNELDEEPFEED{"CHANNELDEEPFEED", {}, {}, "the channel depth in the feed zone"};
inline constexpr Key<Real> kCHANNELDEEPMETERING{"CHANNELDEEPMETERING", {}, {}, "the channel depth in the metering zone"};
inline constexpr Key<Real> kSECTIONDEPFEED{"SECTIONDEPFEED", {}, {}, "the length of the feed zone"};
inline constexpr Key<Real> kSECTIONDEPTRANSITION{"SECTIONDEPTRANSITION", {}, {}, "the length of the transition zone"};
inline constexpr Key<Real> kSECTIONDEPMETERING{"SECTIONDEPMETERING", {}, {}, "the length of the metering zone"};
inline constexpr Key<Real> kNUMBERPITCHFEED{"NUMBERPITCHFEED", {}, {}, "the number of pitches in the feed zone"};
inline constexpr Key<Real> kNUMBERPITCHTRANSITION{"NUMBERPITCHTRANSITION", {}, {}, "the number of pitches in the transition zone"};
inline constexpr Key<Real> kNUMBERPITCHMETERING{"NUMBERPITCHMETERING", {}, {}, "the number of pitches in the metering zone"};
inline constexpr Key<Real> kNOZZLEDIAMETER{"NOZZLEDIAMETER", {}, {}, "the diameter of the nozzle"};
inline constexpr Key<Real> kNOZZLELENGTH{"NOZZLELENGTH", {}, {}, "the length of the nozzle"};

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

inline constexpr SectionInfo kInfo{kSection, "the injection molding machine", kKeys, std::size(kKeys)};

}  // namespace qel::machine

class CQELPROBlockIOMachine : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMachine() : CQELPROBlockIOBase(qel::machine::kSection) {}
};
