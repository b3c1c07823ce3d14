#include "blocks/mold_temperature_bc_x.h"

#include <cstdint>
#include <limits>

#include "blocks/name_buffer.h"
#include "blocks/words.h"

using qel::Result;

namespace {

// The words of a header line: integer, name, integer. The name may hold blanks; three words or fewer are scanned as they
// come.
void scan_header_line(const char* text, int& first, char*& name, int& second) {
  thread_local qel::NameBuffer buffer;
  constexpr const char* kSeparators = " \t\n";
  qel::fields::clear(first, second);
  const std::vector<std::string> words = qel::split(text, kSeparators);
  if (words.size() < 4) {
    std::string word;
    qel::fields::scan(text, first, word, second);
    name = buffer.keep(word);
    return;
  }
  qel::fields::scan(words.front().c_str(), first);
  qel::fields::scan(words.back().c_str(), second);
  std::string_view middle(text);
  middle.remove_prefix(middle.find_first_not_of(kSeparators));
  middle.remove_prefix(middle.find_first_of(kSeparators));
  middle.remove_prefix(middle.find_first_not_of(kSeparators));
  middle.remove_suffix(middle.size() - middle.find_last_not_of(kSeparators) - 1);
  middle.remove_suffix(middle.size() - middle.find_last_of(kSeparators));
  middle.remove_suffix(middle.size() - middle.find_last_not_of(kSeparators) - 1);
  name = buffer.keep(middle);
}

}  // namespace

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
    scan_header_line(text, first, name, second);
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
  const std::string text = qel::fields::print("\t", first, name, second);
  return text.size() < qel::kCompoundLimit ? document()->SetValue(this->name(), "", text.c_str(), line) : to_int(Result::no_open);
}

// The setting lines of a condition stand behind those of the conditions before it, whose header lines say how many each has.
int CQELPROBlockIOMoldTemperatureBCX::FindPosition(int setting, int condition, int offset, int& position) {
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

int CQELPROBlockIOMoldTemperatureBCX::ReadBCSetting(double& a, double& b, int setting, int condition, int offset) {
  int position = 0;
  const int result = FindPosition(setting, condition, offset, position);
  if (result != to_int(Result::done)) {
    return result;
  }
  std::string line;
  const int found = document()->VisitLines(name(), position, [&line](const char* text) { line = text; });
  if (found == to_int(Result::done)) {
    int number = 0;
    char separator = 0;
    qel::fields::scan(line.c_str(), number, separator, a, b);
  }
  return found;
}

int CQELPROBlockIOMoldTemperatureBCX::WriteBCSetting(double a, double b, int setting, int condition, int offset) {
  int position = 0;
  const int result = FindPosition(setting, condition, offset, position);
  if (result != to_int(Result::done)) {
    return result;
  }
  const std::string text = qel::fields::print_one(condition) + " = " + qel::fields::print("\t", a, b);
  return document()->SetValue(name(), "", text.c_str(), position);
}
