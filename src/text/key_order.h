#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace qel {

/// The keys of one section after the other in the order of their characters, those of one key in
/// the order in which they stand.
class KeyOrder {
 public:
  /// Positions among the keys; valid until the next call.
  std::span<const std::size_t> of(std::span<const std::string_view> keys);

 private:
  // What is sorted: small, and most often compared without a look at the key.
  struct Sorted {
    std::uint64_t front;  // the key's first characters, which tell most keys apart
    std::size_t key;
  };
  std::vector<Sorted> sorted_;
  std::vector<std::size_t> order_;
};

}  // namespace qel
