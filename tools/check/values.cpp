#include "check/values.h"

#include <variant>

#include "check/checked.h"
#include "text/text.h"

namespace qelpro {
namespace {

void check_value(const Checked& file, std::string_view section, const qel::SectionInfo& known,
                 const FileEntry& entry) {
  const TextLine line = file.document.line(entry.line);
  const Reading reading = reading_of(&known, entry.key, entry.value);
  if (reading.key == nullptr || line.goes_on || line.whole.size() != line.text.size()) {
    return;  // unknown, or a line of which less is read than stands there
  }
  const bool has_equals = line.text.find('=') != std::string_view::npos;
  const bool has_words = line.text.find_first_not_of(" \t", entry.key.size()) < line.text.size();
  if (!has_equals && (reading.fault || has_words)) {
    file.findings.add(rule_of(Fault::not_read), at_value(line, section, entry.key),
                      "\"" + entry.key + "\" has no value: no \"=\" stands in its line",
                      "put a \"=\" behind the key");
  } else if (reading.fault) {
    file.findings.add(rule_of(reading.fault->fault), at_value(line, section, entry.key),
                      "the value of \"" + entry.key + "\": " + reading.fault->text,
                      reading.fault->fault == Fault::decimal_comma ? "write a point" : "");
  }
}

}  // namespace

const Rule& rule_of(Fault fault) {
  switch (fault) {
    case Fault::not_read:
      return rule("P201");
    case Fault::text_behind:
      return rule("P202");
    case Fault::missing_field:
      return rule("P203");
    case Fault::decimal_comma:
      return rule("P204");
    default:
      return rule("P205");
  }
}

std::optional<int> whole_number(const qel::KeyInfo& key, std::string_view text) {
  const auto fault = fault_of(key, text, 0);
  if (fault && fault->fault != Fault::text_behind) {
    return std::nullopt;
  }
  const std::vector<qel::Field> fields = key.encoding->fields(std::string(text).c_str(), 0);
  const int* const number = std::get_if<int>(&fields.front());
  return number != nullptr ? std::optional(*number) : std::nullopt;
}

void check_values(const Checked& file) {
  for (const TextSection& section : file.document.sections()) {
    const qel::SectionInfo* const known = file.entries.known_section(section);
    if (known == nullptr || section.repeated || qel::is_positional(section.name)) {
      continue;
    }
    for (const FileEntry& entry : file.entries.of(section)) {
      check_value(file, section.name, *known, entry);
    }
  }
}

}  // namespace qelpro
