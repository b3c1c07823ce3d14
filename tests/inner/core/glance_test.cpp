#include "core/glance.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

#include "inner/text/memory_file.h"

namespace qelpro_test {
namespace {

using qel::Glance;
using qel::Line;
using qel::LineMark;
using qel::SeenAt;

constexpr std::uint32_t kFile = 1;

// What it does not see a scanner looks for; what it sees has to stand there.
class AtAGlance : public testing::Test {
 protected:
  bool sees(std::string_view bytes, std::int64_t offset, std::string_view section,
            bool is_piece = false) {
    file_.bytes = bytes;
    return glance_.see_header({offset, kFile, is_piece}, section, offset, Glance::kOneLine);
  }
  bool goes_to(std::int64_t offset, bool is_piece = false) {
    return glance_.go_to({offset, kFile, is_piece});
  }
  std::string next() {
    std::string_view token;
    return glance_.next(line_, token) ? std::string(line_.text) + "|" + std::string(token)
                                      : "(nothing)";
  }
  bool passes(std::string_view token) {
    Line line;
    return glance_.pass(LineMark(line, token, kFile));
  }

  static constexpr std::size_t kRoom = 512;
  std::array<char, kRoom> room_{};
  MemoryFile file_;
  Glance glance_{file_, room_.data(), room_.size()};
  Line line_;
};

TEST_F(AtAGlance, SeesAHeaderThatIsNothingButItsName) {
  EXPECT_TRUE(sees("[A]\nx = 1\n", 0, "[A]"));
  EXPECT_TRUE(sees("\n[A]\nx = 1\n", 1, "[A]"));
  EXPECT_TRUE(sees("\r\n[A]\r\nx = 1\r\n", 2, "[A]"));
  EXPECT_TRUE(sees("\n[A]\r\n", 1, "[A]")) << "the file ends with it";
  EXPECT_TRUE(sees("\n[]\nx = 1\n", 1, "[]"));
  EXPECT_FALSE(sees("\n[A] \nx = 1\n", 1, "[A]"));
  EXPECT_FALSE(sees("\n[A]\rx = 1\n", 1, "[A]"));
  EXPECT_FALSE(sees("\n[A]x\ny = 1\n", 1, "[A]"));
  EXPECT_FALSE(sees("\n[B]\nx = 1\n", 1, "[A]"));
  EXPECT_FALSE(sees("\n[A\nx = 1\n", 1, "[A"));
  EXPECT_FALSE(sees("\n]\nx = 1\n", 1, "]"));
  EXPECT_FALSE(sees("\n\nx = 1\n", 1, ""));
}

TEST_F(AtAGlance, SeesNoHeaderInTheMiddleOfALine) {
  EXPECT_FALSE(sees("#[A]\nx = 1\n", 1, "[A]"));
  EXPECT_FALSE(sees("\n[A]\nx = 1\n", 1, "[A]", true));
}

TEST_F(AtAGlance, SeesNoHeaderThatTheFileCutsShort) {
  EXPECT_FALSE(sees("\n[A]\n", 1, "[A]")) << "a byte more is looked at than such a line has";
  EXPECT_FALSE(sees("\n[A]", 1, "[A]"));
  EXPECT_FALSE(sees("\n[", 1, "[A]"));
  EXPECT_FALSE(sees("", 1, "[A]"));
}

TEST_F(AtAGlance, ReadsNoMoreThanThereIsRoomFor) {
  const std::string fits = "[" + std::string(kRoom - 5, 'n') + "]";
  EXPECT_TRUE(sees("\n" + fits + "\nx = 1\n", 1, fits));
  EXPECT_EQ(file_.reads, 1);
  const std::string longer = "[" + std::string(kRoom - 4, 'n') + "]";
  EXPECT_FALSE(sees("\n" + longer + "\nx = 1\n", 1, longer));
  EXPECT_EQ(file_.reads, 1) << "nothing is read";
}

TEST_F(AtAGlance, SeesALineThatStandsNearWithTheSameRead) {
  // The header's line break, the header, what stands between, and a line at the end of the room.
  const std::size_t most = kRoom - Glance::kOneLine - 1 - 4;
  for (const std::size_t between : {most, most + 1}) {
    file_.reads = 0;
    const std::int64_t at = 5 + static_cast<std::int64_t>(between);
    file_.bytes = "\n[A]\n" + std::string(between, '\n') + "x = 1\ny = 2\n";
    ASSERT_TRUE(glance_.see_header({1, kFile}, "[A]", at, Glance::kOneLine));
    ASSERT_TRUE(goes_to(at));
    EXPECT_EQ(file_.reads, between == most ? 1 : 2);
    EXPECT_EQ(next(), "x = 1|x");
    EXPECT_EQ(line_.start, at);
    EXPECT_EQ(next(), "y = 2|y");
  }
}

TEST_F(AtAGlance, GoesToALineThatBeginsAfterALineBreak) {
  ASSERT_TRUE(sees("\n[A]\nxx = 1\ny = 2\n", 1, "[A]"));
  EXPECT_TRUE(goes_to(5));
  EXPECT_FALSE(goes_to(6));
  EXPECT_TRUE(goes_to(12));
  EXPECT_FALSE(goes_to(12, true));
  EXPECT_FALSE(goes_to(5)) << "it does not go back";
  EXPECT_EQ(next(), "y = 2|y");
  EXPECT_FALSE(goes_to(18)) << "the file ends there";
  EXPECT_FALSE(goes_to(900));
}

TEST_F(AtAGlance, TellsWhereALineBeginsAndEnds) {
  ASSERT_TRUE(sees("\r\n[A]\r\nx = 1\r\n\r\n\n\ty = 2\nz\n", 2, "[A]"));
  EXPECT_EQ(next(), "x = 1|x");
  EXPECT_EQ(line_.start, 7);
  EXPECT_EQ(line_.end, 14);
  EXPECT_FALSE(line_.is_piece);
  EXPECT_TRUE(line_.has_break);
  EXPECT_EQ(next(), "|");
  EXPECT_EQ(line_.end, 16);
  EXPECT_EQ(next(), "|");
  EXPECT_EQ(line_.end, 17);
  EXPECT_EQ(next(), "\ty = 2|");
  EXPECT_EQ(next(), "(nothing)") << "a key without an equals sign";
}

TEST_F(AtAGlance, SeesNoLineWithoutALineBreak) {
  ASSERT_TRUE(sees("\n[A]\nx = 1", 1, "[A]"));
  EXPECT_EQ(next(), "(nothing)");
  ASSERT_TRUE(sees("\n[A]\r\n", 1, "[A]"));
  EXPECT_EQ(next(), "(nothing)");
}

TEST_F(AtAGlance, PassesALineThatBeginsAsItsMark) {
  ASSERT_TRUE(sees("\n[A]\nx = 1\ny = 2\nz", 1, "[A]"));
  EXPECT_FALSE(passes("y"));
  EXPECT_TRUE(passes("x"));
  EXPECT_TRUE(passes("y"));
  EXPECT_FALSE(passes("z"));
  ASSERT_TRUE(sees("\n[A]\nx = 1", 1, "[A]"));
  EXPECT_FALSE(passes("x")) << "no line break follows";
}

TEST_F(AtAGlance, IsTheKeysLineWhereNoNulCutsItShort) {
  constexpr std::string_view kLines("\n[A]\nx = 1\ny = 2\0\n", 18);
  ASSERT_TRUE(sees(kLines, 1, "[A]"));
  EXPECT_TRUE(glance_.next_of("x", line_));
  EXPECT_FALSE(glance_.next_of("y", line_));
  ASSERT_TRUE(sees(kLines, 1, "[A]"));
  EXPECT_FALSE(glance_.next_of("y", line_));
}

}  // namespace
}  // namespace qelpro_test
