#include "blocks/mold_temperature_bc_x.h"

#include <cstdint>
#include <limits>

using qel::Result;

qel::Result CQELPROBlockIOMoldTemperatureBCX::ReadBC(int& first, char*& name, int& second,
                                                     int line) {
  if (line < 1) {
    return Result::no_open;
  }
  if (document() == nullptr) {
    return Result::no_file;
  }
  char* text = nullptr;
  const qel::Result result = document()->GetValue(this->name(), "", text, line);
  if (result == Result::done) {
    qel::scan_together<qel::PositionalHeader>(text, line, first, name, second);
  }
  return result;
}

qel::Result CQELPROBlockIOMoldTemperatureBCX::WriteBC(int first, const char* name, int second,
                                                      int line) {
  if (line < 1) {
    return Result::no_open;
  }
  if (document() == nullptr) {
    return Result::no_file;
  }
  const std::string text = qel::PositionalHeader::print(first, name, second);
  return text.size() < qel::kCompoundLimit ? document()->SetValue(this->name(), "", text, line)
                                           : Result::no_open;
}

// The setting lines of a condition stand after those of the conditions before it, whose header
// lines say how many each has.
qel::Result CQELPROBlockIOMoldTemperatureBCX::FindPosition(int setting, int condition, int offset,
                                                           int& position) {
  if (setting < 1 || condition < 1) {
    return Result::no_open;
  }
  if (document() == nullptr) {
    return Result::no_file;
  }
  const std::int64_t in_condition = std::int64_t{offset} + setting;
  std::int64_t sum = in_condition;
  if (condition > 1) {
    const qel::Result result = document()->VisitLines(
        name(), condition - 1, [&] { sum = in_condition; },
        [&sum](std::string_view line) {
          int count = 0;
          qel::fields::scan(std::string(line).c_str(), count);
          sum += count;
        });
    if (result != Result::done) {
      return result;
    }
  }
  if (sum < 1 || sum > std::numeric_limits<int>::max()) {
    return Result::absent;
  }
  position = static_cast<int>(sum);
  return Result::done;
}

qel::Result CQELPROBlockIOMoldTemperatureBCX::ReadBCSetting(double& a, double& b, int setting,
                                                            int condition, int offset) {
  int position = 0;
  const qel::Result result = FindPosition(setting, condition, offset, position);
  if (result != Result::done) {
    return result;
  }
  std::string line;
  const Result found = document()->VisitLines(
      name(), position, [] {}, [&line](std::string_view text) { line = text; });
  if (found == Result::done) {
    qel::PositionalSetting::scan(line.c_str(), a, b);
  }
  return found;
}

qel::Result CQELPROBlockIOMoldTemperatureBCX::WriteBCSetting(double a, double b, int setting,
                                                             int condition, int offset) {
  int position = 0;
  const qel::Result result = FindPosition(setting, condition, offset, position);
  if (result != Result::done) {
    return result;
  }
  const std::string text = qel::PositionalSetting::print(condition, a, b);
  return document()->SetValue(name(), "", text, position);
}
