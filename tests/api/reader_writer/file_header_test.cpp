#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <regex>
#include <string>

#include "support/line_break.h"
#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(FileHeader, SectionReader,
                         testing::Values(reads(READER(FileHeader_ReadName), "[FileHeader]", "Name",
                                               "housing_lid.pro", "housing_lid.pro"),
                                         reads(READER(FileHeader_ReadType), "[FileHeader]", "Type",
                                               "PRO", "PRO"),
                                         reads(READER(FileHeader_ReadCreateBy), "[FileHeader]",
                                               "CreateBy", "Front Desk 9.1", "Front Desk 9.1"),
                                         reads(READER(FileHeader_ReadRemark), "[FileHeader]",
                                               "Remark", "a = b, twice", "a = b, twice"),
                                         reads(READER(FileHeader_ReadDate), "[FileHeader]", "Date",
                                               "2026/11/15 09:05:07", "2026/11/15 09:05:07")),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(
    FileHeader, SectionWriter,
    testing::Values(writes(WRITER(FileHeader_WriteName), "[FileHeader]", "Name", "housing_lid.pro",
                           "housing_lid.pro"),
                    writes(WRITER(FileHeader_WriteType), "[FileHeader]", "Type", "PRO", "PRO"),
                    writes(WRITER(FileHeader_WriteCreateBy), "[FileHeader]", "CreateBy",
                           "Front Desk 9.1", "Front Desk 9.1"),
                    writes(WRITER(FileHeader_WriteRemark), "[FileHeader]", "Remark", "a = b, twice",
                           "a = b, twice"),
                    writes("FileHeader_WriteDate", Taking<char*>::of(&Writer::FileHeader_WriteDate),
                           "[FileHeader]", "Date", "2026/11/15 09:05:07", "2026/11/15 09:05:07")),
    name_of_row);

TEST(FileHeaderDate, IsWrittenAsAnEntryOfItsSection) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.FileHeader_WriteDate());
  EXPECT_TRUE(std::regex_match(
      bytes_of(path), std::regex(native("\n\\[FileHeader\\]\nDate                 = .{19}\n"))))
      << bytes_of(path);
}

TEST(FileHeaderDate, StampedTwiceIsOneEntry) {
  const Scratch scratch;
  const std::string path = scratch.file(
      "[FileHeader]\nDate                 = 1999/12/31 23:59:59\nName                 = a.pro\n");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.FileHeader_WriteDate());
  ASSERT_TRUE(writer.FileHeader_WriteDate());
  const std::regex layout(
      "\\[FileHeader\\]\nDate                 = 20.{17}\nName                 = a\\.pro\n");
  EXPECT_TRUE(std::regex_match(bytes_of(path), layout)) << bytes_of(path);
}

TEST(FileHeaderDate, TakesAnyTextThatIsGiven) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char text[] = "last Tuesday";
  ASSERT_TRUE(writer.FileHeader_WriteDate(text));
  EXPECT_EQ(bytes_of(path), native("\n[FileHeader]\nDate                 = last Tuesday\n"));
}

TEST(FileHeaderDate, IsNotStampedWithoutAFile) {
  Writer writer;
  EXPECT_FALSE(writer.FileHeader_WriteDate());
}

TEST(FileHeaderType, IsApartFromTheTypeOfTheCaeHeader) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char file_type[] = "PRO";
  char analysis[] = "Injection";
  ASSERT_TRUE(writer.FileHeader_WriteType(file_type));
  ASSERT_TRUE(writer.CaeHeader_WriteType(analysis));
  EXPECT_EQ(bytes_of(path), native("\n[FileHeader]\nType                 = "
                                   "PRO\n\n[CaeHeader]\nType                 = Injection\n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* text = nullptr;
  ASSERT_TRUE(reader.CaeHeader_ReadType(text));
  EXPECT_STREQ(text, "Injection");
  ASSERT_TRUE(reader.FileHeader_ReadType(text));
  EXPECT_STREQ(text, "PRO");
}

TEST(FileHeaderText, LivesUntilTheNextRead) {
  const Scratch scratch;
  const std::string path = scratch.file("[FileHeader]\nName = first\nRemark = second\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* name = nullptr;
  char* remark = nullptr;
  ASSERT_TRUE(reader.FileHeader_ReadName(name));
  EXPECT_STREQ(name, "first");
  ASSERT_TRUE(reader.FileHeader_ReadRemark(remark));
  EXPECT_EQ(name, remark) << "both point to the one buffer";
  EXPECT_STREQ(name, "second");
}

TEST(FileHeaderText, MayBeEmpty) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char empty[] = "";
  ASSERT_TRUE(writer.FileHeader_WriteRemark(empty));
  EXPECT_EQ(bytes_of(path), native("\n[FileHeader]\nRemark               = \n"));
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* text = nullptr;
  ASSERT_TRUE(reader.FileHeader_ReadRemark(text));
  EXPECT_STREQ(text, "");
}

}  // namespace
}  // namespace qelpro_test
