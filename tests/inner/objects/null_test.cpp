#include "objects/null.h"

#include <gtest/gtest.h>

namespace {

TEST(Null, IsATextAlone) {
  using qel::is_null;
  char text[] = "";
  EXPECT_TRUE(is_null(static_cast<char*>(nullptr)));
  EXPECT_TRUE(is_null(static_cast<const char*>(nullptr)));
  EXPECT_FALSE(is_null(text));
  EXPECT_FALSE(is_null(""));
  EXPECT_FALSE(is_null(0));
  EXPECT_FALSE(is_null(0.0));
}

}  // namespace
