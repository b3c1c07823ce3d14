#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qel {

/// One line of a process file, as the engine sees it: one that is too long comes as several.
struct TextLine {
  std::string_view whole;  ///< Without its line break.
  std::string_view text;   ///< What the engine takes for the line: up to a NUL byte.
  std::size_t begin = 0;   ///< Where it stands in the file.
  std::size_t end = 0;     ///< After its line break.
  std::size_t number = 0;  ///< From 1; lines that stand in one line of the file have its number.
  bool goes_on = false;    ///< It has no line break, and another line after it.
};

/// A section: its header, and the lines up to the next header.
struct TextSection {
  std::string_view
      name;  ///< The header's first token, or the whole header where that is not bracketed.
  std::size_t header = 0;  ///< The index of its header among the lines.
  std::size_t after = 0;   ///< The index after its last line.
  bool repeated =
      false;  ///< A section that lookups take for the same came before: it is never read.
};

/// What a line inside or before the sections is. As `indented` counts what has no key that a lookup
/// takes: a "=" in front, or a carriage return in the key.
enum class LineKind { blank, comment, indented, without_equals, entry };
LineKind kind_of(const TextLine& line);

/// Whether a name, or a header, is that of the section whose lines are addressed by position.
/// Lookups find it by its first word.
bool is_positional(std::string_view section);

/// Whether a text is UTF-16, in which nobody finds a line: it begins with that byte order mark, or
/// every second byte of its first two characters is 0.
bool is_utf16(std::string_view contents);

/// The text of a process file, its lines and its sections.
///
/// Lines may be as short as their line break. Of each no more is kept than where it begins.
class SectionedText {
 public:
  explicit SectionedText(std::string contents);
  SectionedText(const SectionedText&) = delete;
  SectionedText& operator=(const SectionedText&) = delete;

  [[nodiscard]] const std::string& contents() const { return contents_; }
  [[nodiscard]] std::size_t line_count() const { return begins_.size(); }
  [[nodiscard]] TextLine line(std::size_t index) const;
  [[nodiscard]] const std::vector<TextSection>& sections() const { return sections_; }
  /// How many lines stand before the first section.
  [[nodiscard]] std::size_t lines_before_sections() const {
    return sections_.empty() ? line_count() : sections_.front().header;
  }

  /// The text from where the line begins to the next line break: with the lines that it goes on in,
  /// where it is too long.
  [[nodiscard]] std::string_view to_line_break(const TextLine& line) const;

  /// The first section of that name, or null.
  [[nodiscard]] const TextSection* find(std::string_view section) const;

 private:
  void split();
  void sort_sections();

  std::string contents_;
  std::vector<std::size_t> begins_;  // of the lines
  std::size_t end_ = 0;              // of the last one
  bool has_nul_ = false;             // somewhere
  // The indexes of the lines that stand after another one in one line of the file.
  std::vector<std::size_t> pieces_;
  std::vector<TextSection> sections_;
  std::vector<std::size_t> by_name_;  // the sections by name, those of one name in the file's order
};

/// The text after the first "=" of the line as it stands, without blanks around it. Longer than
/// what the engine takes where the line has a NUL byte.
std::string_view whole_value(const TextLine& line);

}  // namespace qel
