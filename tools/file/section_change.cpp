#include "file/section_change.h"

#include <utility>

#include "file/address.h"
#include "system/failure.h"
#include "text/text.h"

namespace qelpro {

namespace text = qel::text;

namespace {

// The entry as the lines around it have it: keys that are padded stand above one that is.
std::string new_entry(const std::string& key, const std::string& value,
                      std::string_view neighbour) {
  const std::string_view other = text::first_token(neighbour);
  const bool is_plain =
      !neighbour.empty() && neighbour.find('=') != text::padded_entry(other, "").find('=');
  return is_plain ? text::plain_entry(key, value) : text::padded_entry(key, value);
}

// The line with another value; what stands in front of the value stays, and blanks behind it do.
std::string with_value(const TextLine& line, const std::string& key, const std::string& value) {
  const std::size_t equals = line.text.find('=');
  if (equals == std::string_view::npos || line.goes_on || line.whole.size() != line.text.size()) {
    return text::padded_entry(key, value);
  }
  const std::string_view old = text::entry_value(line.text);
  const std::size_t begin =
      old.empty() ? equals + 1 : static_cast<std::size_t>(old.data() - line.text.data());
  std::string changed(line.text.substr(0, begin));
  if (old.empty()) {
    return changed + " " + value;
  }
  return changed.append(value).append(line.text.substr(begin + old.size()));
}

}  // namespace

void check_next_line(std::size_t next, const std::string& key) {
  if (static_cast<std::size_t>(position_of(key)) != next) {
    refuse_usage(key + ": the section's next line is #" + std::to_string(next));
  }
}

SectionChange::SectionChange(const SectionedText& document, const TextSection& section)
    : document_(document), section_(section) {
  if (!qel::is_positional(section.name)) {
    for (std::size_t at = section.header + 1; at < section.after; ++at) {
      const TextLine line = document.line(at);
      const qel::LineKind kind = qel::kind_of(line);
      if (kind == LineKind::entry || kind == LineKind::without_equals) {
        taken_.emplace(text::first_token(line.text), at);
      }
    }
  }
}

void SectionChange::set(const std::string& key, const std::string& value, Splices& splices) {
  if (const std::optional<std::size_t> index = line_of(key)) {
    const TextLine line = document_.line(*index);
    // After a line that is too long stands another one, without a line break between them.
    splices.replace(
        line.begin, line.begin + line.whole.size(),
        (position_of(key) != 0 && is_positional() ? value : with_value(line, key, value)) +
            (line.goes_on ? splices.line_break() : ""));
    return;
  }
  if (is_positional()) {
    check_next_line(section_.after - section_.header + appended_, key);
    ++appended_;
  }
  splices.insert(
      place_of_new_lines(),
      (is_positional() ? value : new_entry(key, value, last_entry())) + splices.line_break());
}

bool SectionChange::is_positional() const { return qel::is_positional(section_.name); }

std::optional<std::size_t> SectionChange::line_of(const std::string& key) const {
  if (is_positional()) {
    const std::size_t line = section_.header + static_cast<std::size_t>(position_of(key));
    return line >= section_.after ? std::nullopt : std::optional(line);
  }
  const auto found = taken_.find(key);
  return found != taken_.end() ? std::optional(found->second) : std::nullopt;
}

// The last line that says something, and is no comment, which may belong to what comes next; of
// lines that have a position the last one. The header where there is none.
std::size_t SectionChange::last_line() const {
  std::size_t last = section_.after - 1;
  for (; last > section_.header && !is_positional(); --last) {
    const LineKind kind = qel::kind_of(document_.line(last));
    if (kind != LineKind::blank && kind != LineKind::comment) {
      break;
    }
  }
  return last;
}

std::string_view SectionChange::last_entry() const {
  const std::size_t last = last_line();
  return last == section_.header ? std::string_view() : document_.line(last).text;
}

std::size_t SectionChange::place_of_new_lines() const {
  const std::size_t last = last_line();
  return last + 1 == document_.line_count() ? end_of_lines(document_) : document_.line(last).end;
}

}  // namespace qelpro
