#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <regex>
#include <string>

#include "support/scratch.h"
#include "support/section_members.h"

namespace qelpro_test {
namespace {

INSTANTIATE_TEST_SUITE_P(FileHeader, SectionReader,
                         testing::Values(reads(READER(FileHeader_ReadName), "[FileHeader]", "Name", "housing_lid.pro", "housing_lid.pro"),
                                         reads(READER(FileHeader_ReadType), "[FileHeader]", "Type", "PRO", "PRO"),
                                         reads(READER(FileHeader_ReadCreateBy), "[FileHeader]", "CreateBy", "Front Desk 9.1", "Front Desk 9.1"),
                                         reads(READER(FileHeader_ReadRemark), "[FileHeader]", "Remark", "a = b, twice", "a = b, twice"),
                                         reads(READER(FileHeader_ReadDate), "[FileHeader]", "Date", "2026/11/15 09:05:07", "2026/11/15 09:05:07")),
                         name_of_row);

INSTANTIATE_TEST_SUITE_P(FileHeader, SectionWriter,
                         testing::Values(writes(WRITER(FileHeader_WriteName), "[FileHeader]", "Name", "housing_lid.pro", "housing_lid.pro"),
                                         writes(WRITER(FileHeader_WriteType), "[FileHeader]", "Type", "PRO", "PRO"),
                                         writes(WRITER(FileHeader_WriteCreateBy), "[FileHeader]", "CreateBy", "Front Desk 9.1", "Front Desk 9.1"),
                                         writes(WRITER(FileHeader_WriteRemark), "[FileHeader]", "Remark", "a = b, twice", "a = b, twice"),
                                         writes("FileHeader_WriteDate", Taking<char*>::of(&Writer::FileHeader_WriteDate), "[FileHeader]", "Date",
                                                "2026/11/15 09:05:07", "2026/11/15 09:05:07")),
                         name_of_row);

// Sets the local time zone for one scope.
class TimeZone {
 public:
  explicit TimeZone(const char* zone) {
    if (const char* before = std::getenv("TZ")) {
      before_ = before;
      was_set_ = true;
    }
    setenv("TZ", zone, 1);
    tzset();
  }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;
  ~TimeZone() {
    if (was_set_) {
      setenv("TZ", before_.c_str(), 1);
    } else {
      unsetenv("TZ");
    }
    tzset();
  }

 private:
  std::string before_;
  bool was_set_ = false;
};

std::string stamp(std::time_t moment, int hours_ahead_of_utc) {
  moment += hours_ahead_of_utc * 3600;
  std::tm parts{};
  gmtime_r(&moment, &parts);
  char text[64];
  std::strftime(text, sizeof text, "%Y/%m/%d %H:%M:%S", &parts);
  return text;
}

// The stamp that a writer leaves in the zone; empty unless it is one of the moments of the call.
void expect_stamp_in(const char* zone, int hours_ahead_of_utc) {
  const TimeZone local(zone);
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  const std::time_t before = std::time(nullptr);
  ASSERT_TRUE(writer.FileHeader_WriteDate());
  const std::time_t after = std::time(nullptr);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* date = nullptr;
  ASSERT_TRUE(reader.FileHeader_ReadDate(date));
  EXPECT_TRUE(std::regex_match(date, std::regex(R"(\d{4}/\d\d/\d\d \d\d:\d\d:\d\d)"))) << date;
  // The format sorts as time does.
  EXPECT_GE(std::string(date), stamp(before, hours_ahead_of_utc)) << zone;
  EXPECT_LE(std::string(date), stamp(after, hours_ahead_of_utc)) << zone;
}

TEST(FileHeaderDate, IsTheLocalDateAndTime) {
  expect_stamp_in("UTC0", 0);
  expect_stamp_in("<+09>-9", 9);
  expect_stamp_in("<-11>11", -11);
}

TEST(FileHeaderDate, IsWrittenAsAnEntryOfItsSection) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.FileHeader_WriteDate());
  EXPECT_TRUE(std::regex_match(bytes_of(path), std::regex("\n\\[FileHeader\\]\nDate                 = .{19}\n"))) << bytes_of(path);
}

TEST(FileHeaderDate, StampedTwiceIsOneEntry) {
  const Scratch scratch;
  const std::string path = scratch.file("[FileHeader]\nDate                 = 1999/12/31 23:59:59\nName                 = a.pro\n");
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.FileHeader_WriteDate());
  ASSERT_TRUE(writer.FileHeader_WriteDate());
  const std::regex layout("\\[FileHeader\\]\nDate                 = 20.{17}\nName                 = a\\.pro\n");
  EXPECT_TRUE(std::regex_match(bytes_of(path), layout)) << bytes_of(path);
}

TEST(FileHeaderDate, TakesAnyTextThatIsGiven) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char text[] = "last Tuesday";
  ASSERT_TRUE(writer.FileHeader_WriteDate(text));
  EXPECT_EQ(bytes_of(path), "\n[FileHeader]\nDate                 = last Tuesday\n");
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
  EXPECT_EQ(bytes_of(path), "\n[FileHeader]\nType                 = PRO\n\n[CaeHeader]\nType                 = Injection\n");
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
  EXPECT_EQ(bytes_of(path), "\n[FileHeader]\nRemark               = \n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* text = nullptr;
  ASSERT_TRUE(reader.FileHeader_ReadRemark(text));
  EXPECT_STREQ(text, "");
}

}  // namespace
}  // namespace qelpro_test
