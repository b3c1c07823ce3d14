#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/run.h"
#include "support/scratch.h"

// The engine sees a line of more than 4095 characters as several lines; so does every command.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

Outcome qelpro(const std::vector<std::string>& arguments) {
  return run(QELPRO_TOOL_PATH, arguments);
}

constexpr std::size_t kLongest = 4095;
constexpr const char* kTooLong =
    "line too long: behind its first 4095 characters another line is read";

// A line that is `front` and as many letters as fill it, and what stands after them in the same
// line.
std::string long_line(const std::string& front, const std::string& after) {
  return front + std::string(kLongest - front.size(), 'v') + after + "\n";
}

TEST(LongLine, IsHandedOutWholeWithAWordOnWhatTheEngineReads) {
  const Scratch scratch;
  const Outcome outcome =
      qelpro({"get", scratch.file("[A]\n" + long_line("x = ", "tail") + "y = 2\n"), "A", "x"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, std::string(kLongest - 4, 'v') + "tail\n");
  EXPECT_THAT(outcome.err, HasSubstr(std::string(":2: [A] x: ") + kTooLong));
}

TEST(LongLine, MayEndInAnEntry) {
  const Scratch scratch;
  const std::string file =
      scratch.file("[Flow-1]\n" + long_line("Remark = ", "FillTime = 7") + "FillTime = 1\n");
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "FillTime"}).out, "7\n");
  EXPECT_THAT(
      qelpro({"show", file}).out,
      AllOf(HasSubstr(std::string("; line 2: ") + kTooLong),
            HasSubstr("FillTime = 7.0  # the filling time, in sec\n"),
            HasSubstr("FillTime = 1.0  # the filling time, in sec, repeated: never read\n")));
  const Outcome process = qelpro({"process", file});
  EXPECT_THAT(process.out, HasSubstr("FillTime: 7.0"));
  EXPECT_THAT(process.err, AllOf(HasSubstr(std::string(":2: [Flow-1] Remark: ") + kTooLong),
                                 HasSubstr(":3: [Flow-1] FillTime: dropped")));
}

TEST(LongLine, MayEndInAHeader) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\n" + long_line("x = ", "[Flow-1]") +
                                        "FillTime = 7\n[Flow-1]\nFillTime = 1\n");
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "FillTime"}).out, "7\n");
  EXPECT_EQ(qelpro({"get", file, "A", "FillTime"}).status, 1);
  EXPECT_THAT(qelpro({"show", file}).out,
              HasSubstr("\n[Flow-1]  # the filling stage of an inlet\n  FillTime = 7.0"));
  EXPECT_THAT(qelpro({"process", file}).out, HasSubstr("FillTime: 7.0"));
}

TEST(LongLine, CountsAsOneLineInMessages) {
  const Scratch scratch;
  const std::string out =
      qelpro(
          {"show", scratch.file("[A]\n" + long_line("x = ", std::string(5000, 'w')) + "y\n = 3\n")})
          .out;
  EXPECT_THAT(out, AllOf(HasSubstr("  # line 2 is passed over"),
                         HasSubstr("  # line 4 is passed over, it begins with a blank:  = 3")));
}

TEST(LongLine, OfTheLongestLengthIsNoneWhereTheFileEnds) {
  const Scratch scratch;
  const std::string line = long_line("x = ", "");
  EXPECT_EQ(qelpro({"get", scratch.file("[A]\n" + line.substr(0, kLongest)), "A", "x"}).err, "");
  EXPECT_THAT(qelpro({"show", scratch.file("[A]\n" + line)}).out, HasSubstr(kTooLong));
  EXPECT_THAT(qelpro({"show", scratch.file("[A]\n" + line.substr(1))}).out,
              Not(HasSubstr("too long")));
}

TEST(LongLine, IsReplacedWholeAndKeepsWhatItsTailHolds) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\n" + long_line("x = ", "y = 7") + "z = 1\n");
  EXPECT_EQ(qelpro({"set", file, "A", "x", "1"}).err, "");
  EXPECT_EQ(bytes_of(file), "[A]\nx                    = 1\ny = 7\nz = 1\n");
}

}  // namespace
