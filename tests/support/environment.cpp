#include "support/environment.h"

#include <cstdlib>

namespace qelpro_test {

KeptEnvironment::KeptEnvironment(const std::string& name) : name_(name) {
  if (const char* value = std::getenv(name.c_str())) {
    value_ = value;
  }
}

}  // namespace qelpro_test
