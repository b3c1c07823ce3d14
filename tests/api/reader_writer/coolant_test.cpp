#include <gtest/gtest.h>

#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(Coolant, SectionReader,
                         testing::Values(reads(READER(Coolant_ReadCoolant), "[Coolant]", "9",
                                               "1.5\t2\t0.25\t4\t5\tWater\t0.01\t2", 1.5, 2.0, 0.25,
                                               4.0, 5, "Water", 0.01, 2, 9)),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(Coolant, SectionWriter,
                         testing::Values(writes(WRITER(Coolant_WriteCoolant), "[Coolant]", "3",
                                                "1.5\t2\t0.25\t4\t5\tWater\t0.01\t2", 1.5, 2.0,
                                                0.25, 4.0, 5, "Water", 0.01, 2, 3)),
                         name_of_row);

struct Fields {
  double f1 = -1;
  double f2 = -1;
  double f3 = -1;
  double f4 = -1;
  int f5 = -1;
  char* name = nullptr;
  double f7 = -1;
  int f8 = -1;
  bool read(Reader& reader, int coolant) {
    return reader.Coolant_ReadCoolant(f1, f2, f3, f4, f5, name, f7, f8, coolant);
  }
};

TEST(Coolant, ComesBackAsItWasWritten) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char water[] = "Water";
  EXPECT_TRUE(writer.Coolant_WriteCoolant(1, 2, 3, 4, 5, water, 0.01, 2, 1));
  EXPECT_EQ(bytes_of(path),
            native("\n[Coolant]\n" + padded("1", "1\t2\t3\t4\t5\tWater\t0.01\t2") + "\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  Fields fields;
  EXPECT_TRUE(fields.read(reader, 1));
  EXPECT_EQ(fields.f1, 1);
  EXPECT_EQ(fields.f2, 2);
  EXPECT_EQ(fields.f3, 3);
  EXPECT_EQ(fields.f4, 4);
  EXPECT_EQ(fields.f5, 5);
  EXPECT_STREQ(fields.name, "Water");
  EXPECT_EQ(fields.f7, 0.01);
  EXPECT_EQ(fields.f8, 2);
}

// The reader takes one word for the name, so that it yields less than what the writer was given.
TEST(Coolant, NameIsWrittenAsItIsGivenAlsoWhereItDoesNotReadBack) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char hot_water[] = "Hot Water";
  char none[] = "";
  EXPECT_TRUE(writer.Coolant_WriteCoolant(1, 2, 3, 4, 5, hot_water, 0.01, 2, 1));
  EXPECT_TRUE(writer.Coolant_WriteCoolant(1, 2, 3, 4, 5, none, 0.01, 2, 2));
  EXPECT_EQ(bytes_of(path),
            native("\n[Coolant]\n" + padded("1", "1\t2\t3\t4\t5\tHot Water\t0.01\t2") +
                   "\n2 = 1\t2\t3\t4\t5\t\t0.01\t2\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  Fields fields;
  EXPECT_TRUE(fields.read(reader, 1));
  EXPECT_STREQ(fields.name, "Hot");
  EXPECT_EQ(fields.f7, 0);
  EXPECT_TRUE(fields.read(reader, 2));
  EXPECT_STREQ(fields.name, "0.01");
  EXPECT_EQ(fields.f7, 2);
  EXPECT_EQ(fields.f8, 0);
}

TEST(Coolant, FieldsThatTheLineLacksAreZero) {
  const Scratch scratch;
  const std::string path = scratch.file("[Coolant]\n1 = 1 2 3\n2 = \n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char before[] = "before";
  Fields fields;
  fields.name = before;
  EXPECT_TRUE(fields.read(reader, 1));
  EXPECT_EQ(fields.f1, 1);
  EXPECT_EQ(fields.f2, 2);
  EXPECT_EQ(fields.f3, 3);
  EXPECT_EQ(fields.f4, 0);
  EXPECT_EQ(fields.f5, 0);
  EXPECT_EQ(fields.name, nullptr);
  EXPECT_EQ(fields.f7, 0);
  EXPECT_EQ(fields.f8, 0);
  EXPECT_TRUE(fields.read(reader, 2));
  EXPECT_EQ(fields.f1, 0);
}

TEST(Coolant, NameIsOneWord) {
  const Scratch scratch;
  const std::string path = scratch.file("[Coolant]\n1 = 1 2 3 4 5 Hot Water 0.01 2\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  Fields fields;
  EXPECT_TRUE(fields.read(reader, 1));
  EXPECT_STREQ(fields.name, "Hot");
  EXPECT_EQ(fields.f7, 0) << "the second word is no number";
  EXPECT_EQ(fields.f8, 0);
}

TEST(Coolant, TextThatDoesNotFitItsBufferIsRefused) {
  const Scratch scratch;
  const std::string before = "[Coolant]\n1 = 1 2 3\n";
  const std::string path = scratch.file(before);
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  std::string fits(255 - std::string("1\t2\t3\t4\t5\t\t6\t7").size(), 'n');
  std::string too_long = fits + "n";
  EXPECT_FALSE(writer.Coolant_WriteCoolant(1, 2, 3, 4, 5, too_long.data(), 6, 7, 1));
  EXPECT_EQ(bytes_of(path), before);
  EXPECT_TRUE(writer.Coolant_WriteCoolant(1, 2, 3, 4, 5, fits.data(), 6, 7, 1));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  Fields fields;
  EXPECT_TRUE(fields.read(reader, 1));
  EXPECT_EQ(fields.name, fits);
  EXPECT_EQ(fields.f8, 7);
}

}  // namespace
}  // namespace qelpro_test
