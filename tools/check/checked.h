#pragma once

#include <vector>

#include "check/findings.h"
#include "check/known_keys.h"
#include "file/entries.h"

namespace qelpro {

/// A file that is checked, and what was found in it.
struct Checked {
  const SectionedText& document;
  const Entries& entries;
  const KnownKeys& known;
  const std::vector<const qel::KeyInfo*>& keys;  ///< Of each entry; null where it is not known.
  Findings& findings;

  [[nodiscard]] const qel::KeyInfo* key_of(const FileEntry& entry) const {
    return keys[static_cast<std::size_t>(&entry - entries.all().data())];
  }
};

/// The families of rules.
void check_lines(const Checked& file);       ///< P0: lines, whatever they hold.
void check_sections(const Checked& file);    ///< P004, P101, P104: headers.
void check_keys(const Checked& file);        ///< P005, P102, P103.
void check_values(const Checked& file);      ///< P2: single values.
void check_profiles(const Checked& file);    ///< P301 to P304: counts and their points.
void check_positional(const Checked& file);  ///< P2 and P3 of the lines that have a position.
void check_numbers(const Checked& file);   ///< P303, P305, P306: counts of things and of sections.
void check_criteria(const Checked& file);  ///< P4.

}  // namespace qelpro
