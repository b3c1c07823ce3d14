#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "api/proio/support.h"
#include "support/line_break.h"
#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

Outcome qelpro(const std::vector<std::string>& arguments) {
  return run(QELPRO_TOOL_PATH, arguments);
}

constexpr const char* kFile =
    "[FileHeader]\nName = a.pro\n\n[Flow-1]\nFillTime = 1.5\n\n[Flow-2]\nFillTime = 2.5\nMeltTemp "
    "= 230\n";

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

TEST(Tool, TellsTheLibrarysVersion) { EXPECT_EQ(qelpro({"--version"}).out, "9.1.3\n"); }

TEST(Tool, NamesTheWrongWordInOneLine) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  const std::vector<std::pair<std::vector<std::string>, std::string>> rows = {
      {{"frobnicate", "x"}, "\"frobnicate\" is no command"},
      {{""}, "\"\" is no command"},
      {{"--frobnicate"}, "\"--frobnicate\" is no option"},
      {{"get", file, "Flow-1", "FillTime", "extra"}, "\"extra\""},
      {{"get", file, "Flow-1", "--jsno"}, "\"--jsno\""},
      {{"set", file, "Flow-1", "FillTime", "-x"}, "\"-x\""},
      {{"set", file, "Flow-1", "FillTime"}, "VALUE"},
      {{"show", file, "Flow-1", "two\nlines"}, "two\\nlines"},
      {{"coolant", data_path("coolants.pcs"), "six", "10"}, "\"six\""},
      {{"coolant", data_path("coolants.pcs"), "6", "warm"}, "\"warm\""},
      {{"coolant", data_path("coolants.pcs"), "--table", "6", "--from", "low", "--to", "2",
        "--step", "1"},
       "low"},
      {{"coolant", data_path("coolants.pcs"), "--table", "6", "--from", "1", "--to", "2"},
       "--step"},
      {{"coolant", data_path("coolants.pcs"), "0"}, "TEMPERATURE is missing behind \"0\""},
      {{"coolant", data_path("coolants.pcs"), "0", "1", "2"}, "\"2\" is one word too many"},
      {{"coolant", "--table"}, "--table: ID is missing"},
      {{"--json", "show", file}, "\"--json\" belongs behind the command"},
      {{"--bogus"}, "\"--bogus\" is no option"},
      {{"get", "--"}, "FILE is missing"},
      {{"get", file, "Flow-1"}, "KEY is missing"},
      {{"show", file, ""}, "the name is empty"},
      {{"machines", data_path("machines.bank"), ""}, "the name is empty"}};
  for (const auto& [arguments, word] : rows) {
    const Outcome outcome = qelpro(arguments);
    EXPECT_EQ(outcome.status, 2) << word;
    EXPECT_EQ(outcome.out, "") << word;
    EXPECT_THAT(outcome.err, AllOf(StartsWith("qelpro: "), HasSubstr(word)));
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
  }
}

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
  EXPECT_EQ(bytes_of(file),
            "[FileHeader]\nName = a.pro\n\n[Flow-1]\nFillTime = 1.5\n\n[Flow-2]\nFillTime = "
            "2.5\nMeltTemp = 231\n");
}

TEST(Set, LeavesALaterSectionsKeyOfTheSameNameAlone) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  EXPECT_EQ(qelpro({"set", file, "Flow-1", "MeltTemp", "200"}).status, 0);
  EXPECT_EQ(bytes_of(file),
            "[FileHeader]\nName = a.pro\n\n[Flow-1]\nFillTime = 1.5\nMeltTemp = "
            "200\n\n[Flow-2]\nFillTime = 2.5\nMeltTemp = 230\n");
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
  for (const auto& [key, value] : {std::pair<std::string, std::string>{"two words", "1"},
                                   {"", "1"},
                                   {"k", "a\nb"},
                                   {"k", std::string(5000, 'v')}}) {
    const Outcome outcome = qelpro({"set", file, "Flow-1", key, value});
    EXPECT_EQ(outcome.status, 2) << key;
    EXPECT_THAT(outcome.err, AllOf(HasSubstr(file), HasSubstr("[Flow-1]")));
    EXPECT_EQ(bytes_of(file), kFile) << key;
  }
}

