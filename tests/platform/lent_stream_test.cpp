#include "platform/lent_stream.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "support/child.h"
#include "support/scratch.h"

namespace {

using qel::platform::LentStream;
using qelpro_test::bytes_of;
using qelpro_test::Scratch;

std::string read(LentStream& stream, std::int64_t offset, std::size_t count) {
  std::string bytes(count, '?');
  const std::int64_t got = stream.read_at(offset, bytes.data(), count);
  return got < 0 ? "failed" : bytes.substr(0, static_cast<std::size_t>(got));
}

class Lent : public testing::Test {
 protected:
  ~Lent() override {
    if (stream != nullptr) {
      std::fclose(stream);
    }
  }
  LentStream lend(std::string_view contents, const char* mode) {
    path = scratch.file(contents);
    stream = std::fopen(path.c_str(), mode);
    return LentStream(stream);
  }

  Scratch scratch;
  std::string path;
  std::FILE* stream = nullptr;
};

TEST_F(Lent, ReadsWhereItIsTold) {
  LentStream file = lend("0123456789", "r");
  EXPECT_EQ(file.size(), 10);
  EXPECT_EQ(read(file, 4, 3), "456");
  EXPECT_EQ(read(file, 0, 2), "01");
  EXPECT_EQ(read(file, 8, 10), "89");
  EXPECT_EQ(read(file, 20, 10), "");
}

TEST_F(Lent, ReadsOnAfterTheEndWasMet) {
  LentStream file = lend("0123456789", "r");
  while (std::fgetc(stream) != EOF) {
  }
  EXPECT_EQ(read(file, 0, 2), "01");
}

TEST_F(Lent, SeesWhatTheCallerHasWrittenButNotFlushed) {
  LentStream file = lend("", "w+");
  std::fputs("written", stream);
  EXPECT_EQ(file.size(), 7);
  EXPECT_EQ(read(file, 0, 7), "written");
}

TEST_F(Lent, WritesAtOnce) {
  LentStream file = lend("0123456789", "r+");
  EXPECT_TRUE(file.write_at(2, "ab", 2));
  EXPECT_EQ(bytes_of(path), "01ab456789");
  EXPECT_EQ(read(file, 0, 5), "01ab4");
  EXPECT_TRUE(file.truncate(3));
  EXPECT_EQ(bytes_of(path), "01a");
}

TEST_F(Lent, DoesNotGrowTheFileBySecuringRoom) {
  LentStream file = lend("0123456789", "r+");
  EXPECT_TRUE(file.secure_growth(10, 100000));
  EXPECT_EQ(file.size(), 10);
}

TEST_F(Lent, SecuresNoRoomWhereItCannotWrite) {
  LentStream file = lend("0123456789", "r");
  EXPECT_FALSE(file.secure_growth(10, 10));
  EXPECT_FALSE(file.secure_growth(10, 20));
  EXPECT_FALSE(file.write_at(0, "x", 1));
  EXPECT_EQ(bytes_of(path), "0123456789");
}

TEST_F(Lent, SecuresNoRoomWhereWritesGoToTheEnd) {
  LentStream file = lend("0123456789", "a+");
  EXPECT_FALSE(file.secure_growth(10, 10));
}

TEST_F(Lent, CannotReadWhatIsOpenForWritingAlone) {
  path = scratch.path();
  stream = std::fopen(path.c_str(), "w");
  LentStream file(stream);
  EXPECT_EQ(read(file, 0, 1), "failed");
}

TEST_F(Lent, IsAsGoodAsNewAfterAWriteThatFailed) {
  path = scratch.file("0123456789");
  EXPECT_TRUE(qelpro_test::in_child({.longest_file = 12}, [&] {
    std::FILE* limited = std::fopen(path.c_str(), "r+");
    LentStream file(limited);
    const bool failed = !file.write_at(8, "abcdefgh", 8);
    return failed && file.write_at(8, "89", 2) && file.truncate(10) && file.size() == 10 && read(file, 0, 20) == "0123456789" &&
           std::fclose(limited) == 0;
  }));
  EXPECT_EQ(bytes_of(path), "0123456789");
}

TEST(LentPipe, HasNoLength) {
  int ends[2] = {};
  ASSERT_EQ(::pipe(ends), 0);
  std::FILE* stream = ::fdopen(ends[0], "r");
  LentStream file(stream);
  EXPECT_EQ(file.size(), -1);
  EXPECT_EQ(read(file, 0, 1), "failed");
  std::fclose(stream);
  ::close(ends[1]);
}

}  // namespace
