#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <string_view>

#include "core/document.h"
#include "support/scratch.h"

/// A document over a file of its own, and what its lookups come to.
namespace qelpro_test {

inline constexpr qel::Result kDone = qel::Result::done;
inline constexpr qel::Result kNoOpen = qel::Result::no_open;
inline constexpr qel::Result kNoFile = qel::Result::no_file;
inline constexpr qel::Result kAbsent = qel::Result::absent;
inline constexpr int kByKey = -1;

inline std::wstring widened(const std::string& path) { return {path.begin(), path.end()}; }

// What a lookup came to: the value, or its result as a number.
inline std::string look(CQELPROIO& document, const char* section, const char* key,
                        int index = kByKey) {
  char untouched[] = "untouched";
  char* value = untouched;
  const qel::Result result = document.GetValue(section, key, value, index);
  if (result == kDone) {
    return value;
  }
  EXPECT_EQ(value, untouched) << "only success touches the pointer";
  return std::to_string(to_int(result));
}

inline std::string look_once(CQELPROIO& document, const char* section, const char* key) {
  const auto value = qel::ValueBuffer::of_thread();
  const qel::Result result = document.ReadOnce(section, key, value);
  return result == kDone ? value.text : std::to_string(to_int(result));
}

inline std::string scan(CQELPROIO& document, const char* path, const char* section,
                        const char* key) {
  const auto value = qel::ValueBuffer::of_thread_for_scans();
  return document.ScanValue(path, section, key, value) ? value.text : "(nothing)";
}

class Document : public testing::Test {
 protected:
  std::string make(std::string_view contents) { return path = scratch.file(contents); }
  void read(std::string_view contents) {
    make(contents);
    ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kReading));
  }
  void write(std::string_view contents) {
    make(contents);
    ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kWriting));
  }
  void lend(std::string_view contents, const char* mode = "r+") {
    make(contents);
    stream = std::fopen(path.c_str(), mode);
    ASSERT_TRUE(document.SetFilePtr(stream));
  }

  Scratch scratch;
  std::string path = scratch.path();
  std::FILE* stream = nullptr;
  CQELPROIO document;
};

}  // namespace qelpro_test
