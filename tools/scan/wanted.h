#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "file/address.h"

namespace qelpro {

/// What a word asks for in every file, and in which sections it has to be looked for.
class Wanted {
 public:
  explicit Wanted(Request request);

  [[nodiscard]] const Request& request() const { return request_; }
  [[nodiscard]] bool is_pattern() const { return request_.is_pattern; }
  /// False where a section of that name, with its brackets, cannot have what is asked for.
  [[nodiscard]] bool may_be_in(std::string_view section) const;

 private:
  Request request_;
  std::string beginning_;  // of a pattern, in front of its first special character
};

/// A `Failure` of usage for a word that is no address and no pattern.
std::vector<Wanted> wanted_of(const std::vector<std::string>& words);

}  // namespace qelpro
