#include "core/offset_table.h"

#include <functional>
#include <utility>

namespace qel {

OffsetTable::Name::Name(std::string_view name) : text(name), hash(std::hash<std::string_view>()(name)) {}

// The slot that holds the name, or the empty one where it belongs.
std::size_t OffsetTable::slot_of(const Name& name) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = name.hash & mask;
  for (; slots_[slot] != 0; slot = (slot + 1) & mask) {
    const Entry& entry = entries_[slots_[slot] - 1];
    if (entry.hash == name.hash && std::string_view(names_).substr(entry.name_at, entry.name_size) == name.text) {
      break;
    }
  }
  return slot;
}

std::optional<std::int64_t> OffsetTable::find(const Name& name) const {
  if (slots_.empty()) {
    return std::nullopt;
  }
  const std::uint32_t entry = slots_[slot_of(name)];
  return entry != 0 ? std::optional(entries_[entry - 1].offset) : std::nullopt;
}

bool OffsetTable::insert(const Name& name, std::int64_t offset) {
  if (2 * entries_.size() >= slots_.size()) {
    grow();
  }
  const std::size_t slot = slot_of(name);
  if (slots_[slot] != 0) {
    return false;
  }
  const std::size_t name_at = names_.size();
  names_.append(name.text);
  entries_.push_back({name.hash, name_at, name.text.size(), offset});
  slots_[slot] = static_cast<std::uint32_t>(entries_.size());
  return true;
}

void OffsetTable::grow() {
  constexpr std::size_t kFewest = 64;
  std::vector<std::uint32_t> larger(slots_.empty() ? kFewest : 2 * slots_.size());
  const std::size_t mask = larger.size() - 1;
  for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
    std::size_t slot = entries_[entry].hash & mask;
    while (larger[slot] != 0) {
      slot = (slot + 1) & mask;
    }
    larger[slot] = static_cast<std::uint32_t>(entry + 1);
  }
  slots_ = std::move(larger);
}

}  // namespace qel
