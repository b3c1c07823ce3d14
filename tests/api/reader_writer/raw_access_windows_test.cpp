#include <string>

#include "support/raw_access.h"

namespace qelpro_test {
namespace {

TEST_F(RawAccess, WritesItemsWithThePlatformsOwnExponent) {
  const std::string path = scratch_.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.WriteItems("[A]", "Small", "%e", 1.5e-7));
  EXPECT_EQ(bytes_of(path), "\r\n[A]\r\nSmall                = 1.500000e-007\r\n");
}

}  // namespace
}  // namespace qelpro_test