TEST(Set, NamesTheRuleThatANameBreaks) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  const std::vector<std::pair<std::vector<std::string>, std::string>> rows = {
      {{"", "k", "1"}, "the name is empty"},
      {{"[]", "k", "1"}, "the name is empty"},
      {{"[", "k", "1"}, "give both brackets, or none"},
      {{"[Flow-1", "k", "1"}, "give both brackets, or none"},
      {{"Flow-1]", "k", "1"}, "give both brackets, or none"},
      {{"My Section", "k", "1"}, "a name holds no blank"},
      {{"A=B", "k", "1"}, "a name holds no \"=\""},
      {{"Flow-1", "", "1"}, "the key is empty"},
      {{"Flow-1", "a\tb", "1"}, "a name holds no blank and no tab"},
      {{"Flow-1", "[B]", "1"}, "reads as a section"},
      {{"Flow-1", "[B", "1"}, "reads as a section"},
      {{"Flow-1", ";k", "1"}, "comment"},
      {{"Flow-1", "//k", "1"}, "comment"},
      {{"Flow-1", "k", "a\nb"}, "line break"},
      {{"Flow-1", "k", "a\x1A"}, "0x1A"},
      {{"Flow-1", "k", std::string(4072, 'v')}, "line too long: it would have 4096 characters"}};
  for (const auto& [arguments, rule] : rows) {
    std::vector<std::string> all = {"set", file};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const Outcome outcome = qelpro(all);
    EXPECT_EQ(outcome.status, 2) << rule;
    EXPECT_THAT(outcome.err, AllOf(StartsWith("qelpro: " + file + ":"), HasSubstr(rule)));
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    EXPECT_EQ(bytes_of(file), kFile) << rule;
  }
}

TEST(Set, StoresTheLongestLine) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  EXPECT_EQ(qelpro({"set", file, "Flow-1", "k", std::string(4071, 'v')}).status, 0);
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "k"}).out, std::string(4071, 'v') + "\n");
}

TEST(Set, StoresWhatTheEngineReadsOfFewerFields) {
  const Scratch scratch;
  const std::string file = scratch.file("[CaeHeader]\nProjectType = 1\n");
  EXPECT_THAT(qelpro({"show", file}).out, Not(HasSubstr("missing")));
  EXPECT_EQ(qelpro({"set", file, "CaeHeader", "ProjectType", "8"}).err, "");
  EXPECT_EQ(qelpro({"get", file, "CaeHeader", "ProjectType"}).out, "8\n");
}

TEST(Set, StoresAValueThatDoesNotScanOnlyByForce) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  for (const auto& [key, value] : {std::pair<std::string, std::string>{"FillTime", "fast"},
                                   {"FillTime", "1,5"},
                                   {"FillTime", ""},
                                   {"FR-1", "0"},
                                   {"FRSet", "2.5"}}) {
    const Outcome outcome = qelpro({"set", file, "Flow-1", key, value});
    EXPECT_EQ(outcome.status, 2) << value;
    EXPECT_THAT(outcome.err,
                AllOf(HasSubstr(key + ": \"" + value + "\" would not be read back whole"),
                      HasSubstr("--force")));
    EXPECT_EQ(bytes_of(file), kFile) << value;
  }
  EXPECT_EQ(qelpro({"set", file, "Flow-1", "FillTime", "fast", "--force"}).status, 0);
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "FillTime"}).out, "fast\n");
  EXPECT_EQ(qelpro({"set", file, "Flow-1", "Own", "1,5"}).status, 0)
      << "nobody knows how it is read";
}

