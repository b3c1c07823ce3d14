#pragma once

#include "blocks/block.h"

/// [Unit]: the units in which the file's values are given; they are fixed.
namespace qel::unit {

inline constexpr char kSection[] = "[Unit]";

inline constexpr KeyInfo kKeys[] = {
    Key<Text>{
        "Time", {}, {"WriteUnitBlock"}, "the unit of times, \"sec\"", {.older = {"SetUnitTime"}}},
    Key<Text>{"Temp",
              {},
              {"WriteUnitBlock"},
              "the unit of temperatures, \"oC\"",
              {.older = {"SetUnitTemperature"}}},
    Key<Text>{"Pres",
              {},
              {"WriteUnitBlock"},
              "the unit of pressures, \"MPa\"",
              {.older = {"SetUnitPressure"}}},
    Key<Text>{"FR",
              {},
              {"WriteUnitBlock"},
              "the unit of flow rates, \"cc/sec\"",
              {.older = {"SetUnitFlowRate"}}},
    Key<Text>{"IP",
              {},
              {"WriteUnitBlock"},
              "the unit of injection pressures, \"MPa\"",
              {.older = {"SetUnitInjectPressure"}}},
    Key<Text>{"PP",
              {},
              {"WriteUnitBlock"},
              "the unit of packing pressures, \"MPa\"",
              {.older = {"SetUnitPackPressure"}}},
    Key<Text>{"Volume", {}, {"WriteUnitBlock"}, "the unit of volumes, \"cc\""},
    // Only the older object serves this one.
    Key<Text>{"Volum",
              {},
              {},
              "the unit of volumes under the spelling of the older object, \"cc\"",
              {.older = {"SetUnitVolume"}}},
};

inline constexpr SectionInfo kInfo{
    kSection, "Unit", "the units in which the file's values are given; they are fixed", kKeys};

}  // namespace qel::unit

class CQELPROBlockIOUnit : public qel::SectionBlock<qel::unit::kInfo> {
 public:
  /// How many entries the writer gives the section, and the writing of one of them, in their order
  /// from 0.
  static constexpr std::size_t kUnits = 7;
  qel::Result WriteUnit(std::size_t number);
};
