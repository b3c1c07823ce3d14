#pragma once

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

/// From now on the n-th call (from 1) of this thread fails.
void fail(int n, Failure failure);

/// The process ends in the middle of a write once so many pages were written, as one does that is
/// killed: a page of 4096 bytes is written whole or not at all.
void end_after_pages(int pages);

struct Outcome {
  int calls = 0;        ///< How many there were.
  bool failed = false;  ///< Whether the failure came about.
  const char* failed_call = "";
};
/// Everything works again.
Outcome stop();

}  // namespace qelpro_test::io_calls
