#include "text/key_order.h"

#include <algorithm>

#include "text/word.h"

namespace qel {
namespace {

// A number that orders as the first characters of the key do.
std::uint64_t rank_of(std::string_view key) {
  const std::uint64_t front =
      key.size() < kWordSize ? word_of(key.data(), key.size()) : word_of(key.data());
  std::uint64_t rank = 0;
  for (std::size_t at = 0; at < kWordSize; ++at) {
    rank = (rank << 8U) | ((front >> (8 * at)) & 0xffU);
  }
  return rank;
}

}  // namespace

std::span<const std::size_t> KeyOrder::of(std::span<const std::string_view> keys) {
  sorted_.clear();
  for (std::size_t key = 0; key < keys.size(); ++key) {
    sorted_.push_back({rank_of(keys[key]), key});
  }
  std::sort(sorted_.begin(), sorted_.end(), [keys](const Sorted& a, const Sorted& b) {
    if (a.front != b.front) {
      return a.front < b.front;
    }
    const int order = keys[a.key].compare(keys[b.key]);
    return order != 0 ? order < 0 : a.key < b.key;
  });
  order_.clear();
  for (const Sorted& sorted : sorted_) {
    order_.push_back(sorted.key);
  }
  return order_;
}

}  // namespace qel
