#pragma once

#include <cstdint>
#include <string_view>

namespace qel {

/// A hash of a name under a key that each run of the program draws anew: whoever writes a file
/// cannot know which of its names share a hash, and so cannot make a table of them slow.
std::uint64_t name_hash(std::string_view name);

/// The same of a name that belongs to another, of which `owner` is the hash: a key of a section.
std::uint64_t name_hash(std::uint64_t owner, std::string_view name);

}  // namespace qel
