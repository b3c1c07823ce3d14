#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/accessors.h"
#include "api/proio/lines_fixture.h"
#include "support/comma_locale.h"

// How the object finds and rewrites lines, seen through its accessors, and what it does with files
// that nobody meant.

namespace qelpro_test {
namespace {

TEST_F(Lines, KeyIsSearchedBeyondTheEndOfItsSection) {
  over("[Flow-1]\nMeltTemp = 1\n[Flow-2]\nFillTime = 2\n[Flow-3]\nFillTime = 3\n");
  EXPECT_EQ(fill_time(1), 2) << "its own section lacks it";
  EXPECT_EQ(fill_time(3), 3);
  EXPECT_EQ(fill_time(4), 777);
}

TEST_F(Lines, PointOfALaterStageIsTakenForAMissingOne) {
  over("[Flow-1]\nFRSet = 2\nFR-1 = 1 2\n[Flow-2]\nFR-2 = 3 4\n");
  double x = 0;
  double y = 0;
  EXPECT_TRUE(object_.GetFRProfile(2, x, y, 1));
  EXPECT_EQ(x, 3);
}

TEST_F(Lines, KeyOfALaterSectionIsOverwrittenThere) {
  over("[FileHeader]\nDate = x\n[Flow-1]\nMeltTemp = 1\n[Flow-2]\nFillTime = 2\n");
  EXPECT_TRUE(object_.SetFillTime(9, 1));
  EXPECT_EQ(masked_bytes(), "[FileHeader]\n" + kMaskedDate + "[Flow-1]\nMeltTemp = 1\n[Flow-2]\n" +
                                entry("FillTime", "9"));
}

TEST_F(Lines, MissingKeyIsAppendedAtTheEndOfTheFileAndFoundThere) {
  over("[FileHeader]\nDate = x\n[Flow-1]\nFRSet = 2\n[Last]\nz = 1\n");
  EXPECT_TRUE(object_.SetFRProfile(3, 10, 20, 1));
  EXPECT_EQ(masked_bytes(), "[FileHeader]\n" + kMaskedDate +
                                "[Flow-1]\nFRSet = 2\n[Last]\nz = 1\n" + entry("FR-3", "10\t20"));
  double x = 0;
  double y = 0;
  EXPECT_TRUE(object_.GetFRProfile(3, x, y, 1));
  EXPECT_EQ(y, 20);
}

TEST_F(Lines, FirstHeaderOfANameIsTheSection) {
  over("[Flow-1]\n[Flow-1]\nFillTime = 2\n");
  EXPECT_EQ(fill_time(), 2);
  over("FillTime = 1\n[Flow-1] tail\nFillTime = 2\n");
  EXPECT_EQ(fill_time(), 2) << "the leading word is the name";
}

TEST_F(Lines, IndentedHeadersAndKeysAreNotSeen) {
  over(" [Flow-1]\nFillTime = 2\n");
  EXPECT_EQ(fill_time(), 777);
  over("[Flow-1 ]\nFillTime = 2\n");
  EXPECT_EQ(fill_time(), 777);
  over("[Flow-1]\n FillTime = 1\nFillTime = 2\n");
  EXPECT_EQ(fill_time(), 2);
}

TEST_F(Lines, HeaderOnTheFirstByteCounts) {
  over("[Flow-1]\nFillTime = 2\n");
  EXPECT_EQ(fill_time(), 2);
  EXPECT_TRUE(object_.SetFillTime(3, 1));
  EXPECT_EQ(bytes().substr(0, 9), "[Flow-1]\n");
  EXPECT_EQ(fill_time(), 3);
}

TEST_F(Lines, TextKeepsItsLineFeedAndItsTrailingBlanks) {
  EXPECT_EQ(remark_of("[Machine]\nRemark =   any remark \t \n"), "any remark \t \n");
  EXPECT_EQ(remark_of("[Machine]\nRemark = \tany\n"), "\tany\n")
      << "only blanks are skipped at the front";
  EXPECT_EQ(remark_of("[Machine]\nRemark = a = b\n"), "a = b\n");
  EXPECT_EQ(remark_of("[Machine]\nRemark =\n"), "\n");
  EXPECT_EQ(remark_of("[Machine]\nRemark = last line"), "last line");
  EXPECT_EQ(remark_of("[Machine]\nRemark = text\r\n"), "text\n");
}

TEST_F(Lines, KeyLineWithoutAnEqualsSignHasAnEmptyText) {
  EXPECT_EQ(remark_of("[Machine]\nRemark any remark\n"), "");
  EXPECT_EQ(remark_of("[Machine]\nRemark\n"), "");
}

TEST_F(Lines, LongLineIsSeveralLines) {
  const std::string filler(127, 'x');
  over("[Flow-1]\n" + filler + "FillTime = 2\n");
  EXPECT_EQ(fill_time(), 2) << "what stands behind 127 characters is a line of its own";
  over("[Flow-1]\n" + filler.substr(1) + "FillTime = 2\n");
  EXPECT_EQ(fill_time(), 777);
  EXPECT_EQ(remark_of("[Machine]\nRemark = " + std::string(300, 'y') + "\n"),
            std::string(127 - 9, 'y'));
}

TEST_F(Lines, RewriteOfALongLineReplacesItWhole) {
  for (const std::size_t length : {126U, 127U, 128U, 200U, 254U, 255U, 5000U}) {
    for (const std::string& line_break : {std::string("\n"), std::string("\r\n")}) {
      SCOPED_TRACE(length);
      std::string line = "Remark = ";
      line.resize(length, 'y');
      const std::string before =
          "[FileHeader]" + line_break + "Date = x" + line_break + "[Machine]" + line_break;
      over(before + line + line_break + "Grade = 1" + line_break);
      char text[] = "short";
      EXPECT_TRUE(object_.SetMachineRemark(text));
      const std::string after = bytes();
      EXPECT_NE(after.find("[Machine]" + line_break + "Remark         = short" + line_break +
                           "Grade = 1" + line_break + " "),
                std::string::npos);
    }
  }
}

TEST_F(Lines, RewriteOfALongLastLineReplacesItWhole) {
  over("[FileHeader]\nDate = x\n[Machine]\nRemark = " + std::string(300, 'y'));
  char text[] = "short";
  EXPECT_TRUE(object_.SetMachineRemark(text));
  const std::string after = masked_bytes();
  EXPECT_EQ(after.substr(0, after.find_last_not_of(' ') + 1),
            "[FileHeader]\n" + kMaskedDate + "[Machine]\n" + entry("Remark", "short"));
}

TEST_F(Lines, SameStoreTwiceLeavesWhatOneLeaves) {
  for (const std::string& head : {std::string("[FileHeader]\nDate = x\n"),
                                  std::string("[FileHeader]\r\nDate = x\r\n"), std::string()}) {
    for (std::string text :
         {std::string("short"), std::string(110, 'v'), std::string(111, 'v'), std::string(169, 'v'),
          std::string(5000, 'v'), std::string("text\n"), std::string("text\r\n"),
          std::string("\n\n"), std::string("two\nlines"),
          std::string("two\n") + std::string(300, 'v') + "\n", std::string("  ")}) {
      SCOPED_TRACE(testing::PrintToString(text));
      const auto store = [&] {
        return object_.SetProject(text.data()) && object_.SetBCCountName(1, 2, text.data());
      };
      over(head);
      EXPECT_TRUE(store());
      const std::string once = masked_bytes();
      EXPECT_TRUE(store());
      EXPECT_EQ(masked_bytes(), once);
      EXPECT_TRUE(object_.SetMeshLayer(6));
      const std::string with_more_after = masked_bytes();
      EXPECT_TRUE(store());
      EXPECT_EQ(masked_bytes(), with_more_after);
    }
  }
}

TEST_F(Lines, AThousandStoresOfALongPathDoNotLetTheFileGrow) {
  over_missing_file().SetDefault();
  std::string path(169, 'p');
  EXPECT_TRUE(object_.SetProject(path.data()));
  const std::string once = masked_bytes();
  for (int i = 0; i < 1000; ++i) {
    ASSERT_TRUE(object_.SetProject(path.data()));
  }
  EXPECT_EQ(masked_bytes(), once);
  std::string other(300, 'q');
  EXPECT_TRUE(object_.SetProject(other.data()));
  const std::size_t size = bytes().size();
  for (int i = 0; i < 500; ++i) {
    ASSERT_TRUE(object_.SetProject(path.data()) && object_.SetProject(other.data()));
  }
  EXPECT_EQ(bytes().size(), size);
}

TEST_F(Lines, ShorterValueLeavesBlanksAtTheEndThatLaterOnesUseAgain) {
  over("[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00") + "[Machine]\n" +
       entry("Remark", "a long remark") + entry("Grade", "g"));
  const std::size_t size = bytes().size();
  char brief[] = "brief";
  char longer[] = "a longer one";
  EXPECT_TRUE(object_.SetMachineRemark(brief));
  EXPECT_EQ(bytes().size(), size);
  EXPECT_EQ(bytes().substr(size - 8), std::string(8, ' '));
  for (int i = 0; i < 50; ++i) {
    object_.SetMachineRemark(longer);
    object_.SetMachineRemark(brief);
    object_.SetMeshLayer(i % 2 == 0 ? 6 : 1000000);
  }
  EXPECT_LE(bytes().size(),
            size + std::string("\n[Summary]\n").size() + entry("TotalNdivz", "1000000").size());
}

TEST_F(Lines, MissingLastLineBreakIsWrittenFirst) {
  over("[FileHeader]\nDate = x\n[Flow-1]\nMeltTemp = 1");
  EXPECT_TRUE(object_.SetFillTime(2, 1));
  EXPECT_EQ(masked_bytes(),
            "[FileHeader]\n" + kMaskedDate + "[Flow-1]\nMeltTemp = 1\n" + entry("FillTime", "2"));
  EXPECT_EQ(fill_time(), 2);
}

TEST_F(Lines, FileOfWindowsLineBreaksKeepsThem) {
  over("[FileHeader]\r\nDate = x\r\n[Flow-1]\r\nMeltTemp = 1\r\n");
  EXPECT_TRUE(object_.SetFillTime(2, 1));
  EXPECT_TRUE(object_.SetMeshLayer(6));
  std::string expected = "[FileHeader]\n" + kMaskedDate + "[Flow-1]\nMeltTemp = 1\n" +
                         entry("FillTime", "2") + "\n[Summary]\n" + entry("TotalNdivz", "6");
  for (std::size_t at = 0; (at = expected.find('\n', at)) != std::string::npos; at += 2) {
    expected.insert(at, "\r");
  }
  EXPECT_EQ(masked_bytes(), expected);
}

TEST_F(Lines, ByteOrderMarkIsSkippedAndKept) {
  over("\xEF\xBB\xBF[Flow-1]\nFillTime = 2\n");
  EXPECT_EQ(fill_time(), 2);
  EXPECT_TRUE(object_.SetFillTime(3, 1));
  EXPECT_EQ(bytes().substr(0, 12), "\xEF\xBB\xBF[Flow-1]\n");
}

TEST_F(Lines, RestOfAnyLengthIsKept) {
  std::string rest;
  for (int i = 0; i < 70000; ++i) {
    rest += "k = v\n";
  }
  rest += "long = " + std::string(20000, 'v') + "\n";
  over("[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00") + "[Flow-1]\nFillTime = 1\n" + rest);
  EXPECT_TRUE(object_.SetFillTime(2, 1));
  EXPECT_TRUE(masked_bytes() ==
              "[FileHeader]\n" + kMaskedDate + "[Flow-1]\n" + entry("FillTime", "2") + rest);
}

