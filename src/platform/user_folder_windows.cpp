#include <windows.h>

#include <shlobj.h>

#include "platform/path_windows.h"
#include "platform/user_folder.h"

namespace qel::platform {

const char kPathSeparator = '\\';

// The roaming folder, made where it is missing.
std::string user_folder() {
  wchar_t folder[MAX_PATH] = {};
  return SHGetSpecialFolderPathW(nullptr, folder, CSIDL_APPDATA, TRUE) ? narrow_path(folder)
                                                                       : std::string();
}

void make_folder(const std::string& path) {
  for (std::size_t end = 0; end < path.size();) {
    const std::size_t separator = path.find(kPathSeparator, end + 1);
    end = separator != std::string::npos ? separator : path.size();
    CreateDirectoryW(system_path(path.substr(0, end).c_str()).c_str(), nullptr);
  }
}

}  // namespace qel::platform
