#include <gmock/gmock.h>

#include "shell.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::HasSubstr;

TEST(StandardInput, IsAFileForEveryCommandThatReadsOne) {
  EXPECT_EQ(shell("printf '[A]\\nx = 1\\n' | \"$0\" get - A.x").out, "1\n");
  EXPECT_EQ(shell("printf '[A]\\nx = 1\\n' | \"$0\" list -").out, "A.x\n");
  EXPECT_THAT(shell("printf '[A]\\nx = 1\\n' | \"$0\" show -").out, HasSubstr("x = 1"));
  EXPECT_THAT(shell("printf '[A]\\nx = 1\\n' | \"$0\" export -").out, HasSubstr("\"x\": \"1\""));
  EXPECT_EQ(shell("\"$0\" process - < \"$1\"", {data_path("injection_two_inlets.pro")}).out,
            shell("\"$0\" process \"$1\"", {data_path("injection_two_inlets.pro")}).out);
  EXPECT_EQ(shell("\"$0\" machines - < \"$1\"", {data_path("machines.bank")}).out,
            shell("\"$0\" machines \"$1\"", {data_path("machines.bank")}).out);
  EXPECT_EQ(shell("\"$0\" coolant - 6 25 < \"$1\"", {data_path("coolants.pcs")}).out,
            shell("\"$0\" coolant \"$1\" 6 25", {data_path("coolants.pcs")}).out);
}

TEST(StandardInput, CannotBeChanged) {
  for (const char* command : {"set - A.x=1", "unset - A.x", "import - --onto -"}) {
    const Outcome outcome = shell(std::string("printf '{}' | \"$0\" ") + command);
    EXPECT_EQ(outcome.status, 3) << command;
    EXPECT_THAT(outcome.err, HasSubstr("qelpro: -: ")) << command;
  }
}

TEST(StandardInput, ThatIsEmptyIsAnEmptyFile) {
  EXPECT_EQ(shell("\"$0\" list - </dev/null").status, 0);
  EXPECT_EQ(shell("\"$0\" get - A.x </dev/null").status, 1);
}

// As a shell hands it over for "<(...)".
TEST(StandardInput, MayBeAPipeWithAName) {
  EXPECT_EQ(shell("printf '[A]\\nx = 1\\n' | \"$0\" get /dev/stdin A.x").out, "1\n");
  EXPECT_EQ(shell("printf '[A]\\nx = 1\\n' | \"$0\" get /dev/fd/3 A.x 3<&0").out, "1\n");
  EXPECT_EQ(
      shell("\"$0\" process /dev/stdin < \"$1\"", {data_path("injection_two_inlets.pro")}).out,
      shell("\"$0\" process \"$1\"", {data_path("injection_two_inlets.pro")}).out);
}

TEST(Output, DoesNotTakeThePlaceOfWhatItIsMadeFrom) {
  const Scratch scratch;
  const std::string contents = "[Flow-1]\nFRSet = 1\nFR-1 = 0 1\n";
  const std::string file = scratch.file(contents);
  for (const char* command :
       {"export \"$1\" -o \"$1\"", "report \"$1\" -o \"$1\"", "plot \"$1\" Flow-1.FR -o \"$1\"",
        "export \"$1\" -o \"${1%/*}/./file.pro\""}) {
    EXPECT_EQ(shell(std::string("\"$0\" ") + command, {file}).status, 2) << command;
    EXPECT_EQ(bytes_of(file), contents) << command;
  }
}

TEST(Report, AnswersTheFilesThatCanBeRead) {
  const Scratch scratch;
  const std::string file = scratch.file("[Flow-1]\nFillTime = 1\n");
  const Outcome outcome = shell("\"$0\" report \"$1\" \"$1.gone\"", {file});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.out, HasSubstr("FillTime"));
  EXPECT_THAT(outcome.err, HasSubstr("file.pro.gone: No such file"));
  EXPECT_EQ(shell("\"$0\" report - - </dev/null").status, 2);
}

TEST(Plot, OfNoPointIsTold) {
  const Scratch scratch;
  const std::string file = scratch.file("[Flow-1]\nFRSet = 0\nIPSet = 1\nIP-1 = 0 1\n");
  const Outcome none = shell("\"$0\" plot \"$1\" Flow-1.FR", {file});
  EXPECT_EQ(none.status, 1);
  EXPECT_THAT(none.err, HasSubstr("Flow-1.FR: its count promises no point"));
  EXPECT_EQ(shell("\"$0\" plot \"$1\" Flow-1.FR Flow-1.IP", {file}).status, 0);
}

// Many keys and sections cost about as much as the file has lines.
TEST(Unset, TakesManySectionsAtOnce) {
  const Scratch scratch;
  std::string contents;
  for (int number = 0; number < 50'000; ++number) {
    contents += "[S" + std::to_string(number) + "]\na = 1\n";
  }
  const std::string file = scratch.file(contents + "[T]\n");
  EXPECT_EQ(shell("\"$0\" unset \"$1\" 'S*.*'", {file}).status, 0);
  EXPECT_EQ(bytes_of(file), "[T]\n");
}

}  // namespace
