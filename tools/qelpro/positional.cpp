#include "positional.h"

#include <algorithm>
#include <cstdint>

#include "blocks/catalogue.h"
#include "blocks/fields.h"
#include "core/text.h"
#include "entry_json.h"
#include "value_check.h"

namespace {

const qel::SectionInfo& catalogue_row() {
  int number = 0;
  return *qel::find_section(std::string(qel::text::kPositionalHeader).c_str(), number);
}

// An integer, "=", and a number. The name in a header line may hold a "=".
bool is_setting_line(std::string_view line) {
  const std::string text(line);
  const char* at = text.c_str();
  int condition = 0;
  double value = 0;
  qel::fields::Separator separator;
  if (!qel::fields::scan_one(at, condition) || !qel::fields::scan_one(at, separator) || *(at - 1) != '=') {
    return false;
  }
  return qel::fields::scan_one(at, value);
}

int count_of(const TextLine& line) {
  int count = 0;
  qel::fields::scan(std::string(line.text).c_str(), count);
  return count;
}

Json entry_of(const std::string& name, const TextLine& line, const qel::KeyInfo& kind) {
  const std::string text(qel::text::index_value(line.whole));
  return typed_entry(name, line, text, {&kind, 0, unread_part(kind, text, 0)});
}

}  // namespace

bool is_positional(const TextSection& section) {
  return qel::text::first_token(section.name) == qel::text::first_token(qel::text::kPositionalHeader);
}

PositionalLines positional_lines(const DocumentText& document, const TextSection& section) {
  const qel::SectionInfo& row = catalogue_row();
  const auto line_at = [&](std::int64_t position) -> const TextLine& {
    return document.lines()[section.header + static_cast<std::size_t>(position)];
  };
  const auto lines = static_cast<std::int64_t>(section.behind - section.header) - 1;
  PositionalLines result;
  std::int64_t headers = 0;
  while (headers < lines && kind_of(line_at(headers + 1)) != LineKind::blank && !is_setting_line(line_at(headers + 1).text)) {
    ++headers;
    const TextLine& line = line_at(headers);
    result.entries.push_back(entry_of("line " + std::to_string(headers), line, *row.keys[0]));
  }
  std::vector<bool> taken(static_cast<std::size_t>(lines) + 1);
  std::int64_t before = headers;
  for (std::int64_t condition = 1; condition <= headers; ++condition) {
    const std::int64_t count = count_of(line_at(condition));
    std::int64_t setting = 1;
    // Each line once: counts that are negative would lead back again and again.
    for (; setting <= count && before + setting >= 1 && before + setting <= lines; ++setting) {
      const TextLine& line = line_at(before + setting);
      if (taken[static_cast<std::size_t>(before + setting)]) {
        break;
      }
      taken[static_cast<std::size_t>(before + setting)] = true;
      const std::string name = "condition " + std::to_string(condition) + ", setting " + std::to_string(setting);
      result.entries.push_back(entry_of(name, line, *row.keys[1]));
    }
    if (setting <= count) {
      result.notes.push_back("condition " + std::to_string(condition) + " says " + std::to_string(count) + " settings, of which " +
                             std::to_string(setting - 1) + " stand in the section");
    }
    before += count;
  }
  for (std::int64_t position = headers + 1; position <= lines; ++position) {
    if (!taken[static_cast<std::size_t>(position)] && kind_of(line_at(position)) != LineKind::blank) {
      result.passed_over.push_back(section.header + static_cast<std::size_t>(position));
    }
  }
  return result;
}