TEST(Set, LeavesEveryOtherByteAlone) {
  const Scratch scratch;
  const std::vector<std::vector<std::string>> rows = {
      {"[A]\nx = long value\ny = 2\n", "x", "1", "[A]\nx = 1\ny = 2\n"},
      {"[A]\r\nx = 1\r\n   \r\n[B]", "x", "2", "[A]\r\nx = 2\r\n   \r\n[B]"},
      {"[A]\nx = 1", "x", "2", "[A]\nx = 2"},
      {"[A]\nx = 1", "y", "2", "[A]\nx = 1\ny = 2\n"},
      {"[A]\nx = 1\n     ", "y", "2", "[A]\nx = 1\ny = 2\n     "},
      {"[A]\nx = 1\n\x1A", "y", "2", "[A]\nx = 1\ny = 2\n\x1A"},
      {"[A]\n; x = 0\n;x = 0\nx = 1 # note\n", "x", "2", "[A]\n; x = 0\n;x = 0\nx = 2\n"},
      {"[A]\nx\n", "x", "2", "[A]\nx                    = 2\n"},
      {"[A]\n[A]\nx = 1\n", "x", "2", "[A]\nx                    = 2\n[A]\nx = 1\n"},
      {"", "x", "2", "[A]\nx                    = 2\n"},
      {"\xEF\xBB\xBF", "x", "2", "\xEF\xBB\xBF[A]\nx                    = 2\n"}};
  for (const auto& row : rows) {
    const std::string file = scratch.file(row[0]);
    EXPECT_EQ(qelpro({"set", file, "A", row[1], row[2]}).err, "") << row[0];
    EXPECT_EQ(bytes_of(file), row[3]);
    EXPECT_EQ(qelpro({"get", file, "A", row[1]}).out, row[2] + "\n");
  }
}

TEST(Set, StoresIntoTheSectionThatTheTailOfALongLineBegins) {
  const Scratch scratch;
  // After its first 4095 characters the engine sees a line of its own, here a section.
  const std::string front = "[B]\ny = " + std::string(4091, 'v') + "[A]\n";
  const std::string file = scratch.file(front + "x = 1\n[A]\nx = 2\n");
  EXPECT_EQ(qelpro({"set", file, "A", "x", "3"}).status, 0);
  EXPECT_EQ(bytes_of(file), front + "x = 3\n[A]\nx = 2\n");
}

TEST(EveryCommand, TakesAHeaderWithWordsAfterItForAHeader) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[Flow-1] # first inlet\nFillTime = 1\n[Flow-2]\tsecond\nMeltTemp = 2\n[SURFACE ELEMENT "
      "BOUNDARY CONDITION NAME] x\n1\tA\t0\n");
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "FillTime"}).out, "1\n");
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "MeltTemp"}).status, 1);
  EXPECT_THAT(qelpro({"show", file}).out,
              AllOf(StartsWith("[Flow-1]  # the filling stage of an inlet\n  # line 1: \"# first "
                               "inlet\" behind the header is not read\n"),
                    HasSubstr("\n[Flow-2]  # the filling stage"), HasSubstr("line 1 = 1  A  0")));
  EXPECT_EQ(qelpro({"set", file, "Flow-1", "MeltTemp", "5"}).status, 0);
  EXPECT_THAT(
      bytes_of(file),
      StartsWith(
          "[Flow-1] # first inlet\nFillTime = 1\nMeltTemp = 5\n[Flow-2]\tsecond\nMeltTemp = 2\n"));
  EXPECT_THAT(qelpro({"process", file}).out,
              AllOf(HasSubstr("FillTime: 1.0"), HasSubstr("MeltTemp: 5.0")));
}

TEST(EveryCommand, RefusesAUtf16File) {
  const Scratch scratch;
  for (const std::string& contents :
       {std::string("\xFF\xFE[\0A\0]\0\n\0", 10), std::string("\xFE\xFF\0[\0A\0]", 8),
        std::string("[\0A\0]\0\n\0", 8)}) {
    const std::string file = scratch.file(contents);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"set", file, "A", "b", "1"},
          {"get", file, "A", "b"},
          {"show", file},
          {"process", file}}) {
      const Outcome outcome = qelpro(arguments);
      EXPECT_EQ(outcome.status, 3) << arguments[0];
      EXPECT_THAT(outcome.err, HasSubstr("UTF-16")) << arguments[0];
      EXPECT_EQ(bytes_of(file), contents);
    }
  }
}

