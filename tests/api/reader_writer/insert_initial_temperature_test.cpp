#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

// Part inserts and mold inserts have the same lines.

INSTANTIATE_TEST_SUITE_P(
    PartInsert, SectionReader,
    testing::Values(
        reads(READER(PartInsertInitialTemperature_ReadTotalPartInsert),
              "[PartInsertInitialTemperature]", "TotalPartInsert", "120", 120),
        reads("PartInsertInitialTemperature_ReadPartInsert",
              Taking<int&, char*&, double&, int>::of(
                  &CQELPROReader_Manipulator::PartInsertInitialTemperature_ReadPartInsert),
              "[PartInsertInitialTemperature]", "PartInsert-4", "3\tPin\t80.5", 3, "Pin", 80.5, 4),
        reads("PartInsertInitialTemperature_ReadPartInsert",
              Taking<int&, char*&, double&, int&, int>::of(
                  &CQELPROReader_Manipulator::PartInsertInitialTemperature_ReadPartInsert),
              "[PartInsertInitialTemperature]", "PartInsert-5", "3\tCore Pin A\t80.5\t2", 3,
              "Core Pin A", 80.5, 2, 5)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    PartInsert, SectionWriter,
    testing::Values(writes(WRITER(PartInsertInitialTemperature_WriteTotalPartInsert),
                           "[PartInsertInitialTemperature]", "TotalPartInsert", "123", 123),
                    writes(WRITER(PartInsertInitialTemperature_WritePartInsert),
                           "[PartInsertInitialTemperature]", "PartInsert-7", "3\tCore Pin A\t80.5",
                           3, "Core Pin A", 80.5, 7)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    MoldInsert, SectionReader,
    testing::Values(
        reads(READER(MoldInsertInitialTemperature_ReadTotalMoldInsert),
              "[MoldInsertInitialTemperature]", "TotalMoldInsert", "125", 125),
        reads("MoldInsertInitialTemperature_ReadMoldInsert",
              Taking<int&, char*&, double&, int>::of(
                  &CQELPROReader_Manipulator::MoldInsertInitialTemperature_ReadMoldInsert),
              "[MoldInsertInitialTemperature]", "MoldInsert-9", "3\tPin\t80.5", 3, "Pin", 80.5, 9),
        reads("MoldInsertInitialTemperature_ReadMoldInsert",
              Taking<int&, char*&, double&, int&, int>::of(
                  &CQELPROReader_Manipulator::MoldInsertInitialTemperature_ReadMoldInsert),
              "[MoldInsertInitialTemperature]", "MoldInsert-3", "3\tCore Pin A\t80.5\t2", 3,
              "Core Pin A", 80.5, 2, 3)),
    name_of_row);

INSTANTIATE_TEST_SUITE_P(
    MoldInsert, SectionWriter,
    testing::Values(writes(WRITER(MoldInsertInitialTemperature_WriteTotalMoldInsert),
                           "[MoldInsertInitialTemperature]", "TotalMoldInsert", "128", 128),
                    writes(WRITER(MoldInsertInitialTemperature_WriteMoldInsert),
                           "[MoldInsertInitialTemperature]", "MoldInsert-5", "3\tCore Pin A\t80.5",
                           3, "Core Pin A", 80.5, 5)),
    name_of_row);

struct PartInserts {
  static constexpr const char* kFront = "[PartInsertInitialTemperature]\nPartInsert-";
  static constexpr const char* kKey = "PartInsert-";
  template <class... Outputs>
  static bool read(Reader& reader, Outputs&&... outputs) {
    return reader.PartInsertInitialTemperature_ReadPartInsert(outputs...);
  }
  static bool write(Writer& writer, int id, char* name, double temperature, int insert) {
    return writer.PartInsertInitialTemperature_WritePartInsert(id, name, temperature, insert);
  }
};

struct MoldInserts {
  static constexpr const char* kFront = "[MoldInsertInitialTemperature]\nMoldInsert-";
  static constexpr const char* kKey = "MoldInsert-";
  template <class... Outputs>
  static bool read(Reader& reader, Outputs&&... outputs) {
    return reader.MoldInsertInitialTemperature_ReadMoldInsert(outputs...);
  }
  static bool write(Writer& writer, int id, char* name, double temperature, int insert) {
    return writer.MoldInsertInitialTemperature_WriteMoldInsert(id, name, temperature, insert);
  }
};

template <class Inserts>
class Insert : public testing::Test {};
struct InsertName {
  template <class Inserts>
  static std::string GetName(int) {
    return std::string(Inserts::kKey).substr(0, 4);
  }
};
using BothInserts = testing::Types<PartInserts, MoldInserts>;
TYPED_TEST_SUITE(Insert, BothInserts, InsertName);

struct Line {
  int id;
  const char* name;
  double temperature;
  int fourth;
};

// What the four-output reader makes of the line of an insert.
template <class Inserts>
void expect_line(const std::string& text, int number, const Line& expected) {
  const Scratch scratch;
  const std::string path =
      scratch.file(Inserts::kFront + std::to_string(number) + " = " + text + "\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char before[] = "before";
  int id = -1;
  char* name = before;
  double temperature = -1;
  int fourth = -1;
  EXPECT_TRUE(Inserts::read(reader, id, name, temperature, fourth, number)) << text;
  EXPECT_EQ(id, expected.id) << text;
  EXPECT_STREQ(name, expected.name) << text;
  EXPECT_EQ(temperature, expected.temperature) << text;
  EXPECT_EQ(fourth, expected.fourth) << text;
}

TYPED_TEST(Insert, FourPiecesBetweenTabs) {
  expect_line<TypeParam>("3\tCore Pin A\t80\t2", 1, {3, "Core Pin A", 80, 2});
  expect_line<TypeParam>("3\tCore  Pin\t80.5\t9", 1, {3, "Core  Pin", 80.5, 9});
}

TYPED_TEST(Insert, FourPiecesAreTheFourFieldsWhateverIsEmpty) {
  expect_line<TypeParam>("3\t\t80\t2", 1, {3, "", 80, 2});
  expect_line<TypeParam>("3\t \t80.5\t9", 1, {3, " ", 80.5, 9});
  expect_line<TypeParam>("\tCore Pin\t80\t1", 1, {0, "Core Pin", 80, 1});
  expect_line<TypeParam>("\t\t80\t1", 1, {0, "", 80, 1});
  expect_line<TypeParam>("3\t\t\t9", 1, {3, "", 0, 9});
  expect_line<TypeParam>("3\t\t\t2", 5, {3, "", 0, 2});
  expect_line<TypeParam>("3\tPin A\t\t2", 1, {3, "Pin A", 0, 2});
  expect_line<TypeParam>("\t\t\t9", 1, {0, "", 0, 9});
  expect_line<TypeParam>("3\t\tPin\t80", 1, {3, "", 0, 80});
}

TYPED_TEST(Insert, ThreePiecesWithAnEmptyNameLeaveOutTheFourthField) {
  expect_line<TypeParam>("3\t\t80", 1, {3, "", 80, 1});
  expect_line<TypeParam>("7\t\t1", 2, {7, "", 1, 2});
  expect_line<TypeParam>("7\t \t-4.5", 2, {7, "", -4.5, 2});
}

TYPED_TEST(Insert, TabsThatOnlyAlignTheFieldsAreNoEmptyName) {
  expect_line<TypeParam>("3\t\tPin 80", 1, {3, "Pin", 80, 1});
  expect_line<TypeParam>("3\t\tPin A\t80\t2", 1, {3, "Pin A", 80, 2});
  expect_line<TypeParam>("\t3\tPin A\t80\t2", 1, {3, "Pin A", 80, 2});
}

TYPED_TEST(Insert, WithAWholeTemperatureUpToItsNumberReadsBackWithoutAName) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  char none[] = "";
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(TypeParam::write(writer, 7, none, 1, 2));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int id = -1;
  char* name = nullptr;
  double temperature = -1;
  int fourth = -1;
  EXPECT_TRUE(TypeParam::read(reader, id, name, temperature, fourth, 2));
  EXPECT_EQ(id, 7);
  EXPECT_STREQ(name, "");
  EXPECT_EQ(temperature, 1);
  EXPECT_EQ(fourth, 2);
}

TYPED_TEST(Insert, NameWithBlanksReadsBackWhereTheTemperatureIsAWholeNumberAboveItsNumber) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  char given[] = "Core  Pin A";
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  const struct {
    double temperature;
    Line read;
  } rows[] = {{80, {3, "Core Pin A", 80, 4}},
              {4, {3, "Core Pin", 0, 4}},
              {80.5, {3, "Core Pin A", 80.5, 4}},
              {2.5, {3, "Core Pin", 0, 2}}};
  for (const auto& row : rows) {
    ASSERT_TRUE(TypeParam::write(writer, 3, given, row.temperature, 4));
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int id = -1;
    char* name = nullptr;
    double temperature = -1;
    int fourth = -1;
    EXPECT_TRUE(TypeParam::read(reader, id, name, temperature, fourth, 4));
    EXPECT_EQ(id, row.read.id) << row.temperature;
    EXPECT_STREQ(name, row.read.name) << row.temperature;
    EXPECT_EQ(temperature, row.read.temperature) << row.temperature;
    EXPECT_EQ(fourth, row.read.fourth) << row.temperature;
  }
}

TYPED_TEST(Insert, WithoutANameReadsBackWithoutOne) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  char blanks[] = "  ";
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  for (char* none : {blanks + 2, blanks}) {
    ASSERT_TRUE(TypeParam::write(writer, 3, none, 80.5, 1));
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int id = -1;
    char* name = nullptr;
    double temperature = -1;
    int fourth = -1;
    EXPECT_TRUE(TypeParam::read(reader, id, name, temperature, 1));
    EXPECT_EQ(id, 3);
    EXPECT_STREQ(name, "");
    EXPECT_EQ(temperature, 80.5);
    EXPECT_TRUE(TypeParam::read(reader, id, name, temperature, fourth, 1));
    EXPECT_EQ(id, 3);
    EXPECT_STREQ(name, "");
    EXPECT_EQ(temperature, 80.5);
    EXPECT_EQ(fourth, 1);
  }
}

