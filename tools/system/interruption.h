#pragma once

#include <memory>

namespace qelpro {

/// While it lives, what asks the program to end (Ctrl-C, SIGTERM) waits, also on threads that are
/// started meanwhile, so that work can be left in order. At its end the program ends, if it was
/// asked to.
class Interruption {
 public:
  Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;
  ~Interruption();

  [[nodiscard]] bool is_asked_for() const;

 private:
  struct Before;
  std::unique_ptr<Before> before_;
};

}  // namespace qelpro
