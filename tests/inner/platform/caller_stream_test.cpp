#include "platform/caller_stream.h"

#include <cstdio>
#include <string>

#include "inner/platform/file_fixture.h"

namespace qelpro_test {
namespace {

using qel::platform::CallerStream;

TEST_F(Lent, ReadsWhereItIsTold) {
  CallerStream file = lend("0123456789", "r");
  EXPECT_EQ(file.size(), 10);
  EXPECT_EQ(read(file, 4, 3), "456");
  EXPECT_EQ(read(file, 0, 2), "01");
  EXPECT_EQ(read(file, 8, 10), "89");
  EXPECT_EQ(read(file, 20, 10), "");
}

TEST_F(Lent, ReadsOnAfterTheEndWasMet) {
  CallerStream file = lend("0123456789", "r");
  while (std::fgetc(stream) != EOF) {
  }
  EXPECT_EQ(read(file, 0, 2), "01");
}

TEST_F(Lent, SeesWhatTheCallerHasWrittenButNotFlushed) {
  CallerStream file = lend("", "w+");
  std::fputs("written", stream);
  EXPECT_EQ(file.size(), 7);
  EXPECT_EQ(read(file, 0, 7), "written");
}

TEST_F(Lent, WritesAtOnce) {
  CallerStream file = lend("0123456789", "r+");
  EXPECT_TRUE(file.write_at(2, "ab", 2));
  EXPECT_EQ(bytes_of(path), "01ab456789");
  EXPECT_EQ(read(file, 0, 5), "01ab4");
  EXPECT_TRUE(file.truncate(3));
  EXPECT_EQ(bytes_of(path), "01a");
}

TEST_F(Lent, DoesNotGrowTheFileBySecuringRoom) {
  CallerStream file = lend("0123456789", "r+");
  EXPECT_TRUE(file.reserve(10, 100000));
  EXPECT_EQ(file.size(), 10);
}

TEST_F(Lent, CannotReadWhatIsOpenForWritingAlone) {
  path = scratch.path();
  stream = std::fopen(path.c_str(), "w");
  CallerStream file(stream);
  EXPECT_EQ(read(file, 0, 1), "failed");
}

}  // namespace
}  // namespace qelpro_test
