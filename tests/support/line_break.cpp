#include "support/line_break.h"

namespace qelpro_test {

std::string without_returns(std::string_view bytes) {
  std::string lines;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != '\r' || bytes.substr(i + 1, 1) != "\n") {
      lines.push_back(bytes[i]);
    }
  }
  return lines;
}

}  // namespace qelpro_test
