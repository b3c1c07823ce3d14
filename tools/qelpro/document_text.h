#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// One line of a process file.
struct TextLine {
  std::string_view whole;  ///< Without its line break.
  std::string_view text;   ///< What the engine takes for the line: up to its longest line, and up to a NUL byte.
  std::size_t begin = 0;   ///< Where it stands in the file.
  std::size_t end = 0;     ///< Behind its line break.
  std::size_t number = 0;  ///< From 1.
};

/// A section: its header, and the lines up to the next header.
struct TextSection {
  std::string_view name;   ///< As lookups know it: the header's first token, or the whole header where that is not bracketed.
  bool repeated = false;   ///< A section of that name came before: it is never read.
  std::size_t header = 0;  ///< The index of its header among the lines.
  std::size_t behind = 0;  ///< The index behind its last line.
};

/// What a line inside or before the sections is.
enum class LineKind { blank, comment, indented, without_equals, entry };
LineKind kind_of(const TextLine& line);

/// The text of a process file, its lines and its sections. An UTF-16 text is refused with a `Failure`: nobody finds a line in it.
class DocumentText {
 public:
  DocumentText(const std::string& file, std::string contents);
  DocumentText(const DocumentText&) = delete;
  DocumentText& operator=(const DocumentText&) = delete;

  [[nodiscard]] const std::string& contents() const { return contents_; }
  [[nodiscard]] const std::vector<TextLine>& lines() const { return lines_; }
  [[nodiscard]] const std::vector<TextSection>& sections() const { return sections_; }
  /// How many lines stand before the first section.
  [[nodiscard]] std::size_t lines_before_sections() const { return sections_.empty() ? lines_.size() : sections_.front().header; }

  /// The first section of that name, or null.
  [[nodiscard]] const TextSection* find(std::string_view section) const;
  /// The line that a lookup of the key in the section takes, or null.
  [[nodiscard]] const TextLine* find(const TextSection& section, std::string_view key) const;

 private:
  std::string contents_;
  std::vector<TextLine> lines_;
  std::vector<TextSection> sections_;
  std::vector<std::size_t> by_name_;  // the sections by name, those of one name in the file's order
};

/// The text behind the first "=" of the line as it stands, without blanks around it. Longer than what the engine takes where the line is.
std::string_view whole_value(const TextLine& line);

/// The contents of a process file.
DocumentText load_document(const std::string& file);
