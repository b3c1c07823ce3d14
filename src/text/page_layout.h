#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qel {

/// New contents from the beginning of a page on, and how they came out of the old ones.
struct MovedText {
  std::string_view before;  ///< The contents in front of that page.
  std::string_view text;    ///< The new contents from there on.
  std::size_t begin;        ///< Of the lines that changed, in the first page of `text`.
  std::size_t end;          ///< Where the lines begin that only move.
  std::ptrdiff_t shift;     ///< How far they move.
  bool replaces;            ///< Whether there were lines in the place of those that changed.
};

/// The text in between the old and the new contents, as long as the new ones.
///
/// A page of it begins as the new contents' page does, so that a line that the new page before it
/// begins goes on here. Then come all lines that begin in this page of the old contents or of the
/// new ones, whole. It ends in a "=": what the old page, or the page in between, goes on with
/// belongs to a line without a key then, which nobody looks for.
class PageLayout {
 public:
  explicit PageLayout(const MovedText& moved);

  /// How far the lines may move, in their direction, for no header to be seen twice in between: the
  /// second one would end the section. Nothing where the whole way will do.
  [[nodiscard]] std::optional<std::size_t> nearer() const { return nearer_; }

  /// Whether the last section is one whose lines are known by their positions.
  [[nodiscard]] bool ends_in_positions() const { return parts_positions(text_.size()); }

  /// Nothing where a page has no room.
  [[nodiscard]] std::optional<std::string> text() const;

 private:
  [[nodiscard]] std::size_t line_from(std::size_t offset) const;
  [[nodiscard]] bool old_line_begins_at(std::size_t boundary) const;
  [[nodiscard]] bool hides_next(std::size_t boundary) const;
  [[nodiscard]] std::size_t end_of_lines(std::size_t boundary) const;
  [[nodiscard]] std::string line_before(std::size_t begin) const;
  [[nodiscard]] bool parts_positions(std::size_t boundary) const;
  void look_for_headers(std::size_t boundary);
  [[nodiscard]] std::size_t end_before_padding(std::size_t first_line) const;
  [[nodiscard]] bool put_page(std::string& text, std::size_t begin, std::size_t end) const;

  MovedText moved_;
  std::string_view text_;
  std::optional<std::size_t> nearer_;
};

}  // namespace qel
