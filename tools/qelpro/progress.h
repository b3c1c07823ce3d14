#pragma once

#include <cstdint>
#include <string>

namespace qelpro {

/// How far long work has come: one line on stderr that is written over and over, where that is a
/// terminal, and nothing elsewhere. It is gone at the end.
class Progress {
 public:
  /// "8 of 5000 files"
  Progress(std::uint64_t size, std::string what);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { clear(); }

  void show(std::uint64_t done);
  /// In front of a message.
  void clear();

 private:
  std::uint64_t size_;
  std::string what_;
  bool to_terminal_;
  std::size_t shown_ = 0;  // characters
};

}  // namespace qelpro
