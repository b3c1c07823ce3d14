#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "api/proio/support.h"

// The boundary conditions stand in lines that are addressed by position. They end where the next
// section begins, and no other section's entry is one of them.

namespace qelpro_test {
namespace {

const std::string kBlock = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n";
const std::string kStamp = "[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00");
const std::string kStamped = "[FileHeader]\n" + kMaskedDate;

// What begins a section, and what does not.
const char* const kHeaders[] = {"[Cool]",
                                "[Cool] note",
                                "[A HEADER] of words",
                                "[Cool] # a = b",
                                "[Cool]\tnote",
                                "[Cool] \t ",
                                "[Cool]note = [x]",
                                "[A HEADER OF WORDS]",
                                "[A HEADER OF WORDS] \t",
                                "[SURFACE ELEMENT BOUNDARY CONDITION NAME]",
                                "[SURFACE ELEMENT BOUNDARY CONDITION NAME] again",
                                "[]"};
const char* const kOtherLines[] = {"[Cool] = 5", "[Cool]=5", "[Cool] \t= 5",       "[Cool",
                                   "Cool]",      " [Cool]",  "[A HEADER]of words", "[A=] b",
                                   "[",          "x [Cool]"};

std::string windows(std::string text) {
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) {
    text.insert(at, "\r");
  }
  return text;
}

class Positions : public ProcessObject {
 protected:
  bool set_name(int line, int count, std::string name) {
    return object_.SetBCCountName(line, count, name.data());
  }
  std::string name_at(int line) {
    int count = 777;
    char* name = nullptr;
    const bool found = object_.GetBCCountName(line, count, name);
    EXPECT_EQ(found, name != nullptr);
    EXPECT_EQ(found, count != 777);
    return found ? std::to_string(count) + " " + name : "(none)";
  }
  std::string point_at(int bc, int point) {
    double x = 777;
    double y = 777;
    const bool found = object_.GetBCProfile(bc, point, x, y);
    EXPECT_TRUE(found || (x == 777 && y == 777));
    return found ? std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y))
                 : "(none)";
  }
  int boundary_conditions() {
    int count = 777;
    object_.GetBoundaryConditionNo(count);
    return count;
  }
  double cool_time() {
    double time = 777;
    object_.GetCoolTime(time);
    return time;
  }
};

TEST_F(Positions, PointsAfterTheBlockLeaveTheNextSectionAlone) {
  over("");
  char file[] = "x";
  EXPECT_TRUE(object_.SetFileName(file) && object_.SetBoundaryConditionNo(1) &&
              set_name(1, 2, "top"));
  EXPECT_TRUE(object_.SetBCProfile(1, 1, 0, 5) && object_.SetBCProfile(1, 2, 1, 5));
  EXPECT_TRUE(object_.SetCoolTime(12) && object_.SetOpenTime(3));
  EXPECT_TRUE(set_name(1, 4, "top") && object_.SetBCProfile(1, 3, 2, 5) &&
              object_.SetBCProfile(1, 4, 3, 5));
  EXPECT_EQ(name_at(1), "4 top");
  EXPECT_EQ(point_at(1, 1) + ", " + point_at(1, 2) + ", " + point_at(1, 3) + ", " + point_at(1, 4),
            "0 5, 1 5, 2 5, 3 5");
  EXPECT_EQ(cool_time(), 12);
  double open_time = 0;
  EXPECT_TRUE(object_.GetOpenTime(open_time));
  EXPECT_EQ(open_time, 3);
  EXPECT_NE(bytes().find("[Cool]"), std::string::npos);
}

TEST_F(Positions, NewKeyAfterTheBlockIsNoneOfItsLines) {
  over_missing_file();
  EXPECT_TRUE(object_.SetDefault() && set_name(1, 2, "top") && object_.SetBoundaryConditionNo(1));
  EXPECT_TRUE(object_.SetBCProfile(1, 1, 0, 5) && object_.SetBCProfile(1, 2, 1, 6));
  EXPECT_EQ(boundary_conditions(), 1);
  EXPECT_EQ(name_at(1), "2 top");
  EXPECT_EQ(point_at(1, 1), "0 5");
  EXPECT_EQ(point_at(1, 2), "1 6");
  EXPECT_EQ(point_at(1, 3), "(none)");
}