TEST(Get, AnswersNoKeyOfAPositionalSection) {
  const Scratch scratch;
  const std::string file =
      scratch.file("[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\ttop\t0\n1 = 40\t60\n");
  const Outcome outcome = qelpro({"get", file, "[SURFACE ELEMENT BOUNDARY CONDITION NAME]", "1"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr("its lines have a position and no key"));
}

TEST(Get, FindsNoCommentAndTellsOfAnIndentedLine) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\n;x = 1\n#x = 1\n  y = 2\n");
  EXPECT_EQ(qelpro({"get", file, "A", ";x"}).status, 1);
  EXPECT_EQ(qelpro({"get", file, "A", "#x"}).status, 1);
  const Outcome indented = qelpro({"get", file, "A", "y"});
  EXPECT_EQ(indented.status, 1);
  EXPECT_THAT(indented.err, HasSubstr("line 4 begins with a blank"));
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
  const std::string file = scratch.file(
      "[Flow-1]\nFillTime = 1.5\nFRSet = 2\nFR-1 = 0 50\nFR-2 = 100 60\n[Machine]\nMaker = Maker "
      "A\n");
  const Outcome outcome = qelpro({"process", file});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("inlet 1"), HasSubstr("FillTime: 1.5"),
                                 HasSubstr("100.0  60.0"), HasSubstr("Maker: Maker A")));
  EXPECT_THAT(outcome.out, Not(HasSubstr("MeltTemp")));
}

TEST(Process, PrintsJson) {
  const Scratch scratch;
  const Outcome outcome =
      qelpro({"process",
              scratch.file("[Flow-1]\nFillTime = 1.5\n[MoldThermalBoundaryType]\nFlow = 900 (x)\n"),
              "--json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("\"FillTime\": 1.5"), HasSubstr("\"heat transfer\""),
                                 HasSubstr("\"Flow\": 900.0")));
}

TEST(Process, TellsAFileThatCannotBeRead) {
  const Scratch scratch;
  const Outcome outcome = qelpro({"process", scratch.path("missing.pro")});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("missing.pro"));
}

TEST(Show, NamesAndTypesKnownEntriesAndMarksTheOthers) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[Flow-1]\nFillTime = 1.50\nFR-1 = 0\t50\nOwn = x y\n[Mine]\na = 1\n[Flow-1]\nFillTime = "
      "9\n");
  const Outcome outcome = qelpro({"show", file});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out,
              AllOf(HasSubstr("FillTime = 1.5  # the filling time, in sec"),
                    HasSubstr("FR-1 = 0.0  50.0"), HasSubstr("Own = x y  # unknown key"),
                    HasSubstr("[Mine]  # unknown section"), HasSubstr("repeated: never read")));
}

TEST(Show, PrintsOneSectionAndJson) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  const Outcome outcome = qelpro({"show", file, "Flow-2", "--json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("\"[Flow-2]\""), Not(HasSubstr("\"[Flow-1]\"")),
                                 HasSubstr("\"encoding\": \"real\"")));
  EXPECT_EQ(qelpro({"show", file, "Flow-9"}).status, 1);
  EXPECT_EQ(qelpro({"show", scratch.path("missing.pro")}).status, 3);
}

TEST(Show, ReadsThePositionalSectionLineByLine) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n2\tTop Side\t0\n1\tSide\t1\n1 = 40\t60\n1 = "
      "41\t61\n2 = 42\t62\n[Flow-1]\nFillTime = 1\n");
  const Outcome outcome = qelpro({"show", file, "[SURFACE ELEMENT BOUNDARY CONDITION NAME]"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out,
              AllOf(HasSubstr("line 1 = 2  Top Side  0"), HasSubstr("line 2 = 1  Side  1"),
                    HasSubstr("condition 1, setting 2 = 41.0  61.0"),
                    HasSubstr("condition 2, setting 1 = 42.0  62.0")));
}

