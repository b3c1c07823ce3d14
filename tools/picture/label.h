#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "picture/markup.h"

namespace qelpro {

/// Texts within a picture, for which room has to be found before anybody knows the font.

constexpr double kFontSize = 12;

/// How much room a text takes at the most, in a font without serifs of that size.
double room_for(std::string_view text);

/// The text; its middle is left out where it needs more room.
std::string shortened(std::string_view text, double room);

enum class Anchor { start, middle, end };

/// A text at a place, of a class of the picture's style. One of characters whose widths are not
/// known is fitted into its room.
void write_label(Markup& markup, std::string_view style, double x, double y, Anchor anchor,
                 std::string_view text);

/// What tells the curves apart: one of six colours, and a dash and a marker.
std::string colour_class(std::size_t index);
std::string dash_of(std::size_t index);
/// The outline of a marker around a point.
std::string marker_of(std::size_t index, double x, double y);

enum class Swatch { line, bar };

/// Names with their lines or bars, in as many rows as they need.
class Legend {
 public:
  Legend(const std::vector<std::string>& names, Swatch swatch, double width);

  [[nodiscard]] double height() const { return height_; }
  void write(Markup& markup, double left, double top) const;

 private:
  struct Item {
    std::string text;
    std::string name;
    double x = 0;
    double y = 0;
  };
  Swatch swatch_;
  std::vector<Item> items_;
  double height_ = 0;
};

}  // namespace qelpro
