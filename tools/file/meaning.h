#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "blocks/key.h"

namespace qelpro {

/// The unit that a description states, as in "the filling time, in sec": the last one where it
/// states several, or nothing.
std::string_view unit_of(std::string_view meaning);

/// The codes that a description states, as in "0 filled volume, 1 ram position": each with its
/// words.
std::vector<std::pair<int, std::string>> codes_of(std::string_view meaning);

/// The members of the exported classes that serve a key, the readers first.
std::vector<std::string> members_of(const qel::KeyInfo& key);

}  // namespace qelpro
