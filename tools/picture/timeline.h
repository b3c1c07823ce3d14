#pragma once

#include <optional>
#include <string>
#include <vector>

#include "picture/markup.h"

namespace qelpro {

/// A bar of a timeline. Without an end it goes on to the right edge, without a begin it comes from
/// the left one.
struct Span {
  std::optional<double> from;
  std::optional<double> to;
  std::string words;  ///< That a pointer over it shows, and a screen reader reads.
  bool is_filled = true;
  std::string label = {};  ///< Within the bar where there is room.
};

/// A row: for each series of the timeline its bars.
struct TimelineRow {
  std::string name;
  std::vector<std::vector<Span>> series;
};

struct Timeline {
  std::string title;
  std::string x;
  std::string x_unit;
  std::vector<std::string> series;  ///< Their names; a legend tells them where there are several.
  std::vector<TimelineRow> rows;
};

/// What is seen in it, in sentences.
std::string description_of(const Timeline& timeline);

/// A timeline as inline SVG. Numbers that are not finite count as missing.
void write_timeline(Markup& markup, const Timeline& timeline, const std::string& id,
                    double width = 640);

}  // namespace qelpro
