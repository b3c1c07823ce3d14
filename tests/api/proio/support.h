#pragma once

#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "support/naive_older_object.h"
#include "support/scratch.h"

namespace qelpro_test {

inline const std::string kMaskedDate = entry("Date", "<date>");

/// The text with every date and time in it masked.
inline std::string masked(const std::string& text) {
  static const std::regex date("[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}");
  return std::regex_replace(text, date, "<date>");
}

/// An object over a file of its own.
class ProcessObject : public testing::Test {
 protected:
  CPROIO_Manipulator& over(const std::string& contents) {
    path_ = scratch_.file(contents);
    object_.SetFilePath(path_.data());
    return object_;
  }
  CPROIO_Manipulator& over_missing_file() {
    path_ = scratch_.path("missing.pro");
    object_.SetFilePath(path_.data());
    return object_;
  }
  [[nodiscard]] std::string bytes() const { return bytes_of(path_); }
  [[nodiscard]] std::string masked_bytes() const { return masked(bytes()); }

  Scratch scratch_;
  std::string path_;
  CPROIO_Manipulator object_;
};

}  // namespace qelpro_test
