#include "platform/os_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <string>

#include "platform/file_fixture.h"
#include "support/child.h"

namespace qelpro_test {
namespace {

using qel::platform::OsFile;

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

TEST(OsFile, SecuresNoRoomInAFileThatIsOpenForReading) {
  const Scratch scratch;
  OsFile file;
  ASSERT_TRUE(file.open_for_reading(scratch.file("0123456789").c_str()));
  EXPECT_FALSE(file.secure_growth(10, 1 << 20));
}

}  // namespace
}  // namespace qelpro_test
