#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/key.h"
#include "file/address.h"
#include "file/document_text.h"
#include "file/entry_filter.h"

namespace qelpro {

/// A line that lookups take: an entry, or a line of the section whose lines have a position.
struct FileEntry {
  std::size_t section = 0;  ///< The index of its section among the document's.
  std::size_t line = 0;     ///< The index of its line among the document's.
  std::string key;          ///< "#3" for the third line behind a positional section's header.
  std::string_view value;   ///< Without blanks around it.
};

/// The section of that name, without brackets, in the catalogue; null where it does not know it.
const qel::SectionInfo* known_section(const std::string& name);

/// The entries of a file, each once and in the file's order: a second section of a name, a second
/// entry of a key, a comment, an indented line and what stands before the first section are never
/// read and are none. A line without "=" is one, with an empty value, where its key is known or
/// another line of the section has it with "=".
///
/// Refers to the document, which has to outlive it.
class Entries {
 public:
  explicit Entries(const SectionedText& document);
  /// Those alone that are looked at.
  Entries(const SectionedText& document, EntryFilter& filter);

  [[nodiscard]] const SectionedText& document() const { return document_; }
  [[nodiscard]] const std::vector<FileEntry>& all() const { return entries_; }
  /// The entries of a section, in order: a part of `all`.
  [[nodiscard]] std::span<const FileEntry> of(const TextSection& section) const;

  /// The first section of that name, with or without brackets. The name of the section whose lines
  /// have a position may be its first word.
  [[nodiscard]] const TextSection* find_section(std::string_view name) const;
  /// The entry of a section of that name; null where there is none.
  [[nodiscard]] const FileEntry* find(std::string_view name, std::string_view key) const;
  [[nodiscard]] const FileEntry* find(const Address& address) const {
    return find(address.section, address.key);
  }
  /// What an argument asks for; nothing where nothing is there.
  [[nodiscard]] std::vector<const FileEntry*> find(const Request& request) const;

  /// The addresses that an argument means for a change: of the entries that it asks for, or of a
  /// new one. None where a pattern matches nothing.
  [[nodiscard]] std::vector<Address> targets_of(const Request& request) const;

  [[nodiscard]] Address address_of(const FileEntry& entry) const;
  /// The name of the entry's section, with brackets.
  [[nodiscard]] std::string_view section_of(const FileEntry& entry) const;
  /// The section in the catalogue; null where it does not know it. `number` is that of its name.
  [[nodiscard]] const qel::SectionInfo* known_section(const TextSection& section) const;
  [[nodiscard]] std::size_t line_number(const FileEntry& entry) const;

 private:
  void add_sections(EntryFilter& filter);
  struct Candidates;
  void add_section(std::size_t index, EntryFilter& filter, Candidates& candidates);
  void add_positional_section(std::size_t index);

  const SectionedText& document_;
  std::vector<FileEntry> entries_;
  std::vector<std::size_t> first_of_section_;   // one more than there are sections
  std::vector<const qel::SectionInfo*> known_;  // of each section
  std::vector<std::size_t> by_key_;             // of each section by key
};

}  // namespace qelpro
