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

}  // namespace
