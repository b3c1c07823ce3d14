#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qel {

/// File offsets by name. An entry is never changed and never removed.
class OffsetTable {
 public:
  /// A name with its hash, so that asking for it and entering it costs one hash. The text outlives the name.
  struct Name {
    explicit Name(std::string_view name);
    std::string_view text;
    std::size_t hash;
  };

  [[nodiscard]] std::optional<std::int64_t> find(const Name& name) const;

  /// False, and nothing changed, for a name that is known already.
  bool insert(const Name& name, std::int64_t offset);

 private:
  struct Entry {
    std::size_t hash;
    std::size_t name_at;
    std::size_t name_size;
    std::int64_t offset;
  };

  [[nodiscard]] std::size_t slot_of(const Name& name) const;
  void grow();

  std::string names_;  // one behind the other
  std::vector<Entry> entries_;
  std::vector<std::uint32_t> slots_;  // 0, or 1 + an entry's position; a power of two of them, at most half taken
};

}  // namespace qel
