#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

// Mold bases and mold metals have the same rows.

INSTANTIATE_TEST_SUITE_P(Moldbase, SectionReader,
                         testing::Values(reads(READER(Moldbase_ReadMoldbase), "[Moldbase]", "6",
                                               "7.8\t0.46\t29.5\tP20\t1\t2\t3.25", 7.8, 0.46, 29.5,
                                               "P20", 1.0, 2.0, 3.25, 6)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(Moldbase, SectionWriter,
                         testing::Values(writes(WRITER(Moldbase_WriteMoldbase), "[Moldbase]", "7",
                                                "7.8\t0.46\t29.5\tP20\t1\t2\t3.25", 7.8, 0.46, 29.5,
                                                "P20", 1.0, 2.0, 3.25, 7)),
                         name_of_row);

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

struct Moldbase {
  static constexpr const char* kName = "Moldbase";
  static constexpr const char* kHeader = "[Moldbase]\n";
  template <class... Outputs>
  static bool read(Reader& reader, Outputs&&... outputs) {
    return reader.Moldbase_ReadMoldbase(outputs...);
  }
  template <class... Arguments>
  static bool write(Writer& writer, Arguments... arguments) {
    return writer.Moldbase_WriteMoldbase(arguments...);
  }
};

struct MoldMetal {
  static constexpr const char* kName = "MoldMetal";
  static constexpr const char* kHeader = "[MoldMetalMaterial]\n";
  template <class... Outputs>
  static bool read(Reader& reader, Outputs&&... outputs) {
    return reader.MoldMetalMaterial_ReadMaterial(outputs...);
  }
  template <class... Arguments>
  static bool write(Writer& writer, Arguments... arguments) {
    return writer.MoldMetalMaterial_WriteMaterial(arguments...);
  }
};

template <class Rows>
class MoldRow : public testing::Test {};
struct RowsName {
  template <class Rows>
  static std::string GetName(int) {
    return Rows::kName;
  }
};
using BothRows = testing::Types<Moldbase, MoldMetal>;
TYPED_TEST_SUITE(MoldRow, BothRows, RowsName);

template <class Rows>
Row row_of(const std::string& text) {
  const Scratch scratch;
  const std::string path = scratch.file(std::string(Rows::kHeader) + "1 = " + text + "\n");
  Reader reader;
  Row row;
  EXPECT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(Rows::read(reader, row.a, row.b, row.c, row.name, row.d, row.e, row.f, 1)) << text;
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

TYPED_TEST(MoldRow, NameMayHoldBlanks) {
  expect(row_of<TypeParam>("7.8 0.46 29 Tool Steel P20 1 2 3"), 7.8, 0.46, 29, "Tool Steel P20", 1,
         2, 3);
}

TYPED_TEST(MoldRow, NameOfTwoWords) {
  expect(row_of<TypeParam>("7.8 0.46 29 Tool Steel 1 2 3"), 7.8, 0.46, 29, "Tool Steel", 1, 2, 3);
}

TYPED_TEST(MoldRow, NameOfOneWord) {
  expect(row_of<TypeParam>("7.8 0.46 29 P20 1 2 3"), 7.8, 0.46, 29, "P20", 1, 2, 3);
}

TYPED_TEST(MoldRow, NumbersThatTheLineLacksAreZero) {
  expect(row_of<TypeParam>("7.8 0.46 29 P20 1 2"), 7.8, 0.46, 29, "P20", 1, 2, 0);
  expect(row_of<TypeParam>("7.8 0.46"), 7.8, 0.46, 0, "", 0, 0, 0);
  expect(row_of<TypeParam>(""), 0, 0, 0, "", 0, 0, 0);
}

TYPED_TEST(MoldRow, BlanksInsideANameStayAsTheyAre) {
  expect(row_of<TypeParam>("7.8\t0.46\t29\tTool  Steel\tP20\t1\t2\t3"), 7.8, 0.46, 29,
         "Tool  Steel\tP20", 1, 2, 3);
}

TYPED_TEST(MoldRow, NameBeginsWhereItsFirstWordFirstOccurs) {
  // "20" is found inside the first number already.
  expect(row_of<TypeParam>("7.20 0.46 29 20 Steel 1 2 3"), 7.2, 0.46, 29, "20 0.46 29 20 Steel", 1,
         2, 3);
}

TYPED_TEST(MoldRow, NameEndsWhereItsLastWordLastOccurs) {
  // "P" is found after the name once more, inside the last number's text.
  expect(row_of<TypeParam>("1 2 3 Steel P 4 5 6P"), 1, 2, 3, "Steel P 4 5 6P", 4, 5, 6);
}

TYPED_TEST(MoldRow, EmptyNameIsWrittenAsItIsGivenAndDoesNotReadBack) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char none[] = "";
  EXPECT_TRUE(TypeParam::write(writer, 1, 2, 3, none, 4, 5, 6, 1));
  EXPECT_EQ(bytes_of(path), native("\n" + std::string(TypeParam::kHeader) +
                                   padded("1", "1\t2\t3\t\t4\t5\t6") + "\n"));
  expect(row_of<TypeParam>("1\t2\t3\t\t4\t5\t6"), 1, 2, 3, "4", 5, 6, 0);
}

TYPED_TEST(MoldRow, NameOfAnyLengthUpToTheBufferComesBack) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  std::string name(255 - std::string("1\t2\t3\t\t4\t5\t6").size(), 'n');
  name[9] = ' ';
  EXPECT_TRUE(TypeParam::write(writer, 1, 2, 3, name.data(), 4, 5, 6, 1));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  Row row;
  EXPECT_TRUE(TypeParam::read(reader, row.a, row.b, row.c, row.name, row.d, row.e, row.f, 1));
  EXPECT_EQ(row.name, name);
  EXPECT_EQ(row.f, 6);
  name += "n";
  EXPECT_FALSE(TypeParam::write(writer, 1, 2, 3, name.data(), 4, 5, 6, 1));
}

// Each kind of line has a buffer of its own for names.
TEST(Names, OutliveTheReadsOfOtherKinds) {
  const Scratch scratch;
  const std::string path = scratch.file(
      "[Moldbase]\n1 = 1 2 3 Base 4 5 6\n[MoldMetalMaterial]\n1 = 1 2 3 Metal 4 5 "
      "6\n[MoldbaseInfo]\nMB-1 = 1 \"Info\"\n"
      "[Coolant]\n1 = 1 2 3 4 5 Water 6 7\n[PartInsertInitialTemperature]\nPartInsert-1 = "
      "1\tPart\t80\t1\n"
      "[MoldInsertInitialTemperature]\nMoldInsert-1 = 1\tMold\t80\t1\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double d[7] = {};
  int i[2] = {};
  char* base = nullptr;
  char* metal = nullptr;
  char* info = nullptr;
  char* coolant = nullptr;
  char* part = nullptr;
  char* part_of_four = nullptr;
  char* mold = nullptr;
  char* mold_of_four = nullptr;
  ASSERT_TRUE(reader.Moldbase_ReadMoldbase(d[0], d[1], d[2], base, d[3], d[4], d[5], 1));
  ASSERT_TRUE(reader.MoldMetalMaterial_ReadMaterial(d[0], d[1], d[2], metal, d[3], d[4], d[5], 1));
  ASSERT_TRUE(reader.MoldbaseInfo_ReadMoldbaseInfo(i[0], info, 1));
  ASSERT_TRUE(reader.Coolant_ReadCoolant(d[0], d[1], d[2], d[3], i[0], coolant, d[4], i[1], 1));
  ASSERT_TRUE(reader.PartInsertInitialTemperature_ReadPartInsert(i[0], part, d[0], 1));
  ASSERT_TRUE(
      reader.PartInsertInitialTemperature_ReadPartInsert(i[0], part_of_four, d[0], i[1], 1));
  ASSERT_TRUE(reader.MoldInsertInitialTemperature_ReadMoldInsert(i[0], mold, d[0], 1));
  ASSERT_TRUE(
      reader.MoldInsertInitialTemperature_ReadMoldInsert(i[0], mold_of_four, d[0], i[1], 1));
  EXPECT_STREQ(base, "Base");
  EXPECT_STREQ(metal, "Metal");
  EXPECT_STREQ(info, "Info");
  EXPECT_STREQ(coolant, "Water");
  EXPECT_STREQ(part, "Part");
  EXPECT_STREQ(part_of_four, "Part");
  EXPECT_STREQ(mold, "Mold");
  EXPECT_STREQ(mold_of_four, "Mold");
  const std::set<const char*> buffers = {base, metal,        info, coolant,
                                         part, part_of_four, mold, mold_of_four};
  EXPECT_EQ(buffers.size(), 8U);
}

}  // namespace
}  // namespace qelpro_test