TEST_F(Lines, WriteIsSeenByTheNextReadOfAnotherObject) {
  over("");
  EXPECT_TRUE(object_.SetFillTime(2, 1));
  CPROIO_Manipulator other;
  ASSERT_TRUE(other.SetFilePath(path_.c_str()));
  double time = 0;
  EXPECT_TRUE(other.GetFillTime(time, 1));
  EXPECT_EQ(time, 2);
}

TEST_F(Lines, TextWithALineFeedIsWrittenAsItStands) {
  // What a getter handed out carries its line feed; writing it back leaves an empty line after.
  char text[] = "any remark\n";
  EXPECT_TRUE(over("[FileHeader]\nDate = x\n[Machine]\nRemark = 1\n").SetMachineRemark(text));
  EXPECT_EQ(masked_bytes(),
            "[FileHeader]\n" + kMaskedDate + "[Machine]\n" + entry("Remark", "any remark\n"));
}

TEST_F(Lines, LineFeedOfATextBecomesTheFilesOwnLineBreak) {
  char text[] = "one\ntwo\r\n";
  EXPECT_TRUE(
      over("[FileHeader]\r\nDate = x\r\n[Machine]\r\nRemark = 1\r\n").SetMachineRemark(text));
  EXPECT_NE(bytes().find("[Machine]\r\nRemark         = one\r\ntwo\r\n\r\n"), std::string::npos)
      << bytes();
}

