#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using Machines = CQELMachineIdentification;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kBefore = "[Header]\nVersion 7007\n[Machine Database]\n";

// A machine's line with that many fields.
std::string machine(const std::string& maker, const std::string& grade, int fields = 22,
                    const std::string& flag = "1") {
  std::string line = flag + "," + maker + "," + grade;
  for (int field = 4; field <= fields; ++field) {
    line += "," + std::to_string(field);
  }
  return line + "\n";
}

std::vector<std::string> all_makers(Machines& machines) {
  const char** texts = nullptr;
  int count = 0;
  return machines.GetAllMaker(&texts, &count) ? std::vector<std::string>(texts, texts + count)
                                              : std::vector<std::string>();
}

std::vector<std::string> all_grades(Machines& machines, const char* maker) {
  const char** texts = nullptr;
  int count = 0;
  return machines.GetAllGrade(maker, &texts, &count)
             ? std::vector<std::string>(texts, texts + count)
             : std::vector<std::string>();
}

class MachineBank : public testing::Test {
 protected:
  bool load(const std::string& contents) {
    machines_.SetMachineUserBankPath(scratch_.file(contents, "machines.bank").c_str());
    return machines_.LoadFileData();
  }
  Scratch scratch_;
  Machines machines_;
};

TEST_F(MachineBank, IsEmptyBeforeItIsLoaded) {
  EXPECT_EQ(machines_.GetMakerCount(), 0);
  EXPECT_EQ(machines_.GetGradeCount("A"), 0);
  EXPECT_THAT(all_makers(machines_), IsEmpty());
  EXPECT_THAT(all_grades(machines_, "A"), IsEmpty());
}

TEST_F(MachineBank, CannotBeLoadedWithoutAPath) {
  EXPECT_FALSE(machines_.LoadFileData());
  machines_.SetIdentificationPath(scratch_.file(kBefore + machine("A", "1")).c_str());
  EXPECT_FALSE(machines_.LoadFileData()) << "the identification path is read by nothing";
}

