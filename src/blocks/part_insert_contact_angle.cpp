#include "blocks/part_insert_contact_angle.h"

using qel::Result;
using namespace qel::part_insert_contact_angle;

int CQELPROBlockIOPartInsertContactAngle::ReadGroup(int group, std::string& name, double& angle) {
  char* text = nullptr;
  const int result = FindText(kGroup.text, qel::at_point(group), text);
  if (result != to_int(Result::done)) {
    return result;
  }
  return to_int(qel::ContactAngle::scan(text, name, angle) ? Result::done : Result::absent);
}

int CQELPROBlockIOPartInsertContactAngle::ReadAngle(int group, double& angle) {
  std::string name;
  return ReadGroup(group, name, angle);
}

int CQELPROBlockIOPartInsertContactAngle::ReadAngle(const char* name, double& angle) {
  int count = 0;
  Read(kGroupCount, {}, count);
  std::string group_name;
  double group_angle = 0;
  for (int group = 1; group <= count; ++group) {
    const int result = ReadGroup(group, group_name, group_angle);
    if (result != to_int(Result::done)) {
      return result;
    }
    if (group_name == name) {
      angle = group_angle;
      return result;
    }
    if (group == count) {
      break;  // the count may be the largest integer
    }
  }
  return to_int(Result::absent);
}
