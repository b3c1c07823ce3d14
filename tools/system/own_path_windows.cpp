#include "system/own_path.h"

#include "platform/path_windows.h"

namespace qelpro {

std::filesystem::path own_path(const std::string& file) {
  return qel::platform::system_path(file.c_str());
}

std::string text_of(const std::filesystem::path& path) {
  return qel::platform::narrow_path(path.native());
}

}  // namespace qelpro
