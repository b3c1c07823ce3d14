#include "support/line_break.h"

namespace qelpro_test {

std::string native(std::string_view lines) {
  std::string bytes;
  for (const char c : lines) {
    bytes.append(c == '\n' ? "\r" : "").push_back(c);
  }
  return bytes;
}

}  // namespace qelpro_test
