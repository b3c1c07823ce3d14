#include <gtest/gtest.h>

#include "QELPROEngine/QELPROEngine.h"
#include "faults/io_calls.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using io_calls::Failure;

// Which of a channel's two lists has the point stands elsewhere. Where that cannot be read, the
// point is not taken from the other list.
TEST(ControlPoint, IsReadFromItsListOrNotAtAll) {
  const Scratch scratch;
  const std::string path = scratch.file(
      "[Cool]\nControlType = 1\n[MoldPreheat]\nControlType = 1\n[CoolChannel-1]\nTCP-1 = 1 2 3 4 "
      "5\nTCPP-1 = 6 7 8 9 10\n[MPreheat_CoolChannel-1]\nTCP-1 = 1 2 3 4 5\nTCPP-1 = 6 7 8 9 "
      "10\n");
  using Reader = CQELPROReader_Manipulator;
  for (const auto member : {&Reader::CoolChannelX_ReadControlPointSetting,
                            &Reader::MoldPreheat_CoolChannelX_ReadControlPointSetting}) {
    int refused = 0;
    bool failed = true;
    for (int n = 1; failed; ++n) {
      Reader reader;
      ASSERT_TRUE(reader.SetFilePath(path.c_str()));
      double first = -1;
      int system = -1;
      double temperature = -1;
      double flow = -1;
      int last = -1;
      io_calls::fail(n, Failure::error);
      const bool done = (reader.*member)(first, system, temperature, flow, last, 1, 1);
      failed = io_calls::stop().failed;
      EXPECT_EQ(first, done ? 6 : -1) << "call " << n;
      EXPECT_EQ(last, done ? 10 : -1) << "call " << n;
      refused += done ? 0 : 1;
    }
    EXPECT_GT(refused, 0);
  }
}

}  // namespace
}  // namespace qelpro_test
