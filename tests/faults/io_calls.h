#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>

/// The operating system's calls of this program, of which one can be made to fail. They stand in
/// front of the C library's, for the library under test too.
namespace qelpro_test::io_calls {

enum class Failure {
  none,         ///< Every call works; they are only counted.
  error,        ///< The call fails with EIO, or ENOSPC where it writes.
  short_write,  ///< The call, where it writes, writes half; the next one goes on.
  torn_write,   ///< The call, where it writes, writes half; the next write fails.
  interrupted,  ///< The call, where a signal can interrupt it, fails with EINTR and has done
                ///< nothing; a file is closed nevertheless.
};

/// From now on the n-th call (from 1) of this thread fails. An error other than the call's own is
/// given by its number in errno.
void fail(int n, Failure failure, int error = 0);

/// `open` of a file that is only read; of others it is called by its name.
inline constexpr const char* kOpenToRead = "open to read";

/// The process ends in the middle of a write once so many pages were written, as one does that is
/// killed: a page of 4096 bytes is written whole or not at all.
void end_after_pages(int pages);

/// From now on each call of this thread is announced by its number, from 1, before it is made. What
/// the announcement itself calls is not.
void announce(std::function<void(int call)> announcement);

struct Outcome {
  int calls = 0;        ///< How many there were.
  bool failed = false;  ///< Whether the failure came about.
  const char* failed_call = "";
  int inherited = 0;  ///< How many files were opened that a program started meanwhile would hold.
  std::array<const char*, 512> names{};  ///< The calls in order, as far as there is room.

  /// The name of the n-th call, from 1.
  [[nodiscard]] std::string name(int n) const { return names.at(static_cast<std::size_t>(n) - 1); }
  /// The number of the first call of that name behind the n-th; 0 where there is none.
  [[nodiscard]] int find(const std::string& call, int after = 0) const {
    for (int n = after + 1; n <= calls; ++n) {
      if (name(n) == call) {
        return n;
      }
    }
    return 0;
  }
};
/// Everything works again.
Outcome stop();

}  // namespace qelpro_test::io_calls