TEST_F(Positions, AfterTheNextHeaderNothingIsFound) {
  for (const std::string header : kHeaders) {
    SCOPED_TRACE(header);
    over("[Summary]\nTotalNodeBC = 1\n" + kBlock + "1\tTop\n1 = 2\t3\n" + header +
         "\n5\tFive\n1 = 7\t8\n");
    EXPECT_EQ(name_at(1), "1 Top");
    EXPECT_EQ(name_at(3) + name_at(4) + name_at(5), "(none)(none)(none)");
    EXPECT_EQ(point_at(1, 1), "2 3");
    EXPECT_EQ(point_at(1, 2) + point_at(1, 3) + point_at(1, 4), "(none)(none)(none)");
    int count = 777;
    int type = 777;
    char* name = nullptr;
    EXPECT_FALSE(object_.GetBCSetting(3, count, name, type));
    EXPECT_TRUE(count == 777 && type == 777 && name == nullptr);
    EXPECT_EQ(point_at(5, 1), "(none)") << "its name lines do not go on there either";
  }
}

TEST_F(Positions, LineThatBeginsNoSectionIsOneOfTheBlock) {
  for (const std::string other : kOtherLines) {
    SCOPED_TRACE(other);
    over(kStamp + kBlock + "1\tTop\n" + other + "\n5\tFive\n");
    EXPECT_EQ(name_at(3), "5 Five");
    EXPECT_TRUE(set_name(3, 6, "Six"));
    EXPECT_EQ(masked_bytes().substr(0, masked_bytes().find_last_not_of(' ') + 1),
              kStamped + kBlock + "1\tTop\n" + other + "\n6\tSix\n");
  }
}

TEST_F(Positions, LineAfterTheLastIsWrittenInFrontOfTheNextHeader) {
  for (const std::string header : kHeaders) {
    for (const bool carriage_returns : {false, true}) {
      SCOPED_TRACE(header);
      const auto text = [&](const std::string& lines) {
        const std::string all = kStamped + kBlock + lines + header + "\nCoolTime = 5\n";
        return carriage_returns ? windows(all) : all;
      };
      const auto with_date = [&](std::string all) {
        return all.replace(all.find("<date>"), 6, "2001/01/01 00:00:00");
      };
      over(with_date(text("1\tTop\n")));
      EXPECT_TRUE(set_name(2, 5, "Five"));
      EXPECT_EQ(masked_bytes(), text("1\tTop\n5\tFive\n"));
      EXPECT_EQ(name_at(2), "5 Five");
      EXPECT_TRUE(set_name(9, 6, "Six"));
      EXPECT_EQ(masked_bytes(), text("1\tTop\n5\tFive\n6\tSix\n"));
      EXPECT_EQ(name_at(3), "6 Six");
      over(with_date(text("")));
      EXPECT_TRUE(set_name(1, 5, "Five"));
      EXPECT_EQ(masked_bytes(), text("5\tFive\n")) << "into a block without a line";
    }
  }
}

TEST_F(Positions, EmptyLineInFrontOfTheNextHeaderIsALine) {
  over(kStamp + kBlock + "1\tTop\n\n[Cool]\nCoolTime = 5\n");
  EXPECT_TRUE(set_name(2, 2, "Two"));
  EXPECT_EQ(masked_bytes(), kStamped + kBlock + "1\tTop\n2\tTwo\n[Cool]\nCoolTime = 5\n");
  EXPECT_TRUE(set_name(3, 3, "Three"));
  EXPECT_EQ(masked_bytes(), kStamped + kBlock + "1\tTop\n2\tTwo\n3\tThree\n[Cool]\nCoolTime = 5\n");
  over(kStamp + kBlock + "1\tTop\n\n[Cool]\nCoolTime = 5\n");
  EXPECT_TRUE(set_name(3, 3, "Three"));
  EXPECT_EQ(masked_bytes(), kStamped + kBlock + "1\tTop\n\n3\tThree\n[Cool]\nCoolTime = 5\n");
  EXPECT_EQ(name_at(3), "3 Three");
}

