#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "blocks/catalogue.h"
#include "check/check.h"
#include "check/finding_json.h"
#include "check/known_keys.h"
#include "check/sarif.h"
#include "file/value_check.h"
#include "json/json_input.h"
#include "members/every_member.h"
#include "support.h"
#include "text/text.h"

// Any file: where a finding says that a line is never read, the engine reads the same without it.
// A value of numbers has a finding exactly where the C library does not read all of it; one that
// has none sets every output of every member that reads it.

using namespace qelpro;
using qelpro_fuzz::fail;
using qelpro_test::ReaderMember;
using qelpro_test::Value;

namespace {

constexpr const char* kName = "file";

// Values of the engine's reader, by section and key.
using Values = std::map<std::pair<std::string, std::string>, std::optional<std::string>>;

Values read_all(std::string_view contents, const Values& asked) {
  CQELPROReader_Manipulator reader;
  if (!reader.SetFilePath(qelpro_fuzz::file_with(contents))) {
    fail("a readable file was not opened");
  }
  Values values;
  for (const auto& [name, ignored] : asked) {
    char buffer[8192];
    char* text = nullptr;
    auto& value = values[name];
    if (reader.ReadString(name.first.c_str(), name.second.c_str(), text, buffer, sizeof buffer)) {
      value = text;
    }
  }
  return values;
}

// Every section of the file with every first word of a line in it, and some that are not there.
Values all_names(const SectionedText& document) {
  Values names;
  std::set<std::string> keys{"x", "FillTime"};
  for (std::size_t index = 0; index < document.line_count(); ++index) {
    std::string_view text = document.line(index).text;
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    keys.emplace(qel::text::first_token(text));
  }
  constexpr std::size_t kMost = 150;
  for (const TextSection& section : document.sections()) {
    for (const std::string& key : keys) {
      if (names.size() < kMost) {
        names[{std::string(section.name), key}];
      }
    }
  }
  return names;
}

bool says_never_read(const std::string& code) {
  return code == "P002" || code == "P003" || code == "P004" || code == "P005";
}

// The file without the lines of which a finding says that they are never read.
std::string without_unread_lines(const SectionedText& document,
                                 const std::vector<Finding>& findings) {
  std::set<std::size_t> numbers;
  for (const Finding& finding : findings) {
    if (says_never_read(finding.code)) {
      numbers.insert(finding.line);
    }
  }
  std::vector<bool> dropped(document.line_count());
  for (std::size_t index = 0; index < document.line_count(); ++index) {
    dropped[index] = numbers.contains(document.line(index).number);
  }
  for (const TextSection& section : document.sections()) {
    for (std::size_t index = section.header; section.repeated && index < section.after; ++index) {
      dropped[index] = true;
    }
  }
  const std::string& contents = document.contents();
  std::string rest =
      contents.substr(0, document.line_count() != 0 ? document.line(0).begin : contents.size());
  for (std::size_t index = 0; index < document.line_count(); ++index) {
    const TextLine line = document.line(index);
    if (!dropped[index]) {
      rest.append(contents, line.begin, line.end - line.begin);
    }
  }
  return rest;
}

void check_unread_lines(const SectionedText& document, const std::vector<Finding>& findings) {
  const bool any = std::ranges::any_of(
      findings, [](const Finding& finding) { return says_never_read(finding.code); });
  for (std::size_t index = 0; index < document.line_count(); ++index) {
    if (document.line(index).goes_on) {
      return;  // what stands behind has a number in common with it
    }
  }
  if (!any) {
    return;
  }
  const Values names = all_names(document);
  const Values whole = read_all(document.contents(), names);
  const std::string rest = without_unread_lines(document, findings);
  for (const auto& [name, value] : read_all(rest, names)) {
    if (value != whole.at(name)) {
      fail(name.first + " " + name.second + " is \"" + whole.at(name).value_or("nothing") +
           "\" and, without the lines that are never read, \"" + value.value_or("nothing") +
           "\" in\n" + document.contents());
    }
  }
}

// Whether the words are the numbers of an encoding, each read to its end by the C library.
bool is_read_whole(std::string_view kinds, const std::string& text) {
  std::size_t at = 0;
  for (const char kind : kinds) {
    at = std::min(text.find_first_not_of(" \t\n\v\f\r", at), text.size());
    const std::size_t end = std::min(text.find_first_of(" \t\n\v\f\r", at), text.size());
    const std::string word = text.substr(at, end - at);
    at = end;
    int taken = -1;
    double real = 0;
    if (kind == 'd') {
      // One that is beyond 32 bits wraps.
      int number = 0;
      if (std::sscanf(word.c_str(), "%d%n", &number, &taken) == 1) {
        std::sscanf(word.c_str(), "%lf", &real);
        taken = real == number ? taken : -1;
      }
    } else if (std::sscanf(word.c_str(), "%lf%n", &real, &taken) == 1 &&
               !(real - real == 0)) {  // not finite
      taken = -1;
    }
    if (taken != static_cast<int>(word.size())) {
      return false;
    }
  }
  return text.find_first_not_of(" \t\n\v\f\r", at) == std::string::npos;
}

// The rows of a key of the section.
std::vector<const qel::KeyInfo*> rows_of(const qel::SectionInfo& section, const qel::KeyInfo& key) {
  std::vector<const qel::KeyInfo*> rows;
  for (const qel::KeyInfo& row : section.keys) {
    if (std::string_view(row.text) == key.text) {
      rows.push_back(&row);
    }
  }
  return rows;
}

bool has_numbers_alone(const qel::KeyInfo& row) {
  const std::string_view kinds = fields_of_encoding(row.encoding->name);
  return !kinds.empty() && kinds.find_first_not_of("df") == std::string_view::npos;
}

// The member of that name whose outputs are the fields of the row: some names have several.
const ReaderMember* member_named(std::string_view name, const qel::KeyInfo& row) {
  static const auto members = [] {
    std::unordered_multimap<std::string_view, const ReaderMember*> all;
    for (const ReaderMember& member : qelpro_test::reader_members()) {
      all.emplace(member.name, &member);
    }
    return all;
  }();
  std::string outputs(fields_of_encoding(row.encoding->name));
  std::ranges::transform(outputs, outputs.begin(),
                         [](char kind) { return kind == 'd' ? 'i' : 'd'; });
  const auto [begin, end] = members.equal_range(name);
  for (auto at = begin; at != end; ++at) {
    std::string own = at->second->arguments;
    std::erase_if(own, [](char letter) { return letter == 'I'; });
    if (own == outputs) {
      return at->second;
    }
  }
  return nullptr;
}

// The values after a call with outputs that begin with these.
std::optional<std::vector<Value>> read_over(CQELPROReader_Manipulator& reader,
                                            const ReaderMember& member,
                                            const std::vector<int>& numbers, int integer,
                                            double real) {
  std::vector<Value> values = qelpro_test::values_for(member, numbers, "");
  for (std::size_t index = 0; index < values.size(); ++index) {
    if (member.arguments[index] == 'i') {
      values[index] = integer;
    } else if (member.arguments[index] == 'd') {
      values[index] = real;
    }
  }
  return member.read(reader, values) ? std::optional(values) : std::nullopt;
}

class ValueTrial {
 public:
  ValueTrial(const SectionedText& document, const Entries& entries,
             const std::vector<Finding>& findings)
      : document_(document), entries_(entries), keys_(known_.keys_of(entries)) {
    for (const Finding& finding : findings) {
      if (finding.code.starts_with("P2")) {
        faulty_.insert(finding.line);
      }
    }
    if (!reader_.SetFilePath(qelpro_fuzz::file_with(document.contents()))) {
      fail("a readable file was not opened");
    }
  }

