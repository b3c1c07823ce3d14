#include "check/values.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>

#include "check/checked.h"
#include "system/visible.h"
#include "text/text.h"

namespace qelpro {
namespace {

// A size that is served as text, too: a text that begins with a number is to be one.
std::optional<ValueFault> fault_of_size(const qel::SectionInfo& section, const Reading& reading,
                                        std::string_view text) {
  const bool is_text = reading.key->encoding->read.front().kind == qel::Kind::text &&
                       reading.key->encoding->read.size() == 1;
  if (!is_text || text.find_first_of("0123456789") != 0) {
    return std::nullopt;
  }
  for (const qel::KeyInfo& other : section.keys) {
    if (&other != reading.key && std::string_view(other.text) == reading.key->text) {
      return fault_of(other, text, reading.number);
    }
  }
  return std::nullopt;
}

// Whether the engine reads a real that is not finite, whatever stands behind it.
bool reads_infinity(const Reading& reading, std::string_view text) {
  return std::ranges::any_of(
      reading.key->encoding->fields(std::string(text).c_str(), reading.number),
      [](const qel::Field& field) {
        const double* const real = std::get_if<double>(&field);
        return real != nullptr && !std::isfinite(*real);
      });
}

void check_value(const Checked& file, std::string_view section, const qel::SectionInfo& known,
                 const FileEntry& entry) {
  if (file.key_of(entry) == nullptr) {
    return;
  }
  const TextLine line = file.document.line(entry.line);
  Reading reading = reading_of(&known, entry.key, entry.value);
  if (!reading.fault) {
    reading.fault = fault_of_size(known, reading, entry.value);
  }
  if (reading.fault && reads_infinity(reading, entry.value)) {
    reading.fault->fault = Fault::not_finite;
  }
  if (line.goes_on || line.whole.size() != line.text.size()) {
    return;  // less is read than stands there
  }
  const bool has_equals = line.text.find('=') != std::string_view::npos;
  const bool has_words = line.text.find_first_not_of(" \t", entry.key.size()) < line.text.size();
  if (!has_equals && (reading.fault || has_words)) {
    file.findings.add(rule_of(Fault::not_read), at_value(line, section, entry.key),
                      in_quotes(entry.key) + R"( has no value: no "=" stands in its line)",
                      R"(put a "=" behind the key)");
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

bool is_whole_number(const qel::KeyInfo& key) {
  return key.encoding->read.size() == 1 && key.encoding->read.front().kind == qel::Kind::integer;
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
