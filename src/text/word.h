#pragma once

#include <cstddef>
#include <cstdint>

/// A few bytes of a name as one number, the first of them the lowest.
namespace qel {

inline constexpr std::size_t kWordSize = sizeof(std::uint64_t);

namespace words {

inline constexpr std::size_t kHalf = kWordSize / 2;

constexpr std::uint64_t byte_of(const char* bytes, std::size_t at) {
  return std::uint64_t{static_cast<unsigned char>(bytes[at])} << (8 * at);
}

// Of the first four bytes, which the compiler reads at once.
constexpr std::uint64_t half_of(const char* bytes) {
  return byte_of(bytes, 0) | byte_of(bytes, 1) | byte_of(bytes, 2) | byte_of(bytes, 3);
}

}  // namespace words

/// Of as many bytes as a word has.
constexpr std::uint64_t word_of(const char* bytes) {
  return words::half_of(bytes) | (words::half_of(bytes + words::kHalf) << (8 * words::kHalf));
}

/// Of fewer bytes; what is read twice is the same. To copy them would be a call.
constexpr std::uint64_t word_of(const char* bytes, std::size_t count) {
  using namespace words;
  if (count >= kHalf) {
    return half_of(bytes) | (half_of(bytes + count - kHalf) << (8 * (count - kHalf)));
  }
  return count == 0 ? 0 : byte_of(bytes, 0) | byte_of(bytes, count / 2) | byte_of(bytes, count - 1);
}

/// A word of which each byte is this character.
constexpr std::uint64_t word_full_of(char c) {
  return std::uint64_t{0x0101010101010101U} * static_cast<unsigned char>(c);
}

/// Tells the lowest byte of a word that is 0, by the highest bit that is set in it and no lower one
/// in any before it; what stands above is not told. 0 where no byte is.
constexpr std::uint64_t zeros_in(std::uint64_t word) {
  return (word - word_full_of('\x01')) & ~word & word_full_of('\x80');
}

}  // namespace qel
