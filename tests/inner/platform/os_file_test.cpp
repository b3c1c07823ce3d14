#include "platform/os_file.h"

#include <string>

#include "inner/platform/file_fixture.h"

namespace qelpro_test {
namespace {

using qel::platform::OsFile;

TEST(OsFile, OpensWhatIsThere) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  OsFile file;
  EXPECT_FALSE(file.is_open());
  EXPECT_FALSE(file.open_for_reading(scratch.path("missing").c_str()));
  EXPECT_FALSE(file.open_for_update(scratch.path("missing").c_str()));
  EXPECT_FALSE(exists(scratch.path("missing")));
  ASSERT_TRUE(file.open_for_reading(path.c_str()));
  EXPECT_TRUE(file.is_open());
  EXPECT_EQ(file.size(), 10);
  EXPECT_EQ(read(file, 3, 4), "3456");
  EXPECT_EQ(read(file, 8, 4), "89");
  EXPECT_EQ(read(file, 50, 4), "");
  EXPECT_TRUE(file.close());
  EXPECT_FALSE(file.is_open());
  EXPECT_TRUE(file.close()) << "a second time does no harm";
}

TEST(OsFile, ClosesWhatItHeldWhenItOpensAnother) {
  const Scratch scratch;
  const std::string first = scratch.file("first", "first");
  const std::string second = scratch.file("second", "second");
  OsFile file;
  ASSERT_TRUE(file.open_for_reading(first.c_str()));
  ASSERT_TRUE(file.open_for_reading(second.c_str()));
  EXPECT_EQ(read(file, 0, 10), "second");
  EXPECT_FALSE(file.open_for_reading(scratch.path("missing").c_str()));
  EXPECT_FALSE(file.is_open());
}

TEST(OsFile, OpensWidePaths) {
  const Scratch scratch;
  const std::wstring wide = scratch.wide_file("x", L"\u00E9-\u5C04");
  OsFile file;
  EXPECT_TRUE(file.open_for_reading(wide.c_str()));
  EXPECT_TRUE(file.open_for_update(wide.c_str()));
}

TEST(OsFile, WritesWhereItIsTold) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  OsFile file;
  ASSERT_TRUE(file.open_for_update(path.c_str()));
  EXPECT_TRUE(file.write_at(8, "abcd", 4));
  EXPECT_EQ(bytes_of(path), "01234567abcd");
  EXPECT_TRUE(file.truncate(4));
  EXPECT_EQ(bytes_of(path), "0123");
}

TEST(OsFile, WritesNothingIntoAFileThatIsOpenForReading) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  OsFile file;
  ASSERT_TRUE(file.open_for_reading(path.c_str()));
  EXPECT_FALSE(file.write_at(0, "x", 1));
  EXPECT_FALSE(file.truncate(0));
  EXPECT_EQ(bytes_of(path), "0123456789");
}

TEST(OsFile, KnowsTheLengthThatItsFileHadWhenItWasOpened) {
  const Scratch scratch;
  OsFile file;
  EXPECT_EQ(file.size_when_opened(), -1);
  ASSERT_TRUE(file.open_for_update(scratch.file("1234").c_str()));
  ASSERT_TRUE(file.write_at(4, "567", 3));
  EXPECT_EQ(file.size_when_opened(), 4);
  EXPECT_EQ(file.size(), 7);
  ASSERT_TRUE(file.open_for_reading(scratch.file("12", "other.pro").c_str()));
  EXPECT_EQ(file.size_when_opened(), 2);
}

TEST(OsFile, CreatesAFileButEmptiesNone) {
  const Scratch scratch;
  OsFile file;
  EXPECT_TRUE(file.create(scratch.path("new").c_str()));
  EXPECT_EQ(file.size(), 0);
  EXPECT_TRUE(file.create(scratch.file("old", "old").c_str()));
  EXPECT_EQ(file.size(), 3);
  EXPECT_FALSE(file.create(scratch.path("missing/new").c_str()));
}

TEST(OsFile, SecuresRoomWithoutGrowing) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  OsFile file;
  ASSERT_TRUE(file.open_for_update(path.c_str()));
  EXPECT_TRUE(file.reserve(10, 10));
  EXPECT_TRUE(file.reserve(10, 1 << 20));
  EXPECT_EQ(file.size(), 10);
  EXPECT_EQ(bytes_of(path), "0123456789");
}

}  // namespace
}  // namespace qelpro_test
