#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "core/line_scanner.h"
#include "core/offset_table.h"
#include "platform/random_access.h"

namespace qel {

/// What is looked for: the entry of a key, or the line at a position (1 is the first line behind the header).
struct Target {
  std::string_view section;
  std::string_view key;
  int index = kByKey;

  static constexpr int kByKey = -1;
  [[nodiscard]] bool by_key() const { return index < 0; }
};

/// Where the headers and entries that a reading session has passed begin. It only grows, and it is never checked
/// against the file: a session assumes that its file stays as it is.
class SectionIndex {
 public:
  struct Section {
    std::int64_t header;
    std::int64_t passed = 0;  ///< Up to here its lines are learnt; 0 while that is not known of the file at hand.
  };

  SectionIndex() = default;
  SectionIndex(const SectionIndex&) = delete;
  SectionIndex& operator=(const SectionIndex&) = delete;

  Section& learn_section(std::string_view name, std::int64_t offset);

  /// Null for a section that has not been passed.
  [[nodiscard]] Section* section(std::string_view name);

  /// The one name under which a line is looked up: its section's and its key's joined, as they are spelled in the file.
  /// Valid until the next call with the same purpose.
  enum class Purpose { looked_for, passed };
  OffsetTable::Name line_name(Purpose purpose, std::string_view section, std::string_view key);

  void learn_line(const OffsetTable::Name& name, std::int64_t offset);
  [[nodiscard]] std::optional<std::int64_t> line(const OffsetTable::Name& name) const { return lines_.find(name); }

  /// The greatest offset of a line learnt so far: the headers before it are all known. 0 while no line is known.
  [[nodiscard]] std::int64_t furthest_line() const { return furthest_; }

  /// Another file is read from now on. The offsets stay; how far each section has been passed does not.
  void turn_to_another_file();

 private:
  std::unordered_map<std::string, Section> sections_;
  std::pair<const std::string, Section>* last_section_ = nullptr;  // the one that was asked for last
  OffsetTable lines_;
  std::int64_t furthest_ = 0;
  std::string names_[2];
};

/// The plain scan: the section begins at the first line whose first token is its name, and a key is searched for from
/// there to the end of the file, later sections included.
std::optional<Line> find_plainly(LineScanner& lines, const Target& target);

/// The first line whose first token is the section's name, as the plain scan takes it.
bool find_plain_header(LineScanner& lines, std::string_view section, Line& header);

/// Whether the line at a position (counted from 1 behind the header) is the one the plain scan looks for.
bool is_target(const Target& target, const Line& line, int position);

/// The indexed scan, as one-shot raw reads use it: the section ends at the next header line. The section index is not
/// consulted, and left as it is.
std::optional<Line> find_in_section(LineScanner& lines, const Target& target);

/// The indexed lookup of a reading session. The line's text is only valid while `lines` lives.
std::optional<Line> find_indexed(platform::RandomAccess& file, const Target& target, SectionIndex& index, std::optional<LineScanner>& lines);

}  // namespace qel
