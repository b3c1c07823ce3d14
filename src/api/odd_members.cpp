#include "api/members.h"
#include "platform/number.h"

// The section members that do more than hand one key to their block. All others are made from the
// rows of src/blocks.

using namespace qel;

// [FileHeader]

bool CQELPROWriter_Manipulator::FileHeader_WriteDate(char* text) {
  return write<CQELPROBlockIOFileHeader, Text>(session_, key_of(file_header::kKeys, "Date"), {},
                                               text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteDate() {
  return done_by<CQELPROBlockIOFileHeader>(session_,
                                           [&](auto& block) { return block.WriteDate(); });
}

// [Unit]

void CQELPROWriter_Manipulator::WriteUnitBlock() {
  // Every entry is written, whatever becomes of those before it.
  for (std::size_t number = 0; number < CQELPROBlockIOUnit::kUnits; ++number) {
    done_by<CQELPROBlockIOUnit>(session_, [&](auto& block) { return block.WriteUnit(number); });
  }
}

// The control points of the channels: which of a channel's two lists holds them stands elsewhere.

namespace {

// A key that is not there counts as 0. Where it could not be looked for, the point would be that of
// the other list.
template <class Control, class Channel, class... Values>
bool read_control_point(Session* session, const char* control_key, Place place, Values&... values) {
  return done_by<Channel>(session, [&](Channel& channel) {
    int control = 0;
    const Result found = session->block<Control>().template Read<Integer>(control_key, {}, control);
    if (found != Result::done && found != Result::absent) {
      return found;
    }
    const char* const key = control == cool_channel_x::kControlByPressure
                                ? key_of(cool_channel_x::kKeys, "TCPP-%d")
                                : key_of(cool_channel_x::kKeys, "TCP-%d");
    return channel.template Read<ControlPoint>(key, place, values...);
  });
}

}  // namespace

bool CQELPROReader_Manipulator::CoolChannelX_ReadControlPointSetting(double& f1, int& system,
                                                                     double& temperature,
                                                                     double& flow, int& f5,
                                                                     int point, int channel) {
  return read_control_point<CQELPROBlockIOCool, CQELPROBlockIOCoolChannelX>(
      session_, key_of(cool::kKeys, "ControlType"), at_point(point, channel), f1, system,
      temperature, flow, f5);
}

bool CQELPROReader_Manipulator::MoldPreheat_CoolChannelX_ReadControlPointSetting(
    double& f1, int& system, double& temperature, double& flow, int& f5, int point, int channel) {
  return read_control_point<CQELPROBlockIOMoldPreHeat, CQELPROBlockIOMoldPreHeatCoolChannelX>(
      session_, key_of(mold_preheat::kKeys, "ControlType"), at_point(point, channel), f1, system,
      temperature, flow, f5);
}

// [GateValve-%d]

bool CQELPROWriter_Manipulator::GateValveX_WriteGateSetting(double value, int number, int mode,
                                                            int point, int valve) {
  return done_by<CQELPROBlockIOGateValveX>(session_, [&](auto& block) {
    return block.WriteGateSetting(GatePointShort::print(value, number, mode), point, valve);
  });
}

bool CQELPROWriter_Manipulator::GateValveX_WriteGateSetting(double value, int number, int mode,
                                                            int last, int point, int valve) {
  return done_by<CQELPROBlockIOGateValveX>(session_, [&](auto& block) {
    return block.WriteGateSetting(GatePoint::print(value, number, mode, last), point, valve);
  });
}

bool CQELPROWriter_Manipulator::GateValveX_WriteGateSettingByValveGateID(double value, int number,
                                                                         int mode, int point,
                                                                         int id) {
  return done_by<CQELPROBlockIOGateValveX>(session_, [&](auto& block) {
    return block.WriteGateSettingByValveGateID(GatePointShort::print(value, number, mode), point,
                                               id);
  });
}

bool CQELPROWriter_Manipulator::GateValveX_WriteGateSettingByValveGateID(double value, int number,
                                                                         int mode, int last,
                                                                         int point, int id) {
  return done_by<CQELPROBlockIOGateValveX>(session_, [&](auto& block) {
    return block.WriteGateSettingByValveGateID(GatePoint::print(value, number, mode, last), point,
                                               id);
  });
}

// [AdvancedSetting]

bool CQELPROReader_Manipulator::AdvancedSetting_ReadCycleTime(double& value) {
  char* text = nullptr;
  if (!ReadString(advanced_setting::kSection, key_of(advanced_setting::kKeys, "CycleTime"), text,
                  nullptr, 0)) {
    return false;
  }
  value = platform::to_real(text);
  return true;
}

// [PartInsertContactAngle]

bool CQELPROReader_Manipulator::PartInsertContactAngle_ReadAngle(int group, double& angle) {
  return done_by<CQELPROBlockIOPartInsertContactAngle>(
      session_, [&](auto& block) { return block.ReadAngle(group, angle); });
}

bool CQELPROReader_Manipulator::PartInsertContactAngle_ReadAngle(const char* name, double& angle) {
  return name != nullptr &&
         done_by<CQELPROBlockIOPartInsertContactAngle>(
             session_, [&](auto& block) { return block.ReadAngle(name, angle); });
}

bool CQELPROWriter_Manipulator::PartInsertContactAngle_WriteGroup(int group, const char* name,
                                                                  double angle) {
  return write<CQELPROBlockIOPartInsertContactAngle, ContactAngle>(
      session_, key_of(part_insert_contact_angle::kKeys, "%d"), at_point(group), name, angle);
}

// The positional section

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadBC(int& first, char*& name, int& second,
                                                          int line) {
  return done_by<CQELPROBlockIOMoldTemperatureBCX>(
      session_, [&](auto& block) { return block.ReadBC(first, name, second, line); });
}

bool CQELPROReader_Manipulator::MoldTemperatureBCX_ReadBCSetting(double& a, double& b, int setting,
                                                                 int bc, int offset) {
  return done_by<CQELPROBlockIOMoldTemperatureBCX>(
      session_, [&](auto& block) { return block.ReadBCSetting(a, b, setting, bc, offset); });
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteBC(int first, char* name, int second,
                                                           int line) {
  return name != nullptr && done_by<CQELPROBlockIOMoldTemperatureBCX>(session_, [&](auto& block) {
           return block.WriteBC(first, name, second, line);
         });
}

bool CQELPROWriter_Manipulator::MoldTemperatureBCX_WriteBCSetting(double a, double b, int setting,
                                                                  int bc, int offset) {
  return done_by<CQELPROBlockIOMoldTemperatureBCX>(
      session_, [&](auto& block) { return block.WriteBCSetting(a, b, setting, bc, offset); });
}
