#include "refdata/machine_bank.h"

#include <algorithm>
#include <string_view>

#include "platform/number.h"
#include "refdata/bounded_lines.h"

namespace qel::refdata {
namespace {

bool contains(const std::string& line, std::string_view text) { return line.find(text) != std::string::npos; }

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

void add_machine(const std::string& line, Makers& makers) {
  constexpr std::size_t kFields = 22;
  constexpr std::size_t kMaker = 1;
  constexpr std::size_t kGrade = 2;
  const std::vector<std::string> fields = fields_of(line);
  if (fields.size() >= kFields) {
    makers[fields[kMaker]].push_back(fields[kGrade]);
  }
}

// "%s %d" of the line, its commas taken for blanks.
void read_version(std::string& line, int& version) {
  std::replace(line.begin(), line.end(), ',', ' ');
  const char* at = line.c_str();
  std::string word;
  if (platform::scan_word(at, word)) {
    platform::scan_int(at, version);
  }
}

}  // namespace

bool read_machine_bank(platform::RandomAccess& file, int& version, Makers& makers) {
  constexpr int kUnreadVersion = 1000;
  constexpr int kMachine = 1;
  BoundedLines lines(file);
  bool in_header = false;
  bool in_data = false;
  int flag = 0;
  int header_version = kUnreadVersion;
  std::string line;
  for (bool more = true; more;) {
    more = lines.next(line);
    if (contains(line, "[EOF]")) {
      break;
    }
    in_header = in_header || contains(line, "[Header]");
    if (contains(line, "Database]")) {
      in_data = true;
      more = lines.next(line);
      if (contains(line, "[EOF]")) {
        break;
      }
    }
    if (in_header && contains(line, "Version")) {
      read_version(line, header_version);
      version = header_version;
    }
    if (in_header && contains(line, "TotalNo")) {
      return false;
    }
    if (in_data) {
      const char* at = line.c_str();
      platform::scan_int(at, flag);
      if (flag == kMachine && !line.empty() && version == kBankVersion) {
        add_machine(line, makers);
      }
    }
  }
  return true;
}

}  // namespace qel::refdata
