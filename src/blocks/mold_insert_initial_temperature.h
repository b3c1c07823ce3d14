#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [MoldInsertInitialTemperature]: the initial temperature of each mold insert.
namespace qel::mold_insert_initial_temperature {

inline constexpr char kSection[] = "[MoldInsertInitialTemperature]";

inline constexpr Key<Integer> kTotalMoldInsert{
    "TotalMoldInsert",
    {"MoldInsertInitialTemperature_ReadTotalMoldInsert"},
    {"MoldInsertInitialTemperature_WriteTotalMoldInsert"},
    "the number of mold inserts"};
inline constexpr Key<MoldInsertLine> kMoldInsert{
    "MoldInsert-%d",
    {"MoldInsertInitialTemperature_ReadMoldInsert"},
    {"MoldInsertInitialTemperature_WriteMoldInsert"},
    "a mold insert: its identifier, its name, its initial temperature, in oC"};
inline constexpr Key<MoldInsertLineOfFour> kMoldInsertOfFour{
    "MoldInsert-%d",
    {"MoldInsertInitialTemperature_ReadMoldInsert"},
    {},
    "a mold insert: its identifier, its name, which may hold blanks, its initial temperature, in "
    "oC, and an integer"};

inline constexpr const KeyInfo* kKeys[] = {&kTotalMoldInsert, &kMoldInsert, &kMoldInsertOfFour};

inline constexpr SectionInfo kInfo{kSection, "the initial temperature of each mold insert", kKeys,
                                   std::size(kKeys)};

}  // namespace qel::mold_insert_initial_temperature

class CQELPROBlockIOMoldInsertInitialTemperature : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOMoldInsertInitialTemperature()
      : CQELPROBlockIOBase(qel::mold_insert_initial_temperature::kSection) {}
};
