#include "blocks/mold_temperature_bc_x.h"

#include <cstdint>
#include <limits>

using qel::Result;

int CQELPROBlockIOMoldTemperatureBCX::ReadBC(int& first, char*& name, int& second, int line) {
  if (line < 1) {
    return to_int(Result::no_open);
  }
  if (document() == nullptr) {
    return to_int(Result::no_file);
  }
  char* text = nullptr;
  const int result = document()->GetValue(this->name(), "", text, line);
  if (result == to_int(Result::done)) {
    qel::scan_together<qel::PositionalHeader>(text, line, first, name, second);
  }
  return result;
}

int CQELPROBlockIOMoldTemperatureBCX::WriteBC(int first, const char* name, int second, int line) {
  if (line < 1) {
    return to_int(Result::no_open);
  }
  if (document() == nullptr) {
    return to_int(Result::no_file);
  }
  const std::string text = qel::PositionalHeader::print(first, name, second);
  return text.size() < qel::kCompoundLimit
             ? document()->SetValue(this->name(), "", text.c_str(), line)
             : to_int(Result::no_open);
}

// The setting lines of a condition stand after those of the conditions before it, whose header
// lines say how many each has.
int CQELPROBlockIOMoldTemperatureBCX::FindPosition(int setting, int condition, int offset,
                                                   int& position) {
  if (setting < 1 || condition < 1) {
    return to_int(Result::no_open);
  }
  if (document() == nullptr) {
    return to_int(Result::no_file);
  }
  std::int64_t sum = std::int64_t{offset} + setting;
  if (condition > 1) {
    const int result = document()->VisitLines(name(), condition - 1, [&sum](const char* line) {
      int count = 0;
      qel::fields::scan(line, count);
      sum += count;
    });
    if (result != to_int(Result::done)) {
      return result;
    }
  }
  if (sum < 1 || sum > std::numeric_limits<int>::max()) {
    return to_int(Result::absent);
  }
  position = static_cast<int>(sum);
  return to_int(Result::done);
}

int CQELPROBlockIOMoldTemperatureBCX::ReadBCSetting(double& a, double& b, int setting,
                                                    int condition, int offset) {
  int position = 0;
  const int result = FindPosition(setting, condition, offset, position);
  if (result != to_int(Result::done)) {
    return result;
  }
  std::string line;
  const int found =
      document()->VisitLines(name(), position, [&line](const char* text) { line = text; });
  if (found == to_int(Result::done)) {
    qel::PositionalSetting::scan(line.c_str(), a, b);
  }
  return found;
}

int CQELPROBlockIOMoldTemperatureBCX::WriteBCSetting(double a, double b, int setting, int condition,
                                                     int offset) {
  int position = 0;
  const int result = FindPosition(setting, condition, offset, position);
  if (result != to_int(Result::done)) {
    return result;
  }
  const std::string text = qel::PositionalSetting::print(condition, a, b);
  return document()->SetValue(name(), "", text.c_str(), position);
}
