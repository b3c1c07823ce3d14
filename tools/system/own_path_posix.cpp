#include "system/own_path.h"

namespace qelpro {

std::filesystem::path own_path(const std::string& file) { return file; }

std::string text_of(const std::filesystem::path& path) { return path.string(); }

}  // namespace qelpro
