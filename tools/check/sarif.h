#pragma once

#include <string>
#include <vector>

#include "check/finding.h"
#include "json/json_text.h"

namespace qelpro {

/// Findings as a log of SARIF 2.1.0, for programs that show what tools find. `version` is this
/// tool's.
Json sarif_of(const std::vector<Finding>& findings, const std::string& version);

/// A path as a reference: relative, or "file:///..." of an absolute one, percent-encoded.
std::string uri_of(const std::string& path);

}  // namespace qelpro
