#include "blocks/eject_criteria.h"
#include "api/forward.h"

// [EjectCriteria]

using namespace qel;
using namespace qel::eject_criteria;

bool CQELPROReader_Manipulator::EjectCriteria_ReadTotalSensorNode(int& value) {
  return read(session_, &Session::eject_criteria, kTotalSensorNode, {}, value);
}

bool CQELPROReader_Manipulator::EjectCriteria_ReadSensorNode(int& value, int sensor) {
  return read(session_, &Session::eject_criteria, kSensorNode, at_point(sensor), value);
}

bool CQELPROReader_Manipulator::EjectCriteria_ReadTotalCriteriaNode(int& value) {
  return read(session_, &Session::eject_criteria, kTotalCriteriaNode, {}, value);
}

bool CQELPROReader_Manipulator::EjectCriteria_ReadCriteriaNode(int& node, double& value,
                                                               int criterion) {
  return read(session_, &Session::eject_criteria, kCriteriaNode, at_point(criterion), node, value);
}

bool CQELPROWriter_Manipulator::EjectCriteria_WriteTotalSensorNode(int value) {
  return write(session_, &Session::eject_criteria, kTotalSensorNode, {}, value);
}

bool CQELPROWriter_Manipulator::EjectCriteria_WriteSensorNode(int value, int sensor) {
  return write(session_, &Session::eject_criteria, kSensorNode, at_point(sensor), value);
}

bool CQELPROWriter_Manipulator::EjectCriteria_WriteTotalCriteriaNode(int value) {
  return write(session_, &Session::eject_criteria, kTotalCriteriaNode, {}, value);
}

bool CQELPROWriter_Manipulator::EjectCriteria_WriteCriteriaNode(int node, double value,
                                                                int criterion) {
  return write(session_, &Session::eject_criteria, kCriteriaNode, at_point(criterion), node, value);
}
