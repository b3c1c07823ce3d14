#include <cstdint>
#include <cstring>

#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

namespace {

// What existing files hold as a control point's last item: the low 32 bits of the value's bit
// pattern, as an integer.
int low_word(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return static_cast<int>(static_cast<std::uint32_t>(bits));
}

}  // namespace

// A control point is written under the channel's number, whatever the point: existing files have
// this layout.

// [CoolChannel-%d]

bool CPROIO_Manipulator::GetCoolChannelDiameter(int channel, double& value) {
  return Get(cool_channel::kDiameter.in(channel), value);
}
bool CPROIO_Manipulator::SetCoolChannelDiameter(int channel, double value) {
  return Set(cool_channel::kDiameter.in(channel), value);
}
bool CPROIO_Manipulator::GetCoolChannelGroupID(int channel, int& value) {
  return Get(cool_channel::kGroupID.in(channel), value);
}
bool CPROIO_Manipulator::SetCoolChannelGroupID(int channel, int& value) {
  return Set(cool_channel::kGroupID.in(channel), value);
}
bool CPROIO_Manipulator::GetCoolChannelTimeSet(int channel, int& value) {
  return Get(cool_channel::kTimeSet.in(channel), value);
}
bool CPROIO_Manipulator::SetCoolChannelTimeSet(int channel, int& value) {
  return Set(cool_channel::kTimeSet.in(channel), value);
}
bool CPROIO_Manipulator::GetCoolChannelControlPoint(int channel, int point, double& first,
                                                    int& second, double& third, double& fourth,
                                                    double& fifth) {
  return GetZeroed(cool_channel::kControlPoint.in(channel).at(point), first, second, third, fourth,
                   fifth);
}
bool CPROIO_Manipulator::SetcoolChannelControlPoint(int channel, int, double first, int second,
                                                    double third, double fourth, double fifth) {
  return Set(cool_channel::kControlPoint.in(channel).at(channel), first, second, third, fourth,
             low_word(fifth));
}

// [MoldPreheat]

bool CPROIO_Manipulator::GetMoldPreHeatControlType(int& value) {
  return Get(mold_preheat::kControlType, value);
}
bool CPROIO_Manipulator::GetMaxMoldPreHeatTime(double& value) {
  return Get(mold_preheat::kMaxTime, value);
}
bool CPROIO_Manipulator::SetMaxMoldPreHeatTime(double value) {
  return Set(mold_preheat::kMaxTime, value);
}
bool CPROIO_Manipulator::GetMoldPreHeatTime(double& value) {
  return Get(mold_preheat::kTime, value);
}
bool CPROIO_Manipulator::SetMoldPreHeatTime(double value) {
  return Set(mold_preheat::kTime, value);
}
bool CPROIO_Manipulator::GetMoldPreHearTemperature(double& value) {
  return Get(mold_preheat::kTemperature, value);
}
bool CPROIO_Manipulator::SetMoldPreHeatTemperature(double value) {
  return Set(mold_preheat::kTemperature, value);
}
bool CPROIO_Manipulator::GetMoldPreHeatType(int& value) { return Get(mold_preheat::kType, value); }
bool CPROIO_Manipulator::SetMoldPreHeatType(int value) { return Set(mold_preheat::kType, value); }

// [MPreheat_CoolChannel-%d]

bool CPROIO_Manipulator::GetMPreheatCoolChannelDiameter(int channel, double& value) {
  return Get(preheat_channel::kDiameter.in(channel), value);
}
bool CPROIO_Manipulator::SetMPreheatCoolChannelDiameter(int channel, double value) {
  return Set(preheat_channel::kDiameter.in(channel), value);
}
bool CPROIO_Manipulator::GetMPreheatCoolChannelGroupID(int channel, int& value) {
  return Get(preheat_channel::kGroupID.in(channel), value);
}
bool CPROIO_Manipulator::SetMPreheatCoolChannelGroupID(int channel, int& value) {
  return Set(preheat_channel::kGroupID.in(channel), value);
}
bool CPROIO_Manipulator::GetMPreheatCoolChannelTimeSet(int channel, int& value) {
  return Get(preheat_channel::kTimeSet.in(channel), value);
}
bool CPROIO_Manipulator::SetMPreheatCoolChannelTimeSet(int channel, int& value) {
  return Set(preheat_channel::kTimeSet.in(channel), value);
}
bool CPROIO_Manipulator::GetMPreheatCoolChannelControlPoint(int channel, int point, double& first,
                                                            int& second, double& third,
                                                            double& fourth, double& fifth) {
  return GetZeroed(preheat_channel::kControlPoint.in(channel).at(point), first, second, third,
                   fourth, fifth);
}
bool CPROIO_Manipulator::SetMPreheatCoolChannelControlPoint(int channel, int, double first,
                                                            int second, double third, double fourth,
                                                            double fifth) {
  return Set(preheat_channel::kControlPoint.in(channel).at(channel), first, second, third, fourth,
             low_word(fifth));
}
