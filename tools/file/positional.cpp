#include "file/positional.h"

#include <cstdint>
#include <vector>

#include "blocks/catalogue.h"
#include "blocks/scan_and_print.h"
#include "file/entry_json.h"
#include "file/value_check.h"
#include "text/text.h"

namespace qelpro {

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
  if (!qel::fields::scan_one(at, condition) || !qel::fields::scan_one(at, separator) ||
      *(at - 1) != '=') {
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

/// Tells of settings that are missing. Conditions in a row that have none of theirs are told in one
/// note.
class MissingSettings {
 public:
  explicit MissingSettings(const std::function<void(const std::string&)>& note) : note_(note) {}

  void add(std::int64_t condition, int said, std::int64_t standing) {
    if (standing != 0) {
      flush();
      tell("condition " + std::to_string(condition) + " says " + std::to_string(said), standing);
      return;
    }
    first_ = none_ == 0 ? condition : first_;
    last_ = condition;
    none_ += said;
  }

  void flush() {
    if (none_ != 0) {
      tell(first_ == last_
               ? "condition " + std::to_string(first_) + " says " + std::to_string(none_)
               : "conditions " + std::to_string(first_) + " to " + std::to_string(last_) + " say " +
                     std::to_string(none_),
           0);
    }
    none_ = 0;
  }

 private:
  void tell(const std::string& what, std::int64_t standing) {
    note_(what + " settings, of which " + std::to_string(standing) + " stand in the section");
  }

  const std::function<void(const std::string&)>& note_;
  std::int64_t first_ = 0;
  std::int64_t last_ = 0;
  std::int64_t none_ = 0;
};

}  // namespace

const qel::KeyInfo& positional_kind(std::string_view line) {
  return catalogue_row().keys[is_setting_line(line) ? 1 : 0];
}

void visit_positional_lines(const SectionedText& document, const TextSection& section,
                            const PositionalVisitor& visitor) {
  const qel::SectionInfo& row = catalogue_row();
  const auto line_at = [&](std::int64_t position) {
    return document.line(section.header + static_cast<std::size_t>(position));
  };
  const auto lines = static_cast<std::int64_t>(section.after - section.header) - 1;
  std::int64_t headers = 0;
  for (; headers < lines; ++headers) {
    const TextLine line = line_at(headers + 1);
    if (qel::kind_of(line) == LineKind::blank || is_setting_line(line.text)) {
      break;
    }
    visitor.entry(entry_of("line " + std::to_string(headers + 1), line, row.keys[0]));
  }
  std::vector<bool> taken(static_cast<std::size_t>(lines) + 1);
  MissingSettings missing(visitor.note);
  std::int64_t before = headers;
  for (std::int64_t condition = 1; condition <= headers; ++condition) {
    const int count = count_of(line_at(condition));
    std::int64_t setting = 1;
    // Each line once: counts that are negative would lead back again and again.
    for (; setting <= count && before + setting >= 1 && before + setting <= lines; ++setting) {
      if (taken[static_cast<std::size_t>(before + setting)]) {
        break;
      }
      taken[static_cast<std::size_t>(before + setting)] = true;
      const std::string name =
          "condition " + std::to_string(condition) + ", setting " + std::to_string(setting);
      visitor.entry(entry_of(name, line_at(before + setting), row.keys[1]));
    }
    if (setting <= count) {
      missing.add(condition, count, setting - 1);
    }
    before += count;
  }
  missing.flush();
  for (std::int64_t position = headers + 1; position <= lines; ++position) {
    if (!taken[static_cast<std::size_t>(position)] &&
        qel::kind_of(line_at(position)) != LineKind::blank) {
      visitor.passed_over(section.header + static_cast<std::size_t>(position));
    }
  }
}

}  // namespace qelpro
