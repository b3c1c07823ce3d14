#include <optional>
#include <string>

#include "blocks/catalogue.h"
#include "check/checked.h"
#include "file/near.h"

namespace qelpro {
namespace {

std::string near_section(std::string_view name) {
  static const NearNames names = [] {
    NearNames all;
    for (const qel::SectionInfo* section : qel::Catalogue()) {
      all.add(section->name);
    }
    return all;
  }();
  return names.near(name);
}

// What stands where the number of such a section does, if the name has that form.
std::optional<std::string_view> in_place_of_number(std::string_view pattern,
                                                   std::string_view name) {
  const std::string_view before = qel::prefix_of(pattern);
  const std::string_view behind = pattern.substr(pattern.find('d', before.size()) + 1);
  if (name.size() < before.size() + behind.size() || !name.starts_with(before) ||
      !name.ends_with(behind)) {
    return std::nullopt;
  }
  return name.substr(before.size(), name.size() - before.size() - behind.size());
}

bool is_number(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789", text.front() == '-' ? 1 : 0) ==
                              std::string_view::npos;
}

// The kind of section that a name with something else in the place of its number is taken for: the
// one that has most of the name. A word there makes it a name of its own where that is near to one
// without a number, or where a dash in it makes a further part of a name.
const qel::SectionInfo* misnumbered(std::string_view name) {
  const qel::SectionInfo* found = nullptr;
  std::string_view found_number;
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    const auto number =
        qel::is_numbered(section->name) ? in_place_of_number(section->name, name) : std::nullopt;
    if (number && (found == nullptr || number->size() < found_number.size())) {
      found = section;
      found_number = *number;
    }
  }
  if (found == nullptr || is_number(found_number)) {
    return found;
  }
  if (found_number.find_first_of("- \t") != std::string_view::npos) {
    return nullptr;
  }
  const std::string near = near_section(name);
  int ignored = 0;
  const qel::SectionInfo* const near_kind =
      near.empty() ? nullptr : qel::find_section(near.c_str(), ignored);
  return near_kind == nullptr || qel::is_numbered(near_kind->name) ? found : nullptr;
}

void add_misnumbered(const Checked& file, const TextLine& header, std::string_view name,
                     const qel::SectionInfo& kind) {
  std::string right = numbered_like(kind.name, name);
  std::string message =
      std::string(name) + " has no section number of 1 or more, as " + right + " has";
  file.findings.add(rule("P104"), at_line(header, name), std::move(message), std::move(right));
}

void check_name(const Checked& file, const TextSection& section, const TextLine& header) {
  const std::string_view name = section.name;
  int number = 0;
  if (const qel::SectionInfo* const known = file.entries.known_section(section)) {
    if (qel::is_numbered(known->name) &&
        (qel::find_section(std::string(name).c_str(), number), number < 1)) {
      add_misnumbered(file, header, name, *known);
    }
    return;
  }
  if (qel::is_positional(name)) {
    return;
  }
  if (const qel::SectionInfo* const kind = misnumbered(name)) {
    add_misnumbered(file, header, name, *kind);
    return;
  }
  std::string near = near_section(name);
  std::string message = std::string(name) + " is no section of the catalogue" + question(near);
  file.findings.add(rule("P101"), at_line(header, name), std::move(message), std::move(near));
}

}  // namespace

void check_sections(const Checked& file) {
  for (const TextSection& section : file.document.sections()) {
    const TextLine header = file.document.line(section.header);
    if (section.repeated) {
      const std::size_t first = file.document.line(file.document.find(section.name)->header).number;
      file.findings.add(rule("P004"), at_line(header, section.name),
                        "a second section " + std::string(section.name) + ": the one on line " +
                            std::to_string(first) + " is read, this one never",
                        "move its entries to line " + std::to_string(first));
    } else {
      check_name(file, section, header);
    }
  }
}

}  // namespace qelpro