TEST_F(Lines, WritesToAFileThatCannotBeOpenedYieldTrueAndTouchNothing) {
  path_ = scratch_.path("missing/file.pro");
  object_.SetFilePath(path_.data());
  EXPECT_TRUE(object_.SetFillTime(1, 1));
  EXPECT_FALSE(exists(scratch_.path("missing")));
  path_ = scratch_.path("folder");
  std::filesystem::create_directory(path_);
  object_.SetFilePath(path_.data());
  EXPECT_TRUE(object_.SetFillTime(1, 1));
  EXPECT_TRUE(std::filesystem::is_empty(path_));
  EXPECT_EQ(fill_time(), 777);
}

// Other programs' text mode ends a file at this byte.
TEST_F(Lines, EndMarkAtTheVeryEndIsPadding) {
  const std::string head = "[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00");
  const std::string masked_head = "[FileHeader]\n" + kMaskedDate;
  for (const std::string& end :
       {std::string("\n\x1A"), std::string("\x1A"), std::string("\n  \x1A   "),
        std::string("\n\x1A \x1A"), std::string("\x1A  \x1A"),
        std::string("\n") + std::string(5000, ' ') + "\x1A" + std::string(5000, ' ')}) {
    SCOPED_TRACE(testing::PrintToString(end));
    EXPECT_EQ(remark_of(head + "[Machine]\nRemark = last" + end),
              end[0] == '\n' ? "last\n" : "last");
    EXPECT_TRUE(object_.SetFillTime(2, 1));
    EXPECT_EQ(
        masked_bytes().find(masked_head + "[Machine]\nRemark = last\n" +
                            (end[0] == '\n' ? "\n" : "") + "[Flow-1]\n" + entry("FillTime", "2")),
        0U);
    EXPECT_EQ(fill_time(), 2);
    over(head + "[Flow-1]\nMeltTemp = 3" + end);
    EXPECT_TRUE(object_.SetFillTime(2, 1));
    EXPECT_EQ(
        masked_bytes().find(masked_head + "[Flow-1]\nMeltTemp = 3\n" + entry("FillTime", "2")), 0U);
    over(head + "[Flow-1]\nFillTime = 3" + end);
    EXPECT_TRUE(object_.SetFillTime(2, 1));
    EXPECT_EQ(masked_bytes().find(masked_head + "[Flow-1]\n" + entry("FillTime", "2")), 0U);
    EXPECT_EQ(masked_bytes().find("FillTime", masked_bytes().find("= 2\n")), std::string::npos);
    over(head + "[Flow-1]" + end);
    EXPECT_TRUE(object_.SetFillTime(2, 1));
    EXPECT_EQ(masked_bytes().find(masked_head + "[Flow-1]\n" + entry("FillTime", "2")), 0U);
    over(head + "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\tTop" + end);
    int count = 0;
    char* name = nullptr;
    EXPECT_TRUE(object_.GetBCCountName(1, count, name));
    EXPECT_STREQ(name, "Top");
    EXPECT_FALSE(object_.GetBCCountName(2, count, name));
    char two[] = "Two";
    EXPECT_TRUE(object_.SetBCCountName(2, 2, two));
    EXPECT_EQ(masked_bytes().find(masked_head +
                                  "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\tTop\n2\tTwo\n"),
              0U);
  }
  over("\x1A");
  EXPECT_TRUE(object_.SetFillTime(2, 1));
  EXPECT_EQ(fill_time(), 2);
}

