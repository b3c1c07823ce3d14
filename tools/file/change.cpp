#include "file/change.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <utility>

#include "file/entries.h"
#include "file/names.h"
#include "file/section_change.h"
#include "file/splices.h"
#include "text/text.h"

namespace qelpro {
namespace {

namespace text = qel::text;

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
    const TextSection* const section = entries.find_section(address.section);
    if (section != nullptr && change.kind == Change::Kind::add_section) {
      continue;
    }
    if (section != nullptr) {
      old_sections.try_emplace(section, document, *section)
          .first->second.set(address.key, change.value, splices);
      continue;
    }
    const std::string header = header_of(address.section);
    const auto [known, is_new] = place_of_new.emplace(header, new_sections.size());
    if (is_new) {
      new_sections.emplace_back(header, "");
    }
    if (change.kind == Change::Kind::add_section) {
      continue;
    }
    if (qel::is_positional(header)) {
      check_next_line(++new_lines, address.key);
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

bool removes(const Change& change) {
  return change.kind == Change::Kind::remove || change.kind == Change::Kind::remove_section;
}

}  // namespace

std::string with_changes(const SectionedText& document, const std::vector<Change>& changes) {
  std::string contents = document.contents();
  std::span<const Change> rest(changes);
  while (!rest.empty()) {
    const bool adds = !removes(rest.front());
    const auto end = std::ranges::find_if(
        rest, [adds](const Change& change) { return removes(change) == adds; });
    const auto run = rest.first(static_cast<std::size_t>(end - rest.begin()));
    const SectionedText now(std::move(contents));
    contents = adds ? with_entries(now, run) : without(now, run);
    rest = rest.subspan(run.size());
  }
  return contents;
}

}  // namespace qelpro
