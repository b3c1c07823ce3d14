#pragma once

#include <functional>
#include <string_view>

namespace qelpro {

/// Makes a call again that a signal interrupted.
long retried(const std::function<long()>& call);

/// False, with the reason in errno, where not all of it was written.
bool write_all(int descriptor, std::string_view contents);

}  // namespace qelpro
