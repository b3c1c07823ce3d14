#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace qelpro {

/// Makes a call again that a signal interrupted.
long retried(const std::function<long()>& call);

/// False, with the reason in errno, where not all of it was written.
bool write_all(int descriptor, std::string_view contents);

/// A path under which a file that is open can be opened again, where /proc is there.
std::string link_of(int descriptor);

}  // namespace qelpro
