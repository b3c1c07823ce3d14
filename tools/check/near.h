#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qelpro {

/// How many insertions, removals, replacements and swaps of neighbours make one name of the other;
/// `most` + 1 where it takes more than `most`.
std::size_t edit_distance(std::string_view a, std::string_view b, std::size_t most);

/// Takes names one after another and keeps the one that is nearest to what was asked for: at a
/// distance of 2 or less, and with something in common; or the same but for capitals.
class Nearest {
 public:
  explicit Nearest(std::string_view wanted);

  void offer(std::string_view name);
  /// The first one of those that are equally near; empty where none is near.
  [[nodiscard]] const std::string& name() const { return name_; }

  static constexpr std::size_t kMost = 2;

 private:
  std::string_view wanted_;
  unsigned long long letters_;
  std::size_t distance_ = kMost + 1;
  std::string name_;
};

/// A name of the catalogue with a number in it, for a comparison with `like`: the number that
/// stands in that, or 1.
std::string numbered_like(std::string_view pattern, std::string_view like);

/// The pattern with this number.
std::string with_number(std::string_view pattern, int number);

}  // namespace qelpro
