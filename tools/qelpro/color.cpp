#include "color.h"

#include <cstdio>
#include <cstdlib>

#include "output.h"
#include "system/failure.h"
#include "system/streams.h"

namespace qelpro {

bool wants_color(const std::string& when) {
  if (when != "auto" && when != "always" && when != "never") {
    throw Failure(kUsage, "--color: \"" + when + "\" is none of auto, always and never");
  }
  const char* const no_color = std::getenv("NO_COLOR");
  return when == "always" ||
         (when == "auto" && is_terminal(stdout) && (no_color == nullptr || *no_color == '\0'));
}

void put_colored(std::string_view text, Color color, bool is_colored) {
  if (is_colored) {
    answer().put_escape(color == Color::red ? "\x1B[31m" : "\x1B[32m");
  }
  answer() << text;
  if (is_colored) {
    answer().put_escape("\x1B[m");
  }
}

}  // namespace qelpro