TEST(Show, PrintsTheRawTextOfWhatDidNotScanWhole) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[Flow-1]\nFillTime = 1.5abc\nMeltTemp = 2\nFR-1 = 7\nMoldTemp = 1,5\nFRSet = \n");
  const std::string out = qelpro({"show", file}).out;
  const std::vector<std::pair<std::string, std::string>> lines = {
      {"  FillTime = 1.5  (\"1.5abc\")  # ", "; line 2: \"abc\" is not read\n"},
      {"  MeltTemp = 2.0  # ", "\n"},
      {"  FR-1 = 7.0  0.0  (\"7\")  # ", "; line 4: field 2, a number, is missing\n"},
      {"  MoldTemp = 1.0  (\"1,5\")  # ",
       "; line 5: \",5\" is not read: the decimal point is \".\"\n"},
      {"  FRSet = 0  (\"\")  # ", "; line 6: a whole number is missing\n"}};
  std::size_t at = out.find('\n') + 1;
  for (const auto& [front, back] : lines) {
    const std::string line = out.substr(at, out.find('\n', at) + 1 - at);
    EXPECT_THAT(line, AllOf(StartsWith(front), EndsWith(back)));
    EXPECT_EQ(line.find("; line") == std::string::npos, back == "\n") << line;
    at += line.size();
  }
  EXPECT_EQ(at, out.size());
  EXPECT_THAT(
      qelpro({"show", file, "--json"}).out,
      AllOf(HasSubstr("\"text\": \"1.5abc\""), HasSubstr("\"note\": \"\\\"abc\\\" is not read\"")));
}

TEST(Show, NamesEveryLineThatIsPassedOver) {
  const Scratch scratch;
  const std::string file =
      scratch.file("Early = 1\n; note\n\n[A]\n  x = 1\n\ty = 1\nhello world\n= 5\n;z = 1\nx = 2\n");
  EXPECT_EQ(qelpro({"show", file}).out,
            "# before the first section\n"
            "  # line 1 is passed over, it stands before the first section: Early = 1\n"
            "  # line 2 is passed over, a comment: ; note\n"
            "[A]  # unknown section\n"
            "  # line 5 is passed over, it begins with a blank:   x = 1\n"
            "  # line 6 is passed over, it begins with a blank: \ty = 1\n"
            "  # line 7 is passed over, no \"=\": hello world\n"
            "  # line 8 is passed over, no key before the \"=\": = 5\n"
            "  # line 9 is passed over, a comment: ;z = 1\n"
            "  x = 2  # unknown key\n");
  const std::string json = qelpro({"show", file, "--json"}).out;
  EXPECT_THAT(json, AllOf(HasSubstr("\"text\": \"Early = 1\""), HasSubstr("\"line\": 9"),
                          HasSubstr("\"why\": \"no \\\"=\\\"\"")));
}

TEST(Show, TakesALineWithoutAnEqualsSignForTheEntryThatTheEngineReads) {
  const Scratch scratch;
  const std::string file =
      scratch.file("[Flow-1]\nMeltTemp\nMeltTemp = 200\nOwn\nOwn = 1\nalone\n");
  EXPECT_EQ(qelpro({"get", file, "Flow-1", "MeltTemp"}).out, "\n");
  EXPECT_EQ(qelpro({"show", file}).out,
            "[Flow-1]  # the filling stage of an inlet\n"
            "  MeltTemp = 0.0  (\"\")  # the melt temperature, in oC; line 2: no \"=\": the value "
            "is empty\n"
            "  MeltTemp = 200.0  # the melt temperature, in oC, repeated: never read\n"
            "  Own =   # unknown key; line 4: no \"=\": the value is empty\n"
            "  Own = 1  # unknown key, repeated: never read\n"
            "  # line 6 is passed over, no \"=\": alone\n");
}

