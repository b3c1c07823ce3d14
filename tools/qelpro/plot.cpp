#include "picture/plot.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "commands.h"
#include "output.h"
#include "system/failure.h"
#include "system/streams.h"

namespace qelpro {

namespace {

// As wide as the terminal, whose last column some terminals break lines at.
std::size_t width_of_answer() {
  constexpr int kUsual = 80;
  const int columns = terminal_columns(stdout);
  return static_cast<std::size_t>(columns > 1 ? columns - 1 : kUsual);
}

// Tells which curves have none, and whether any has.
bool has_points(const std::string& file, const std::vector<Chart>& charts) {
  bool any = false;
  for (const Chart& chart : charts) {
    for (const NamedCurve& curve : chart.curves) {
      const bool has = std::ranges::any_of(curve.points, [](const auto& point) {
        return std::isfinite(point[0]) && std::isfinite(point[1]);
      });
      if (!has) {
        complain(at(file, curve.name + ": its count promises no point that is there and finite"));
      }
      any = any || has;
    }
  }
  return any;
}

}  // namespace

int run_plot(const PlotArguments& arguments) {
  const SectionedText document = load_document(arguments.file);
  const Entries entries(document);
  const std::string file = arguments.file == "-" ? "standard input" : arguments.file;
  const std::vector<Chart> charts = plot_of(file, entries, arguments.profiles);
  if (!has_points(file, charts)) {
    return kNotFound;
  }
  if (!arguments.output) {
    answer() << characters_of(charts, width_of_answer());
  } else {
    write_answer(arguments.output, {arguments.file},
                 [&](Sink& picture) { picture << svg_of(charts, file); });
  }
  return kDone;
}

}  // namespace qelpro
