#include "text/name_hash.h"

#include <bit>
#include <chrono>
#include <cstddef>
#include <random>

#include "text/word.h"

// SipHash with one round for each word and three at the end.

namespace qel {
namespace {

struct HashKey {
  std::uint64_t first;
  std::uint64_t second;
};

HashKey drawn_key() {
  try {
    constexpr unsigned kHalf = 32;
    std::random_device source;
    const auto word = [&source] { return (std::uint64_t{source()} << kHalf) | source(); };
    return {word(), word()};
  } catch (...) {
    // A machine without a source of random numbers: the moment, and where the program was loaded.
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return {static_cast<std::uint64_t>(now), reinterpret_cast<std::uintptr_t>(&drawn_key)};
  }
}

struct SipState {
  explicit SipState(const HashKey& key)
      : a(key.first ^ 0x736f6d6570736575U),
        b(key.second ^ 0x646f72616e646f6dU),
        c(key.first ^ 0x6c7967656e657261U),
        d(key.second ^ 0x7465646279746573U) {}

  void round() {
    a += b;
    b = std::rotl(b, 13) ^ a;
    a = std::rotl(a, 32);
    c += d;
    d = std::rotl(d, 16) ^ c;
    a += d;
    d = std::rotl(d, 21) ^ a;
    c += b;
    b = std::rotl(b, 17) ^ c;
    c = std::rotl(c, 32);
  }

  void take(std::uint64_t word) {
    d ^= word;
    round();
    a ^= word;
  }

  std::uint64_t a, b, c, d;
};

const HashKey& key_of_program() {
  static const HashKey key = drawn_key();
  return key;
}

std::uint64_t hash_of(SipState state, std::string_view name) {
  const char* at = name.data();
  std::size_t left = name.size();
  for (; left >= kWordSize; left -= kWordSize, at += kWordSize) {
    state.take(word_of(at));
  }
  state.take(word_of(at, left) | (std::uint64_t{name.size()} << (8 * (kWordSize - 1))));
  state.c ^= 0xffU;
  state.round();
  state.round();
  state.round();
  return state.a ^ state.b ^ state.c ^ state.d;
}

}  // namespace

std::uint64_t name_hash(std::string_view name) { return hash_of(SipState(key_of_program()), name); }

std::uint64_t name_hash(std::uint64_t owner, std::string_view name) {
  SipState state(key_of_program());
  state.take(owner);
  return hash_of(state, name);
}

}  // namespace qel
