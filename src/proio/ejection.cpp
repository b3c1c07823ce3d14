#include <cstring>

#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

namespace {

// Whether a name was left out: nothing but blanks stands between two tabs, and a number and no more
// in the next piece. Then `at` goes on before the number.
bool skip_missing_name(const char*& at) {
  const char* next = at;
  for (int tab = 0; tab < 2; ++tab) {
    next += std::strspn(next, " ");
    if (*next++ != '\t') {
      return false;
    }
  }
  const char* end = next;
  double number = 0;
  if (!qel::fields::scan_one(end, number)) {
    return false;
  }
  end += std::strspn(end, " ");
  if (*end != '\0' && *end != '\t' && *end != '\n') {
    return false;
  }
  at = next;
  return true;
}

}  // namespace

// [PartingSurface]

bool CPROIO_Manipulator::GetPSCavityPart(int& first, double& second, double& third,
                                         double& fourth) {
  return Get(parting_surface::kCavityPart, first, second, third, fourth);
}
bool CPROIO_Manipulator::GetPSCavityMoldBase(int& first, double& second, double& third,
                                             double& fourth) {
  return Get(parting_surface::kCavityMoldBase, first, second, third, fourth);
}
bool CPROIO_Manipulator::GetPSCorePart(int& first, double& second, double& third, double& fourth) {
  return Get(parting_surface::kCorePart, first, second, third, fourth);
}
bool CPROIO_Manipulator::GetPSCoreMoldBase(int& first, double& second, double& third,
                                           double& fourth) {
  return Get(parting_surface::kCoreMoldBase, first, second, third, fourth);
}

// [EjectCriteria]

bool CPROIO_Manipulator::GetTotalSensorNode(int& value) {
  return Get(eject_criteria::kTotalSensorNode, value);
}
bool CPROIO_Manipulator::GetTotalCriteriaNode(int& value) {
  return Get(eject_criteria::kTotalCriteriaNode, value);
}
bool CPROIO_Manipulator::GetSensorNodeSetting(int number, int& node, double& value) {
  return Get(eject_criteria::kSensorNode.at(number), node, value);
}
bool CPROIO_Manipulator::GetCriteriaNodeSetting(int number, int& node, double& value) {
  return Get(eject_criteria::kCriteriaNode.at(number), node, value);
}

// [PartInsertInitialTemperature]

bool CPROIO_Manipulator::GetTotalPartInsert(int& value) {
  return Get(part_insert::kTotalPartInsert, value);
}
bool CPROIO_Manipulator::GetPartInsertSetting(int number, int& id, char*& name,
                                              double& temperature) {
  char* text = nullptr;
  if (!Get(part_insert::kInsert.at(number), text)) {
    return false;
  }
  name = scratch().part_insert_name.keep({});
  const char* at = text;
  if (!qel::fields::scan_one(at, id)) {
    return true;
  }
  if (skip_missing_name(at)) {
    scan_values(at, temperature);
  } else {
    scan_values(at, Word{name, &Scratch::part_insert_name}, temperature);
  }
  return true;
}
