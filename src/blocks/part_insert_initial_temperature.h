#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [PartInsertInitialTemperature]: the initial temperature of each part insert.
namespace qel::part_insert_initial_temperature {

inline constexpr char kSection[] = "[PartInsertInitialTemperature]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"TotalPartInsert",
                 {"PartInsertInitialTemperature_ReadTotalPartInsert"},
                 {"PartInsertInitialTemperature_WriteTotalPartInsert"},
                 "the number of part inserts",
                 {.older = {"GetTotalPartInsert"}}},
    Key<PartInsertLine>{"PartInsert-%d",
                        {"PartInsertInitialTemperature_ReadPartInsert"},
                        {"PartInsertInitialTemperature_WritePartInsert"},
                        "a part insert: its identifier, its name, its initial temperature, in oC",
                        {.number = {"insert", "the insert"},
                         .older = {"GetPartInsertSetting"},
                         .counted_by = "TotalPartInsert"}},
    Key<PartInsertLineOfFour>{
        "PartInsert-%d",
        {"PartInsertInitialTemperature_ReadPartInsert"},
        {},
        "a part insert: its identifier, its name, which may hold blanks, its "
        "initial temperature, in "
        "oC, and an integer",
        {.number = {"insert", "the insert"}, .counted_by = "TotalPartInsert"}},
};

inline constexpr SectionInfo kInfo{kSection, "PartInsertInitialTemperature",
                                   "the initial temperature of each part insert", kKeys};

}  // namespace qel::part_insert_initial_temperature

using CQELPROBlockIOPartInsertInitialTemperature =
    qel::SectionBlock<qel::part_insert_initial_temperature::kInfo>;
