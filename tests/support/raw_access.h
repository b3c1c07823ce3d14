#pragma once

#include <gtest/gtest.h>

#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

/// Reading by the names of section and key, over a file of a few sections.
namespace qelpro_test {

using Reader = CQELPROReader_Manipulator;
using Writer = CQELPROWriter_Manipulator;

inline constexpr char kFile[] =
    "[FileHeader]\nName = a mold.pro\n\n[Flow-1]\nFillTime             = 1.5\nEmpty "
    "=\nBare\n[Flow-2]\nFillTime = 2.5\n";

inline std::string read_string(Reader& reader, const char* section, const char* key) {
  char buffer[256] = {};
  char* value = nullptr;
  if (!reader.ReadString(section, key, value, buffer, sizeof buffer)) {
    return "(false)";
  }
  EXPECT_EQ(value, buffer);
  return value;
}

inline std::string read_value(Reader& reader, const char* section, const char* key) {
  char buffer[256] = {};
  char* value = nullptr;
  if (!reader.ReadValue(section, key, value, buffer, sizeof buffer)) {
    return "(false)";
  }
  EXPECT_EQ(value, buffer);
  return value;
}

class RawAccess : public testing::Test {
 protected:
  Scratch scratch_;
};

}  // namespace qelpro_test
