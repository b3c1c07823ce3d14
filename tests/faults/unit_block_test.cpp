#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "faults/allocations.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using allocations::Failure;

// Each of the seven entries is stored whatever becomes of the others.
TEST(UnitBlock, IsWrittenButForTheEntryThatLacksMemory) {
  const Scratch scratch;
  int most_entries = 0;
  int fewest_entries = 7;
  for (int n = 1; n <= 12; ++n) {
    const std::string path = scratch.file("[Unit]\n");
    CQELPROWriter_Manipulator writer;
    ASSERT_TRUE(writer.SetFilePath(path.c_str()));
    allocations::fail(n, Failure::one);
    writer.WriteUnitBlock();
    const bool failed = allocations::stop().failed;
    ASSERT_TRUE(failed);
    int entries = 0;
    for (const char* key :
         {"\nTime = ", "\nTemp = ", "\nPres = ", "\nFR = ", "\nIP = ", "\nPP = ", "\nVolume = "}) {
      entries += bytes_of(path).find(key) != std::string::npos ? 1 : 0;
    }
    most_entries = std::max(most_entries, entries);
    fewest_entries = std::min(fewest_entries, entries);
  }
  EXPECT_EQ(most_entries, 6);
  EXPECT_EQ(fewest_entries, 6);
}

}  // namespace
}  // namespace qelpro_test
