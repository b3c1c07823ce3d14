#include "picture/label.h"

#include <algorithm>
#include <array>

#include "system/visible.h"

namespace qelpro {

namespace {

constexpr double kSwatchWidth = 30;
constexpr double kSwatchGap = 6;
constexpr double kItemGap = 16;
constexpr double kRow = 20;

bool is_ascii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// In parts of the font's size, of the widest of the common fonts.
double width_of(char character) {
  constexpr double kWide = 1.0;
  constexpr double kCapital = 0.78;
  constexpr double kOther = 0.64;
  constexpr double kNarrow = 0.42;
  constexpr std::string_view kWideOnes = "mwMW@%";
  constexpr std::string_view kNarrowOnes = " ijl.,:;|'!()[]/I-";
  if (static_cast<unsigned char>(character) >= 0x80 ||
      kWideOnes.find(character) != std::string_view::npos) {
    return kWide;
  }
  if (kNarrowOnes.find(character) != std::string_view::npos) {
    return kNarrow;
  }
  return character >= 'A' && character <= 'Z' ? kCapital : kOther;
}

}  // namespace

double room_for(std::string_view text) {
  double room = 0;
  for (const char character : text) {
    if ((static_cast<unsigned char>(character) & 0xC0U) != 0x80U) {
      room += width_of(character) * kFontSize;
    }
  }
  return room;
}

std::string shortened(std::string_view text, double room) {
  std::string whole = printable(text);
  if (room_for(whole) <= room) {
    return whole;
  }
  // As many characters in front as behind; the end of a name tells as much as its beginning.
  const std::string dots = "\xE2\x80\xA6";
  std::string best = dots;
  for (std::size_t count = 1; count < whole.size(); ++count) {
    std::string shorter(first_characters(whole, (count + 1) / 2));
    shorter += dots;
    shorter += last_characters(whole, count / 2);
    if (room_for(shorter) > room) {
      break;
    }
    best = std::move(shorter);
  }
  return best;
}

void write_label(Markup& markup, std::string_view style, double x, double y, Anchor anchor,
                 std::string_view text) {
  constexpr std::array<const char*, 3> kAnchors{"start", "middle", "end"};
  const std::string position = kAnchors.at(static_cast<std::size_t>(anchor));
  if (is_ascii(text)) {
    markup.element("text",
                   {{"class", std::string(style)},
                    {"x", coordinate(x)},
                    {"y", coordinate(y)},
                    {"text-anchor", position}},
                   text);
    return;
  }
  markup.element("text",
                 {{"class", std::string(style)},
                  {"x", coordinate(x)},
                  {"y", coordinate(y)},
                  {"text-anchor", position},
                  {"direction", "ltr"},
                  {"textLength", coordinate(room_for(text) * 0.8)},
                  {"lengthAdjust", "spacingAndGlyphs"}},
                 text);
}

std::string colour_class(std::size_t index) { return "c" + std::to_string(index % 6); }

std::string dash_of(std::size_t index) {
  constexpr std::array<const char*, 6> kDashes{"none",     "8 3", "2 3",
                                               "10 3 2 3", "5 2", "10 3 2 3 2 3"};
  return kDashes.at((index + index / kDashes.size()) % kDashes.size());
}

std::string marker_of(std::size_t index, double x, double y) {
  const auto at = [&](double right, double down) {
    return coordinate(x + right) + " " + coordinate(y + down);
  };
  switch (index % 6) {
    case 0:
      return "M" + at(-3, 0) + "a3 3 0 1 0 6 0a3 3 0 1 0 -6 0z";
    case 1:
      return "M" + at(-3, -3) + "h6v6h-6z";
    case 2:
      return "M" + at(0, -4) + "L" + at(3.6, 2.6) + "L" + at(-3.6, 2.6) + "z";
    case 3:
      return "M" + at(0, -4.2) + "L" + at(4.2, 0) + "L" + at(0, 4.2) + "L" + at(-4.2, 0) + "z";
    case 4:
      return "M" + at(0, 4) + "L" + at(3.6, -2.6) + "L" + at(-3.6, -2.6) + "z";
    default:
      return "M" + at(-3.5, -1.3) + "h2.2v-2.2h2.6v2.2h2.2v2.6h-2.2v2.2h-2.6v-2.2h-2.2z";
  }
}

Legend::Legend(const std::vector<std::string>& names, Swatch swatch, double width)
    : swatch_(swatch) {
  double x = 0;
  for (const std::string& name : names) {
    Item item{shortened(name, width - kSwatchWidth - kSwatchGap), name, x, height_};
    const double room = kSwatchWidth + kSwatchGap + room_for(item.text);
    if (x > 0 && x + room > width) {
      x = 0;
      item.x = 0;
      item.y = height_ += kRow;
    }
    x += room + kItemGap;
    items_.push_back(std::move(item));
  }
  height_ += items_.empty() ? 0 : kRow;
}

void Legend::write(Markup& markup, double left, double top) const {
  for (std::size_t index = 0; index < items_.size(); ++index) {
    const Item& item = items_[index];
    const double x = left + item.x;
    const double y = top + item.y + kRow / 2;
    const std::string colour = colour_class(index);
    if (swatch_ == Swatch::line) {
      markup.empty("path", {{"class", "curve " + colour},
                            {"stroke-dasharray", dash_of(index)},
                            {"d", "M" + coordinate(x) + " " + coordinate(y) + "h30"}});
      markup.empty("path", {{"class", "marker " + colour},
                            {"d", marker_of(index, x + kSwatchWidth / 2, y)}});
    } else {
      markup.empty("rect", {{"class", "bar " + colour},
                            {"x", coordinate(x + 0.5)},
                            {"y", coordinate(y - 5)},
                            {"width", coordinate(kSwatchWidth - 1)},
                            {"height", "10"}});
    }
    markup.open("g");
    if (item.text != item.name) {
      markup.element("title", item.name);
    }
    write_label(markup, "label", x + kSwatchWidth + kSwatchGap, y + 4, Anchor::start, item.text);
    markup.close();
  }
}

}  // namespace qelpro
