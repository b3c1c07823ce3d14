#include <windows.h>

#include <shlobj.h>

#include <algorithm>

#include "platform/user_folder.h"

namespace qel::platform {

const char kPathSeparator = '\\';

// The roaming folder, made where it is missing.
std::string user_folder() {
  char folder[MAX_PATH] = {};
  return SHGetSpecialFolderPathA(nullptr, folder, CSIDL_APPDATA, TRUE) ? folder : std::string();
}

void make_folder(const std::string& path) {
  for (std::size_t end = 0; end < path.size();) {
    end = std::min(path.find(kPathSeparator, end + 1), path.size());
    CreateDirectoryA(path.substr(0, end).c_str(), nullptr);
  }
}

}  // namespace qel::platform
