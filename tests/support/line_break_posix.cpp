#include "support/line_break.h"

namespace qelpro_test {

std::string native(std::string_view lines) { return std::string(lines); }

}  // namespace qelpro_test
