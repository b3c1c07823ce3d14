#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "load/memory.h"
#include "load/scale.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

constexpr int kKeys = 100;

// Longer and shorter from one round to the next.
double value_of(long round, int key) {
  return round % 3 == 0 ? key : static_cast<double>(key) + 1.0 / static_cast<double>(2 + round % 7);
}

double as_written(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", value);
  return std::stod(text);
}

TEST(Load, OfManyStoresIntoOneFileLeavesItAsLongAsItsLongestContents) {
  const long stores = load(20000L, 1000000L);
  const Scratch scratch;
  const std::string path = scratch.path();
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  const auto round = [&](long number) {
    int failed = 0;
    for (int key = 1; key <= kKeys; ++key) {
      failed += writer.FlowX_WriteFRProfile(value_of(number, key), key, key, 1) ? 0 : 1;
    }
    return failed;
  };
  constexpr long kFirstRounds = 21;  // every length of every value occurs in them
  int failed = 0;
  long number = 0;
  for (; number < kFirstRounds; ++number) {
    failed += round(number);
  }
  const auto size = std::filesystem::file_size(path);
  const std::size_t memory = resident_bytes();
  for (; number < stores / kKeys; ++number) {
    failed += round(number);
  }
  EXPECT_EQ(failed, 0);
  EXPECT_EQ(std::filesystem::file_size(path), size);
  EXPECT_LT(resident_bytes(), memory + kMiB);
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  for (int key = 1; key <= kKeys; ++key) {
    double x = -1;
    double y = -1;
    EXPECT_TRUE(reader.FlowX_ReadFRProfile(x, y, key, 1));
    EXPECT_EQ(x, as_written(value_of(number - 1, key)));
    EXPECT_EQ(y, key);
  }
  std::cout << "[ measured ] " << number * kKeys << " stores into a file of " << size << " bytes; "
            << resident_bytes() / kMiB << " MiB\n";
}

}  // namespace
}  // namespace qelpro_test