TEST_F(MachineBank, ListsMakersInTheOrderOfTheirBytes) {
  EXPECT_TRUE(load(kBefore + machine("B", "1") + machine("a", "2") + machine("A", "3")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A", "B", "a"));
  EXPECT_EQ(machines_.GetMakerCount(), 3);
}

TEST_F(MachineBank, ListsGradesInTheOrderOfTheFileRepeatsIncluded) {
  EXPECT_TRUE(load(kBefore + machine("M", "z") + machine("M", "a") + machine("N", "x") +
                   machine("M", "z")));
  EXPECT_EQ(machines_.GetMakerCount(), 2);
  EXPECT_EQ(machines_.GetGradeCount("M"), 3);
  EXPECT_THAT(all_grades(machines_, "M"), ElementsAre("z", "a", "z"));
}

TEST_F(MachineBank, IgnoresRecordsOfLessThan22Fields) {
  EXPECT_TRUE(load(kBefore + machine("Short", "1", 21) + machine("Whole", "1", 22) +
                   machine("Long", "1", 30)));
  EXPECT_THAT(all_makers(machines_), ElementsAre("Long", "Whole"));
}

TEST_F(MachineBank, CountsConsecutiveCommasAsOne) {
  EXPECT_TRUE(load(kBefore + std::string("1,,M,,,x,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,"
                                         "22\n1,,,,,,,,,,,,,,,,,,,,,,,N,y\n")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("M"));
  EXPECT_THAT(all_grades(machines_, "M"), ElementsAre("x"));
}

TEST_F(MachineBank, TakesLinesOfFlagOneAlone) {
  EXPECT_TRUE(load(kBefore + machine("Zero", "1", 22, "0") + machine("Two", "1", 22, "2") +
                   machine("Eleven", "1", 22, "11") + machine("Blank", "1", 22, "  1 x")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("Blank"));
}

TEST_F(MachineBank, KeepsTheFlagOverALineWithoutOne) {
  EXPECT_TRUE(load(kBefore + machine("A", "1") + machine("B", "1", 22, "x") +
                   machine("C", "1", 22, "0") + machine("D", "1", 22, "x")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A", "B"));
}

TEST_F(MachineBank, KeepsBlanksOfNames) {
  EXPECT_TRUE(load(kBefore + machine(" Any Works ", "T 1")));
  EXPECT_EQ(machines_.GetGradeCount("Any Works"), 0);
  EXPECT_THAT(all_grades(machines_, " Any Works "), ElementsAre("T 1"));
}

TEST_F(MachineBank, EndsAtItsEndMark) {
  EXPECT_TRUE(load(kBefore + machine("A", "1") + "x[EOF]x\n" + machine("B", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A"));
  EXPECT_TRUE(
      load(std::string("[Header]\nVersion 7007\n[Machine Database]\n[EOF]\n") + machine("B", "1")));
  EXPECT_THAT(all_makers(machines_), IsEmpty());
}

TEST_F(MachineBank, BeginsItsDataAfterTheDatabaseLine) {
  EXPECT_TRUE(load("[Header]\nVersion 7007\n" + machine("Before", "1") + "xDatabase]x\n" +
                   machine("Behind", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("Behind"));
}

TEST_F(MachineBank, NeedsItsVersion) {
  EXPECT_TRUE(load("[Header]\n[Machine Database]\n" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), IsEmpty()) << "no version";
  EXPECT_TRUE(load("Version 7007\n[Header]\n[Machine Database]\n" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), IsEmpty()) << "a version before the header";
  EXPECT_TRUE(load("[Header]\nVersion 7006\n[Machine Database]\n" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), IsEmpty()) << "another version";
  EXPECT_TRUE(load("[Header]\nVersion\n[Machine Database]\n" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), IsEmpty()) << "1000 where there is no number";
}

TEST_F(MachineBank, ReadsItsVersionWithCommasForBlanks) {
  EXPECT_TRUE(load("[Header],Version,7007\n[Machine Database]\n" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), IsEmpty()) << "the second word is no number";
  EXPECT_TRUE(load("[Header]\nVersion,,7007,9\n[Machine Database]\n" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A"));
}

TEST_F(MachineBank, KeepsAVersionOverALineWithoutANumber) {
  EXPECT_TRUE(
      load("[Header]\nVersion 7007\nVersion unknown\n[Machine Database]\n" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A"));
}

TEST_F(MachineBank, KeepsItsVersionForTheNextFile) {
  EXPECT_TRUE(load(kBefore));
  EXPECT_TRUE(load("[Header]\n[Machine Database]\n" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A"));
}

TEST_F(MachineBank, KeepsItsHeaderInForceAmongTheData) {
  EXPECT_TRUE(load(kBefore + machine("A", "1") + machine("Version", "1") + machine("B", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A", "B"))
      << "a line of the version has no commas any more";
  EXPECT_TRUE(load(kBefore + machine("A", "1") + "Version 1\n" + machine("B", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A")) << "another version from there on";
}

TEST_F(MachineBank, FailsAtATotalAndKeepsTheRecordsBefore) {
  EXPECT_FALSE(load(kBefore + machine("A", "1") + "TotalNo 3\n" + machine("B", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A"));
  EXPECT_TRUE(load("TotalNo 3\n" + (kBefore + machine("A", "1")))) << "a total before the header";
}

TEST_F(MachineBank, IsEmptiedByALoadThatFails) {
  EXPECT_TRUE(load(kBefore + machine("A", "1")));
  machines_.SetMachineUserBankPath(scratch_.path("missing.bank").c_str());
  EXPECT_FALSE(machines_.LoadFileData());
  EXPECT_EQ(machines_.GetMakerCount(), 0);
  machines_.SetMachineUserBankPath(scratch_.path("").c_str());
  EXPECT_FALSE(machines_.LoadFileData()) << "a directory";
}

TEST_F(MachineBank, IsReplacedByTheNextLoad) {
  EXPECT_TRUE(load(kBefore + machine("A", "1")));
  EXPECT_TRUE(load(kBefore + machine("B", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("B"));
}

TEST_F(MachineBank, TakesThePathThatWasSetLast) {
  const std::string narrow = scratch_.file(kBefore + machine("Narrow", "1"), "narrow.bank");
  const std::wstring wide =
      std::filesystem::path(scratch_.file(kBefore + machine("Wide", "1"), "wide.bank")).wstring();
  machines_.SetMachineUserBankPath(narrow.c_str());
  machines_.SetMachineUserBankPath(wide.c_str());
  EXPECT_TRUE(machines_.LoadFileData());
  EXPECT_THAT(all_makers(machines_), ElementsAre("Wide"));
  machines_.SetMachineUserBankPath(narrow.c_str());
  EXPECT_TRUE(machines_.LoadFileData());
  EXPECT_THAT(all_makers(machines_), ElementsAre("Narrow"));
  machines_.SetIdentificationPath(narrow.c_str());
  machines_.SetIdentificationPath(wide.c_str());
  machines_.SetMachineUserBankPath(L"missing.bank");
  EXPECT_FALSE(machines_.LoadFileData());
}

TEST_F(MachineBank, CopiesThePathsThatItIsGiven) {
  {
    std::string path = scratch_.file(kBefore + machine("A", "1"));
    machines_.SetMachineUserBankPath(path.c_str());
    path.assign(path.size(), '?');
  }
  EXPECT_TRUE(machines_.LoadFileData());
}

TEST_F(MachineBank, TakesNullForAMistake) {
  EXPECT_TRUE(load(kBefore + machine("A", "1")));
  machines_.SetMachineUserBankPath(static_cast<const char*>(nullptr));
  machines_.SetMachineUserBankPath(static_cast<const wchar_t*>(nullptr));
  machines_.SetIdentificationPath(static_cast<const char*>(nullptr));
  machines_.SetIdentificationPath(static_cast<const wchar_t*>(nullptr));
  EXPECT_TRUE(machines_.LoadFileData()) << "the path before stays";
  const char** texts = nullptr;
  int count = 0;
  EXPECT_FALSE(machines_.GetAllMaker(nullptr, &count));
  EXPECT_FALSE(machines_.GetAllMaker(&texts, nullptr));
  EXPECT_FALSE(machines_.GetAllGrade(nullptr, &texts, &count));
  EXPECT_FALSE(machines_.GetAllGrade("A", nullptr, &count));
  EXPECT_FALSE(machines_.GetAllGrade("A", &texts, nullptr));
  EXPECT_EQ(machines_.GetGradeCount(nullptr), 0);
  char buffer[8];
  EXPECT_FALSE(machines_.GetMaker(0, nullptr, 8));
  EXPECT_FALSE(machines_.GetGrade(nullptr, 0, buffer, 8));
  EXPECT_FALSE(machines_.GetGrade("A", 0, nullptr, 8));
}

TEST_F(MachineBank, CopiesNoMoreThanTheBufferHolds) {
  EXPECT_TRUE(load(kBefore + machine("Maker", "Grade")));
  for (unsigned int size = 1; size <= 7; ++size) {
    for (const bool maker : {true, false}) {
      char buffer[8] = {'#', '#', '#', '#', '#', '#', '#', '#'};
      EXPECT_TRUE(maker ? machines_.GetMaker(0, buffer, size)
                        : machines_.GetGrade("Maker", 0, buffer, size));
      const std::string text = maker ? "Maker" : "Grade";
      EXPECT_EQ(std::string(buffer, std::min<std::size_t>(size, 5)), text.substr(0, size));
      if (size > 5) {
        EXPECT_EQ(buffer[5], '\0');
      }
      EXPECT_EQ(buffer[size], '#') << "no terminator behind a text that fills the buffer";
    }
  }
}

TEST_F(MachineBank, RefusesPositionsOutOfRangeAndEmptyBuffers) {
  EXPECT_TRUE(load(kBefore + machine("A", "1") + machine("B", "2")));
  char buffer[8];
  for (const int index : {-1, 2, 2147483647, -2147483647 - 1}) {
    EXPECT_FALSE(machines_.GetMaker(index, buffer, sizeof buffer)) << index;
  }
  for (const int index : {-1, 1, 2147483647, -2147483647 - 1}) {
    EXPECT_FALSE(machines_.GetGrade("A", index, buffer, sizeof buffer)) << index;
  }
  EXPECT_FALSE(machines_.GetMaker(0, buffer, 0));
  EXPECT_FALSE(machines_.GetGrade("A", 0, buffer, 0));
  EXPECT_FALSE(machines_.GetGrade("C", 0, buffer, sizeof buffer));
  EXPECT_TRUE(machines_.GetMaker(1, buffer, sizeof buffer));
  EXPECT_STREQ(buffer, "B");
}

TEST_F(MachineBank, DoesNotAddAMakerThatIsAskedFor) {
  EXPECT_TRUE(load(kBefore + machine("A", "1")));
  EXPECT_EQ(machines_.GetGradeCount("Unknown"), 0);
  EXPECT_THAT(all_grades(machines_, "Unknown"), IsEmpty());
  EXPECT_EQ(machines_.GetMakerCount(), 1);
}

TEST_F(MachineBank, ListsStayValidUntilTheNextList) {
  EXPECT_TRUE(load(kBefore + machine("A", "1") + machine("A", "2") + machine("B", "3")));
  const char** makers = nullptr;
  int count = 0;
  ASSERT_TRUE(machines_.GetAllMaker(&makers, &count));
  char buffer[8];
  EXPECT_TRUE(machines_.GetMaker(1, buffer, sizeof buffer));
  EXPECT_TRUE(machines_.GetGrade("A", 1, buffer, sizeof buffer));
  EXPECT_EQ(machines_.GetGradeCount("A"), 2);
  EXPECT_STREQ(makers[0], "A");
  EXPECT_STREQ(makers[1], "B");
  const char** grades = nullptr;
  EXPECT_FALSE(machines_.GetAllGrade("Unknown", &grades, &count))
      << "a list that is refused replaces none";
  EXPECT_STREQ(makers[1], "B");
  ASSERT_TRUE(machines_.GetAllGrade("A", &grades, &count));
  EXPECT_EQ(count, 2);
  EXPECT_STREQ(grades[1], "2");
}

TEST_F(MachineBank, NeverKnowsAnIdentification) {
  EXPECT_TRUE(load(kBefore + machine("A", "1")));
  EXPECT_FALSE(machines_.HasMachineIdentification("A", "1", ""));
  EXPECT_FALSE(machines_.HasMachineIdentification(nullptr, nullptr, nullptr));
  const char** texts = nullptr;
  int count = -1;
  EXPECT_FALSE(machines_.GetALLIdentity("A", "1", &texts, &count));
  EXPECT_EQ(texts, nullptr);
  EXPECT_EQ(count, -1);
}

TEST_F(MachineBank, CopiesShareOneRecord) {
  EXPECT_TRUE(load(kBefore + machine("A", "1")));
  auto first = std::make_unique<Machines>(machines_);
  Machines second;
  second = *first;
  const Machines& same = second;
  second = same;
  first.reset();
  EXPECT_THAT(all_makers(second), ElementsAre("A"));
  EXPECT_TRUE(load(kBefore + machine("B", "1")));
  EXPECT_THAT(all_makers(second), ElementsAre("B"));
  EXPECT_EQ(sizeof(Machines), sizeof(void*));
}

TEST_F(MachineBank, TakesEitherLineBreakAndAMissingLastOne) {
  std::string contents = kBefore + machine("A", "1") + machine("B", "2", 30);
  contents.pop_back();
  std::string with_returns;
  for (const char byte : contents) {
    with_returns += byte == '\n' ? std::string("\r\n") : std::string(1, byte);
  }
  EXPECT_TRUE(load(contents));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A", "B"));
  EXPECT_TRUE(load(with_returns));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A", "B"));
}

TEST_F(MachineBank, EndsBeforeAFinalControlZ) {
  EXPECT_TRUE(load(kBefore + machine("A", "1") + "\x1A"));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A"));
  std::string short_record = machine("B", "1", 21);
  short_record.back() = ',';
  EXPECT_TRUE(load(kBefore + short_record + "\x1A"));
  EXPECT_THAT(all_makers(machines_), IsEmpty()) << "it is no 22nd field";
}

TEST_F(MachineBank, SeesALongLineInPieces) {
  const std::string before = "0," + std::string(1021, 'x');
  ASSERT_EQ(before.size(), 1023U);
  EXPECT_TRUE(load(kBefore + before + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A")) << "the second piece is a record of its own";
  EXPECT_TRUE(load(kBefore + before + "x" + machine("A", "1")));
  EXPECT_THAT(all_makers(machines_), IsEmpty())
      << "the second piece begins with no number, and the flag stays 0";
}

TEST_F(MachineBank, CountsEitherLineBreakAsOneCharacterOfALongLine) {
  // 21 fields and a comma; a "\r" that came into the piece would be the 22nd field.
  std::string record = machine("A", "1", 21);
  record.pop_back();
  for (std::size_t size = 1018; size <= 1026; ++size) {
    const std::string line = record + std::string(size - record.size(), ',');
    for (const char* line_break : {"\n", "\r\n"}) {
      EXPECT_TRUE(load(kBefore + line + line_break + machine("B", "2")));
      EXPECT_THAT(all_makers(machines_), ElementsAre("B")) << size;
    }
  }
  std::string long_head = record + std::string(1021 - record.size(), ',');
  EXPECT_TRUE(load(kBefore + long_head + "\rx\r\n"));
  EXPECT_THAT(all_makers(machines_), ElementsAre("A"))
      << "a \"\\r\" inside of a line is a character of its own";
}

TEST_F(MachineBank, SurvivesHostileFiles) {
  using namespace std::string_literals;
  const std::string binary = "\0\x01\xFF[Header]\0Version 7007\n\xFE\xFE"s;
  for (const std::string& contents :
       {std::string(), binary, std::string(1 << 16, '\0'), std::string(10 << 20, ','),
        kBefore + std::string(10 << 20, 'x'), kBefore + machine("A", "1") + binary,
        std::string(100, '\n'), std::string("[Header]\nVersion"), std::string("Database]"),
        std::string("[Machine Database]\n")}) {
    EXPECT_TRUE(load(contents));
    EXPECT_LE(machines_.GetMakerCount(), 1);
  }
}

TEST_F(MachineBank, HandsOutEachOfManyMakersInTheirOrder) {
  std::string contents = kBefore;
  std::vector<std::string> makers;
  for (int number = 0; number < 40000; ++number) {
    makers.push_back("M" + std::to_string(number * 7919 % 40000));
    contents += machine(makers.back(), "1");
  }
  std::sort(makers.begin(), makers.end());
  ASSERT_TRUE(load(contents));
  ASSERT_EQ(machines_.GetMakerCount(), 40000);
  for (int index = 0; index < 40000; ++index) {
    char maker[16] = "";
    ASSERT_TRUE(machines_.GetMaker(index, maker, sizeof maker));
    ASSERT_EQ(maker, makers[static_cast<std::size_t>(index)]);
  }
  machines_.SetMachineUserBankPath("no such file");
  EXPECT_FALSE(machines_.LoadFileData());
  char maker[16] = "";
  EXPECT_FALSE(machines_.GetMaker(0, maker, sizeof maker));
}

TEST_F(MachineBank, OfAFrontEndIsReadInFull) {
  machines_.SetMachineUserBankPath(data_path("machines.bank").c_str());
  ASSERT_TRUE(machines_.LoadFileData());
  EXPECT_THAT(all_makers(machines_),
              ElementsAre("Alder & Sons", "Norvik Presses", "Tessaro", "alder & sons"));
  EXPECT_THAT(all_grades(machines_, "Alder & Sons"), ElementsAre("A-80", "A-120 Electric"));
  EXPECT_THAT(all_grades(machines_, "Norvik Presses"), ElementsAre("NP 50-110", "NP 80-200"));
  EXPECT_THAT(all_grades(machines_, "Tessaro"),
              ElementsAre("T 160 Hybrid", "T 160 Hybrid", "T 320"));
  EXPECT_THAT(all_grades(machines_, "alder & sons"), ElementsAre("a-80"));
}

TEST_F(MachineBank, OfAForeignVersionHoldsNoMachine) {
  machines_.SetMachineUserBankPath(data_path("machines_foreign_version.bank").c_str());
  EXPECT_TRUE(machines_.LoadFileData());
  EXPECT_EQ(machines_.GetMakerCount(), 0);
}

}  // namespace
}  // namespace qelpro_test
