#include "picture/chart.h"

#include <algorithm>
#include <cmath>

#include "file/typed.h"
#include "picture/axis.h"
#include "picture/label.h"

namespace qelpro {

namespace {

constexpr double kTop = 30;          // the y axis' title, and half a tick's label
constexpr double kBottom = 46;       // the x axis' labels and title
constexpr double kGap = 6;           // between a label and its tick
constexpr double kMargin = 12;       // on the right
constexpr std::size_t kMarked = 60;  // more points than these have no markers

using Points = std::vector<std::array<double, 2>>;

Points finite_points(const NamedCurve& curve) {
  Points points;
  std::ranges::copy_if(curve.points, std::back_inserter(points), [](const auto& point) {
    return std::isfinite(point[0]) && std::isfinite(point[1]);
  });
  return points;
}

Range range_of(const std::vector<Points>& curves, std::size_t coordinate) {
  Range range;
  for (const Points& points : curves) {
    for (const auto& point : points) {
      range.add(point.at(coordinate));
    }
  }
  return range;
}

std::vector<std::string> names_of(const Chart& chart) {
  std::vector<std::string> names;
  for (const NamedCurve& curve : chart.curves) {
    names.push_back(curve.name);
  }
  return names;
}

double widest(const Axis& axis) {
  double room = 0;
  for (const Tick& tick : axis.ticks) {
    room = std::max(room, room_for(tick.label));
  }
  return room;
}

// As many ticks as have room for their labels.
Axis fitted_axis(const Range& range, double width) {
  constexpr int kMost = 8;
  for (int steps = kMost; steps > 2; --steps) {
    Axis axis = axis_over(range, steps);
    const double apart = width / static_cast<double>(axis.ticks.size() - 1);
    if (widest(axis) + 2 * kGap <= apart) {
      return axis;
    }
  }
  return axis_over(range, 2);
}

// A chart with its places worked out.
class Drawing {
 public:
  Drawing(const Chart& chart, const ChartSize& size)
      : chart_(chart),
        size_(size),
        legend_(chart.curves.size() > 1 ? names_of(chart) : std::vector<std::string>{},
                Swatch::line, size.width - 8) {
    for (const NamedCurve& curve : chart.curves) {
      curves_.push_back(finite_points(curve));
    }
    constexpr int kSteps = 6;
    y_ = axis_over(range_of(curves_, 1), kSteps);
    left_ = widest(y_) + kGap + 4;
    const Range x_range = range_of(curves_, 0);
    x_ = fitted_axis(x_range, size.width - left_ - kMargin);
    left_ = std::max(left_, room_for(x_.ticks.front().label) / 2 + 2);
    right_ = size.width - std::max(kMargin, room_for(x_.ticks.back().label) / 2 + 2);
    bottom_ = kTop + size.plot_height;
  }

  [[nodiscard]] double height() const {
    return bottom_ + kBottom + (legend_.height() > 0 ? legend_.height() + 4 : 0);
  }

  void write(Markup& markup) const {
    write_axes(markup);
    bool any = false;
    for (std::size_t index = 0; index < curves_.size(); ++index) {
      write_curve(markup, index);
      any = any || !curves_[index].empty();
    }
    if (!any) {
      write_label(markup, "label soft", (left_ + right_) / 2, (kTop + bottom_) / 2, Anchor::middle,
                  "no points");
    }
    legend_.write(markup, 4, bottom_ + kBottom);
  }

 private:
  [[nodiscard]] double x_at(double value) const {
    return left_ + x_.part(value) * (right_ - left_);
  }
  [[nodiscard]] double y_at(double value) const {
    return bottom_ - y_.part(value) * (bottom_ - kTop);
  }

  void write_axes(Markup& markup) const {
    std::string grid;
    for (const Tick& tick : y_.ticks) {
      const double y = y_at(tick.value);
      grid += "M" + coordinate(left_) + " " + coordinate(y) + "H" + coordinate(right_);
      write_label(markup, "label soft", left_ - kGap, y + 4, Anchor::end, tick.label);
    }
    double free_from = -size_.width;
    for (const Tick& tick : x_.ticks) {
      const double x = x_at(tick.value);
      grid += "M" + coordinate(x) + " " + coordinate(bottom_) + "V" + coordinate(kTop);
      const double half = room_for(tick.label) / 2;
      if (x - half >= free_from) {
        write_label(markup, "label soft", x, bottom_ + 20, Anchor::middle, tick.label);
        free_from = x + half + kGap;
      }
    }
    markup.empty("path", {{"class", "grid"}, {"d", grid}});
    markup.empty("path", {{"class", "axis"},
                          {"d", "M" + coordinate(left_) + " " + coordinate(kTop) + "V" +
                                    coordinate(bottom_) + "H" + coordinate(right_)}});
    write_label(markup, "label", 2, 14, Anchor::start,
                shortened(with_unit(chart_.y, chart_.y_unit), size_.width - 4));
    write_label(markup, "label", right_, bottom_ + 38, Anchor::end,
                shortened(with_unit(chart_.x, chart_.x_unit), right_ - 2));
  }

