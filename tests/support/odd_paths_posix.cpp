#include "support/odd_paths.h"

namespace qelpro_test {

std::optional<std::string> narrow_of(const std::filesystem::path& path) { return path.native(); }

std::wstring wide_of(const std::filesystem::path& path) {
  const std::u32string characters = path.u32string();
  return {characters.begin(), characters.end()};
}

std::filesystem::path own_path(const std::filesystem::path& path) { return path; }

}  // namespace qelpro_test
