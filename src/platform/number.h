#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qel::platform {

/// Numbers as the C library's formats read and print them in the "C" locale, whatever locale the
/// program has set.
///
/// The scanners take the position in a text and move it after what they consumed. On failure the
/// value is untouched, and a caller that scans several fields stops there, as a scan format does.

/// "%d": leading white space, a sign, decimal digits; a number that is too large wraps to 32 bits.
bool scan_int(const char*& at, int& value);

/// "%lld": the same, a number that is too large being the largest of its sign.
bool scan_int64(const char*& at, std::int64_t& value);

/// "%lf": leading white space, a sign, a decimal or hexadecimal number, "inf", "infinity" or "nan".
bool scan_real(const char*& at, double& value);

/// The same without hexadecimal numbers: of "0x900" it takes the 0.
bool scan_decimal_real(const char*& at, double& value);

/// "%c": the very next character.
bool scan_char(const char*& at, char& value);

/// "%s": leading white space, then the characters up to the next white space.
bool scan_word(const char*& at, std::string& value);
/// The same where it stands in the text.
bool scan_word(const char*& at, std::string_view& value);

/// `atoi` and `atof`: 0 for a text that holds no number.
int to_int(const char* text);
double to_real(const char* text);

/// "%d"
std::string print_int(int value);

/// "%g", its exponent with a sign and at least three digits: "1.2e-007".
std::string print_real(double value);

}  // namespace qel::platform
