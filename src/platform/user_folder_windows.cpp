#include <windows.h>

#include <shlobj.h>

#include "platform/user_folder.h"

namespace qel::platform {

const char kPathSeparator = '\\';

// The roaming folder, made where it is missing.
std::string user_folder() {
  char folder[MAX_PATH] = {};
  return SHGetSpecialFolderPathA(nullptr, folder, CSIDL_APPDATA, TRUE) ? folder : std::string();
}

}  // namespace qel::platform
