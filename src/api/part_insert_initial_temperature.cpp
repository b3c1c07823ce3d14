#include "blocks/part_insert_initial_temperature.h"
#include "api/forward.h"

// [PartInsertInitialTemperature]

using namespace qel;
using namespace qel::part_insert_initial_temperature;

bool CQELPROReader_Manipulator::PartInsertInitialTemperature_ReadTotalPartInsert(int& value) {
  return read(session_, &Session::part_insert_initial_temperature, kTotalPartInsert, {}, value);
}

bool CQELPROReader_Manipulator::PartInsertInitialTemperature_ReadPartInsert(int& id, char*& name,
                                                                            double& temperature,
                                                                            int insert) {
  return read(session_, &Session::part_insert_initial_temperature, kPartInsert, at_point(insert),
              id, name, temperature);
}

bool CQELPROWriter_Manipulator::PartInsertInitialTemperature_WriteTotalPartInsert(int value) {
  return write(session_, &Session::part_insert_initial_temperature, kTotalPartInsert, {}, value);
}

bool CQELPROWriter_Manipulator::PartInsertInitialTemperature_WritePartInsert(int id, char* name,
                                                                             double temperature,
                                                                             int insert) {
  return write(session_, &Session::part_insert_initial_temperature, kPartInsert, at_point(insert),
               id, name, temperature);
}

bool CQELPROReader_Manipulator::PartInsertInitialTemperature_ReadPartInsert(int& id, char*& name,
                                                                            double& temperature,
                                                                            int& fourth,
                                                                            int insert) {
  return read(session_, &Session::part_insert_initial_temperature, kPartInsertOfFour,
              at_point(insert), insert, id, name, temperature, fourth);
}
