#pragma once

#include <cstddef>

namespace qelpro_test {

/// What the process holds in memory now, in bytes.
std::size_t resident_bytes();

/// The most it ever held, in bytes.
std::size_t most_resident_bytes();

}  // namespace qelpro_test
