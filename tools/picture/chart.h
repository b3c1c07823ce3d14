#pragma once

#include <array>
#include <string>
#include <vector>

#include "picture/markup.h"

namespace qelpro {

struct NamedCurve {
  std::string name;
  std::vector<std::array<double, 2>> points;
};

/// Curves over one pair of axes.
struct Chart {
  std::string title;
  std::string x;       ///< What the x axis counts.
  std::string x_unit;  ///< Empty where the file states none.
  std::string y;
  std::string y_unit;
  std::vector<NamedCurve> curves;
};

/// "pressure (MPa)"
std::string with_unit(const std::string& what, const std::string& unit);
/// A unit as a person writes it: "°C" for the file's "oC".
std::string unit_for_people(std::string_view unit);

/// What is seen in a chart, in sentences.
std::string description_of(const Chart& chart);

struct ChartSize {
  double width = 400;
  double plot_height = 190;  ///< Of the area of the curves alone.
};

/// The style of all pictures: colours, which a page that is read in the dark changes, and fonts.
/// For a page as well as for a picture alone.
std::string_view picture_style();

/// One chart as inline SVG, whose `id` is its own in the page. Points that are not finite are left
/// out.
void write_chart(Markup& markup, const Chart& chart, const std::string& id,
                 const ChartSize& size = {});

/// Several charts, one under the other, as a file of SVG.
void write_picture(Markup& markup, const std::vector<Chart>& charts, const std::string& title,
                   const ChartSize& size);

}  // namespace qelpro
