#include "platform/os_file.h"

#include <io.h>
#include <windows.h>

#include <string>

#include "inner/platform/file_fixture.h"

namespace qelpro_test {
namespace {

using qel::platform::OsFile;

constexpr std::int64_t kBeyondALong = (std::int64_t{3} << 30U) + 5;

TEST(OsFile, TakesNothingButARegularFile) {
  const Scratch scratch;
  OsFile file;
  for (const std::string& odd : {scratch.path(""), std::string("NUL"), std::string("CON")}) {
    EXPECT_FALSE(file.open_for_reading(odd.c_str())) << odd;
    EXPECT_FALSE(file.open_for_update(odd.c_str())) << odd;
    EXPECT_FALSE(file.create(odd.c_str())) << odd;
  }
}

TEST(OsFile, CountsOffsetsBeyondWhatALongHolds) {
  static_assert(sizeof(long) == 4);
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  OsFile file;
  ASSERT_TRUE(file.open_for_update(path.c_str()));
  ASSERT_TRUE(file.write_at(kBeyondALong, "far", 3)) << "a sparse file";
  EXPECT_EQ(file.size(), kBeyondALong + 3);
  EXPECT_EQ(read(file, kBeyondALong, 10), "far");
  EXPECT_EQ(read(file, 0, 10), "0123456789");
  EXPECT_EQ(read(file, kBeyondALong - (std::int64_t{1} << 32U) + 5, 1), "failed")
      << "an offset before the file";
  EXPECT_TRUE(file.truncate(10));
  EXPECT_EQ(file.size(), 10);
}

TEST(OsFile, LetsOthersReadWriteAndRemoveWhatItHolds) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  OsFile reading;
  OsFile writing;
  ASSERT_TRUE(reading.open_for_reading(path.c_str()));
  ASSERT_TRUE(writing.open_for_update(path.c_str()));
  EXPECT_TRUE(writing.write_at(0, "ab", 2));
  EXPECT_EQ(read(reading, 0, 3), "ab2");
  EXPECT_NE(::DeleteFileA(path.c_str()), 0);
  EXPECT_EQ(read(reading, 0, 3), "ab2");
}

TEST(OsFile, IsNotHandedToChildPrograms) {
  const Scratch scratch;
  OsFile file;
  ASSERT_TRUE(file.open_for_reading(scratch.file("x").c_str()));
  std::FILE* stream = file.duplicate_as_stream();
  ASSERT_NE(stream, nullptr);
  DWORD flags = HANDLE_FLAG_INHERIT;
  EXPECT_NE(
      ::GetHandleInformation(reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream))), &flags),
      0);
  EXPECT_EQ(flags & HANDLE_FLAG_INHERIT, 0U);
  EXPECT_EQ(std::fgetc(stream), 'x');
  std::fclose(stream);
  EXPECT_EQ(read(file, 0, 1), "x");
}

}  // namespace
}  // namespace qelpro_test
