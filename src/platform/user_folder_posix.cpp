#include <cstdlib>

#include "platform/user_folder.h"

namespace qel::platform {

const char kPathSeparator = '/';

std::string user_folder() {
  const char* folder = std::getenv("XDG_CONFIG_HOME");
  if (folder != nullptr && *folder != '\0') {
    return folder;
  }
  const char* home = std::getenv("HOME");
  return home != nullptr && *home != '\0' ? std::string(home) + "/.config" : std::string();
}

}  // namespace qel::platform