TEST(Show, TakesTheFirstPositionalSectionByTheFirstWordOfItsHeader) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[SURFACE X]\n1\tA\t0\n1 = 1 2\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\tB\t0\n1 = 3 "
      "4\n");
  EXPECT_THAT(qelpro({"show", file}).out,
              AllOf(StartsWith("[SURFACE X]  # "), HasSubstr("line 1 = 1  A  0"),
                    HasSubstr("condition 1, setting 1 = 1.0  2.0"),
                    HasSubstr("[SURFACE ELEMENT BOUNDARY CONDITION NAME]  # "),
                    HasSubstr(", repeated: never read\n"), Not(HasSubstr("unknown section"))));
  EXPECT_THAT(qelpro({"show", file, "[SURFACE ELEMENT BOUNDARY CONDITION NAME]"}).out,
              HasSubstr("line 1 = 1  A  0"));
}

TEST(Show, HasTextsForNumbersThatJsonDoesNotKnow) {
  const Scratch scratch;
  const std::string file =
      scratch.file("[Flow-1]\nFillTime = nan\nMeltTemp = Infinity\nMoldTemp = -inf\n");
  EXPECT_THAT(qelpro({"show", file, "--json"}).out,
              AllOf(HasSubstr("\"nan\""), HasSubstr("\"inf\""), HasSubstr("\"-inf\""),
                    Not(HasSubstr("null"))));
  EXPECT_THAT(qelpro({"process", file, "--json"}).out,
              AllOf(HasSubstr("\"FillTime\": \"nan\""), HasSubstr("\"MeltTemp\": \"inf\""),
                    HasSubstr("\"MoldTemp\": \"-inf\"")));
  EXPECT_THAT(qelpro({"show", file}).out,
              AllOf(HasSubstr("FillTime = nan  "), HasSubstr("MoldTemp = -inf  ")));
}

TEST(Show, LosesNoByteInJson) {
  const Scratch scratch;
  EXPECT_THAT(qelpro({"show", scratch.file("[A]\nx = \xE4\xC3\xA4\"\\\x01\n"), "--json"}).out,
              HasSubstr("\"text\": \"\\udce4\xC3\xA4\\\"\\\\\\u0001\""));
}

TEST(Show, ReadsAClaimedCountAsFarAsThePositionalSectionGoes) {
  const Scratch scratch;
  std::string contents =
      "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n2000000000\tTop\t0\n1\tBottom\t0\n1 = 40\t60\n1 "
      "= 41\t61\n[Flow-1]\n";
  while (contents.size() < 500'000) {
    contents += "FR-1 = 1 2\n";
  }
  const Outcome outcome =
      qelpro({"show", scratch.file(contents), "SURFACE ELEMENT BOUNDARY CONDITION NAME"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(
      outcome.out,
      AllOf(HasSubstr("condition 1, setting 2 = 41.0  61.0"), Not(HasSubstr("setting 3")),
            HasSubstr("# condition 1 says 2000000000 settings, of which 2 stand in the section\n"),
            HasSubstr("# condition 2 says 1 settings, of which 0 stand in the section\n")));
}

TEST(Show, ReadsThePositionalSectionOfNamesWithEqualsSignsAndBlanksAfterItsHeader) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[SURFACE ELEMENT BOUNDARY CONDITION NAME] \t \n1\tA=B\t0\n1\tSide\t1\n1 = 40\t60\n2 = x\n3 "
      "= 1 2\n");
  const Outcome outcome = qelpro({"show", file});
  EXPECT_THAT(outcome.out,
              AllOf(HasSubstr("line 1 = 1  A=B  0  "), HasSubstr("line 2 = 1  Side  1  "),
                    HasSubstr("condition 1, setting 1 = 40.0  60.0"),
                    HasSubstr("condition 2, setting 1 = 0.0  0.0  (\"2 = x\")"),
                    HasSubstr("# line 6 is passed over, no condition counts it: 3 = 1 2\n")));
}

