#include <memory>
#include <string>

#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "QELPROEngine/CQELPROWriter_Manipulator.h"
#include "QELPROEngine/CQEL_ProcessAdapter.h"
#include "objects/attempt.h"
#include "objects/owners.h"

namespace {

// The writer that copies of an adapter share, with a path that outlives the caller's text.
struct WriterOfAPath : CQELPROWriter_Manipulator {
  std::string path;
};
using SharedWriter = qel::Shared<WriterOfAPath>;

SharedWriter* shared(CQELPROWriter_Manipulator* writer) {
  return static_cast<SharedWriter*>(writer);
}

}  // namespace

CQEL_ProcessAdapter::CQEL_ProcessAdapter() = default;

CQEL_ProcessAdapter::CQEL_ProcessAdapter(const CQEL_ProcessAdapter& other)
    : writer_(qel::share(shared(other.writer_))), path_(other.path_) {}

CQEL_ProcessAdapter& CQEL_ProcessAdapter::operator=(const CQEL_ProcessAdapter& other) {
  if (this != &other) {
    CQELPROWriter_Manipulator* previous = writer_;
    writer_ = qel::share(shared(other.writer_));
    path_ = other.path_;
    qel::release(shared(previous));
  }
  return *this;
}

CQEL_ProcessAdapter::~CQEL_ProcessAdapter() { qel::release(shared(writer_)); }

bool CQEL_ProcessAdapter::SetProcessPath(const char* path) {
  return writer_ == nullptr && qel::attempt([&] {
           auto writer = std::make_unique<SharedWriter>();
           writer->path = path != nullptr ? path : "";
           writer_ = writer.release();
           if (!writer_->SetFilePath(path)) {
             return false;
           }
           path_ = path;
           return true;
         });
}

void CQEL_ProcessAdapter::EndFile() {
  if (writer_ != nullptr) {
    writer_->CloseFile();
  }
}

bool CQEL_ProcessAdapter::SetGateCount(int n) {
  if (writer_ == nullptr) {
    return false;
  }
  writer_->Summary_WriteTotalValveGate(n);
  return true;
}

bool CQEL_ProcessAdapter::SetGateCTL_Time(double start, double end, int gate) {
  if (writer_ == nullptr) {
    return false;
  }
  writer_->GateCTL_WriteStartTime(start, gate);
  writer_->GateCTL_WriteEndTime(end, gate);
  return true;
}

bool CQEL_ProcessAdapter::SetGateValveX_ControlPoint(int count, int valve) {
  if (writer_ == nullptr) {
    return false;
  }
  writer_->GateValveX_WriteControlPoint(count, valve);
  return true;
}

bool CQEL_ProcessAdapter::SetGateValveX_GateSetting(double value, bool flag, int mode, int point,
                                                    int valve) {
  if (writer_ == nullptr) {
    return false;
  }
  writer_->GateValveX_WriteGateSetting(value, flag ? 1 : 0, mode, point, valve);
  return true;
}

bool CQEL_ProcessAdapter::SetGateValveX_GateSetting(double value, bool flag, int mode, int last,
                                                    int point, int valve) {
  return writer_ != nullptr &&
         writer_->GateValveX_WriteGateSetting(value, flag ? 1 : 0, mode, last, point, valve);
}

bool CQEL_ProcessAdapter::SetCoolCTL_WriteCoolantTemperature(double value, int entrance) {
  return writer_ != nullptr && writer_->CoolCTL_WriteCoolantTemperature(value, entrance);
}

bool CQEL_ProcessAdapter::SetCoolCTL_WriteCoolantFlowRate(double value, int entrance) {
  return writer_ != nullptr && writer_->CoolCTL_WriteCoolantFlowRate(value, entrance);
}

bool CQEL_ProcessAdapter::SetCoolCTL_WriteCoolantSystem(int value, int entrance) {
  return writer_ != nullptr && writer_->CoolCTL_WriteCoolantSystem(value, entrance);
}

bool CQEL_ProcessAdapter::SetCoolCTL_WroteCoolantPressure(int value, int entrance) {
  return writer_ != nullptr &&
         writer_->CoolCTL_WroteCoolantPressure(static_cast<double>(value), entrance);
}

