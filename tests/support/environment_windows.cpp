#include <cstdlib>

#include "support/environment.h"

namespace qelpro_test {

// An empty value takes the variable away.
void set_environment(const std::string& name, const std::optional<std::string>& value) {
  ::_putenv_s(name.c_str(), value ? value->c_str() : "");
}

}  // namespace qelpro_test
