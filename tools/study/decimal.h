#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qelpro {

/// A decimal number as it was written down: digits * 10^exponent, exactly. What is calculated with
/// it is the same on every platform, and 0.1 three times is 0.3.
struct Decimal {
  std::int64_t digits = 0;
  int exponent = 0;
};

/// The number that a text is: "-1.50", "2e-3". Nothing for any other text and for a number of more
/// digits than fit.
std::optional<Decimal> decimal_of(std::string_view text);

/// Its fewest digits, without an exponent where that can be read.
std::string text_of(Decimal number);

/// The digits of the same number at a smaller or equal exponent; nothing where they do not fit.
std::optional<std::int64_t> digits_at(const Decimal& number, int exponent);

}  // namespace qelpro