TEST_F(Lines, EndMarkAnywhereElseIsText) {
  EXPECT_EQ(remark_of("[Machine]\nRemark = a\x1A"
                      "b\x1A\nGrade = 1\n"),
            "a\x1A"
            "b\x1A\n");
}

TEST_F(Lines, TextWithAnEndMarkIsRefused) {
  const std::string contents = "[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00");
  over(contents);
  for (const char* text : {"\x1A", "a\x1A",
                           "\x1A"
                           "b",
                           "a\x1A"
                           "b"}) {
    std::string copy = text;
    for (const auto& row : text_accessors()) {
      if (row.set) {
        EXPECT_FALSE(row.set(object_, copy.data())) << row.name;
      }
    }
    EXPECT_FALSE(object_.SetCoolant(1, 1, 2, 3, 4, 5, copy.data(), 6, 7));
    EXPECT_FALSE(object_.SetMoldbase(1, 1, 2, 3, copy.data()));
    EXPECT_FALSE(object_.SetBCCountName(1, 2, copy.data()));
  }
  EXPECT_EQ(bytes(), contents) << "nothing is stored, and nothing stamped";
  over_missing_file();
  char mark[] = "\x1A";
  EXPECT_FALSE(object_.SetMachineRemark(mark));
  EXPECT_FALSE(exists(path_));
}

