#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "text/word.h"

namespace qel {

/// A key that ends with a number as it is printed: no leading zeros, at most the largest `int`.
struct NumberedKey {
  std::string_view prefix;
  int number = -1;  ///< Below 0 where there is none.
};
constexpr NumberedKey numbered_key(std::string_view key) {
  std::size_t begin = key.size();
  while (begin > 0 && key[begin - 1] >= '0' && key[begin - 1] <= '9') {
    --begin;
  }
  constexpr std::size_t kMostDigits = 10;
  const std::size_t digits = key.size() - begin;
  if (digits == 0 || digits > kMostDigits || (digits > 1 && key[begin] == '0')) {
    return {};
  }
  std::int64_t number = 0;
  for (const char digit : key.substr(begin)) {
    number = number * 10 + (digit - '0');
  }
  return number <= std::numeric_limits<int>::max()
             ? NumberedKey{key.substr(0, begin), static_cast<int>(number)}
             : NumberedKey{};
}

/// The number of a key that is this prefix, which is not empty and ends with no digit, and a number
/// of up to nine digits; below 0 for any other.
constexpr int number_behind(std::string_view prefix, std::string_view key) {
  constexpr std::size_t kMostDigits = 9;
  const std::size_t digits = key.size() - prefix.size();
  if (prefix.empty() || key.size() <= prefix.size() || digits > kMostDigits ||
      key[prefix.size() - 1] != prefix.back() || (digits > 1 && key[prefix.size()] == '0')) {
    return -1;
  }
  int number = 0;
  for (const char c : key.substr(prefix.size())) {
    if (c < '0' || c > '9') {
      return -1;
    }
    number = number * 10 + (c - '0');
  }
  return key.starts_with(prefix) ? number : -1;
}

/// What a table knows of a key before it looks at its text: the first and the last word tell texts
/// of up to two words apart.
struct TableKey {
  constexpr TableKey() = default;
  constexpr TableKey(std::size_t owner, std::string_view name, bool is_numbered)
      : first(name.size() < kWordSize ? word_of(name.data(), name.size()) : word_of(name.data())),
        last(name.size() < kWordSize ? 0 : word_of(name.data() + name.size() - kWordSize)),
        kind((owner << 32U) | (name.size() << 1U) | (is_numbered ? 1U : 0U)) {}

  constexpr bool operator==(const TableKey& other) const {
    return first == other.first && last == other.last && kind == other.kind;
  }

  std::uint64_t first = 0;
  std::uint64_t last = 0;
  std::uint64_t kind = 0;
};

/// Keys that are known beforehand, and which of them a key of a file is. It is made when the
/// program is compiled, of at most so many keys with so many characters together; nobody else's
/// names are ever in it, so that its hash needs no secret.
template <std::size_t most, std::size_t characters = 24 * most>
class KeyTable {
 public:
  static constexpr std::size_t kNone = most;

  /// Enters a key once, of the owner of that number; of a key with a number behind it what stands
  /// before that. Yields its position.
  constexpr std::size_t enter(std::size_t owner, std::string_view text, bool is_numbered) {
    const Key key(owner, text, is_numbered);
    const std::size_t slot = slot_of(key, text);
    if (slots_[slot] == 0) {
      text_at_[size_] = static_cast<std::uint32_t>(text_size_);
      for (const char c : text) {
        text_[text_size_++] = c;
      }
      keys_[size_] = key;
      slots_[slot] = static_cast<std::uint16_t>(++size_);
    }
    return slots_[slot] - std::size_t{1};
  }

  /// `kNone` where there is no such key.
  [[nodiscard]] constexpr std::size_t find(std::size_t owner, std::string_view text,
                                           bool is_numbered) const {
    const std::size_t entry = slots_[slot_of(Key(owner, text, is_numbered), text)];
    return entry != 0 ? entry - 1 : kNone;
  }

  [[nodiscard]] constexpr std::size_t size() const { return size_; }

 private:
  using Key = TableKey;

  static constexpr std::size_t kSlots = std::bit_ceil(2 * most + 1);

  [[nodiscard]] constexpr bool is(std::size_t position, const Key& key,
                                  std::string_view text) const {
    return keys_[position] == key &&
           (text.size() <= 2 * kWordSize ||
            std::string_view(text_.data() + text_at_[position], text.size()) == text);
  }

  [[nodiscard]] constexpr std::size_t slot_of(const Key& key, std::string_view text) const {
    constexpr std::uint64_t kOdd = 0x9e3779b97f4a7c15U;
    constexpr int kRotated = 29;
    const std::uint64_t mixed =
        (key.first ^ std::rotl(key.last, kRotated) ^ (key.kind * kOdd)) * kOdd;
    auto slot = static_cast<std::size_t>(mixed >> (64 - std::countr_zero(kSlots)));
    while (slots_[slot] != 0 && !is(slots_[slot] - std::size_t{1}, key, text)) {
      slot = (slot + 1) % kSlots;
    }
    return slot;
  }

  std::array<Key, most> keys_{};
  std::array<std::uint32_t, most> text_at_{};
  std::array<std::uint16_t, kSlots> slots_{};  // 0, or 1 + a position
  std::array<char, characters> text_{};
  std::size_t text_size_ = 0;
  std::size_t size_ = 0;
};

}  // namespace qel
