#include "platform/os_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "support/child.h"
#include "support/scratch.h"

namespace {

using qel::platform::OsFile;
using qelpro_test::bytes_of;
using qelpro_test::exists;
using qelpro_test::Scratch;

std::string read(OsFile& file, std::int64_t offset, std::size_t count) {
  std::string bytes(count, '?');
  const std::int64_t got = file.read_at(offset, bytes.data(), count);
  return got < 0 ? "failed" : bytes.substr(0, static_cast<std::size_t>(got));
}

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
  const std::string path = scratch.file("x", "\xC3\xA9");
  const std::string folder = scratch.path("");
  const std::wstring wide = std::wstring(folder.begin(), folder.end()) + L"\u00E9";
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
  EXPECT_FALSE(file.secure_growth(10, 1 << 20));
  EXPECT_EQ(bytes_of(path), "0123456789");
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

TEST(OsFile, TakesNothingButARegularFile) {
  const Scratch scratch;
  const std::string fifo = scratch.path("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  OsFile file;
  for (const std::string& odd : {scratch.path(""), fifo, std::string("/dev/zero"), std::string("/dev/null")}) {
    EXPECT_FALSE(file.open_for_reading(odd.c_str())) << odd;
    EXPECT_FALSE(file.open_for_update(odd.c_str())) << odd;
    EXPECT_FALSE(file.create(odd.c_str())) << odd;
  }
}

TEST(OsFile, SecuresRoomWithoutGrowing) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  OsFile file;
  ASSERT_TRUE(file.open_for_update(path.c_str()));
  EXPECT_TRUE(file.secure_growth(10, 10));
  EXPECT_TRUE(file.secure_growth(10, 1 << 20));
  EXPECT_EQ(file.size(), 10);
  EXPECT_EQ(bytes_of(path), "0123456789");
}

TEST(OsFile, ReportsAWriteThatTheSystemCutsShort) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  EXPECT_TRUE(qelpro_test::in_child({.longest_file = 12}, [&] {
    OsFile file;
    return file.open_for_update(path.c_str()) && file.write_at(10, "ab", 2) && !file.write_at(10, "abcd", 4);
  }));
}

TEST(OsFile, IsNotHandedToChildPrograms) {
  const Scratch scratch;
  const std::string path = scratch.file("x");
  OsFile file;
  ASSERT_TRUE(file.open_for_reading(path.c_str()));
  std::FILE* stream = file.duplicate_as_stream();
  ASSERT_NE(stream, nullptr);
  EXPECT_NE(::fcntl(::fileno(stream), F_GETFD) & FD_CLOEXEC, 0);
  EXPECT_EQ(std::fgetc(stream), 'x');
  std::fclose(stream);
  EXPECT_EQ(read(file, 0, 1), "x");
}

}  // namespace
