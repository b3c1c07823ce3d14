#include "file/change.h"

#include <QELPROEngine/CQELPROReader_Manipulator.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "blocks/catalogue.h"
#include "file/entries.h"
#include "file/names.h"
#include "file/value_check.h"
#include "system/failure.h"
#include "system/files.h"
#include "text/text.h"

namespace qelpro {
namespace {

namespace text = qel::text;

// As the file's first line ends.
std::string line_break_of(const std::string& contents) {
  const std::size_t first = contents.find('\n');
  return first != std::string::npos && first > 0 && contents[first - 1] == '\r' ? "\r\n" : "\n";
}

// Where a new line at the end goes: in front of blanks and the like that trail the last line and
// belong to none.
std::size_t end_of_lines(const SectionedText& document) {
  if (document.line_count() == 0) {
    return document.contents().find_last_not_of(text::kPadding) + 1;
  }
  const TextLine last = document.line(document.line_count() - 1);
  const bool has_line_break = document.contents()[last.end - 1] == '\n';
  return has_line_break ? last.end : last.begin + last.whole.find_last_not_of(text::kPadding) + 1;
}

/// Puts texts in the place of parts of a text, all at once.
class Splices {
 public:
  explicit Splices(const std::string& contents)
      : contents_(contents), line_break_(line_break_of(contents)) {}

  void replace(std::size_t begin, std::size_t end, std::string by) {
    splices_.push_back({begin, end, std::move(by), false});
  }
  /// Whole lines, before what is inserted later at the same place.
  void insert(std::size_t at, std::string lines) {
    splices_.push_back({at, at, std::move(lines), true});
  }
  [[nodiscard]] const std::string& line_break() const { return line_break_; }

  std::string apply() {
    std::ranges::stable_sort(splices_, {}, &Splice::begin);
    std::string result;
    std::size_t from = 0;
    for (const Splice& splice : splices_) {
      result.append(contents_, from, splice.begin - from);
      const bool begins_line =
          result.empty() || result.back() == '\n' || result == text::kByteOrderMark;
      result += (splice.is_lines && !begins_line ? line_break_ : "") + splice.text;
      from = splice.end;
    }
    return result.append(contents_, from);
  }

 private:
  struct Splice {
    std::size_t begin;
    std::size_t end;
    std::string text;
    bool is_lines;
  };
  const std::string& contents_;
  std::string line_break_;
  std::vector<Splice> splices_;
};

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

// A new line that has a position is the next one: it would not stand where another number says.
void check_next(std::size_t next, const std::string& key) {
  if (static_cast<std::size_t>(position_of(key)) != next) {
    refuse_usage(key + ": the section's next line is #" + std::to_string(next));
  }
}

/// The lines of one section that lookups take, and what is to become of them.
class SectionChange {
 public:
  SectionChange(const SectionedText& document, const TextSection& section)
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

  void set(const std::string& key, const std::string& value, Splices& splices) {
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
      check_next(section_.after - section_.header + appended_, key);
      ++appended_;
    }
    splices.insert(
        place_of_new_lines(),
        (is_positional() ? value : new_entry(key, value, last_entry())) + splices.line_break());
  }

 private:
  [[nodiscard]] bool is_positional() const { return qel::is_positional(section_.name); }

  [[nodiscard]] std::optional<std::size_t> line_of(const std::string& key) const {
    if (is_positional()) {
      const std::size_t line = section_.header + static_cast<std::size_t>(position_of(key));
      return line >= section_.after ? std::nullopt : std::optional(line);
    }
    const auto found = taken_.find(key);
    return found != taken_.end() ? std::optional(found->second) : std::nullopt;
  }

  // The last line that says something, and is no comment, which may belong to what comes next; of
  // lines that have a position the last one. The header where there is none.
  [[nodiscard]] std::size_t last_line() const {
    std::size_t last = section_.after - 1;
    for (; last > section_.header && !is_positional(); --last) {
      const LineKind kind = qel::kind_of(document_.line(last));
      if (kind != LineKind::blank && kind != LineKind::comment) {
        break;
      }
    }
    return last;
  }

