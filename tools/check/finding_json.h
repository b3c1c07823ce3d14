#pragma once

#include "check/finding.h"
#include "json/json_text.h"

namespace qelpro {

/// An object with all that the finding says.
Json json_of(const Finding& finding);

}  // namespace qelpro