TEST(Process, SaysWhatItDroppedOrReplaced) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[FlowCTLInfo]\nTotalInlet = 5000\n[CaeHeader]\nProjectType = none\n[Flow-1]\nFillTime = "
      "1.5abc\nMeltTemp = hot\nFRDisplayType = -1\n"
      "  MoldTemp = 3\nTransTime = 9\nFRSet = 4\nFR-1 = 0\nFR-3 = 1 2\nFR-5 = 1 2\nTimeConstFR-2 = "
      "1\nFillTime = 4\n"
      "[Pack-1]\nPackTime = 3\n[Cure-1]\nCureTime = 4\n[Flow-1]\n[Flow-5000]\n");
  const std::string out = qelpro({"process", file}).out;
  const Outcome outcome = qelpro({"process", file, "--json"});
  EXPECT_EQ(outcome.status, 0);
  const std::vector<std::pair<std::string, std::string>> notes = {
      {":4: [CaeHeader] ProjectType", "\"none\" is read as 0: a whole number is missing"},
      {":2: [FlowCTLInfo] TotalInlet", "\"5000\" is out of range: the process has 4096 inlets"},
      {":6: [Flow-1] FillTime", "\"1.5abc\" is read as 1.5: \"abc\" is not read"},
      {":7: [Flow-1] MeltTemp",
       "\"hot\" is read as 0: field 1, a number, does not begin with \"hot\""},
      {":8: [Flow-1] FRDisplayType", "\"-1\" is read as 4294967295: it is not negative there"},
      {":9: [Flow-1]", "dropped: the line begins with a blank"},
      {":10: [Flow-1] TransTime", "replaces \"FillTime\" of [Flow-1] (line 6)"},
      {":11: [Flow-1] FRSet", "says 4 points, of which FR-2, 4 missing"},
      {":12: [Flow-1] FR-1", "\"0\" is not read whole: field 2, a number, is missing"},
      {":14: [Flow-1] FR-5", "dropped: FR-5 beyond \"FRSet\""},
      {":15: [Flow-1] TimeConstFR-2", "dropped, with what follows it: TimeConstFR-1 is missing"},
      {":16: [Flow-1] FillTime", "dropped: the key came before in this section"},
      {":20: [Cure-1] CureTime", "replaces \"PackTime\" of [Pack-1] (line 18)"},
      {":21: [Flow-1]", "dropped: a section of this name came before"},
      {":22: [Flow-5000]", "dropped: the process has 4096 inlets"}};
  for (const auto& [place, what] : notes) {
    EXPECT_THAT(outcome.err, HasSubstr("qelpro: " + file + place + ": " + what + "\n"));
    std::string escaped;
    for (const char c : what) {
      escaped += c == '"' ? "\\\"" : std::string(1, c);
    }
    EXPECT_THAT(outcome.out, HasSubstr("\"message\": \"" + escaped + "\""));
    EXPECT_THAT(out, Not(HasSubstr(what)));
  }
}

TEST(Process, SaysNothingOfAFileThatReachesItWhole) {
  const Scratch scratch;
  const std::string file = scratch.path("new.pro");
  ASSERT_EQ(qelpro({"new", file}).status, 0);
  const Outcome outcome = qelpro({"process", file, "--json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, HasSubstr("\"notes\": []"));
}

TEST(Process, SaysNoMoreOfAFileThanDoesNotReachItAsItStands) {
  for (const auto& [name, note] :
       {std::pair<std::string, std::string>{
            "injection_two_inlets.pro",
            ":184: [Flow-2] TPSet: its points are appended to those of \"IPSet\"\n"},
        {"co_injection_type_8.pro",
         ":127: [Flow-1-Skin2nd]: dropped: of project type 8 it is not loaded\n"}}) {
    const Outcome outcome = qelpro({"process", data_path(name)});
    EXPECT_EQ(outcome.status, 0) << name;
    EXPECT_EQ(outcome.err, "qelpro: " + data_path(name) + note);
  }
}

TEST(Process, IsNotMadeOfAFileWithoutASection) {
  const Scratch scratch;
  for (const std::string contents : {"", "hello\nFillTime = 1\n"}) {
    const Outcome outcome = qelpro({"process", scratch.file(contents), "--json"});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, HasSubstr("no process file"));
  }
}

}  // namespace
