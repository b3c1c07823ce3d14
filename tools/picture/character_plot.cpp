#include "picture/character_plot.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "picture/axis.h"
#include "picture/markup.h"

namespace qelpro {

namespace {

constexpr std::string_view kSigns = "*o+x#@%&";
constexpr std::size_t kLeastWidth = 30;

Range range_of(const Chart& chart, std::size_t coordinate) {
  Range range;
  for (const NamedCurve& curve : chart.curves) {
    for (const auto& point : curve.points) {
      if (std::isfinite(point[0]) && std::isfinite(point[1])) {
        range.add(point.at(coordinate));
      }
    }
  }
  return range;
}

// The cells of the plot, the first row on top.
class Canvas {
 public:
  Canvas(std::size_t columns, std::size_t rows) : cells_(rows, std::string(columns, ' ')) {}

  void line(long from_x, long from_y, long to_x, long to_y, std::size_t curve) {
    const long steps = std::max({std::labs(to_x - from_x), std::labs(to_y - from_y), 1L});
    for (long step = 0; step <= steps; ++step) {
      const double part = static_cast<double>(step) / static_cast<double>(steps);
      put(from_x + std::lround(part * static_cast<double>(to_x - from_x)),
          from_y + std::lround(part * static_cast<double>(to_y - from_y)), curve);
    }
  }

  [[nodiscard]] const std::string& row(std::size_t index) const { return cells_[index]; }

 private:
  // Where curves meet their signs take turns.
  void put(long x, long y, std::size_t curve) {
    char& cell =
        cells_.at(cells_.size() - 1 - static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x));
    if (cell == ' ' || (static_cast<std::size_t>(x) + curve) % 2 == 0) {
      cell = kSigns[curve % kSigns.size()];
    }
  }

  std::vector<std::string> cells_;
};

std::string without_blanks_behind(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  return line + '\n';
}

// Puts a label into a line where it touches no other.
void put_label(std::string& line, const std::string& label, std::size_t middle) {
  const std::size_t half = label.size() / 2;
  std::size_t at = middle > half ? middle - half : 0;
  at = std::min(at, line.size() - std::min(line.size(), label.size()));
  const std::size_t before = at > 0 ? at - 1 : 0;
  if (line.substr(before, label.size() + 2).find_first_not_of(' ') == std::string::npos) {
    line.replace(at, label.size(), label);
  }
}

std::string centred(const std::string& text, std::size_t left, std::size_t width) {
  const std::size_t room = width > text.size() ? (width - text.size()) / 2 : 0;
  return without_blanks_behind(std::string(left + room, ' ') + text);
}

}  // namespace

std::string character_plot(const Chart& chart, std::size_t width, std::size_t rows) {
  width = std::max(width, kLeastWidth);
  const Axis y = axis_over(range_of(chart, 1), static_cast<int>(rows) / 3);
  std::size_t labels = 0;
  for (const Tick& tick : y.ticks) {
    labels = std::max(labels, tick.label.size());
  }
  const std::size_t columns = width - labels - 3;
  constexpr std::size_t kColumnsATick = 11;
  const Axis x = axis_over(range_of(chart, 0), static_cast<int>(columns / kColumnsATick));
  const auto column = [&](double value) {
    return std::lround(x.part(value) * static_cast<double>(columns - 1));
  };
  const auto row = [&](double value) {
    return std::lround(y.part(value) * static_cast<double>(rows - 1));
  };
  Canvas canvas(columns, rows);
  for (std::size_t index = 0; index < chart.curves.size(); ++index) {
    const std::array<double, 2>* last = nullptr;
    for (const auto& point : chart.curves[index].points) {
      if (std::isfinite(point[0]) && std::isfinite(point[1])) {
        const auto& from = last != nullptr ? *last : point;
        canvas.line(column(from[0]), row(from[1]), column(point[0]), row(point[1]), index);
        last = &point;
      }
    }
  }
  std::string plot = chart.title + "\n\n" + with_unit(chart.y, chart.y_unit) + '\n';
  for (std::size_t at = 0; at < rows; ++at) {
    std::string label;
    for (const Tick& tick : y.ticks) {
      if (row(tick.value) == static_cast<long>(rows - 1 - at)) {
        label = tick.label;
      }
    }
    plot += without_blanks_behind(std::string(labels - label.size(), ' ') + label +
                                  (label.empty() ? " | " : " + ") + canvas.row(at));
  }
  std::string line(columns, '-');
  std::string numbers(width, ' ');
  for (const Tick& tick : x.ticks) {
    const auto at = static_cast<std::size_t>(column(tick.value));
    line.at(at) = '+';
    put_label(numbers, tick.label, labels + 3 + at);
  }
  plot += std::string(labels + 1, ' ') + "+-" + line + '\n' + without_blanks_behind(numbers);
  plot += centred(with_unit(chart.x, chart.x_unit), labels + 3, columns);
  for (std::size_t index = 0; index < chart.curves.size(); ++index) {
    plot += std::string(index == 0 ? "\n" : "") + kSigns[index % kSigns.size()] + ' ' +
            printable(chart.curves[index].name) + '\n';
  }
  return plot;
}

}  // namespace qelpro
