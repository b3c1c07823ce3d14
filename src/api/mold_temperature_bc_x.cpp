#include "blocks/mold_temperature_bc_x.h"
#include "api/forward.h"

// [MoldTemperatureBC-%d] and the positional section

using namespace qel;
using namespace qel::mold_temperature_bc_x;

namespace {

template <class Encoding, class... Values>
bool read_numbered(Session* session, const Key<Encoding>& key, Place place, Values&... values) {
  return session != nullptr && attempt([&] {
           return is_done(session->mold_temperature_bc_x.ReadNumbered(key, place, values...));
         });
}

template <class Encoding, class... Values>
bool write_numbered(Session* session, const Key<Encoding>& key, Place place, Values... values) {
  return session != nullptr && !(is_null(values) || ...) && attempt([&] {
           return is_done(session->mold_temperature_bc_x.WriteNumbered(key, place, values...));
         });
}

}  // namespace

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadName(char*& text, int bc) {
  return read_numbered(session_, kBCName, in_section(bc), text);
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadDisplayType(int& value, int bc) {
  return read_numbered(session_, kBCDisplayType, in_section(bc), value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadNodeCount(int& value, int bc) {
  return read_numbered(session_, kBCNodeCount, in_section(bc), value);
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadBCProfile(double& x, double& y, int point,
                                                                 int bc) {
  return read_numbered(session_, kBCPoint, at_point(point, bc), x, y);
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadBC(int& first, char*& name, int& second,
                                                          int line) {
  return session_ != nullptr && attempt([&] {
           return is_done(session_->mold_temperature_bc_x.ReadBC(first, name, second, line));
         });
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadBCSetting(double& a, double& b, int setting,
                                                                 int bc, int offset) {
  return session_ != nullptr && attempt([&] {
           return is_done(session_->mold_temperature_bc_x.ReadBCSetting(a, b, setting, bc, offset));
         });
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteName(char* text, int bc) {
  return write_numbered(session_, kBCName, in_section(bc), text);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteDisplayType(int value, int bc) {
  return write_numbered(session_, kBCDisplayType, in_section(bc), value);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteNodeCount(int value, int bc) {
  return write_numbered(session_, kBCNodeCount, in_section(bc), value);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteBCProfile(double x, double y, int point,
                                                                  int bc) {
  return write_numbered(session_, kBCPoint, at_point(point, bc), x, y);
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteBC(int first, char* name, int second,
                                                           int line) {
  return session_ != nullptr && name != nullptr && attempt([&] {
           return is_done(session_->mold_temperature_bc_x.WriteBC(first, name, second, line));
         });
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteBCSetting(double a, double b, int setting,
                                                                  int bc, int offset) {
  return session_ != nullptr && attempt([&] {
           return is_done(
               session_->mold_temperature_bc_x.WriteBCSetting(a, b, setting, bc, offset));
         });
}