// Where a new key lands, and that it is read back while every line of the block is what it was.
TEST_F(Positions, NewKeyGoesIntoItsSectionWhereTheBlockIsLast) {
  const std::string block = "\n" + kBlock + "1\tTop\n1 = 2\t3\n";
  const std::string key = entry("CoolTime", "5");
  const struct {
    const char* what;
    std::string before;
    std::string after;
  } rows[] = {
      {"its section is the one before", "[Cool]\nOpenTime = 1\n" + block,
       "[Cool]\nOpenTime = 1\n" + key + block},
      {"no line between", "[Cool]\nOpenTime = 1\n" + block.substr(1),
       "[Cool]\nOpenTime = 1\n" + key + block.substr(1)},
      {"two empty lines between", "[Cool]\nOpenTime = 1\n\n" + block,
       "[Cool]\nOpenTime = 1\n" + key + "\n" + block},
      {"its section has no line", "[Cool]" + block, "[Cool]\n" + key + block.substr(1)},
      {"another section between", "[Cool]\nOpenTime = 1\n\n[Pack-1]\nx = 1\n" + block,
       "[Cool]\nOpenTime = 1\n" + key + "\n[Pack-1]\nx = 1\n" + block},
      {"a header with words between", "[Cool] a\n[Pack-1] note\nx = 1\n" + block,
       "[Cool] a\n" + key + "[Pack-1] note\nx = 1\n" + block},
      {"a header with words of the block", "[Cool]\n[SURFACE X] note\n1\tTop\n",
       "[Cool]\n" + key + "[SURFACE X] note\n1\tTop\n"},
      {"no section", "[Pack-1]\nx = 1\n" + block, "[Pack-1]\nx = 1\n" + block + "\n[Cool]\n" + key},
      {"its name in a line of the block", "[Pack-1]\n" + block + "[Cool] = x\n",
       "[Pack-1]\n" + block + "[Cool] = x\n\n[Cool]\n" + key},
      {"no line break at the end", "[Cool]\n" + kBlock + "1\tTop",
       "[Cool]\n" + key + kBlock + "1\tTop"},
      {"no section and no line break at the end", kBlock + "1\tTop",
       kBlock + "1\tTop\n[Cool]\n" + key},
      {"a long line in front of the block", "[Cool]\n" + std::string(200, 'y') + "\n" + block,
       "[Cool]\n" + std::string(200, 'y') + "\n" + key + block},
  };
  for (const auto& row : rows) {
    for (const bool carriage_returns : {false, true}) {
      for (const bool mark : {false, true}) {
        SCOPED_TRACE(row.what);
        const auto text = [&](const std::string& lines) {
          return (mark ? "\xEF\xBB\xBF" : "") + (carriage_returns ? windows(lines) : lines);
        };
        over(text(kStamp + row.before));
        const std::string lines = name_at(1) + name_at(2);
        EXPECT_TRUE(object_.SetCoolTime(5));
        EXPECT_EQ(masked_bytes(), text(kStamped + row.after));
        EXPECT_EQ(cool_time(), 5);
        EXPECT_EQ(name_at(1) + name_at(2), lines);
      }
    }
  }
}

TEST_F(Positions, NewKeyGoesToTheEndOfTheFileWhereAnotherSectionIsLast) {
  const std::string block = kBlock + "1\tTop\n";
  for (const std::string header :
       {"[Last]", "[Last] note", "[LAST ONE]", "[SURFACE ELEMENT BOUNDARY CONDITION NAME]"}) {
    over(kStamp + "[Cool]\nOpenTime = 1\n" + block + header + "\nz = 1\n");
    EXPECT_TRUE(object_.SetCoolTime(5));
    EXPECT_EQ(masked_bytes(), kStamped + "[Cool]\nOpenTime = 1\n" + block + header + "\nz = 1\n" +
                                  entry("CoolTime", "5"));
    EXPECT_EQ(cool_time(), 5);
  }
}

TEST_F(Positions, NewKeyIsFoundByEveryReaderOfTheFile) {
  over(kStamp + "[Summary]\nTotalNdivz = 6\n\n" + kBlock + "2\tTop\n");
  EXPECT_TRUE(object_.SetBoundaryConditionNo(1));
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  char buffer[64];
  char* value = nullptr;
  EXPECT_TRUE(reader.ReadString("[Summary]", "TotalNodeBC", value, buffer, sizeof buffer));
  EXPECT_STREQ(value, "1");
}

TEST_F(Positions, StampOfANewHeadDoesNotCountAsALine) {
  over("[FileHeader]\nName = x\n" + kBlock + "1\tTop\n");
  EXPECT_TRUE(set_name(2, 2, "Two"));
  EXPECT_EQ(masked_bytes(), "[FileHeader]\nName = x\n" + kMaskedDate + kBlock + "1\tTop\n2\tTwo\n");
  over("[Pack-1]\nx = 1\n" + kBlock + "1\tTop\n");
  EXPECT_TRUE(set_name(2, 2, "Two"));
  EXPECT_TRUE(set_name(3, 3, "Three"));
  EXPECT_TRUE(set_name(4, 4, "Four"));
  EXPECT_EQ(name_at(1) + name_at(2) + name_at(3) + name_at(4), "1 Top2 Two3 Three4 Four");
  EXPECT_EQ(masked_bytes(), "[Pack-1]\nx = 1\n" + kBlock +
                                "1\tTop\n2\tTwo\n3\tThree\n4\tFour\n[FileHeader]\n" + kMaskedDate);
}

