#pragma once

#include <string>

namespace qelpro_test {

/// The program's locale for one scope: one whose decimal point is a comma.
class CommaLocale {
 public:
  CommaLocale();
  /// This one.
  explicit CommaLocale(const std::string& name);
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;
  ~CommaLocale();

  /// False where the machine has none; a test that needs it is skipped there.
  [[nodiscard]] bool is_set() const { return is_set_; }

 private:
  std::string before_;
  bool is_set_ = false;
};

}  // namespace qelpro_test
