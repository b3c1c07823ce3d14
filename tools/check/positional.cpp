#include "file/positional.h"

#include <cstdint>
#include <optional>
#include <string>

#include "check/checked.h"
#include "check/values.h"
#include "text/text.h"

namespace qelpro {
namespace {

// The setting lines stand behind the header lines, one condition after the other.
class PositionalLines {
 public:
  PositionalLines(const Checked& file, const TextSection& section)
      : file_(file), section_(section), end_(section.after) {
    while (end_ > section.header + 1 && is_blank(end_ - 1)) {
      --end_;
    }
  }

  void check() {
    std::size_t at = section_.header + 1;
    while (at < end_ && !is_blank(at) && &kind_of(at) != &setting()) {
      ++at;
    }
    const std::size_t first_setting = at;
    std::int64_t before = 0;
    for (std::size_t header = section_.header + 1; header < first_setting; ++header) {
      before += check_header(header, static_cast<std::int64_t>(end_ - first_setting) - before);
    }
    for (; at < end_; ++at) {
      const bool is_promised = static_cast<std::int64_t>(at - first_setting) < before;
      if (is_promised) {
        check_value(at, setting());
      } else if (!is_blank(at) && &kind_of(at) == &setting()) {
        file_.findings.add(rule("P302"), place_of(at), "a setting beyond those of all conditions");
      }
    }
  }

 private:
  [[nodiscard]] bool is_blank(std::size_t index) const {
    return qel::kind_of(file_.document.line(index)) == LineKind::blank;
  }
  [[nodiscard]] const qel::KeyInfo& kind_of(std::size_t index) const {
    return positional_kind(file_.document.line(index).text);
  }
  static const qel::KeyInfo& setting() {
    static const qel::KeyInfo& kind = positional_kind("1 = 0 0");
    return kind;
  }
  [[nodiscard]] Place place_of(std::size_t index) const {
    const TextLine line = file_.document.line(index);
    return {line.number,
            std::min(line.text.find_first_not_of(" \t"), line.text.size()) + 1,
            section_.name,
            {}};
  }

  void check_value(std::size_t index, const qel::KeyInfo& kind) {
    const TextLine line = file_.document.line(index);
    const std::string_view text = qel::text::index_value(line.whole);
    const bool is_cut = line.goes_on || line.whole.size() != line.text.size();
    auto fault = is_cut ? std::nullopt : fault_of(kind, text, 0);
    if (fault) {
      file_.findings.add(rule_of(fault->fault), place_of(index),
                         "the " + std::string(kind.text) + ": " + fault->text);
    }
  }

  // How many setting lines the condition has, of those that are left.
  std::int64_t check_header(std::size_t index, std::int64_t left) {
    const qel::KeyInfo& kind = kind_of(index);
    check_value(index, kind);
    const std::string text(qel::text::index_value(file_.document.line(index).text));
    if (unread_part_of_integer(text.substr(0, text.find_first_of(" \t")))) {
      return 0;
    }
    const int count = std::get<int>(kind.encoding->fields(text.c_str(), 0).front());
    if (count < 0) {
      file_.findings.add(rule("P303"), place_of(index), "the number of settings is negative");
      return 0;
    }
    if (count > left) {
      file_.findings.add(
          rule("P301"), place_of(index),
          "the condition promises " + std::to_string(count) + " settings, of which " +
              std::to_string(std::max<std::int64_t>(left, 0)) + " stand in the section");
    }
    return count;
  }

  const Checked& file_;
  const TextSection& section_;
  std::size_t end_;
};

}  // namespace

void check_positional(const Checked& file) {
  if (const TextSection* section = file.document.find(qel::text::kPositionalHeader)) {
    PositionalLines(file, *section).check();
  }
}

}  // namespace qelpro
