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
  if (home == nullptr || *home == '\0') {
    return {};
  }
  std::string in_home = home;
  if (in_home.back() != kPathSeparator) {
    in_home += kPathSeparator;
  }
  return in_home + ".config";
}

}  // namespace qel::platform
