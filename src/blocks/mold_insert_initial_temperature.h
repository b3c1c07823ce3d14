#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [MoldInsertInitialTemperature]: the initial temperature of each mold insert.
namespace qel::mold_insert_initial_temperature {

inline constexpr char kSection[] = "[MoldInsertInitialTemperature]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"TotalMoldInsert",
                 {"MoldInsertInitialTemperature_ReadTotalMoldInsert"},
                 {"MoldInsertInitialTemperature_WriteTotalMoldInsert"},
                 "the number of mold inserts"},
    Key<MoldInsertLine>{"MoldInsert-%d",
                        {"MoldInsertInitialTemperature_ReadMoldInsert"},
                        {"MoldInsertInitialTemperature_WriteMoldInsert"},
                        "a mold insert: its identifier, its name, its initial temperature, in oC",
                        {.number = {"insert", "the insert"}, .counted_by = "TotalMoldInsert"}},
    Key<MoldInsertLineOfFour>{
        "MoldInsert-%d",
        {"MoldInsertInitialTemperature_ReadMoldInsert"},
        {},
        "a mold insert: its identifier, its name, which may hold blanks, its "
        "initial temperature, in "
        "oC, and an integer",
        {.number = {"insert", "the insert"}, .counted_by = "TotalMoldInsert"}},
};

inline constexpr SectionInfo kInfo{kSection, "MoldInsertInitialTemperature",
                                   "the initial temperature of each mold insert", kKeys};

}  // namespace qel::mold_insert_initial_temperature

using CQELPROBlockIOMoldInsertInitialTemperature =
    qel::SectionBlock<qel::mold_insert_initial_temperature::kInfo>;