TYPED_TEST(Insert, OfThreeOutputsTakesAnEmptyNameOnlyBeforeANumber) {
  const Scratch scratch;
  const struct {
    const char* text;
    const char* name;
    double temperature;
  } rows[] = {{"3\t\t80\t2", "", 80},       {"3\t\tPin\t80", "Pin", 80},
              {"3\t\t80 Pin\t70", "80", 0}, {"3\t\tnano\t70", "nano", 70},
              {"3\t80", "80", 0},           {"3\t\t\t9", "", 0},
              {"3\t\t\tPin", "Pin", 0}};
  for (const auto& row : rows) {
    const std::string path =
        scratch.file(std::string(TypeParam::kFront) + "1 = " + row.text + "\n");
    Reader reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int id = -1;
    char* name = nullptr;
    double temperature = -1;
    EXPECT_TRUE(TypeParam::read(reader, id, name, temperature, 1));
    EXPECT_EQ(id, 3) << row.text;
    EXPECT_STREQ(name, row.name) << row.text;
    EXPECT_EQ(temperature, row.temperature) << row.text;
  }
}

TYPED_TEST(Insert, LastWordAboveTheInsertNumberIsTheTemperature) {
  expect_line<TypeParam>("3\tCore Pin A\t80", 1, {3, "Core Pin A", 80, 1});
  expect_line<TypeParam>("3 Core   Pin 80.5", 2, {3, "Core Pin", 80.5, 2});
}