  [[nodiscard]] std::string_view last_entry() const {
    const std::size_t last = last_line();
    return last == section_.header ? std::string_view() : document_.line(last).text;
  }

  [[nodiscard]] std::size_t place_of_new_lines() const {
    const std::size_t last = last_line();
    return last + 1 == document_.line_count() ? end_of_lines(document_) : document_.line(last).end;
  }

  const SectionedText& document_;
  const TextSection& section_;
  std::map<std::string_view, std::size_t> taken_;
  std::size_t appended_ = 0;  // lines that have a position
};

// The header of a section that is to be made.
std::string header_of(const std::string& section) {
  const std::string name = with_brackets(section);
  const std::string_view positional = text::first_token(text::kPositionalHeader).substr(1);
  return section == positional || qel::is_positional(name) ? std::string(text::kPositionalHeader)
                                                           : name;
}

std::string with_entries(const SectionedText& document, std::span<const Change> changes) {
  const Entries entries(document);
  Splices splices(document.contents());
  std::map<const TextSection*, SectionChange> old_sections;
  std::vector<std::pair<std::string, std::string>> new_sections;  // header, lines
  std::map<std::string, std::size_t> place_of_new;
  std::size_t new_lines = 0;  // that have a position
  // Of several values of one address the last one counts.
  std::map<std::pair<std::string, std::string>, const Change*> last;
  for (const Change& change : changes) {
    last[{change.address.section, change.address.key}] = &change;
  }
  for (const Change& change : changes) {
    if (last[{change.address.section, change.address.key}] != &change) {
      continue;
    }
    const Address& address = change.address;
    if (const TextSection* const section = entries.find_section(address.section)) {
      old_sections.try_emplace(section, document, *section)
          .first->second.set(address.key, change.value, splices);
      continue;
    }
    const std::string header = header_of(address.section);
    const auto [known, is_new] = place_of_new.emplace(header, new_sections.size());
    if (is_new) {
      new_sections.emplace_back(header, "");
    }
    if (qel::is_positional(header)) {
      check_next(++new_lines, address.key);
    }
    new_sections[known->second].second +=
        (qel::is_positional(header) ? change.value
                                    : text::padded_entry(address.key, change.value)) +
        splices.line_break();
  }
  const std::size_t end = end_of_lines(document);
  bool is_first =
      end <=
      (document.contents().starts_with(text::kByteOrderMark) ? text::kByteOrderMark.size() : 0);
  for (const auto& [header, lines] : new_sections) {
    std::string section = is_first ? "" : splices.line_break();
    splices.insert(end, section.append(header).append(splices.line_break()).append(lines));
    is_first = false;
  }
  return splices.apply();
}

// Of one section: its keys whose lines are to go, every one of them, so that none comes to light.
void remove_entries(const SectionedText& document, const TextSection& section,
                    const std::set<std::string, std::less<>>& keys, Splices& splices) {
  const bool is_positional = qel::is_positional(section.name);
  for (std::size_t at = section.header + 1; at < section.after; ++at) {
    const TextLine line = document.line(at);
    const LineKind kind = qel::kind_of(line);
    const bool has_key = kind == LineKind::entry || kind == LineKind::without_equals;
    if (is_positional ? keys.contains("#" + std::to_string(at - section.header))
                      : has_key && keys.contains(text::first_token(line.text))) {
      const bool is_last = at + 1 == document.line_count();
      splices.replace(line.begin, is_last ? end_of_lines(document) : line.end, "");
    }
  }
}

std::string without(const SectionedText& document, std::span<const Change> changes) {
  const Entries entries(document);
  std::map<const TextSection*, std::set<std::string, std::less<>>> keys;
  std::set<const TextSection*> sections;
  for (const Change& change : changes) {
    if (const TextSection* const section = entries.find_section(change.address.section)) {
      if (change.kind == Change::Kind::remove) {
        keys[section].insert(change.address.key);
      } else {
        sections.insert(section);
      }
    }
  }
  Splices splices(document.contents());
  for (const TextSection& section : document.sections()) {
    const bool is_last = section.after == document.line_count();
    if (sections.contains(document.find(section.name))) {
      splices.replace(document.line(section.header).begin,
                      is_last ? end_of_lines(document) : document.line(section.after).begin, "");
    } else if (const auto own = keys.find(&section); own != keys.end()) {
      remove_entries(document, section, own->second, splices);
    }
  }
  return splices.apply();
}

// The engine's own reading of the entry. Its lines are shorter than the buffer.
bool is_read_back(CQELPROReader_Manipulator& reader, const Change& change) {
  std::array<char, 2 * text::kLongestLine> buffer{};
  char* found = nullptr;
  return reader.ReadString(with_brackets(change.address.section).c_str(),
                           change.address.key.c_str(), found, buffer.data(),
                           static_cast<unsigned int>(buffer.size())) &&
         text::index_value(change.value) == found;
}

void check_stored(const std::string& file, const std::string& written,
                  const std::vector<Change>& changes) {
  CQELPROReader_Manipulator reader;
  std::map<std::pair<std::string, std::string>, const Change*> last;
  for (const Change& change : changes) {
    last[{change.address.section, change.address.key}] = &change;
  }
  const bool is_open = reader.SetFilePath(written.c_str());
  for (const auto& [address, change] : last) {
    if (change->kind == Change::Kind::set && !qel::is_positional(header_of(address.first)) &&
        !(is_open && is_read_back(reader, *change))) {
      throw Failure(kFileError,
                    at({file, 0, with_brackets(address.first), address.second},
                       "not stored: another line of the file would be read in its place; "
                       "qelpro check tells which lines are passed over"));
    }
  }
}

void check_encoding(const std::string& section, const Change& change) {
  int number = 0;
  const Reading reading = reading_of(qel::find_section(section.c_str(), number), change.address.key,
                                     text::index_value(change.value));
  if (reading.unread) {
    throw Failure(kUsage, "\"" + change.value + "\" would not be read back whole: " +
                              *reading.unread + " (it is read as: " + reading.key->encoding->name +
                              "); --force stores it nevertheless");
  }
}

}  // namespace

