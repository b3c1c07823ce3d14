#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/key_order.h"
#include "text/line_scanner.h"
#include "text/name_table.h"
#include "text/text.h"

namespace qel {

/// A file's contents at one moment, for work that asks for very many keys of it. Its answers are
/// those of one-shot raw reads.
class Snapshot {
 public:
  Snapshot() = default;
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;
  ~Snapshot() = default;

  /// False when the file cannot be read.
  bool load(const char* path);

  /// The entries of the section that was asked for last are kept in order, so that all keys of one
  /// section cost about one pass over it.
  [[nodiscard]] std::optional<std::string_view> value(std::string_view section,
                                                      std::string_view key);

  /// Hands each entry of the section, in the file's order, to `visit`: its key, and its line. False
  /// where there is no such section.
  template <class Visit>
  bool visit_entries(std::string_view section, Visit visit) const {
    const std::size_t found = sections_.position_of(HashedName(section));
    if (found == kNone) {
      return false;
    }
    LineScanner lines(contents_, sections_.value(found), may_hold_nul_);
    for (Line line; lines.next(line) && !text::is_header(line.text);) {
      if (const std::string_view key = text::first_token(line.text); !key.empty()) {
        visit(key, line.text);
      }
    }
    return true;
  }

  /// Hands a value to `use` as a text that ends with a NUL.
  template <class Use>
  void with_text(std::string_view value, Use use) {
    if (value.empty()) {
      use("");
      return;
    }
    const Terminated text(contents_.data() + (value.data() - contents_.data()) + value.size());
    use(value.data());
  }

  /// The numbers from 1 to `most` of the sections whose names are the pattern with a number in the
  /// place of "%d", ascending.
  [[nodiscard]] std::vector<int> numbered_sections(std::string_view pattern, int most) const;

 private:
  // A text in the contents ends there while this lives.
  class Terminated {
   public:
    explicit Terminated(char* end) : end_(end), kept_(*end) { *end_ = '\0'; }
    ~Terminated() { *end_ = kept_; }
    Terminated(const Terminated&) = delete;
    Terminated& operator=(const Terminated&) = delete;

   private:
    char* end_;
    char kept_;
  };

  static constexpr std::size_t kNone = NameTable<std::int64_t>::kUnknown;

  // False where there is no such section.
  bool sort_entries_of(std::string_view section);

  std::string contents_;
  bool may_hold_nul_ = false;
  NameTable<std::int64_t> sections_;    // where the line after the header begins
  std::size_t sorted_section_ = kNone;  // the section that was asked for last
  std::vector<std::string_view> keys_;  // of its entries, as they stand in the file
  std::vector<std::string_view> lines_;
  KeyOrder in_order_;
  std::span<const std::size_t> order_;  // of the same
};

}  // namespace qel
