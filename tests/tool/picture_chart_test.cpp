#include "picture/chart.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <regex>
#include <string>
#include <vector>

#include "picture/character_plot.h"
#include "picture/timeline.h"
#include "support/in_c_locale.h"

namespace {

using namespace qelpro;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

Chart chart(std::vector<NamedCurve> curves) {
  return {"flow rate profile", "how far", "", "flow rate", "cc/sec", std::move(curves)};
}

std::string svg(const Chart& chart) {
  TextSink sink;
  Markup markup(sink);
  write_chart(markup, chart, "c1");
  return sink.text();
}

std::size_t count(const std::string& text, const std::string& part) {
  std::size_t found = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++found;
  }
  return found;
}

TEST(Chart, IsAnImageWithATitleAndADescription) {
  EXPECT_THAT(svg(chart({{"FR", {{0, 30}, {100, 60}}}})),
              AllOf(HasSubstr("role=\"img\" aria-labelledby=\"c1-title c1-words\""),
                    HasSubstr("<title id=\"c1-title\">flow rate profile</title>"),
                    HasSubstr("<desc id=\"c1-words\">FR: 2 points, flow rate 30 to 60 cc/sec over "
                              "how far 0 to 100.</desc>"),
                    HasSubstr(">flow rate (cc/sec)</text>"), HasSubstr(">how far</text>")));
}

TEST(Chart, OfNothingSaysSo) {
  EXPECT_THAT(svg(chart({})), AllOf(HasSubstr(">no points</text>"), HasSubstr("No curve.")));
  const std::string empty = svg(chart({{"FR", {}}}));
  EXPECT_THAT(empty, AllOf(HasSubstr(">no points</text>"), HasSubstr("FR: no points.")));
  EXPECT_EQ(count(empty, "class=\"curve"), 0U);
}

TEST(Chart, OfOnePointIsAMarker) {
  const std::string one = svg(chart({{"FR", {{5, 5}}}}));
  EXPECT_EQ(count(one, "class=\"curve"), 0U);
  EXPECT_EQ(count(one, "class=\"marker"), 1U);
  EXPECT_THAT(one, HasSubstr("FR: 1 point, flow rate 5 cc/sec over how far 5."));
}

TEST(Chart, PlacesPointsBetweenItsTicks) {
  const std::string drawn = svg(chart({{"FR", {{0, 0}, {50, 100}, {100, 50}}}}));
  std::smatch path;
  const std::regex line(
      R"re(class="curve c0" stroke-dasharray="none" d="M([\d.]+) ([\d.]+)L([\d.]+) ([\d.]+)L([\d.]+) ([\d.]+)")re");
  ASSERT_TRUE(std::regex_search(drawn, path, line)) << drawn;
  const auto number = [&](int at) {
    return qelpro_test::to_double(path[static_cast<std::size_t>(at)]);
  };
  EXPECT_NEAR(number(3), (number(1) + number(5)) / 2, 0.02);
  EXPECT_NEAR(number(6), (number(2) + number(4)) / 2, 0.02);
  EXPECT_LT(number(4), number(2));
}

TEST(Chart, OfEqualXIsAStep) {
  const std::string drawn = svg(chart({{"FR", {{0, 10}, {50, 10}, {50, 40}, {100, 40}}}}));
  const std::regex step(R"re(L([\d.]+) [\d.]+L([\d.]+) [\d.]+L)re");
  std::smatch found;
  ASSERT_TRUE(std::regex_search(drawn, found, step)) << drawn;
  EXPECT_EQ(found[1], found[2]);
}

TEST(Chart, OfManyPointsHasNoMarkers) {
  NamedCurve curve{"FR", {}};
  for (int at = 0; at < 5000; ++at) {
    curve.points.push_back({static_cast<double>(at), std::sin(at)});
  }
  const std::string drawn = svg(chart({curve}));
  EXPECT_EQ(count(drawn, "class=\"marker"), 0U);
  EXPECT_EQ(count(drawn, "class=\"curve"), 1U);
  EXPECT_THAT(drawn, HasSubstr("FR: 5000 points"));
}

TEST(Chart, LeavesOutPointsThatAreNotFinite) {
  const double infinite = std::numeric_limits<double>::infinity();
  const std::string drawn =
      svg(chart({{"FR", {{0, 1}, {std::nan(""), 2}, {3, infinite}, {10, 4}}}}));
  EXPECT_THAT(drawn, AllOf(HasSubstr("2 points are not finite and left out."),
                           Not(HasSubstr("nan")), Not(HasSubstr("inf"))));
  EXPECT_EQ(count(drawn, "class=\"marker"), 2U);
}