TYPED_TEST(Insert, LastWordUpToTheInsertNumberIsTheFourthField) {
  expect_line<TypeParam>("4 Plate 1 2", 2, {4, "Plate", 1, 2});
  expect_line<TypeParam>("4 Plate 60.5 -3", 2, {4, "Plate", 60.5, -3});
}

TYPED_TEST(Insert, WholeTemperatureUpToTheInsertNumberIsTakenForTheFourthField) {
  // "5" is the temperature, and reads as the fourth field of insert 7; no number is left for the
  // temperature.
  expect_line<TypeParam>("3 40 Pin 5", 7, {3, "40", 0, 5});
}

TYPED_TEST(Insert, LastWordThatIsNoNumberLeavesAllWordsToTheName) {
  expect_line<TypeParam>("3 Pin hot", 1, {0, "3 Pin hot", 0, 0});
}

TYPED_TEST(Insert, LineWithoutWordsHasNoName) {
  expect_line<TypeParam>("", 1, {0, nullptr, 0, 0});
  expect_line<TypeParam>("9", 1, {0, nullptr, 9, 1});
}

TYPED_TEST(Insert, ThreeOutputsTakeTheFirstWordForTheName) {
  const Scratch scratch;
  const std::string path = scratch.file(std::string(TypeParam::kFront) + "1 = 3\tCore Pin A\t80\n" +
                                        TypeParam::kKey + "2 = \n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int id = -1;
  char* name = nullptr;
  double temperature = -1;
  EXPECT_TRUE(TypeParam::read(reader, id, name, temperature, 1));
  EXPECT_EQ(id, 3);
  EXPECT_STREQ(name, "Core");
  EXPECT_EQ(temperature, 0);
  EXPECT_TRUE(TypeParam::read(reader, id, name, temperature, 2));
  EXPECT_EQ(id, 0);
  EXPECT_STREQ(name, "");
  EXPECT_EQ(temperature, 0);
}

}  // namespace
}  // namespace qelpro_test
