#include "blocks/mold_insert_initial_temperature.h"
#include "api/forward.h"

// [MoldInsertInitialTemperature]

using namespace qel;
using namespace qel::mold_insert_initial_temperature;

bool CQELPROReader_Manipulator::MoldInsertInitialTemperature_ReadTotalMoldInsert(int& value) {
  return read(session_, &Session::mold_insert_initial_temperature, kTotalMoldInsert, {}, value);
}

bool CQELPROReader_Manipulator::MoldInsertInitialTemperature_ReadMoldInsert(int& id, char*& name,
                                                                            double& temperature,
                                                                            int insert) {
  return read(session_, &Session::mold_insert_initial_temperature, kMoldInsert, at_point(insert),
              id, name, temperature);
}

bool CQELPROWriter_Manipulator::MoldInsertInitialTemperature_WriteTotalMoldInsert(int value) {
  return write(session_, &Session::mold_insert_initial_temperature, kTotalMoldInsert, {}, value);
}

bool CQELPROWriter_Manipulator::MoldInsertInitialTemperature_WriteMoldInsert(int id, char* name,
                                                                             double temperature,
                                                                             int insert) {
  return write(session_, &Session::mold_insert_initial_temperature, kMoldInsert, at_point(insert),
               id, name, temperature);
}

bool CQELPROReader_Manipulator::MoldInsertInitialTemperature_ReadMoldInsert(int& id, char*& name,
                                                                            double& temperature,
                                                                            int& fourth,
                                                                            int insert) {
  return read(session_, &Session::mold_insert_initial_temperature, kMoldInsertOfFour,
              at_point(insert), insert, id, name, temperature, fourth);
}
