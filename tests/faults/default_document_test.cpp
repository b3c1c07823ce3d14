#include <gtest/gtest.h>

#include <string>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/support.h"
#include "faults/io_calls.h"
#include "load/scale.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using io_calls::Failure;

std::string default_document(std::string path) {
  CPROIO_Manipulator object;
  object.SetFilePath(path.data());
  object.SetDefault();
  return masked(bytes_of(path));
}

// Whichever call of the operating system fails, what stands in the file are its first entries in
// their order: none is missed while those after it are written.
TEST(DefaultDocument, HoldsNoEntryWithoutThoseBeforeIt) {
  const Scratch scratch;
  io_calls::fail(0, Failure::none);
  const std::string whole = default_document(scratch.path("whole.pro"));
  const int calls = io_calls::stop().calls;
  ASSERT_GT(calls, 100);
  int shorter = 0;
  for (const Failure failure : {Failure::error, Failure::short_write, Failure::torn_write}) {
    for (int n = 1; n <= calls; n += load(7, 1)) {
      const std::string path = scratch.path(std::to_string(n) + ".pro");
      put_bytes(path, "");
      io_calls::fail(n, failure);
      const std::string left = default_document(path);
      const std::string failed_call = io_calls::stop().failed_call;
      EXPECT_EQ(left, whole.substr(0, left.size())) << failed_call << ", call " << n;
      shorter += left.size() < whole.size() ? 1 : 0;
    }
  }
  EXPECT_GT(shorter, 10);
}

}  // namespace
}  // namespace qelpro_test
