#include <gtest/gtest.h>

#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(MoldMetalMaterial, SectionReader,
                         testing::Values(reads(READER(MoldMetalMaterial_ReadMaterial),
                                               "[MoldMetalMaterial]", "8",
                                               "7.8\t0.46\t29.5\tP20\t1\t2\t3.25", 7.8, 0.46, 29.5,
                                               "P20", 1.0, 2.0, 3.25, 8)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(MoldMetalMaterial, SectionWriter,
                         testing::Values(writes(WRITER(MoldMetalMaterial_WriteMaterial),
                                                "[MoldMetalMaterial]", "9",
                                                "7.8\t0.46\t29.5\tP20\t1\t2\t3.25", 7.8, 0.46, 29.5,
                                                "P20", 1.0, 2.0, 3.25, 9)),
                         name_of_row);

struct Row {
  double a = -1;
  double b = -1;
  double c = -1;
  char* name = nullptr;
  double d = -1;
  double e = -1;
  double f = -1;
};

Row row_of(const std::string& text) {
  const Scratch scratch;
  const std::string path = scratch.file("[MoldMetalMaterial]\n1 = " + text + "\n");
  Reader reader;
  Row row;
  EXPECT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(
      reader.MoldMetalMaterial_ReadMaterial(row.a, row.b, row.c, row.name, row.d, row.e, row.f, 1))
      << text;
  return row;
}

void expect(const Row& row, double a, double b, double c, const char* name, double d, double e,
            double f) {
  EXPECT_EQ(row.a, a);
  EXPECT_EQ(row.b, b);
  EXPECT_EQ(row.c, c);
  EXPECT_STREQ(row.name, name);
  EXPECT_EQ(row.d, d);
  EXPECT_EQ(row.e, e);
  EXPECT_EQ(row.f, f);
}

TEST(MoldMetalMaterial, NameMayHoldBlanks) {
  expect(row_of("7.8 0.46 29 Tool Steel P20 1 2 3"), 7.8, 0.46, 29, "Tool Steel P20", 1, 2, 3);
}

TEST(MoldMetalMaterial, NameOfTwoWords) {
  expect(row_of("7.8 0.46 29 Tool Steel 1 2 3"), 7.8, 0.46, 29, "Tool Steel", 1, 2, 3);
}

TEST(MoldMetalMaterial, NameOfOneWord) {
  expect(row_of("7.8 0.46 29 P20 1 2 3"), 7.8, 0.46, 29, "P20", 1, 2, 3);
}

TEST(MoldMetalMaterial, NumbersThatTheLineLacksAreZero) {
  expect(row_of("7.8 0.46 29 P20 1 2"), 7.8, 0.46, 29, "P20", 1, 2, 0);
  expect(row_of("7.8 0.46"), 7.8, 0.46, 0, "", 0, 0, 0);
  expect(row_of(""), 0, 0, 0, "", 0, 0, 0);
}

TEST(MoldMetalMaterial, BlanksInsideANameStayAsTheyAre) {
  expect(row_of("7.8\t0.46\t29\tTool  Steel\tP20\t1\t2\t3"), 7.8, 0.46, 29, "Tool  Steel\tP20", 1,
         2, 3);
}

TEST(MoldMetalMaterial, NameBeginsWhereItsFirstWordFirstOccurs) {
  // "20" is found inside the first number already.
  expect(row_of("7.20 0.46 29 20 Steel 1 2 3"), 7.2, 0.46, 29, "20 0.46 29 20 Steel", 1, 2, 3);
}

TEST(MoldMetalMaterial, NameEndsWhereItsLastWordLastOccurs) {
  // "P" is found after the name once more, inside the last number's text.
  expect(row_of("1 2 3 Steel P 4 5 6P"), 1, 2, 3, "Steel P 4 5 6P", 4, 5, 6);
}

TEST(MoldMetalMaterial, NameOfAnyLengthUpToTheBufferComesBack) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  std::string name(255 - std::string("1\t2\t3\t\t4\t5\t6").size(), 'n');
  name[9] = ' ';
  EXPECT_TRUE(writer.MoldMetalMaterial_WriteMaterial(1, 2, 3, name.data(), 4, 5, 6, 1));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  Row row;
  EXPECT_TRUE(
      reader.MoldMetalMaterial_ReadMaterial(row.a, row.b, row.c, row.name, row.d, row.e, row.f, 1));
  EXPECT_EQ(row.name, name);
  EXPECT_EQ(row.f, 6);
  name += "n";
  EXPECT_FALSE(writer.MoldMetalMaterial_WriteMaterial(1, 2, 3, name.data(), 4, 5, 6, 1));
}

}  // namespace
}  // namespace qelpro_test