  void run() {
    for (std::size_t index = 0; index < entries_.all().size(); ++index) {
      const FileEntry& entry = entries_.all()[index];
      const TextSection& section = document_.sections()[entry.section];
      const TextLine line = document_.line(entry.line);
      if (keys_[index] != nullptr && !qel::is_positional(section.name) && !line.goes_on &&
          line.whole.size() == line.text.size()) {
        check(entry, section, *keys_[index], line);
      }
    }
  }

 private:
  void check(const FileEntry& entry, const TextSection& section, const qel::KeyInfo& key,
             const TextLine& line) {
    const qel::SectionInfo& known = *entries_.known_section(section);
    const std::vector<const qel::KeyInfo*> rows = rows_of(known, key);
    if (!std::ranges::all_of(rows,
                             [](const qel::KeyInfo* row) { return has_numbers_alone(*row); })) {
      return;
    }
    const std::string text(entry.value);
    const auto whole = std::ranges::find_if(rows, [&text](const qel::KeyInfo* row) {
      return is_read_whole(fields_of_encoding(row->encoding->name), text);
    });
    const bool is_whole = whole != rows.end();
    if (is_whole == faulty_.contains(line.number)) {
      fail(std::string(section.name) + " " + entry.key + ": \"" + text + "\" is " +
           (is_whole ? "" : "not ") + "read whole, and check says " +
           (is_whole ? "it is not" : "nothing"));
    }
    if (is_whole) {
      ask_members(entry, section, known, **whole);
    }
  }

  void ask_members(const FileEntry& entry, const TextSection& section,
                   const qel::SectionInfo& known, const qel::KeyInfo& row) {
    int section_number = 0;
    int key_number = 0;
    qel::find_section(std::string(section.name).c_str(), section_number);
    qel::find_key(known, entry.key.c_str(), key_number);
    std::vector<int> numbers;
    if (qel::is_numbered(row.text)) {
      numbers.push_back(key_number);
    }
    if (qel::is_numbered(known.name)) {
      numbers.push_back(section_number);
    }
    for (const char* const name : row.readers) {
      const ReaderMember* const member = name != nullptr ? member_named(name, row) : nullptr;
      if (member == nullptr || qelpro_test::numbers_given(*member) != numbers.size()) {
        continue;
      }
      const auto values = read_over(reader_, *member, numbers, 77, 77.5);
      if (!values || values != read_over(reader_, *member, numbers, -78, -78.5)) {
        fail(std::string(section.name) + " " + entry.key + ": check finds nothing, and " + name +
             (values ? " does not set all of its outputs" : " reads nothing"));
      }
    }
  }

  const SectionedText& document_;
  const Entries& entries_;
  KnownKeys known_;
  std::vector<const qel::KeyInfo*> keys_;
  std::set<std::size_t> faulty_;
  CQELPROReader_Manipulator reader_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string contents(qelpro_fuzz::text_of(data, size));
  if (qel::is_utf16(contents)) {
    return 0;
  }
  const SectionedText document(contents);
  const std::vector<Finding> findings = check_document(kName, document);
  for (const Finding& finding : findings) {
    TextSink sink;
    write_json(sink, json_of(finding));
    parse_json(kName, sink.text());
    if (finding.line < 1 || finding.column < 1) {
      fail("a finding without a place");
    }
  }
  check_unread_lines(document, findings);
  const Entries entries(document);
  ValueTrial(document, entries, findings).run();
  return 0;
}
