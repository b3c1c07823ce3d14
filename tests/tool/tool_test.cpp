#include <gmock/gmock.h>

#include <string>

#include "proio/support.h"
#include "support/line_break.h"
#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

Outcome qelpro(const std::vector<std::string>& arguments) { return run(QELPRO_TOOL_PATH, arguments); }

constexpr const char* kFile = "[FileHeader]\nName = a.pro\n\n[Flow-1]\nFillTime = 1.5\n\n[Flow-2]\nFillTime = 2.5\nMeltTemp = 230\n";

TEST(Tool, WithoutACommandIsAUsageError) {
  EXPECT_EQ(qelpro({}).status, 2);
  EXPECT_EQ(qelpro({"frobnicate"}).status, 2);
}

TEST(Tool, ShowsHelpForEachCommand) {
  for (const char* command : {"new", "get", "set", "show", "process"}) {
    const Outcome outcome = qelpro({command, "--help"});
    EXPECT_EQ(outcome.status, 0) << command;
    EXPECT_THAT(outcome.out, HasSubstr("FILE")) << command;
  }
}

TEST(Tool, TellsTheLibrarysVersion) { EXPECT_EQ(qelpro({"--version"}).out, "9103\n"); }

TEST(Get, PrintsTheValueWithOrWithoutBrackets) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "FillTime"}).out, "1.5\n");
  EXPECT_EQ(qelpro({"get", file, "[Flow-2]", "FillTime"}).out, "2.5\n");
}

TEST(Get, NamesFileSectionAndKeyOfWhatIsNotFound) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  const Outcome outcome = qelpro({"get", file, "Flow-1", "MeltTemp"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, AllOf(HasSubstr(file), HasSubstr("[Flow-1]"), HasSubstr("MeltTemp")));
}

TEST(Get, TellsAFileThatCannotBeRead) {
  const Scratch scratch;
  const Outcome missing = qelpro({"get", scratch.path("missing.pro"), "A", "b"});
  EXPECT_EQ(missing.status, 3);
  EXPECT_THAT(missing.err, AllOf(HasSubstr("missing.pro"), HasSubstr("No such file")));
  EXPECT_EQ(qelpro({"get", scratch.path("."), "A", "b"}).status, 3);
}

TEST(Get, WithoutAKeyIsAUsageError) {
  const Scratch scratch;
  EXPECT_EQ(qelpro({"get", scratch.file(kFile), "Flow-1"}).status, 2);
}

TEST(Set, ReplacesAnEntryAndNothingElse) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  EXPECT_EQ(qelpro({"set", file, "Flow-2", "MeltTemp", "231"}).status, 0);
  EXPECT_EQ(bytes_of(file), "[FileHeader]\nName = a.pro\n\n[Flow-1]\nFillTime = 1.5\n\n[Flow-2]\nFillTime = 2.5\nMeltTemp             = 231\n");
}

TEST(Set, LeavesALaterSectionsKeyOfTheSameNameAlone) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  EXPECT_EQ(qelpro({"set", file, "Flow-1", "MeltTemp", "200"}).status, 0);
  EXPECT_EQ(bytes_of(file), "[FileHeader]\nName = a.pro\n\n[Flow-1]\nFillTime = 1.5\n\nMeltTemp = 200\n[Flow-2]\nFillTime = 2.5\nMeltTemp = 230\n");
}

TEST(Set, LeavesALaterSectionAloneInAFileWithDosLineBreaksAndAByteOrderMark) {
  const Scratch scratch;
  const std::string file = scratch.file("\xEF\xBB\xBF[A]\r\nx = 1\r\n[B]\r\ny = 2\r\n");
  EXPECT_EQ(qelpro({"set", file, "A", "y", "7"}).status, 0);
  EXPECT_EQ(bytes_of(file), "\xEF\xBB\xBF[A]\r\nx = 1\r\ny = 7\r\n[B]\r\ny = 2\r\n");
}

TEST(Set, AddsASectionThatIsMissing) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\nx = 1\n");
  EXPECT_EQ(qelpro({"set", file, "B", "y", "2"}).status, 0);
  EXPECT_EQ(bytes_of(file), "[A]\nx = 1\n\n[B]\ny                    = 2\n");
}

TEST(Set, TakesValuesWithBlanksAndNegativeNumbers) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\nx = 1\n");
  EXPECT_EQ(qelpro({"set", file, "A", "x", "0 -5"}).status, 0);
  EXPECT_EQ(qelpro({"get", file, "A", "x"}).out, "0 -5\n");
  EXPECT_EQ(qelpro({"set", file, "A", "x", "-5"}).status, 0);
  EXPECT_EQ(qelpro({"get", file, "A", "x"}).out, "-5\n");
}

