#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "check/finding.h"
#include "check/rules.h"
#include "file/document_text.h"

namespace qelpro {

/// Where in a file a finding is. The names outlive the findings.
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

/// Collects what the rules find, in whatever order. There may be as many findings as characters.
class Findings {
 public:
  void add(const Rule& rule, const Place& place, std::string message, std::string hint = {});

  /// Hands them out by line, column and code.
  void in_order(const std::string& file, const std::function<void(Finding&&)>& take);

 private:
  struct Found {
    const Rule* rule;
    Place place;
    std::string message;
    std::string hint;
  };
  std::deque<Found> found_;
};

/// `; did you mean "FillTime"?`, or nothing where nothing is near.
std::string question(std::string_view near);

}  // namespace qelpro
