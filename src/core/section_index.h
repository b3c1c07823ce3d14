#pragma once

#include <cstdint>
#include <string_view>

#include "text/line_scanner.h"
#include "text/name_table.h"
#include "text/text.h"

namespace qel {

/// Where a line was seen to begin.
struct SeenAt {
  std::int64_t offset = 0;
  std::uint32_t file = 0;  ///< The number of the session's file, from 1; 0 for no line.
  bool is_piece = false;   ///< It begins inside a line that is too long.
};

/// A line that a session has seen: where it began, and how, so that a later look tells whether it
/// still does.
class LineMark {
 public:
  LineMark() = default;
  LineMark(const Line& line, std::string_view first_token, std::uint32_t file);

  [[nodiscard]] bool is_set() const { return place_.file != 0; }
  [[nodiscard]] const SeenAt& place() const { return place_; }

  /// Whether a line begins with the first token that the marked one had, as far as the mark
  /// remembers it.
  [[nodiscard]] bool matches(std::string_view line) const;
  /// The same of a text that the line begins, where a blank, a tab or a "=" ends the token. False,
  /// too, for a token that the mark does not remember whole.
  [[nodiscard]] bool begins(std::string_view ahead) const {
    return token_size_ <= sizeof token_ && token_size_ < ahead.size() &&
           text::ends_token(ahead[token_size_]) &&
           ahead.starts_with(std::string_view(token_, token_size_));
  }

 private:
  SeenAt place_;
  std::uint32_t token_size_ = 0;
  char token_[20];  // its first characters: enough to tell the keys of a section apart
};

/// Where the headers and entries that a reading session has passed begin. It only grows, but for
/// `forget`. What was learnt of an earlier file of the session stays; its file number tells it from
/// the present one's.
class SectionIndex {
 public:
  SectionIndex() = default;
  SectionIndex(const SectionIndex&) = delete;
  SectionIndex& operator=(const SectionIndex&) = delete;

  using Place = SeenAt;

  struct Section {
    Place header;
    LineMark passed;  ///< The last entry line of the present file that was learnt; what stands
                      ///< before it is known.
    std::uint64_t hash = 0;    ///< Of its name.
    std::uint32_t number = 0;  ///< Tells it from the others.

    /// The name of a line of it: of an entry by its key as it is spelled in the file. The key
    /// outlives the name.
    [[nodiscard]] HashedName line_name(std::string_view key) const { return {hash, number, key}; }
  };

  /// The section of this name; valid until the next `learn_section`. It is entered where it is new,
  /// which a lookup that meets its header does.
  Section& learn_section(std::string_view name, const Line& header);
  /// Null for a section that has not been passed.
  [[nodiscard]] Section* section(std::string_view name);

  /// Enters the line of a key, the first time that the key is met.
  void learn_entry(const HashedName& name, const LineMark& line);
  /// Notes the line that a lookup by position found, the first time: later ones under the same name
  /// find it again.
  void learn_position(const HashedName& name, const LineMark& line);
  /// Null for a line that has not been passed; valid until the next `learn_entry`.
  [[nodiscard]] const Place* entry(const HashedName& name) {
    return entry_at(entries_.position_of(name));
  }
  /// The entry that was learnt after the one that was asked for last, where it is this section's
  /// and key's: who asks for all in order needs no hash.
  [[nodiscard]] const Place* next_entry(const Section& section, std::string_view key) {
    const std::size_t next = last_entry_ + 1;
    return next < entries_.size() && entries_.is(next, section.number, key) ? entry_at(next)
                                                                            : nullptr;
  }
  [[nodiscard]] const LineMark* position(const HashedName& name) { return positions_.find(name); }

  /// The line learnt furthest from the file's beginning: the headers before it are all known.
  [[nodiscard]] const LineMark& furthest() const { return furthest_; }

  [[nodiscard]] bool is_of_present_file(std::uint32_t file) const { return file == file_; }
  /// A mark of the present file for a line.
  [[nodiscard]] LineMark mark(const Line& line, std::string_view first_token) const {
    return {line, first_token, file_};
  }

  /// Moves with all that is learnt.
  [[nodiscard]] std::uint64_t learnt() const { return learnt_; }

  /// Another file is read from now on. The offsets stay.
  void begin_file() { ++file_; }
  /// The file was changed: all offsets go.
  void forget();

 private:
  void note_furthest(const LineMark& line);
  const Place* entry_at(std::size_t position) {
    if (position == NameTable<Place>::kUnknown) {
      return nullptr;
    }
    last_entry_ = position;
    return &entries_.value(position);
  }

  NameTable<Section> sections_;
  NameTable<Place> entries_;
  NameTable<LineMark> positions_;
  std::size_t last_section_ = 0;  // the position of the one that was asked for last
  std::size_t last_entry_ = 0;    // likewise
  LineMark furthest_;
  std::uint32_t file_ = 1;
  std::uint64_t learnt_ = 0;
};

}  // namespace qel
