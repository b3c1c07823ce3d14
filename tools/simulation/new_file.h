#pragma once

#include <string>

namespace qelpro {

/// Makes a process file with the default values of the older object, whole or not at all. A
/// `Failure` where something of that name exists.
void make_new_file(const std::string& path);

}  // namespace qelpro
