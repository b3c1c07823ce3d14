#include "text/name_hash.h"

#include <chrono>
#include <random>

#include "text/sip_hash.h"

namespace qel {
namespace {

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

const HashKey& key_of_program() {
  static const HashKey key = drawn_key();
  return key;
}

}  // namespace

std::uint64_t name_hash(std::string_view name) { return SipHash(key_of_program()).with(name); }

std::uint64_t name_hash(std::uint64_t owner, std::string_view name) {
  SipHash hash(key_of_program());
  hash.take(owner);
  return hash.with(name);
}

}  // namespace qel
