#include "color.h"

#include <cstdio>
#include <cstdlib>

#include "system/streams.h"

namespace qelpro {
namespace {

const char* escape_of(Color color) {
  switch (color) {
    case Color::red:
      return "\x1B[1;31m";
    case Color::green:
      return "\x1B[32m";
    case Color::yellow:
      return "\x1B[1;33m";
    case Color::cyan:
      return "\x1B[1;36m";
    default:
      return "\x1B[1m";
  }
}

// A variable that is there and not empty.
std::string_view variable(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "";
}

}  // namespace

Painter::Painter(const std::string& mode)
    : is_on_(mode == "always" || (mode != "never" && variable("NO_COLOR").empty() &&
                                  variable("TERM") != "dumb" && is_terminal(stdout))) {}

void Painter::print(Output& output, std::string_view text, Color color) const {
  if (!is_on_) {
    output << text;
    return;
  }
  output.put_escape(escape_of(color));
  output << text;
  output.put_escape("\x1B[0m");
}

}  // namespace qelpro
