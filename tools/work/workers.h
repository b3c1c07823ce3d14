#pragma once

#include <cstdint>
#include <functional>

namespace qelpro {

/// A part of some work: numbers from `first` up to, and without, `last`.
struct Block {
  std::uint64_t first = 0;
  std::uint64_t last = 0;
};

/// Does work in blocks of at most `largest` on all cores, in no order. `watch` is called now and
/// then, on the caller's thread, with how much is done; when it yields false, no further block is
/// begun. Yields how much is done. What one throws ends all, and is thrown.
std::uint64_t work_on_all_cores(std::uint64_t size, std::uint64_t largest,
                                const std::function<void(const Block&)>& work,
                                const std::function<bool(std::uint64_t)>& watch);

/// The same on so many threads.
std::uint64_t work_on_cores(std::size_t cores, std::uint64_t size, std::uint64_t largest,
                            const std::function<void(const Block&)>& work,
                            const std::function<bool(std::uint64_t)>& watch);

/// How many cores there are.
std::size_t core_count();

}  // namespace qelpro