TEST_F(Lines, FileBeyondTwoGiBIsKept) {
  over("[Flow-1]\nFillTime = 1\n");
  constexpr std::uintmax_t kFar = (std::uintmax_t{2} << 30U) + 12345;
  std::filesystem::resize_file(path_, kFar);
  EXPECT_TRUE(object_.SetFillTime(2, 1));
  EXPECT_EQ(fill_time(), 1);
  EXPECT_EQ(std::filesystem::file_size(path_), kFar);
}

TEST_F(Lines, FileThatShrinksOrGoesBetweenTwoCallsIsReadAsItIs) {
  over("[Flow-1]\nMeltTemp = 1\nFillTime = 2\n");
  EXPECT_EQ(fill_time(), 2);
  put_bytes(path_, "[Flow-1]\n");
  EXPECT_EQ(fill_time(), 777);
  std::filesystem::remove(path_);
  EXPECT_EQ(fill_time(), 777);
  EXPECT_TRUE(object_.SetFillTime(3, 1));
  EXPECT_EQ(fill_time(), 3) << "the file is there again";
}

TEST_F(Lines, HostileFilesAreAnsweredByEveryGetter) {
  using namespace std::string_literals;
  for (const std::string& contents :
       {""s, "\n"s, std::string(500, ' '), std::string(20000, 'x'),
        "[Flow-2]\0\nFillTime\0 = 1\nFR-3 = \0 1 2\n"s, std::string(5000, '\0'),
        "[Flow-2]\nFillTime = "s + std::string(9000, '9') + "\n", std::string(300, '\xFF'),
        "[\n]\n=\n==\n[Flow-2]\n=\n"s, "[Flow-2]\r\r\nFillTime=1\r\r\n"s}) {
    over(contents);
    for (const auto& row : integer_accessors()) {
      int value = 777;
      if (row.get && !row.get(object_, value)) {
        EXPECT_EQ(value, 777) << row.name;
      }
    }
    for (const auto& row : real_accessors()) {
      double value = 777;
      if (row.get) {
        row.get(object_, value);
      }
    }
    for (const auto& row : text_accessors()) {
      char* value = nullptr;
      if (row.get && row.get(object_, value)) {
        EXPECT_LE(std::string(value).size(), 127U);
      }
    }
    for (const auto& row : point_accessors()) {
      double x = 777;
      double y = 777;
      if (row.get && !row.get(object_, x, y)) {
        EXPECT_EQ(x, 777) << row.name;
      }
    }
    EXPECT_EQ(bytes(), contents);
    EXPECT_TRUE(object_.SetFillTime(2, 2));
    EXPECT_EQ(fill_time(2), 2);
  }
}

TEST_F(Lines, NumbersOfAnySizeAddressTheirSectionsAndKeys) {
  over("[FileHeader]\nDate = x\n");
  for (const int number : {0, -1, 2147483647, -2147483647 - 1}) {
    EXPECT_TRUE(object_.SetFillTime(1.5, number));
    EXPECT_EQ(fill_time(number), 1.5);
    EXPECT_NE(bytes().find("[Flow-" + std::to_string(number) + "]\n"), std::string::npos);
  }
}

TEST_F(Lines, NumbersDoNotDependOnTheLocale) {
  const CommaLocale comma;
  if (!comma.is_set()) {
    GTEST_SKIP() << "the machine has no locale with a decimal comma";
  }
  over("[FileHeader]\nDate = x\n");
  object_.SetFillTime(1.5, 1);
  const double time = fill_time();
  EXPECT_EQ(time, 1.5);
  EXPECT_NE(bytes().find(entry("FillTime", "1.5")), std::string::npos);
}

}  // namespace
}  // namespace qelpro_test
