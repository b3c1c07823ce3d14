#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "check/finding.h"
#include "check/rules.h"
#include "file/document_text.h"

namespace qelpro {

/// Where in a file a finding is.
struct Place {
  std::size_t line = 1;
  std::size_t column = 1;
  std::string_view section;
  std::string_view key;
};

/// At a line's begin.
Place at_line(const TextLine& line, std::string_view section = {}, std::string_view key = {});
/// At the first character of an entry's value, or where it would stand.
Place at_value(const TextLine& line, std::string_view section, std::string_view key);

/// Collects what the rules find, in whatever order.
class Findings {
 public:
  explicit Findings(std::string file) : file_(std::move(file)) {}

  void add(const Rule& rule, const Place& place, std::string message, std::string hint = {});

  /// By line, column and code.
  [[nodiscard]] std::vector<Finding> in_order() &&;

 private:
  std::string file_;
  std::vector<Finding> findings_;
};

/// `: did you mean "FillTime"?`, or nothing where nothing is near.
std::string question(std::string_view near);

}  // namespace qelpro
