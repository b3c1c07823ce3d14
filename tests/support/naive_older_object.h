#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qelpro_test {

/// An entry as the older object writes it: the key in 14 columns.
std::string entry(const std::string& key, const std::string& value);

/// The text with every date and time in it made the same.
std::string with_plain_dates(std::string text);

/// -1 for a text that does not begin with a number, blanks apart.
int leading_number(const std::string& text);

/// A second, naive reading of the older object's text rules: the whole file in memory, cut into
/// lines. It knows one line break, and dates that are all the same.
class NaiveOlderObject {
 public:
  explicit NaiveOlderObject(std::string contents) : text_(std::move(contents)) {}

  void set(const std::string& section, const std::string& key, const std::string& value);
  void set_line(std::int64_t position, const std::string& line);
  [[nodiscard]] std::optional<std::string> get(const std::string& section,
                                               const std::string& key) const;
  [[nodiscard]] std::optional<std::string> line(std::int64_t position) const;
  /// After the names of as many conditions as the summary tells, and the points of the conditions
  /// before.
  [[nodiscard]] std::int64_t line_of_point(int condition, int point, bool& named) const;
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  struct Line {
    std::size_t start;
    std::size_t end;
    std::string text;  // with its line feed
    bool begins;       // where a line begins, and no long one goes on
  };

  [[nodiscard]] std::size_t contents_end() const;
  [[nodiscard]] std::vector<Line> lines() const;
  static bool begins_section(const Line& line);
  [[nodiscard]] std::optional<std::vector<Line>> after_header(const std::string& section,
                                                              bool whole) const;
  [[nodiscard]] std::pair<bool, std::optional<Line>> find(const std::string& section,
                                                          const std::string& key,
                                                          std::int64_t position) const;
  [[nodiscard]] std::size_t end_of(const std::string& section, bool without_empty_lines) const;
  void write(const std::string& section, const std::string& key, std::int64_t position,
             const std::string& line);

  std::string text_;
};

}  // namespace qelpro_test
