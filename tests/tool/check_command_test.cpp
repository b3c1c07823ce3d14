#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "check/sarif.h"
#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::HasSubstr;
using testing::StartsWith;

Outcome check(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "check");
  return run(QELPRO_TOOL_PATH, arguments);
}

constexpr const char* kSound = "[Flow-1]\nFillTime = 1\n";
constexpr const char* kWarned = "[Flow-1]\nFilTime = 1\n";
constexpr const char* kWrong = "[Flow-1]\nFillTime = x\nFilTime = 1\n";

TEST(CheckCommand, SaysNothingOfASoundFile) {
  const Scratch scratch;
  const Outcome outcome = check({scratch.file(kSound)});
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(CheckCommand, PrintsALineAFinding) {
  const Scratch scratch;
  const std::string file = scratch.file(kWrong);
  const Outcome outcome = check({file});
  EXPECT_EQ(outcome.out,
            file +
                ":2:12: error: the value of \"FillTime\": field 1, a number, does not begin with "
                "\"x\" [P201]\n" +
                file +
                ":3:1: warning: [Flow-1] has no key \"FilTime\"; did you mean \"FillTime\"? "
                "[P102]\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 1);
}

TEST(CheckCommand, EndsWithOneForAWarningWhereItIsStrict) {
  const Scratch scratch;
  const std::string file = scratch.file(kWarned);
  EXPECT_EQ(check({file}).status, 0);
  EXPECT_EQ(check({"--strict", file}).status, 1);
  EXPECT_EQ(check({"--strict", scratch.file("[Flow-1]", "note.pro")}).status, 0);
}

TEST(CheckCommand, LeavesOutCodes) {
  const Scratch scratch;
  const std::string file = scratch.file(kWrong);
  EXPECT_EQ(check({"--disable", "P201", "--disable", "P102", file}).out, "");
  EXPECT_EQ(check({"--disable", "P201", "--disable", "P102", file}).status, 0);
  EXPECT_THAT(check({"--disable", "P201", file}).out, HasSubstr("[P102]"));
  const Outcome unknown = check({"--disable", "P999", file});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_THAT(unknown.err, HasSubstr("P999"));
}

TEST(CheckCommand, PrintsTheNumberAlone) {
  const Scratch scratch;
  const std::string file = scratch.file(kWrong);
  EXPECT_EQ(check({"--quiet", file, scratch.file(kWarned, "b.pro")}).out, "3\n");
  EXPECT_EQ(check({"--quiet", file}).status, 1);
  EXPECT_EQ(check({"--quiet", scratch.file(kSound, "c.pro")}).out, "0\n");
}

TEST(CheckCommand, AnswersTheFilesThatItCanRead) {
  const Scratch scratch;
  const std::string missing = scratch.path("missing.pro");
  const std::string file = scratch.file(kWarned);
  const Outcome outcome = check({missing, file});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, StartsWith("qelpro: " + missing));
  EXPECT_THAT(outcome.out, HasSubstr("[P102]"));
  EXPECT_EQ(check({"--json", missing}).out, "[]\n");
}

TEST(CheckCommand, PrintsJson) {
  const Scratch scratch;
  const std::string file = scratch.file(kWarned, "a.pro");
  EXPECT_THAT(check({"--json", file}).out,
              testing::EndsWith(
                  "\"line\": 2,\n    \"column\": 1,\n    \"severity\": \"warning\",\n    \"code\": "
                  "\"P102\",\n    \"message\": \"[Flow-1] has no key \\\"FilTime\\\"; did you mean "
                  "\\\"FillTime\\\"?\",\n    \"section\": \"[Flow-1]\",\n    \"key\": "
                  "\"FilTime\",\n    \"hint\": \"FillTime\"\n  }\n]\n"));
  EXPECT_EQ(check({"--json", scratch.file(kSound)}).out, "[]\n");
  EXPECT_EQ(check({"--json", "--sarif", file}).status, 2);
}

TEST(CheckCommand, PrintsSarif) {
  const Scratch scratch;
  const std::string out = check({"--sarif", scratch.file(kWarned)}).out;
  EXPECT_THAT(out, StartsWith("{\n  \"version\": \"2.1.0\""));
  EXPECT_THAT(out, HasSubstr("\"ruleId\": \"P102\""));
  EXPECT_THAT(out, HasSubstr("\"version\": \"9.1.3\""));
}

TEST(CheckCommand, WritesPathsAsReferences) {
  EXPECT_EQ(qelpro::uri_of("a/b.pro"), "a/b.pro");
  EXPECT_EQ(qelpro::uri_of("/a b/c%.pro"), "file:///a%20b/c%25.pro");
  EXPECT_EQ(qelpro::uri_of("C:\\a b\\c.pro"), "file:///C:/a%20b/c.pro");
  EXPECT_EQ(qelpro::uri_of("a:b#?\xC3\xA9"), "a%3Ab%23%3F%C3%A9");
}

TEST(CheckCommand, ColorsWhereItIsTold) {
  const Scratch scratch;
  const std::string file = scratch.file(kWarned);
  EXPECT_THAT(check({"--color=always", file}).out, HasSubstr("\x1B[1;33mwarning:\x1B[0m"));
  for (const char* color : {"--color=never", "--color=auto"}) {
    EXPECT_EQ(check({color, file}).out.find('\x1B'), std::string::npos) << color;
  }
  EXPECT_EQ(check({"--color=blue", file}).status, 2);
}

TEST(CheckCommand, KeepsAFindingInOneLine) {
  const Scratch scratch;
  const std::string out = check({scratch.file("[Flow-1]\nFil\rTime = 1\n")}).out;
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 1) << out;
  EXPECT_EQ(out.find('\r'), std::string::npos);
}

TEST(CheckCommand, NeedsAFile) { EXPECT_EQ(check({}).status, 2); }

}  // namespace
