#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/word.h"

namespace qel {

struct HashKey {
  std::uint64_t first;
  std::uint64_t second;
};

/// SipHash with one round for each word and three at the end, of words and then a text.
class SipHash {
 public:
  explicit SipHash(const HashKey& key)
      : a_(key.first ^ 0x736f6d6570736575U),
        b_(key.second ^ 0x646f72616e646f6dU),
        c_(key.first ^ 0x6c7967656e657261U),
        d_(key.second ^ 0x7465646279746573U) {}

  void take(std::uint64_t word) {
    d_ ^= word;
    round();
    a_ ^= word;
  }

  [[nodiscard]] std::uint64_t with(std::string_view text) {
    const char* at = text.data();
    std::size_t left = text.size();
    for (; left >= kWordSize; left -= kWordSize, at += kWordSize) {
      take(word_of(at));
    }
    take(word_of(at, left) | (std::uint64_t{text.size()} << (8 * (kWordSize - 1))));
    c_ ^= 0xffU;
    round();
    round();
    round();
    return a_ ^ b_ ^ c_ ^ d_;
  }

 private:
  void round() {
    a_ += b_;
    b_ = std::rotl(b_, 13) ^ a_;
    a_ = std::rotl(a_, 32);
    c_ += d_;
    d_ = std::rotl(d_, 16) ^ c_;
    a_ += d_;
    d_ = std::rotl(d_, 21) ^ a_;
    c_ += b_;
    b_ = std::rotl(b_, 17) ^ c_;
    c_ = std::rotl(c_, 32);
  }

  std::uint64_t a_, b_, c_, d_;
};

}  // namespace qel
