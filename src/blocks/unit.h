#pragma once

#include "blocks/block.h"

/// [Unit]: the units in which the file's values are given; they are fixed.
namespace qel::unit {

inline constexpr char kSection[] = "[Unit]";

inline constexpr Key<Text> kTime{
    "Time", {}, {"WriteUnitBlock"}, "the unit of times, \"sec\"", {.older = {"SetUnitTime"}}};
inline constexpr Key<Text> kTemp{"Temp",
                                 {},
                                 {"WriteUnitBlock"},
                                 "the unit of temperatures, \"oC\"",
                                 {.older = {"SetUnitTemperature"}}};
inline constexpr Key<Text> kPres{"Pres",
                                 {},
                                 {"WriteUnitBlock"},
                                 "the unit of pressures, \"MPa\"",
                                 {.older = {"SetUnitPressure"}}};
inline constexpr Key<Text> kFR{"FR",
                               {},
                               {"WriteUnitBlock"},
                               "the unit of flow rates, \"cc/sec\"",
                               {.older = {"SetUnitFlowRate"}}};
inline constexpr Key<Text> kIP{"IP",
                               {},
                               {"WriteUnitBlock"},
                               "the unit of injection pressures, \"MPa\"",
                               {.older = {"SetUnitInjectPressure"}}};
inline constexpr Key<Text> kPP{"PP",
                               {},
                               {"WriteUnitBlock"},
                               "the unit of packing pressures, \"MPa\"",
                               {.older = {"SetUnitPackPressure"}}};
inline constexpr Key<Text> kVolume{"Volume", {}, {"WriteUnitBlock"}, "the unit of volumes, \"cc\""};

// Only the older object serves this one.
inline constexpr Key<Text> kVolum{
    "Volum",
    {},
    {},
    "the unit of volumes under the spelling of the older object, \"cc\"",
    {.older = {"SetUnitVolume"}}};

inline constexpr const KeyInfo* kKeys[] = {&kTime, &kTemp, &kPres,   &kFR,
                                           &kIP,   &kPP,   &kVolume, &kVolum};

inline constexpr SectionInfo kInfo{
    kSection, "Unit", "the units in which the file's values are given; they are fixed", kKeys};

}  // namespace qel::unit

class CQELPROBlockIOUnit : public qel::SectionBlock<qel::unit::kInfo> {
 public:
  /// How many entries the writer gives the section, and the writing of one of them, in their order
  /// from 0.
  static constexpr std::size_t kUnits = 7;
  int WriteUnit(std::size_t number);
};
