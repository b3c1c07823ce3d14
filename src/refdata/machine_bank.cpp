#include "refdata/machine_bank.h"

#include <algorithm>
#include <string_view>

#include "platform/number.h"
#include "refdata/bounded_lines.h"

namespace qel::refdata {
namespace {

bool contains(const std::string& line, std::string_view text) {
  return line.find(text) != std::string::npos;
}

// The fields between commas; consecutive commas count as one.
std::vector<std::string> fields_of(const std::string& line) {
  std::vector<std::string> fields;
  for (std::size_t begin = 0; (begin = line.find_first_not_of(',', begin)) != std::string::npos;) {
    const std::size_t end = std::min(line.find(',', begin), line.size());
    fields.push_back(line.substr(begin, end - begin));
    begin = end;
  }
  return fields;
}

// Whether the line is a machine's.
bool is_machine(const std::vector<std::string>& fields) {
  constexpr std::size_t kFields = 22;
  return fields.size() >= kFields;
}

void add_machine(const std::vector<std::string>& fields, Makers& makers) {
  constexpr std::size_t kMaker = 1;
  constexpr std::size_t kGrade = 2;
  makers[fields[kMaker]].push_back(fields[kGrade]);
}

// "%s %d" of the line, its commas taken for blanks; false where there is no number.
bool read_version(std::string& line, int& version) {
  std::replace(line.begin(), line.end(), ',', ' ');
  const char* at = line.c_str();
  std::string word;
  return platform::scan_word(at, word) && platform::scan_int(at, version);
}

BankReport read(BoundedLines& lines, int& version, Makers& makers) {
  constexpr int kUnreadVersion = 1000;
  constexpr int kMachine = 1;
  BankReport report;
  int flag = 0;
  int header_version = kUnreadVersion;
  std::string line;
  for (bool more = true; more;) {
    more = lines.next(line);
    if (contains(line, "[EOF]")) {
      break;
    }
    report.has_header = report.has_header || contains(line, "[Header]");
    if (contains(line, "Database]")) {
      report.has_data = true;
      more = lines.next(line);
      if (contains(line, "[EOF]")) {
        break;
      }
    }
    if (report.has_header && contains(line, "Version")) {
      const std::string as_it_stands = line;
      if (!read_version(line, header_version)) {
        report.unread_version_line = as_it_stands;
      }
      version = header_version;
    }
    if (report.has_header && contains(line, "TotalNo")) {
      report.has_total = true;
      break;
    }
    if (report.has_data) {
      const char* at = line.c_str();
      platform::scan_int(at, flag);
      const std::vector<std::string> fields =
          flag == kMachine ? fields_of(line) : std::vector<std::string>();
      if (!is_machine(fields)) {
        continue;
      }
      if (version == kBankVersion) {
        add_machine(fields, makers);
        ++report.machines;
      } else {
        ++report.machines_passed_over;
      }
    }
  }
  report.version = version;
  return report;
}

}  // namespace

bool read_machine_bank(platform::ReadAccess& file, int& version, Makers& makers) {
  BoundedLines lines(file);
  const bool ends_well = !read(lines, version, makers).has_total;
  if (lines.failed()) {
    makers.clear();
    return false;
  }
  return ends_well;
}

BankReport examine_machine_bank(std::string_view contents) {
  int version = 0;
  Makers makers;
  BoundedLines lines(contents);
  return read(lines, version, makers);
}

}  // namespace qel::refdata
