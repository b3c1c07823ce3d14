#pragma once

#include <string>
#include <string_view>

#include "output.h"

namespace qelpro {

enum class Color { red, green, yellow, cyan, bold };

/// Colors an answer, or leaves it as it is.
class Painter {
 public:
  /// `mode` is "always", "never", or "auto": where standard output is a terminal that knows colors
  /// and the environment has no NO_COLOR.
  explicit Painter(const std::string& mode);

  /// Prints the text in a color.
  void print(Output& output, std::string_view text, Color color) const;

 private:
  bool is_on_;
};

}  // namespace qelpro
