#include "platform/caller_stream.h"

#include <unistd.h>

#include <cstdio>
#include <string>

#include "inner/platform/file_fixture.h"
#include "support/child.h"

namespace qelpro_test {
namespace {

using qel::platform::CallerStream;

TEST_F(Lent, SecuresNoRoomWhereItCannotWrite) {
  CallerStream file = lend("0123456789", "r");
  EXPECT_FALSE(file.reserve(10, 10));
  EXPECT_FALSE(file.reserve(10, 20));
  EXPECT_FALSE(file.write_at(0, "x", 1));
  EXPECT_EQ(bytes_of(path), "0123456789");
}

TEST_F(Lent, SecuresNoRoomWhereWritesGoToTheEnd) {
  CallerStream file = lend("0123456789", "a+");
  EXPECT_FALSE(file.reserve(10, 10));
}

TEST_F(Lent, IsAsGoodAsNewAfterAWriteThatFailed) {
  path = scratch.file("0123456789");
  EXPECT_TRUE(qelpro_test::in_child({.longest_file = 12, .survives_long_file = true}, [&] {
    std::FILE* limited = std::fopen(path.c_str(), "r+");
    CallerStream file(limited);
    const bool failed = !file.write_at(8, "abcdefgh", 8);
    return failed && file.write_at(8, "89", 2) && file.truncate(10) && file.size() == 10 &&
           read(file, 0, 20) == "0123456789" && std::fclose(limited) == 0;
  }));
  EXPECT_EQ(bytes_of(path), "0123456789");
}

TEST(LentPipe, HasNoLength) {
  int ends[2] = {};
  ASSERT_EQ(::pipe(ends), 0);
  std::FILE* stream = ::fdopen(ends[0], "r");
  CallerStream file(stream);
  EXPECT_EQ(file.size(), -1);
  EXPECT_EQ(read(file, 0, 1), "failed");
  std::fclose(stream);
  ::close(ends[1]);
}

}  // namespace
}  // namespace qelpro_test
