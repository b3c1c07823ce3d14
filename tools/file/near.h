#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qelpro {

/// How many insertions, removals, replacements and swaps of neighbours make one name of the other;
/// `most` + 1 where it takes more than `most`.
std::size_t edit_distance(std::string_view a, std::string_view b, std::size_t most);

/// Names of the catalogue, of which one may be near to what a file has: at a distance of 2 or less,
/// and with something in common; or the same but for capitals.
class NearNames {
 public:
  /// The pattern has the number of what it is compared with in the place of its "%d", or 1.
  void add(std::string_view pattern);

  /// The first one of those that are equally near; empty where none is near.
  [[nodiscard]] std::string near(std::string_view name) const;

  static constexpr std::size_t kMost = 2;

 private:
  struct Pattern {
    std::string_view before;  // the number, or the whole name
    std::string_view behind;
    bool is_numbered;
    std::uint64_t letters;
  };
  std::vector<Pattern> patterns_;
};

/// A name of the catalogue with the number, if it has one, that stands in `like`, or 1.
std::string numbered_like(std::string_view pattern, std::string_view like);

/// The pattern with this number.
std::string with_number(std::string_view pattern, int number);

}  // namespace qelpro
