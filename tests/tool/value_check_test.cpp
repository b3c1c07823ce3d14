#include "file/value_check.h"

#include <gmock/gmock.h>

#include <random>
#include <string>
#include <vector>

#include "blocks/catalogue.h"
#include "blocks/machine.h"
#include "blocks/mold_temperature_bc_x.h"

namespace {

using namespace qelpro;

std::string unread(const char* section, const char* key, const std::string& text) {
  int number = 0;
  const Reading reading = reading_of(qel::find_section(section, number), key, text);
  EXPECT_NE(reading.key, nullptr) << section << " " << key;
  return reading.unread.value_or("");
}

TEST(ValueCheck, KnowsEveryEncodingOfTheCatalogue) {
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    for (const qel::KeyInfo& key : section->keys) {
      EXPECT_TRUE(is_checked(key.encoding->name)) << key.encoding->name;
    }
  }
}

TEST(ValueCheck, ReadsWholeWhatTheWritersWrite) {
  const std::vector<std::vector<std::string>> rows = {
      {"[Flow-1]", "FillTime", "1.2e-007"},
      {"[Flow-1]", "FR-1", "0\t50"},
      {"[Flow-1]", "Material", "any text, 1,5"},
      {"[RamPosition]", "RP_IP-1", "7"},
      {"[RamPosition]", "RP_IP-1", "7\t8"},
      {"[Machine]", "PlatenSize(HxV)", "1200x900"},
      {"[Machine]", "MachineDimension(LxWxH)", "5.2x1.4x2.1"},
      {"[MoldThermalBoundaryType]", "Flow", "900\t(W/m2)"},
      {"[GateValve-1]", "GC-1", "5\t1\t2\t3"},
      {"[GateValve-1]", "GC-1", "5\t1\t4"},
      {"[CaeHeader]", "ProjectType", "1 2"},
      {"[CaeHeader]", "ProjectType", "8"},
      {"[PartInsertInitialTemperature]", "PartInsert-1", "3\t\t80"},
      {"[PartInsertInitialTemperature]", "PartInsert-1", "3\t \t80\t"}};
  for (const auto& row : rows) {
    EXPECT_EQ(unread(row[0].c_str(), row[1].c_str(), row[2]), "") << testing::PrintToString(row);
  }
}

TEST(ValueCheck, TellsWhatIsNotRead) {
  const std::vector<std::vector<std::string>> rows = {
      {"[Flow-1]", "FillTime", "", "a number is missing"},
      {"[Flow-1]", "FillTime", "1.5abc", "\"abc\" is not read"},
      {"[Flow-1]", "FillTime", "1,5", "\",5\" is not read: the decimal point is \".\""},
      {"[Flow-1]", "FillTime", "1e999", "field 1 is a number that is too large"},
      {"[Flow-1]", "FRSet", "2.5", "\".5\" is not read"},
      {"[Flow-1]", "FRSet", "99999999999", "field 1 is a whole number beyond 32 bits"},
      {"[Flow-1]", "FR-1", "0", "field 2, a number, is missing"},
      {"[Flow-1]", "FR-1", "0 x", "field 2, a number, does not begin with \"x\""},
      {"[Flow-1]", "FR-1", "0 1 2", "\"2\" is not read"},
      {"[GateValve-1]", "GC-1", "5 1 2", "field 4, a whole number, is missing"}};
  for (const auto& row : rows) {
    EXPECT_EQ(unread(row[0].c_str(), row[1].c_str(), row[2]), row[3])
        << testing::PrintToString(row);
  }
}

TEST(ValueCheck, TakesAZeroBeforeASeparatorForANumber) {
  EXPECT_EQ(unread_part(qel::Key<qel::SizePair>{"", {}, {}, ""}, "0x900", 0), std::nullopt);
  EXPECT_EQ(unread_part(qel::Key<qel::SizePair>{"", {}, {}, ""}, "1200", 0),
            "the separator is missing");
  EXPECT_EQ(unread_part(qel::Key<qel::SizePair>{"", {}, {}, ""}, "1200x", 0),
            "field 2, a number, is missing");
}

TEST(ValueCheck, TakesAPositionalHeaderLineWithoutItsLastNumber) {
  EXPECT_EQ(unread_part(qel::Key<qel::PositionalHeader>{"", {}, {}, ""}, "2\ttop", 0),
            std::nullopt);
  EXPECT_EQ(unread_part(qel::Key<qel::PositionalHeader>{"", {}, {}, ""}, "2\ttop\tx", 0),
            "field 3, a whole number, does not begin with \"x\"");
}

TEST(ValueCheck, ReadsPlainlyWhatItReadsWholeAndWithTheSameFields) {
  const qel::KeyInfo rows[] = {
      qel::Key<qel::Integer>{"", {}, {}, ""}, qel::Key<qel::Real>{"", {}, {}, ""},
      qel::Key<qel::IntegerPair>{"", {}, {}, ""}, qel::Key<qel::RealPair>{"", {}, {}, ""},
      qel::Key<qel::RealTriple>{"", {}, {}, ""}};
  const std::vector<std::string> parts{"1",
                                       "-2",
                                       "+3",
                                       "1.5",
                                       ".5",
                                       "5.",
                                       "1e3",
                                       "1e400",
                                       "nan",
                                       "inf",
                                       "0x1F",
                                       ",",
                                       ".",
                                       " ",
                                       "\t",
                                       " ",
                                       "\v",
                                       "\n",
                                       "x",
                                       "-",
                                       "007",
                                       "2147483647",
                                       "2147483648",
                                       "-2147483648",
                                       "99999999999999999999",
                                       std::string(1, '\0'),
                                       std::string(60, '0')};
  std::mt19937 random(20261122);
  int plain = 0;
  std::vector<qel::Field> fields;
  for (int round = 0; round < 40000; ++round) {
    std::string text;
    for (std::size_t count = random() % 6; count != 0; --count) {
      text += parts[random() % parts.size()];
    }
    for (const qel::KeyInfo& row : rows) {
      if (read_plainly(row, text, fields)) {
        ++plain;
        EXPECT_FALSE(fault_of(row, text, 0)) << text;
        EXPECT_EQ(fields, row.encoding->fields(text.c_str(), 0)) << text;
      }
    }
  }
  EXPECT_GT(plain, 5000);
  EXPECT_TRUE(read_plainly(rows[3], "10\t99.5", fields));
  EXPECT_EQ(fields, (std::vector<qel::Field>{10.0, 99.5}));
  EXPECT_FALSE(read_plainly(qel::Key<qel::Text>{"", {}, {}, ""}, "10", fields));
}

TEST(ValueCheck, TellsNothingOfKeysThatAreNotKnown) {
  int number = 0;
  EXPECT_EQ(reading_of(qel::find_section("[Flow-1]", number), "Own", "x").key, nullptr);
  EXPECT_EQ(reading_of(nullptr, "Own", "x").key, nullptr);
}

}  // namespace
