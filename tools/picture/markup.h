#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "system/sink.h"

namespace qelpro {

/// The text with escapes such as "\x1B" and "\u202E" in the place of what a page cannot hold or
/// what would change how its neighbours look: control characters, bytes that are no UTF-8, the
/// characters that turn the direction of writing, and those that are none. The result is UTF-8; a
/// tab stays.
std::string printable(std::string_view text);

/// How many characters a text of UTF-8 has, and its first and last ones.
std::size_t character_count(std::string_view text);
std::string_view first_characters(std::string_view text, std::size_t count);
std::string_view last_characters(std::string_view text, std::size_t count);

struct Attribute {
  std::string_view name;
  std::string value;
};
using Attributes = std::initializer_list<Attribute>;

/// Writes HTML and SVG. All texts and values of attributes are escaped, so that no text of a file
/// becomes markup.
class Markup {
 public:
  explicit Markup(Sink& output) : output_(output) {}

  Markup& open(std::string_view element, Attributes attributes = {});
  /// Ends the element that was opened last.
  Markup& close();
  /// An element that never holds anything.
  Markup& empty(std::string_view element, Attributes attributes = {});
  Markup& text(std::string_view text);
  Markup& element(std::string_view name, Attributes attributes, std::string_view content);
  Markup& element(std::string_view name, std::string_view content) {
    return element(name, {}, content);
  }
  /// What is markup, or a style, already: no text of a file.
  Markup& verbatim(std::string_view markup);

 private:
  void begin(std::string_view element, Attributes attributes);

  Sink& output_;
  std::vector<std::string> open_;
};

/// A number as attributes of SVG have it: two decimals at the most.
std::string coordinate(double value);

}  // namespace qelpro