TEST_F(Positions, LinesWrittenInOrderStandOneBelowTheOther) {
  for (const std::string& before : {std::string("\n"), kStamp, kStamp + "[Cool]\nOpenTime = 1\n",
                                    kStamp + kBlock, kStamp + kBlock + "[Cool]\nx = 1\n"}) {
    over(before);
    std::string lines;
    for (int line = 1; line <= 9; ++line) {
      EXPECT_TRUE(set_name(line, line, "n" + std::to_string(line)));
      lines += std::to_string(line) + "\tn" + std::to_string(line) + "\n";
      if (line % 3 == 0) {
        EXPECT_TRUE(object_.SetBoundaryConditionNo(line) && object_.SetCoolTime(line));
      }
      EXPECT_NE(bytes().find(lines), std::string::npos) << bytes();
    }
    EXPECT_EQ(boundary_conditions(), 9);
    EXPECT_EQ(cool_time(), 9);
  }
}

TEST_F(Positions, PaddingIsNoLineAndIsUsedAgain) {
  over(kStamp + kBlock +
       "1\tTop\n1 = 2\t3\n[Cool]\nRemark = a long line that is going to be a short one\n");
  const std::size_t size = bytes().size();
  put_bytes(path_, kStamp + kBlock + "1\tTop\n" + std::string(60, ' '));
  EXPECT_EQ(name_at(2), "(none)");
  EXPECT_TRUE(set_name(2, 2, "Two"));
  EXPECT_TRUE(object_.SetCoolTime(5));
  EXPECT_EQ(name_at(2), "2 Two");
  EXPECT_EQ(cool_time(), 5);
  EXPECT_LE(bytes().size(), size);
}

// A line of more than 127 characters counts as several lines, and a section does not begin within
// one.
TEST_F(Positions, HeaderWithinALongLineEndsNothing) {
  const std::string filler(127, 'y');
  over(kStamp + kBlock + "1\tTop\n" + filler + "[Cool] x\n4\tFour\n");
  EXPECT_EQ(name_at(4), "4 Four");
  over(kStamp + "[Cool]\nOpenTime = 1\n" + filler + "[Pack-1]\nz = 1\n" + kBlock + "1\tTop\n");
  EXPECT_TRUE(object_.SetCoolTime(5));
  EXPECT_EQ(masked_bytes(), kStamped + "[Cool]\nOpenTime = 1\n" + filler + "[Pack-1]\nz = 1\n" +
                                entry("CoolTime", "5") + kBlock + "1\tTop\n");
}

TEST_F(Positions, WithoutACountOfConditionsBothWaysCountNone) {
  for (const std::string& head : {std::string(), std::string("[Summary]\nTotalNdivz = 6\n"),
                                  std::string("[Summary]\nTotalNodeBC = many\n")}) {
    over(kStamp + head);
    EXPECT_TRUE(object_.SetBCProfile(1, 1, 2, 3) && object_.SetBCProfile(1, 2, 4, 5));
    EXPECT_NE(masked_bytes().find(kBlock + "1 = 2\t3\n2 = 4\t5\n"), std::string::npos);
    EXPECT_EQ(point_at(1, 1) + ", " + point_at(1, 2) + ", " + point_at(1, 3), "2 3, 4 5, (none)");
  }
}

TEST_F(Positions, BelowOneIsRefusedAndCreatesNoFile) {
  over_missing_file();
  EXPECT_FALSE(object_.SetBCProfile(1, 0, 1, 2));
  EXPECT_FALSE(object_.SetBCProfile(1, -5, 1, 2));
  EXPECT_FALSE(set_name(0, 1, "x"));
  EXPECT_FALSE(exists(path_));
  EXPECT_EQ(point_at(1, 0) + point_at(1, -5), "(none)(none)");
  over("[Summary]\nTotalNodeBC = 1\n" + kBlock + "-9\tTop\n");
  EXPECT_FALSE(object_.SetBCProfile(2, 1, 1, 2));
  EXPECT_EQ(bytes(), "[Summary]\nTotalNodeBC = 1\n" + kBlock + "-9\tTop\n");
}

}  // namespace
}  // namespace qelpro_test
