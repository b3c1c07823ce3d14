#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "study/decimal.h"
#include "study/generator.h"

namespace qelpro {

/// The values that an entry takes in a study: "V1,V2,V3", "FROM:TO:STEP" with TO, or, for samples,
/// "FROM:TO". The numbers of a range are those of its texts: FROM + i * STEP in decimals, without
/// drift, in the fewest digits.
class Range {
 public:
  /// A `Failure` of usage for a text that is none.
  explicit Range(std::string_view text);

  /// These values, whatever characters they have. A `Failure` of usage where there is none.
  explicit Range(std::vector<std::string> values);

  /// Whether it is "FROM:TO", which has no values of its own.
  [[nodiscard]] bool is_continuous() const { return is_continuous_; }
  /// How many values it has.
  [[nodiscard]] std::uint64_t count() const { return count_; }
  [[nodiscard]] std::string value(std::uint64_t index) const;

  /// A value in one of equally wide parts: of FROM to TO one that is drawn, of values one that
  /// stands there. Each part has at least ten thousand to draw from.
  [[nodiscard]] std::string draw(std::uint64_t part, std::uint64_t parts,
                                 Generator& generator) const;

 private:
  bool read_numbers(std::string_view text);

  bool is_continuous_ = false;
  std::uint64_t count_ = 0;
  std::vector<std::string> values_;  // of a list
  // Of numbers, in units of 10^exponent_.
  std::int64_t from_ = 0;
  std::int64_t to_ = 0;
  std::int64_t step_ = 0;
  int exponent_ = 0;
};

}  // namespace qelpro
