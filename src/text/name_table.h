#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/name_hash.h"

namespace qel {

/// A name with its hash, so that asking for it and entering it costs one hash. The text outlives
/// the name. One that belongs to another, as a section's key does, has that one's hash in its own
/// and tells its owner by a number.
struct HashedName {
  explicit HashedName(std::string_view name) : text(name), hash(name_hash(name)) {}
  HashedName(std::uint64_t owner_hash, std::uint32_t owner_number, std::string_view name)
      : text(name), hash(name_hash(owner_hash, name)), owner(owner_number) {}
  std::string_view text;
  std::uint64_t hash;
  std::uint32_t owner = 0;
};

/// Values by name, in the order in which they were entered. An entry is never removed by itself.
template <class Value>
class NameTable {
 public:
  static constexpr std::size_t kUnknown = static_cast<std::size_t>(-1);

  [[nodiscard]] std::size_t position_of(const HashedName& name) const {
    const std::uint32_t entry = slots_.empty() ? 0 : slots_[slot_of(name)];
    return entry != 0 ? entry - 1 : kUnknown;
  }
  /// Null where the name is not known. Valid until the next `insert`.
  [[nodiscard]] Value* find(const HashedName& name) {
    const std::size_t position = position_of(name);
    return position != kUnknown ? &entries_[position].value : nullptr;
  }

  struct Inserted {
    Value* value;
    bool is_new;  ///< False where the name was known: its value is as it was.
  };
  Inserted insert(const HashedName& name, Value value) {
    if (2 * entries_.size() >= slots_.size()) {
      grow();
    }
    const std::size_t slot = slot_of(name);
    if (slots_[slot] != 0) {
      return {&entries_[slots_[slot] - 1].value, false};
    }
    const std::size_t name_at = names_.size();
    names_.append(name.text);
    entries_.push_back({name.hash, name_at, static_cast<std::uint32_t>(name.text.size()),
                        name.owner, std::move(value)});
    slots_[slot] = static_cast<std::uint32_t>(entries_.size());
    return {&entries_.back().value, true};
  }

  [[nodiscard]] std::size_t size() const { return entries_.size(); }
  [[nodiscard]] Value& value(std::size_t position) { return entries_[position].value; }
  [[nodiscard]] const Value& value(std::size_t position) const { return entries_[position].value; }
  [[nodiscard]] std::string_view name(std::size_t position) const {
    return {names_.data() + entries_[position].name_at, entries_[position].name_size};
  }
  /// Whether the entry at the position has the name.
  [[nodiscard]] bool is(std::size_t position, std::uint32_t owner, std::string_view text) const {
    return entries_[position].owner == owner && name(position) == text;
  }

  void clear() {
    names_.clear();
    entries_.clear();
    slots_.clear();
  }

 private:
  struct Named {
    std::uint64_t hash;
    std::size_t name_at;
    std::uint32_t name_size;
    std::uint32_t owner;
    Value value;
  };

  // The slot that holds the name, or the empty one where it belongs.
  [[nodiscard]] std::size_t slot_of(const HashedName& wanted) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = static_cast<std::size_t>(wanted.hash) & mask;
    while (slots_[slot] != 0 && (entries_[slots_[slot] - 1].hash != wanted.hash ||
                                 !is(slots_[slot] - 1, wanted.owner, wanted.text))) {
      slot = (slot + 1) & mask;
    }
    return slot;
  }

  void grow() {
    constexpr std::size_t kFewest = 64;
    std::vector<std::uint32_t> larger(slots_.empty() ? kFewest : 2 * slots_.size());
    const std::size_t mask = larger.size() - 1;
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
      std::size_t slot = static_cast<std::size_t>(entries_[entry].hash) & mask;
      while (larger[slot] != 0) {
        slot = (slot + 1) & mask;
      }
      larger[slot] = static_cast<std::uint32_t>(entry + 1);
    }
    slots_ = std::move(larger);
  }

  std::string names_;  // one after the other
  std::vector<Named> entries_;
  // 0, or 1 + an entry's position; a power of two of them, at most half taken.
  std::vector<std::uint32_t> slots_;
};

}  // namespace qel
