#include "picture/timeline.h"

#include <algorithm>
#include <cmath>

#include "picture/axis.h"
#include "picture/chart.h"
#include "picture/label.h"

namespace qelpro {

namespace {

constexpr double kAbove = 8;
constexpr double kLane = 16;
constexpr double kRowGap = 8;
constexpr double kBelow = 46;
constexpr double kAround = 16;
constexpr double kMostForNames = 150;

std::optional<double> finite(const std::optional<double>& value) {
  return value && std::isfinite(*value) ? value : std::nullopt;
}

class TimelineDrawing {
 public:
  TimelineDrawing(const Timeline& timeline, double width)
      : timeline_(timeline),
        lanes_(std::max<std::size_t>(timeline.series.size(), 1)),
        legend_(timeline.series.size() > 1 ? timeline.series : std::vector<std::string>{},
                Swatch::bar, width - 8),
        right_(width - kAround) {
    Range range;
    range.add(0);
    double names = 0;
    bool goes_on = false;
    for (const TimelineRow& row : timeline.rows) {
      names = std::max(names, room_for(shortened(row.name, kMostForNames)));
      for (const auto& spans : row.series) {
        for (const Span& span : spans) {
          range.add(finite(span.from).value_or(0));
          range.add(finite(span.to).value_or(0));
          goes_on = goes_on || !finite(span.to);
        }
      }
    }
    if (goes_on) {
      // What has no end is seen to go on behind the last number.
      constexpr double kMore = 0.06;
      range.add(range.high + (range.high / 2 - range.low / 2) * 2 * kMore);
    }
    left_ = names + 12;
    for (int steps = 9; steps >= 2; --steps) {
      axis_ = axis_over(range, steps);
      double widest = 0;
      for (const Tick& tick : axis_.ticks) {
        widest = std::max(widest, room_for(tick.label));
      }
      if (widest + 12 <= (right_ - left_) / static_cast<double>(axis_.ticks.size() - 1)) {
        break;
      }
    }
    left_ = std::max(left_, room_for(axis_.ticks.front().label) / 2 + 2);
    right_ = width - std::max(kAround, room_for(axis_.ticks.back().label) / 2 + 2);
    bottom_ =
        kAbove + row_height() * static_cast<double>(std::max<std::size_t>(timeline.rows.size(), 1));
  }

  [[nodiscard]] double height() const {
    return bottom_ + kBelow + (legend_.height() > 0 ? legend_.height() + 4 : 0);
  }

  void write(Markup& markup) const {
    std::string grid;
    for (const Tick& tick : axis_.ticks) {
      const double x = x_at(tick.value);
      grid += "M" + coordinate(x) + " " + coordinate(bottom_) + "V" + coordinate(kAbove);
      write_label(markup, "label soft", x, bottom_ + 20, Anchor::middle, tick.label);
    }
    markup.empty("path", {{"class", "grid"}, {"d", grid}});
    double top = kAbove;
    for (const TimelineRow& row : timeline_.rows) {
      write_row(markup, row, top);
      top += row_height();
    }
    markup.empty("path", {{"class", "axis"},
                          {"d", "M" + coordinate(left_) + " " + coordinate(kAbove) + "V" +
                                    coordinate(bottom_) + "H" + coordinate(right_)}});
    write_label(markup, "label", right_, bottom_ + 38, Anchor::end,
                shortened(with_unit(timeline_.x, timeline_.x_unit), right_ - 2));
    legend_.write(markup, 4, bottom_ + kBelow);
  }

 private:
  [[nodiscard]] double x_at(double value) const {
    return left_ + axis_.part(value) * (right_ - left_);
  }
  [[nodiscard]] double row_height() const { return kRowGap + kLane * static_cast<double>(lanes_); }

  void write_row(Markup& markup, const TimelineRow& row, double top) const {
    write_label(markup, "label", left_ - 8, top + row_height() / 2 + 4, Anchor::end,
                shortened(row.name, kMostForNames));
    for (std::size_t lane = 0; lane < row.series.size(); ++lane) {
      const double y = top + kRowGap / 2 + kLane * static_cast<double>(lane);
      for (const Span& span : row.series[lane]) {
        write_span(markup, span, lane, y);
      }
    }
  }

  void write_span(Markup& markup, const Span& span, std::size_t lane, double y) const {
    const std::optional<double> from = finite(span.from);
    const std::optional<double> to = finite(span.to);
    const double begin = from ? x_at(*from) : left_;
    const double end = to ? x_at(*to) : right_;
    const double left = std::min(begin, end);
    // A bar of no length is seen, too.
    const double width = std::max(std::abs(end - begin), 2.0);
    markup.open("g");
    markup.element("title", span.words);
    markup.empty("rect", {{"class", (span.is_filled ? "bar " : "bar hollow ") + colour_class(lane)},
                          {"stroke-dasharray", from && to && *from <= *to ? "none" : "4 3"},
                          {"x", coordinate(left)},
                          {"y", coordinate(y + 1)},
                          {"width", coordinate(width)},
                          {"height", coordinate(kLane - 2)}});
    if (!span.label.empty() && room_for(span.label) + 4 <= width) {
      write_label(markup, "label", left + width / 2, y + kLane - 4, Anchor::middle, span.label);
    }
    markup.close();
  }

  const Timeline& timeline_;
  std::size_t lanes_;
  Legend legend_;
  Axis axis_;
  double left_ = 0;
  double right_;
  double bottom_ = 0;
};

}  // namespace

std::string description_of(const Timeline& timeline) {
  std::string words;
  for (const TimelineRow& row : timeline.rows) {
    for (std::size_t lane = 0; lane < row.series.size(); ++lane) {
      for (const Span& span : row.series[lane]) {
        words += (words.empty() ? "" : " ") + row.name +
                 (timeline.series.size() > 1 ? ", " + timeline.series[lane] : "") + ": " +
                 span.words + ".";
      }
    }
  }
  return words.empty() ? "Nothing." : words;
}

void write_timeline(Markup& markup, const Timeline& timeline, const std::string& id, double width) {
  const TimelineDrawing drawing(timeline, width);
  markup.open("svg",
              {{"xmlns", "http://www.w3.org/2000/svg"},
               {"class", "picture"},
               {"role", "img"},
               {"aria-labelledby", id + "-title " + id + "-words"},
               {"viewBox", "0 0 " + coordinate(width) + " " + coordinate(drawing.height())}});
  markup.element("title", {{"id", id + "-title"}}, timeline.title);
  markup.element("desc", {{"id", id + "-words"}}, description_of(timeline));
  drawing.write(markup);
  markup.close();
}

}  // namespace qelpro
