#include <cstdlib>

#include "support/environment.h"

namespace qelpro_test {

void set_environment(const std::string& name, const std::optional<std::string>& value) {
  if (value) {
    ::setenv(name.c_str(), value->c_str(), 1);
  } else {
    ::unsetenv(name.c_str());
  }
}

}  // namespace qelpro_test