  void write_curve(Markup& markup, std::size_t index) const {
    const Points& points = curves_[index];
    if (points.empty()) {
      return;
    }
    std::string path;
    std::string last;
    for (const auto& point : points) {
      std::string here = coordinate(x_at(point[0])) + " " + coordinate(y_at(point[1]));
      if (here != last) {
        path += (path.empty() ? "M" : "L") + here;
        last = std::move(here);
      }
    }
    if (path.find('L') != std::string::npos) {
      markup.empty("path", {{"class", "curve " + colour_class(index)},
                            {"stroke-dasharray", dash_of(index)},
                            {"d", path}});
    }
    if (points.size() > kMarked) {
      return;
    }
    for (const auto& point : points) {
      markup.open("path", {{"class", "marker " + colour_class(index)},
                           {"d", marker_of(index, x_at(point[0]), y_at(point[1]))}});
      const std::string name =
          chart_.curves.size() > 1 ? chart_.curves[index].name + ": " : std::string();
      markup.element("title", name + shortest(point[0]) +
                                  (chart_.x_unit.empty() ? "" : " " + chart_.x_unit) + ", " +
                                  shortest(point[1]) +
                                  (chart_.y_unit.empty() ? "" : " " + chart_.y_unit));
      markup.close();
    }
  }