TEST(Set, RefusesWhatCouldNotBeReadBackAndKeepsEveryByte) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  for (const auto& [key, value] : {std::pair<std::string, std::string>{"two words", "1"}, {"", "1"}, {"k", "a\nb"}, {"k", std::string(5000, 'v')}}) {
    const Outcome outcome = qelpro({"set", file, "Flow-1", key, value});
    EXPECT_EQ(outcome.status, 3) << key;
    EXPECT_THAT(outcome.err, AllOf(HasSubstr(file), HasSubstr("[Flow-1]")));
    EXPECT_EQ(bytes_of(file), kFile) << key;
  }
}

TEST(Set, DoesNotMakeAFile) {
  const Scratch scratch;
  EXPECT_EQ(qelpro({"set", scratch.path("missing.pro"), "A", "b", "1"}).status, 3);
  EXPECT_FALSE(exists(scratch.path("missing.pro")));
}

TEST(New, MakesAFileThatIsReadInFull) {
  const Scratch scratch;
  const std::string file = scratch.path("new.pro");
  EXPECT_EQ(qelpro({"new", file}).status, 0);
  EXPECT_EQ(qelpro({"get", file, "FileHeader", "Name"}).out, "Default.pro\n");
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "FR-2"}).out, "100\t50\n");
  EXPECT_EQ(qelpro({"get", file, "CaeHeader", "FileVersion"}).out, "1008\n");
  EXPECT_EQ(qelpro({"process", file}).status, 0);
}

TEST(New, WritesTheDefaultDocument) {
  const Scratch scratch;
  const std::string file = scratch.path("new.pro");
  EXPECT_EQ(qelpro({"new", file}).status, 0);
  EXPECT_EQ(masked(bytes_of(file)), native(bytes_of(data_path("proio_default.pro"))));
}

TEST(New, TellsAFileThatCannotBeWritten) {
  const Scratch scratch;
  const Outcome outcome = qelpro({"new", scratch.path("missing/new.pro")});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, AllOf(HasSubstr("missing/new.pro"), HasSubstr("cannot be written")));
}

TEST(New, LeavesAFileThatExistsAlone) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  const Outcome outcome = qelpro({"new", file});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("exists already"));
  EXPECT_EQ(bytes_of(file), kFile);
}

TEST(Process, PrintsTheInletsAndTheirProfiles) {
  const Scratch scratch;
  const std::string file = scratch.file("[Flow-1]\nFillTime = 1.5\nFRSet = 2\nFR-1 = 0 50\nFR-2 = 100 60\n[Machine]\nMaker = Maker A\n");
  const Outcome outcome = qelpro({"process", file});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("inlet 1"), HasSubstr("FillTime: 1.5"), HasSubstr("100.0  60.0"), HasSubstr("Maker: Maker A")));
  EXPECT_THAT(outcome.out, Not(HasSubstr("MeltTemp")));
}

TEST(Process, PrintsJson) {
  const Scratch scratch;
  const Outcome outcome = qelpro({"process", scratch.file("[Flow-1]\nFillTime = 1.5\n[MoldThermalBoundaryType]\nFlow = 900 (x)\n"), "--json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("\"FillTime\": 1.5"), HasSubstr("\"heat transfer\""), HasSubstr("\"Flow\": 900.0")));
}

TEST(Process, TellsAFileThatCannotBeRead) {
  const Scratch scratch;
  const Outcome outcome = qelpro({"process", scratch.path("missing.pro")});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("missing.pro"));
}

TEST(Show, NamesAndTypesKnownEntriesAndMarksTheOthers) {
  const Scratch scratch;
  const std::string file = scratch.file("[Flow-1]\nFillTime = 1.50\nFR-1 = 0\t50\nOwn = x y\n[Mine]\na = 1\n[Flow-1]\nFillTime = 9\n");
  const Outcome outcome = qelpro({"show", file});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("FillTime = 1.5  # the filling time, in sec"), HasSubstr("FR-1 = 0.0  50.0"),
                                 HasSubstr("Own = x y  # unknown key"), HasSubstr("[Mine]  # unknown section"), HasSubstr("repeated: never read")));
}

TEST(Show, PrintsOneSectionAndJson) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  const Outcome outcome = qelpro({"show", file, "Flow-2", "--json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("\"[Flow-2]\""), Not(HasSubstr("\"[Flow-1]\"")), HasSubstr("\"encoding\": \"real\"")));
  EXPECT_EQ(qelpro({"show", file, "Flow-9"}).status, 1);
  EXPECT_EQ(qelpro({"show", scratch.path("missing.pro")}).status, 3);
}

TEST(Show, ReadsThePositionalSectionLineByLine) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n2\tTop Side\t0\n1\tSide\t1\n1 = 40\t60\n1 = 41\t61\n2 = 42\t62\n[Flow-1]\nFillTime = 1\n");
  const Outcome outcome = qelpro({"show", file, "[SURFACE ELEMENT BOUNDARY CONDITION NAME]"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("line 1 = 2  Top Side  0"), HasSubstr("line 2 = 1  Side  1"),
                                 HasSubstr("condition 1, setting 2 = 41.0  61.0"), HasSubstr("condition 2, setting 1 = 42.0  62.0")));
}

}  // namespace