void check_change(const std::string& file, const Change& change, bool force) {
  const std::string section = header_of(change.address.section);
  try {
    if (qel::is_positional(section)) {
      check_positional_line(change.address.key, change.value);
      return;
    }
    check_entry(section_name(section), change.address.key, change.value);
    if (!force) {
      check_encoding(section, change);
    }
  } catch (const Failure& failure) {
    throw Failure(failure.status(), at({file, 0, section, change.address.key}, failure.what()));
  }
}

std::string with_changes(const SectionedText& document, const std::vector<Change>& changes) {
  std::string contents = document.contents();
  std::span<const Change> rest(changes);
  while (!rest.empty()) {
    const bool sets = rest.front().kind == Change::Kind::set;
    const auto end = std::ranges::find_if(
        rest, [sets](const Change& change) { return (change.kind == Change::Kind::set) != sets; });
    const auto run = rest.first(static_cast<std::size_t>(end - rest.begin()));
    const SectionedText now(std::move(contents));
    contents = sets ? with_entries(now, run) : without(now, run);
    rest = rest.subspan(run.size());
  }
  return contents;
}

void change_file(const std::string& file,
                 const std::function<std::vector<Change>(const SectionedText&)>& make) {
  Replacement replacement(file);
  const SectionedText document = document_text(file, replacement.old_contents());
  const std::vector<Change> changes = make(document);
  const std::string contents = with_changes(document, changes);
  if (contents == document.contents()) {
    return;
  }
  check_stored(file, replacement.write(contents), changes);
  replacement.commit();
}

}  // namespace qelpro
