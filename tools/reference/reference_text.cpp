#include "reference/reference_text.h"

#include <algorithm>
#include <sstream>
#include <string_view>

#include "platform/number.h"

namespace qelpro {

namespace {

constexpr int kBankVersion = 7007;
constexpr std::string_view kEnd = "[EOF]";

bool contains(std::string_view line, std::string_view text) {
  return line.find(text) != std::string_view::npos;
}

// The next line without its line break.
bool next(std::istringstream& lines, std::string& line) {
  if (!std::getline(lines, line)) {
    return false;
  }
  if (!line.empty() && line.back() == '\r') {
    line.pop_back();
  }
  return true;
}

// "%s %d" once the commas are blanks: the number; false where there is none.
bool scan_version(std::string line, int& version) {
  std::replace(line.begin(), line.end(), ',', ' ');
  const char* at = line.c_str();
  std::string word;
  return qel::platform::scan_word(at, word) && qel::platform::scan_int(at, version);
}

}  // namespace

std::vector<ListedCoolant> coolants_of(const std::string& contents) {
  constexpr std::string_view kSection = "[Coolant-";
  std::vector<ListedCoolant> coolants;
  std::istringstream lines(contents);
  bool inside = false;
  for (std::string line; next(lines, line) && !contains(line, kEnd);) {
    if (!line.empty() && line.front() == '[') {
      const std::size_t name = line.find(kSection);
      const char* at =
          line.c_str() + (name != std::string::npos ? name + kSection.size() : line.size());
      int number = 0;
      inside = qel::platform::scan_int(at, number);
      if (inside) {
        coolants.push_back({number, "", false});
      }
      continue;
    }
    const std::size_t equals = line.find('=');
    if (!inside || equals == std::string::npos) {
      continue;
    }
    const std::string key = line.substr(0, equals);
    const char* value = line.c_str() + equals + 1;
    int count = 0;
    if (contains(key, "Name")) {
      qel::platform::scan_word(value, coolants.back().name);
    } else if (contains(key, "DataCount")) {
      coolants.back().has_rows = qel::platform::scan_int(value, count) && count > 0;
    }
  }
  return coolants;
}

int coolant_identifier(int section_number) {
  constexpr int kFirstShifted = 3;
  return section_number >= kFirstShifted ? section_number + kFirstShifted : section_number;
}

BankVersion bank_version_of(const std::string& contents) {
  BankVersion result{BankProblem::no_version_line, 0, ""};
  std::istringstream lines(contents);
  bool in_header = false;
  std::size_t number = 0;
  for (std::string line; next(lines, line) && !contains(line, kEnd);) {
    ++number;
    in_header = in_header || contains(line, "[Header]");
    if (in_header && contains(line, "TotalNo")) {
      return {BankProblem::holds_total, number, line};
    }
    if (in_header && contains(line, "Version")) {
      int version = 0;
      const bool scanned = scan_version(line, version);
      if (!scanned && result.line != 0) {
        continue;  // the number read before stays
      }
      result = {!scanned                  ? BankProblem::unreadable_version
                : version != kBankVersion ? BankProblem::other_version
                                          : BankProblem::none,
                number, line};
    }
  }
  return result;
}

}  // namespace qelpro
