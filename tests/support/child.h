#pragma once

#include <functional>
#include <string>

namespace qelpro_test {

/// What a piece of work is run without, in a child process of its own.
struct Limits {
  unsigned long longest_file =
      0;  ///< No file may grow beyond this; 0 for no limit. A write past it ends the child.
  bool survives_long_file = false;  ///< Such a write fails instead.
  bool unprivileged = false;        ///< Not as the superuser, who is refused nothing.
};

/// Runs the work in a child process. True when it said yes there; a crash is a no.
bool in_child(const Limits& limits, const std::function<bool()>& work);

}  // namespace qelpro_test
