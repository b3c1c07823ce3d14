#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>

#include "platform/user_folder.h"

namespace qel::platform {

const char kPathSeparator = '/';

std::string user_folder() {
  const char* folder = std::getenv("XDG_CONFIG_HOME");
  // A relative one means nothing to a program that may stand anywhere, and counts as none.
  if (folder != nullptr && *folder == kPathSeparator) {
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

void make_folder(const std::string& path) {
  constexpr mode_t kUserAlone = 0700;
  for (std::size_t end = 0; end < path.size();) {
    end = std::min(path.find(kPathSeparator, end + 1), path.size());
    ::mkdir(path.substr(0, end).c_str(), kUserAlone);
  }
}

}  // namespace qel::platform
