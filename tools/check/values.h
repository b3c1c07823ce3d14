#pragma once

#include <optional>
#include <string>

#include "check/findings.h"
#include "file/value_check.h"

namespace qelpro {

/// The rule that finds such a fault of a value.
const Rule& rule_of(Fault fault);

bool is_whole_number(const qel::KeyInfo& key);

/// The whole number that the engine reads for a key of the catalogue; none where it reads none.
std::optional<int> whole_number(const qel::KeyInfo& key, std::string_view text);

}  // namespace qelpro
