#pragma once

#include <optional>
#include <string>

namespace qelpro_test {

/// Sets a variable of the process's environment, or removes it.
void set_environment(const std::string& name, const std::optional<std::string>& value);

/// Puts a variable back at the end of the scope.
class KeptEnvironment {
 public:
  explicit KeptEnvironment(const std::string& name);
  KeptEnvironment(const KeptEnvironment&) = delete;
  KeptEnvironment& operator=(const KeptEnvironment&) = delete;
  ~KeptEnvironment() { restore(); }

  void restore() const { set_environment(name_, value_); }

 private:
  std::string name_;
  std::optional<std::string> value_;
};

}  // namespace qelpro_test
