#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "faults/every_store.h"
#include "faults/io_calls.h"
#include "support/scratch.h"

// Older systems do not know the newer way to look at a file, and some sandboxes refuse it.

namespace qelpro_test {
namespace {

using io_calls::Failure;

class OlderSystem : public testing::TestWithParam<StoreCase> {};

TEST_P(OlderSystem, IsAskedInItsOwnWay) {
  const Scratch scratch;
  const StoreCase& row = GetParam();
  std::string path = scratch.file(row.contents);
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(row.run(path));
  const io_calls::Outcome undisturbed = io_calls::stop();
  const std::string after = bytes_of(path);
  int refused = 0;
  for (const int error : {ENOSYS, EPERM}) {
    for (int n = undisturbed.find("statx"); n != 0; n = undisturbed.find("statx", n)) {
      ++refused;
      path = scratch.file(row.contents);
      io_calls::fail(n, Failure::error, error);
      EXPECT_TRUE(row.run(path)) << n;
      const io_calls::Outcome outcome = io_calls::stop();
      EXPECT_TRUE(bytes_of(path) == after) << n;
      EXPECT_STREQ(outcome.failed_call, "statx");
      EXPECT_TRUE(outcome.name(n + 1) == "stat" || outcome.name(n + 1) == "fstat")
          << outcome.name(n + 1);
      EXPECT_EQ(outcome.calls, undisturbed.calls + 1) << n;
    }
  }
  EXPECT_GE(refused, 4);
}

INSTANTIATE_TEST_SUITE_P(Document, OlderSystem, testing::ValuesIn(document_stores()),
                         name_of_store);

}  // namespace
}  // namespace qelpro_test
