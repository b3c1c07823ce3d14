#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "faults/io_calls.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

std::string file_with(const std::string& header, const std::string& entry) {
  // They stand so far from each other that no read has both.
  std::string text = "\n[Flow-1]\nFillSet = 1\n" + std::string(100, '\n') + header;
  text.append(300000, '\n').append(entry).append("Last = 1\n");
  return text;
}

void store(const std::string& path, const std::string& contents) {
  const int fd = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  EXPECT_EQ(::pwrite(fd, contents.data(), contents.size(), 0),
            static_cast<ssize_t>(contents.size()));
  ::close(fd);
}

// A look that a store disturbed saw lines of two states. Joined they are an entry that neither
// state has: what such a look learnt is not used when it is repeated.
TEST(StoreWhileLearning, LeavesNothingLearntOfTwoStates) {
  const std::string before = file_with("# Flow-2\n", "#illTime = 5\n");
  const std::string after = file_with("[Flow-2]\n", "FillTime = 5\n");
  ASSERT_EQ(before.size(), after.size());
  int calls = 1;
  for (int n = 1; n <= calls; ++n) {
    const Scratch scratch;
    const std::string path = scratch.file(before);
    CQELPROReader_Manipulator reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    io_calls::announce([&](int call) {
      if (call == n) {
        store(path, after);
      }
    });
    double value = -1;
    EXPECT_FALSE(reader.FlowX_ReadFillingTime(value, 1)) << "a store before call " << n;
    calls = io_calls::stop().calls;
    EXPECT_EQ(value, -1) << n;
  }
  EXPECT_GE(calls, 4);
}

}  // namespace
}  // namespace qelpro_test
