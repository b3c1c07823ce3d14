#include <gmock/gmock.h>

#include <string>

#include "picture/label.h"
#include "picture/markup.h"
#include "system/visible.h"

// What is written into a page or a picture cannot become markup, and is UTF-8.

namespace {

using namespace qelpro;

std::string written(const std::string& text) {
  TextSink sink;
  Markup(sink).element("b", text);
  return sink.text();
}

TEST(Markup, EscapesTextsAndAttributes) {
  EXPECT_EQ(written("<script>\"'&</script>"),
            "<b>&lt;script&gt;&quot;&#39;&amp;&lt;/script&gt;</b>");
  TextSink sink;
  Markup(sink).element("a", {{"title", "\"><img src='x'"}}, "x");
  EXPECT_EQ(sink.text(), "<a title=\"&quot;&gt;&lt;img src=&#39;x&#39;\">x</a>");
}

TEST(Markup, ClosesWhatItOpenedLast) {
  TextSink sink;
  Markup markup(sink);
  markup.open("p").open("b").text("x").close().empty("br").close();
  markup.empty("path", {{"d", "M0 0"}});
  EXPECT_EQ(sink.text(), "\n<p><b>x</b><br></p>\n<path d=\"M0 0\"/>");
}

TEST(Printable, MakesControlCharactersVisible) {
  EXPECT_EQ(printable(std::string("a\0b\x1B[31m\r\n\x7F", 11)), "a\\x00b\\x1B[31m\\x0D\\x0A\\x7F");
  EXPECT_EQ(printable("a\tb"), "a\tb");
  EXPECT_EQ(printable("\xC2\x85\x85"), "\\u0085\\x85");
}

TEST(Printable, MakesBytesVisibleThatAreNoUtf8) {
  EXPECT_EQ(printable("\xE9t\xE9"), "\\xE9t\\xE9");
  EXPECT_EQ(printable("\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80"),
            "\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80");
  EXPECT_EQ(printable("\xED\xA0\x80"), "\\xED\\xA0\\x80");  // a surrogate
  EXPECT_EQ(printable("\xC0\xAF\xE4\xB8"), "\\xC0\\xAF\\xE4\\xB8");
}

TEST(Printable, MakesTurnsOfTheWritingDirectionVisible) {
  EXPECT_EQ(printable("\xE2\x80\xAE"
                      "abc"),
            "\\u202Eabc");
  EXPECT_EQ(printable("\xEF\xBF\xBF\xF0\x9F\xBF\xBE"), "\\uFFFF\\U0001FFFE");
  EXPECT_EQ(printable("\xD7\xA9"), "\xD7\xA9");  // a letter that is written from the right stays
}

TEST(Printable, IsUtf8ForAnyTwoBytes) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
      const std::string text = printable(bytes);
      for (std::string_view rest = text; !rest.empty();) {
        const std::size_t length = utf8_length(rest);
        ASSERT_GT(length, 0U) << first << ' ' << second;
        ASSERT_TRUE(rest.front() == '\t' || static_cast<unsigned char>(rest.front()) >= ' ');
        rest.remove_prefix(length);
      }
    }
  }
}

TEST(Coordinate, HasTwoDecimalsAtTheMost) {
  EXPECT_EQ(coordinate(0), "0");
  EXPECT_EQ(coordinate(-0.001), "0");
  EXPECT_EQ(coordinate(12.5), "12.5");
  EXPECT_EQ(coordinate(-1.25), "-1.25");
  EXPECT_EQ(coordinate(3.04), "3.04");
  EXPECT_EQ(coordinate(99.999), "100");
}

TEST(Label, LeavesOutTheMiddleOfANameThatIsTooLong) {
  EXPECT_EQ(shortened("short.pro", 200), "short.pro");
  const std::string shorter = shortened(std::string(300, 'a') + "_end.pro", 120);
  EXPECT_LE(room_for(shorter), 120);
  EXPECT_THAT(shorter, testing::AllOf(testing::StartsWith("aaa"), testing::EndsWith(".pro"),
                                      testing::HasSubstr("\xE2\x80\xA6")));
}

TEST(Label, CutsBetweenCharactersAlone) {
  std::string name;
  for (int count = 0; count < 60; ++count) {
    name += "\xE4\xB8\xAD";
  }
  const std::string shorter = shortened(name, 100);
  EXPECT_EQ(printable(shorter), shorter);
  EXPECT_LT(shorter.size(), name.size());
}

TEST(Label, TellsCurvesApart) {
  for (std::size_t a = 0; a < 36; ++a) {
    for (std::size_t b = a + 1; b < 36; ++b) {
      EXPECT_FALSE(colour_class(a) == colour_class(b) && dash_of(a) == dash_of(b)) << a << ' ' << b;
    }
  }
}

}  // namespace