TEST(Chart, TellsOverlaidCurvesApartInALegend) {
  const std::string drawn = svg(
      chart({{"a.pro", {{0, 1}, {1, 2}}}, {"b.pro", {{0, 1}, {1, 2}}}, {"<c>", {{0, 3}, {1, 4}}}}));
  EXPECT_THAT(drawn,
              AllOf(HasSubstr(">a.pro</text>"), HasSubstr(">b.pro</text>"),
                    HasSubstr(">&lt;c&gt;</text>"), HasSubstr("curve c0\" stroke-dasharray=\"none"),
                    HasSubstr("curve c1\" stroke-dasharray=\"8 3")));
  EXPECT_EQ(count(drawn, "class=\"curve"), 6U);
}

TEST(Timeline, DrawsABarFromStartToEnd) {
  Timeline timeline{"Gates", "time", "sec", {"a.pro"}, {}};
  timeline.rows.push_back({"Gate 1", {{{0.0, 6.0, "opens at 0 sec"}}}});
  timeline.rows.push_back({"Gate 2", {{{2.0, std::nullopt, "no end time"}}}});
  TextSink sink;
  Markup markup(sink);
  write_timeline(markup, timeline, "t");
  EXPECT_THAT(sink.text(), AllOf(HasSubstr(">Gate 1</text>"), HasSubstr(">Gate 2</text>"),
                                 HasSubstr(">time (sec)</text>"),
                                 HasSubstr("Gate 1: opens at 0 sec. Gate 2: no end time."),
                                 HasSubstr("stroke-dasharray=\"4 3\"")));
  EXPECT_EQ(count(sink.text(), "class=\"bar"), 2U);
}

TEST(Timeline, OfSeveralFilesHasALegendAndALaneEach) {
  Timeline timeline{"Gates", "time", "sec", {"a.pro", "b.pro"}, {}};
  timeline.rows.push_back({"Gate 1", {{{0.0, 6.0, "x"}}, {{1.0, 7.0, "y"}}}});
  TextSink sink;
  Markup markup(sink);
  write_timeline(markup, timeline, "t");
  EXPECT_THAT(sink.text(), AllOf(HasSubstr(">a.pro</text>"), HasSubstr("bar c1"),
                                 HasSubstr("Gate 1, b.pro: y.")));
}

TEST(Timeline, HoldsNothingAndWhatIsNotFinite) {
  Timeline timeline{"Gates", "time", "sec", {"a.pro"}, {}};
  TextSink sink;
  Markup markup(sink);
  write_timeline(markup, timeline, "t");
  timeline.rows.push_back(
      {"Gate 1", {{{std::nan(""), std::numeric_limits<double>::infinity(), "odd"}}}});
  write_timeline(markup, timeline, "u");
  EXPECT_THAT(sink.text(), AllOf(HasSubstr("Nothing."), HasSubstr("Gate 1: odd."),
                                 Not(HasSubstr("nan")), Not(HasSubstr("inf\""))));
}

TEST(CharacterPlot, DrawsCurvesInCharacters) {
  EXPECT_EQ(character_plot(chart({{"Flow-1.FR", {{0, 0}, {50, 40}, {100, 40}}},
                                  {"Flow-2.FR", {{0, 20}, {100, 20}}}}),
                           40, 9),
            R"(flow rate profile

flow rate (cc/sec)
40 +                 *******************
   |               **
   |             **
   |           **
20 + oooooooo*oooooooooooooooooooooooooo
   |       **
   |     **
   |   **
 0 + **
   +-+----------------+----------------+
     0               50              100
                   how far

* Flow-1.FR
o Flow-2.FR
)");
}

TEST(CharacterPlot, IsNotWiderThanItIsAskedFor) {
  const Chart wide = chart({{"FR", {{-1e-30, -123456}, {2e-30, 9e5}}}});
  for (const std::size_t width : {30U, 37U, 80U, 200U}) {
    const std::string plot = character_plot(wide, width);
    for (std::size_t begin = 0; begin < plot.size();) {
      const std::size_t end = plot.find('\n', begin);
      EXPECT_LE(end - begin, width);
      EXPECT_TRUE(end == begin || plot[end - 1] != ' ');
      begin = end + 1;
    }
  }
}

TEST(CharacterPlot, HoldsNothingAndWhatIsNotFinite) {
  EXPECT_THAT(character_plot(chart({}), 40), HasSubstr("flow rate (cc/sec)"));
  const std::string plot = character_plot(
      chart({{"FR", {{0, std::nan("")}, {std::numeric_limits<double>::infinity(), 1}, {4, 4}}}}),
      40);
  EXPECT_EQ(count(plot, "*"), 2U);  // the point, and the name's sign
}

}  // namespace
