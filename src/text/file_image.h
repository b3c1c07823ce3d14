#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/read_access.h"

namespace qel {

/// A whole file in memory, with room around it: an entry of another length is put in front of what
/// stands after it, which need not be moved to be written in one piece.
class FileImage {
 public:
  /// How long the texts may be that are put around a part of the file without a copy of it.
  static constexpr std::size_t kReserve = std::size_t{16} * 1024;

  /// The file's bytes, of which there are `size`, as `size_in_memory` tells it. False when they
  /// cannot be read.
  bool load(platform::ReadAccess& file, std::int64_t size);

  [[nodiscard]] std::string_view bytes() const { return {begin_, size_}; }

  /// The bytes of the file from `from` to `to` with a text in front of them and another after
  /// them, in one piece. They may stand over other bytes of the image until `restore`.
  std::string_view compose(std::string_view before, std::size_t from, std::size_t to,
                           std::string_view after);
  void restore();

 private:
  struct Covered {
    char* at = nullptr;
    std::string bytes;
  };
  static void cover(Covered& covered, char* at, std::string_view text);

  std::unique_ptr<char[]> memory_;
  char* begin_ = nullptr;
  std::size_t size_ = 0;
  Covered before_;
  Covered after_;
  std::string copy_;
};

}  // namespace qel