bool CQEL_ProcessAdapter::SetCoolant_WriteCoolant(double p1, double p2, double p3, double p4,
                                                  int system, char* name, double f7, int f8,
                                                  int coolant) {
  return writer_ != nullptr &&
         writer_->Coolant_WriteCoolant(p1, p2, p3, p4, system, name, f7, f8, coolant);
}

bool CQEL_ProcessAdapter::SetCoolChannelX_WriteDiameter(double value, int channel) {
  return writer_ != nullptr && writer_->CoolChannelX_WriteDiameter(value, channel);
}

bool CQEL_ProcessAdapter::SetCoolChannelX_WriteGroupID(int value, int channel) {
  return writer_ != nullptr && writer_->CoolChannelX_WriteGroupID(value, channel);
}

bool CQEL_ProcessAdapter::SetCoolChannelX_WriteTimeSection(int value, int channel) {
  return writer_ != nullptr && writer_->CoolChannelX_WriteTimeSection(value, channel);
}

bool CQEL_ProcessAdapter::SetCoolChannelX_WriteControlPointSetting(double f1, int system,
                                                                   double temperature, double flow,
                                                                   int f5, int point, int channel) {
  return writer_ != nullptr && writer_->CoolChannelX_WriteControlPointSetting(
                                   f1, system, temperature, flow, f5, point, channel);
}

bool CQEL_ProcessAdapter::SetCoolChannelX_WritePressureControlPointSetting(double f1, int system,
                                                                           double temperature,
                                                                           double pressure, int f5,
                                                                           int point, int channel) {
  return writer_ != nullptr && writer_->CoolChannelX_WritePressureControlPointSetting(
                                   f1, system, temperature, pressure, f5, point, channel);
}

bool CQEL_ProcessAdapter::SetCoolingChannelData(int channel, int group, double diameter,
                                                int time_set, double temperature, double flow_rate,
                                                int system, double pressure, double point_time,
                                                int point_flag, double prop1, double prop2,
                                                double prop3, double prop4, char* name,
                                                int use_pressure) {
  if (writer_ == nullptr) {
    return false;
  }
  constexpr int kFirstPoint = 1;
  writer_->CoolCTL_WriteCoolantTemperature(temperature, channel);
  writer_->CoolCTL_WriteCoolantFlowRate(flow_rate, channel);
  writer_->CoolCTL_WriteCoolantSystem(system, channel);
  writer_->Coolant_WriteCoolant(prop1, prop2, prop3, prop4, system, name, diameter, group, channel);
  writer_->CoolChannelX_WriteDiameter(diameter, channel);
  writer_->CoolChannelX_WriteGroupID(group, channel);
  writer_->CoolChannelX_WriteTimeSection(time_set, channel);
  if (use_pressure != 0) {
    writer_->CoolChannelX_WritePressureControlPointSetting(
        point_time, system, temperature, pressure, point_flag, kFirstPoint, channel);
  } else {
    writer_->CoolChannelX_WriteControlPointSetting(point_time, system, temperature, flow_rate,
                                                   point_flag, kFirstPoint, channel);
  }
  return true;
}

void CQEL_ProcessAdapter::GetMaterialDefaultValue(int kind, double& p1, double& p2, double& p3,
                                                  double& p4) {
  p1 = p2 = p4 = 0;  // the third is left alone for a kind that is not known
  switch (kind) {
    case 0:
    case 2:
      p1 = 1.0;
      p2 = 4.183e7;
      p3 = 59800.0;
      p4 = 0.01006;
      break;
    case 1:
      p1 = 0.836;
      p2 = 2.25e7;
      p3 = 13800.0;
      p4 = 0.0243;
      break;
    default:
      break;
  }
}

void CQEL_ProcessAdapter::GetMaterialTemperature(double& mold, double& melt) {
  qel::attempt([&] {
    CQELPROReader_Manipulator reader;
    const bool is_open = path_ != nullptr && reader.SetFilePath(shared(writer_)->path.c_str());
    if (is_open) {
      reader.FlowCTL_ReadMeltTemperature(melt);
      reader.FlowCTL_ReadMoldTemperature(mold);
    }
    return is_open;
  });
}
