#include "refdata/user_file.h"

#include <string_view>

#include "platform/user_folder.h"

namespace qel::refdata {
namespace {

constexpr std::string_view kFile = "PROCoolantSetting.pcs";

// With a separator at its end; empty when the user has no folder for settings.
std::string folder_of_settings() {
  constexpr std::size_t kShortestFolder = 3;
  std::string folder = platform::user_folder();
  if (folder.size() < kShortestFolder) {
    return {};
  }
  if (folder.back() != platform::kPathSeparator) {
    folder += platform::kPathSeparator;
  }
  for (const char* part : {"Kestrel", "Vantor R14.0"}) {
    folder.append(part) += platform::kPathSeparator;
  }
  return folder;
}

}  // namespace

std::string user_coolant_file() {
  std::string folder = folder_of_settings();
  return folder.empty() ? folder : folder.append(kFile);
}

void make_folder_for_save(const char* path) {
  std::string folder = folder_of_settings();
  const std::string_view file = path;
  if (folder.empty() || file.substr(0, folder.size()) != folder ||
      file.find(platform::kPathSeparator, folder.size()) != std::string_view::npos) {
    return;
  }
  folder.pop_back();
  platform::make_folder(folder);
}

}  // namespace qel::refdata
