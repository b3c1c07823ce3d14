#include "blocks/part_insert_contact_angle.h"
#include "api/forward.h"

// [PartInsertContactAngle]

using namespace qel;
using namespace qel::part_insert_contact_angle;

bool CQELPROReader_Manipulator::PartInsertContactAngle_ReadGroupCount(int& value) {
  return read(session_, &Session::part_insert_contact_angle, kGroupCount, {}, value);
}

bool CQELPROWriter_Manipulator::PartInsertContactAngle_WriteGroupCount(int value) {
  return write(session_, &Session::part_insert_contact_angle, kGroupCount, {}, value);
}

bool CQELPROReader_Manipulator::PartInsertContactAngle_ReadAngle(int group, double& angle) {
  return session_ != nullptr && attempt([&] {
           return is_done(session_->part_insert_contact_angle.ReadAngle(group, angle));
         });
}

bool CQELPROReader_Manipulator::PartInsertContactAngle_ReadAngle(const char* name, double& angle) {
  return session_ != nullptr && name != nullptr && attempt([&] {
           return is_done(session_->part_insert_contact_angle.ReadAngle(name, angle));
         });
}

bool CQELPROWriter_Manipulator::PartInsertContactAngle_WriteGroup(int group, const char* name,
                                                                  double angle) {
  return write(session_, &Session::part_insert_contact_angle, kGroup, at_point(group), name, angle);
}