  const Chart& chart_;
  ChartSize size_;
  Legend legend_;
  std::vector<Points> curves_;
  Axis x_;
  Axis y_;
  double left_ = 0;
  double right_ = 0;
  double bottom_ = 0;
};

std::string range_in_words(const Range& range, const std::string& unit) {
  std::string words = shortest(range.low);
  if (range.high > range.low) {
    words += " to " + shortest(range.high);
  }
  return unit.empty() ? words : words + " " + unit;
}

}  // namespace

std::string with_unit(const std::string& what, const std::string& unit) {
  return unit.empty() ? what : what + " (" + unit + ")";
}

std::string unit_for_people(std::string_view unit) {
  return unit == "oC" ? "\xC2\xB0"
                        "C"
                      : std::string(unit);
}

std::string description_of(const Chart& chart) {
  std::string words;
  for (const NamedCurve& curve : chart.curves) {
    const std::vector<Points> points{finite_points(curve)};
    const std::size_t count = points.front().size();
    words +=
        (words.empty() ? "" : " ") + curve.name + ": " +
        (count == 0 ? "no points" : std::to_string(count) + (count == 1 ? " point" : " points"));
    if (count > 0) {
      words += ", " + chart.y + " " + range_in_words(range_of(points, 1), chart.y_unit) + " over " +
               chart.x + " " + range_in_words(range_of(points, 0), chart.x_unit);
    }
    words += ".";
    if (const std::size_t rest = curve.points.size() - count; rest > 0) {
      words += " " + std::to_string(rest) + (rest == 1 ? " point is" : " points are") +
               " not finite and left out.";
    }
  }
  return words.empty() ? "No curve." : words;
}

std::string_view picture_style() {
  return R"(
:root{color-scheme:light dark;--paper:#fff;--panel:#f6f8fa;--ink:#1b2430;--soft:#55606e;--grid:#dde2e8;--rule:#8a94a0;
--k0:#0b5cc4;--k1:#b1450a;--k2:#1a7a3a;--k3:#7a3fb5;--k4:#b3165a;--k5:#0b7285;--bad:#b3161b;--warn:#8a5300;--note:#0b5cc4;--mark:#fff3c4}
@media (prefers-color-scheme:dark){:root{--paper:#12161c;--panel:#1a2028;--ink:#e6ebf1;--soft:#a3aebb;--grid:#2b333d;--rule:#73808e;
--k0:#79b4ff;--k1:#ffa25e;--k2:#6fd58f;--k3:#c9a3ff;--k4:#ff8fb8;--k5:#5fd3e0;--bad:#ff8f8a;--warn:#f2b750;--note:#79b4ff;--mark:#4a3d10}}
@media print{:root{color-scheme:light;--paper:#fff;--panel:#fff;--ink:#000;--soft:#3c4651;--grid:#dde2e8;--rule:#6a7480;
--k0:#0b5cc4;--k1:#b1450a;--k2:#1a7a3a;--k3:#7a3fb5;--k4:#b3165a;--k5:#0b7285;--bad:#b3161b;--warn:#8a5300;--note:#0b5cc4;--mark:#fff3c4}}
svg .label{font:12px system-ui,"Segoe UI",Roboto,"Helvetica Neue",Arial,sans-serif;fill:var(--ink);font-variant-numeric:tabular-nums}
svg .label.soft{fill:var(--soft)}
svg .label.strong{font-weight:600}
svg .grid{fill:none;stroke:var(--grid);stroke-width:1}
svg .axis{fill:none;stroke:var(--rule);stroke-width:1.2}
svg .curve{fill:none;stroke-width:2;stroke-linejoin:round}
svg .marker{fill:var(--paper);stroke-width:1.6}
svg .bar{stroke-width:1.5;fill-opacity:.35}
svg .bar.hollow{fill:none}
svg .paper{fill:var(--paper)}
.c0{stroke:var(--k0)}.c1{stroke:var(--k1)}.c2{stroke:var(--k2)}.c3{stroke:var(--k3)}.c4{stroke:var(--k4)}.c5{stroke:var(--k5)}
.bar.c0{fill:var(--k0)}.bar.c1{fill:var(--k1)}.bar.c2{fill:var(--k2)}.bar.c3{fill:var(--k3)}.bar.c4{fill:var(--k4)}.bar.c5{fill:var(--k5)}
)";
}

void write_chart(Markup& markup, const Chart& chart, const std::string& id, const ChartSize& size) {
  const Drawing drawing(chart, size);
  markup.open("svg",
              {{"xmlns", "http://www.w3.org/2000/svg"},
               {"class", "picture"},
               {"role", "img"},
               {"aria-labelledby", id + "-title " + id + "-words"},
               {"viewBox", "0 0 " + coordinate(size.width) + " " + coordinate(drawing.height())}});
  markup.element("title", {{"id", id + "-title"}}, chart.title);
  markup.element("desc", {{"id", id + "-words"}}, description_of(chart));
  drawing.write(markup);
  markup.close();
}

void write_picture(Markup& markup, const std::vector<Chart>& charts, const std::string& title,
                   const ChartSize& size) {
  constexpr double kTitle = 34;
  constexpr double kEdge = 16;
  double height = 0;
  std::string words;
  std::vector<Drawing> drawings;
  drawings.reserve(charts.size());
  for (const Chart& chart : charts) {
    height += kTitle + drawings.emplace_back(chart, size).height();
    words += (words.empty() ? "" : " ") + description_of(chart);
  }
  const std::string width = coordinate(size.width + 2 * kEdge);
  const std::string total = coordinate(height + 2 * kEdge);
  markup.open("svg", {{"xmlns", "http://www.w3.org/2000/svg"},
                      {"role", "img"},
                      {"aria-labelledby", "title words"},
                      {"width", width},
                      {"height", total},
                      {"viewBox", "0 0 " + width + " " + total}});
  markup.element("title", {{"id", "title"}}, title);
  markup.element("desc", {{"id", "words"}}, words);
  markup.open("style").verbatim(picture_style()).close();
  markup.empty("rect", {{"class", "paper"}, {"width", width}, {"height", total}});
  double top = kEdge;
  for (std::size_t index = 0; index < charts.size(); ++index) {
    markup.open("g",
                {{"transform", "translate(" + coordinate(kEdge) + " " + coordinate(top) + ")"}});
    write_label(markup, "label strong", 2, 14, Anchor::start,
                shortened(charts[index].title, size.width / 1.15));
    markup.close();
    markup.open("g", {{"transform", "translate(" + coordinate(kEdge) + " " +
                                        coordinate(top + kTitle - 10) + ")"}});
    drawings[index].write(markup);
    markup.close();
    top += kTitle + drawings[index].height();
  }
  markup.close();
  markup.verbatim("\n");
}

}  // namespace qelpro
