#pragma once

#include <compare>
#include <cstddef>
#include <string_view>
#include <variant>

#include "blocks/argument.h"

/// Where a load puts the value of a key: what the simulator's process holds, named from the
/// simulator's own list of it.
namespace qel {

enum class ProcessItem {
#define QELG_PROCESS_ITEM(kind, name) name,
#include "qelg/items.inc"
};
enum class ProcessList {
#define QELG_PROCESS_LIST(type, name, title) name,
#include "qelg/items.inc"
};

/// Of the inlet whose section or number the key has.
enum class InletItem {
#define QELG_INLET_ITEM(kind, name) name,
#include "qelg/items.inc"
};
enum class InletList {
#define QELG_INLET_LIST(type, name, title) name,
#include "qelg/items.inc"
};

/// How many inlets the process has.
struct InletCount {
  friend auto operator<=>(InletCount, InletCount) = default;
};

/// Nothing where a load does not take the key.
///
/// A list goes over from two rows, one after the other: the key that counts its points, and the
/// numbered key of the points; or, without a count, from the latter alone, up to the first number
/// that is missing. Where several keys go to one item, the last one that is there wins, in the
/// order of the rows.
using Destination =
    std::variant<std::monostate, ProcessItem, ProcessList, InletItem, InletList, InletCount>;

constexpr bool is_somewhere(const Destination& destination) { return destination.index() != 0; }

constexpr Kind kind_of_item(ProcessItem item) {
  constexpr Kind kinds[] = {
#define QELG_PROCESS_ITEM(kind, name) Kind::kind,
#include "qelg/items.inc"
  };
  return kinds[static_cast<std::size_t>(item)];
}
constexpr Kind kind_of_item(InletItem item) {
  constexpr Kind kinds[] = {
#define QELG_INLET_ITEM(kind, name) Kind::kind,
#include "qelg/items.inc"
  };
  return kinds[static_cast<std::size_t>(item)];
}

}  // namespace qel
