#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"

/// [EjectCriteria]: the sensor and criteria nodes that decide ejection.
namespace qel::eject_criteria {

inline constexpr char kSection[] = "[EjectCriteria]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"TotalSensorNode",
                 {"EjectCriteria_ReadTotalSensorNode"},
                 {"EjectCriteria_WriteTotalSensorNode"},
                 "the number of sensor nodes",
                 {.older = {"GetTotalSensorNode"}}},
    Key<Integer>{"SensorNode-%d",
                 {"EjectCriteria_ReadSensorNode"},
                 {"EjectCriteria_WriteSensorNode"},
                 "the mesh node of a sensor",
                 {.number = {"sensor", "the sensor"}, .counted_by = "TotalSensorNode"}},
    Key<Integer>{"TotalCriteriaNode",
                 {"EjectCriteria_ReadTotalCriteriaNode"},
                 {"EjectCriteria_WriteTotalCriteriaNode"},
                 "the number of criteria nodes",
                 {.older = {"GetTotalCriteriaNode"}}},
    Key<IntegerAndReal>{"CriteriaNode-%d",
                        {"EjectCriteria_ReadCriteriaNode"},
                        {"EjectCriteria_WriteCriteriaNode"},
                        "the mesh node of a criterion, and the criterion's value",
                        {.number = {"criterion", "the criterion"},
                         .older = {"GetCriteriaNodeSetting"},
                         .counted_by = "TotalCriteriaNode"}},
    // Only the older object serves this one.
    Key<IntegerAndReal>{"SensorNode-%d",
                        {},
                        {},
                        "the mesh node of a sensor and a real that the older object alone reads",
                        {.older = {"GetSensorNodeSetting"}, .counted_by = "TotalSensorNode"}},
};

inline constexpr SectionInfo kInfo{kSection, "EjectCriteria",
                                   "the sensor and criteria nodes that decide ejection", kKeys};

}  // namespace qel::eject_criteria

using CQELPROBlockIOEjectCriteria = qel::SectionBlock<qel::eject_criteria::kInfo>;
