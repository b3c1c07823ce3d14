#pragma once

#include "blocks/block.h"
#include "blocks/name_encoding.h"

/// [PartInsertContactAngle]: the contact angle of each part insert group.
namespace qel::part_insert_contact_angle {

inline constexpr char kSection[] = "[PartInsertContactAngle]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"GroupCount",
                 {"PartInsertContactAngle_ReadGroupCount"},
                 {"PartInsertContactAngle_WriteGroupCount"},
                 "the number of groups of part inserts"},
    Key<ContactAngle>{"%d",
                      {"PartInsertContactAngle_ReadAngle", "PartInsertContactAngle_ReadAngle"},
                      {"PartInsertContactAngle_WriteGroup"},
                      "a group of part inserts: its name in double quotes, and its contact angle",
                      {.number = {"group", "the group"}, .counted_by = "GroupCount"}},
};

inline constexpr SectionInfo kInfo{kSection, "PartInsertContactAngle",
                                   "the contact angle of each part insert group", kKeys};

}  // namespace qel::part_insert_contact_angle

class CQELPROBlockIOPartInsertContactAngle
    : public qel::SectionBlock<qel::part_insert_contact_angle::kInfo> {
 public:
  /// Fails for a line without two double quotes.
  qel::Result ReadAngle(int group, double& angle);
  /// The first group whose name is exactly this one, among the groups that "GroupCount" says there
  /// are. A group that is missing, or has no quoted name, ends the search. The name may stand in a
  /// buffer of a lookup's.
  qel::Result ReadAngle(const char* name, double& angle);

 private:
  qel::Result ReadGroup(int group, std::string& name, double& angle);
  qel::Result FindByLookups(const std::string& wanted, int count, double& angle);
  qel::Result FindInOneScan(const std::string& wanted, int count, double& angle);
};
