#pragma once

#include <filesystem>
#include <functional>
#include <random>
#include <string>

#include "system/own_path.h"

namespace qelpro {

/// A path for a temporary file in the folder of the file.
inline std::string path_beside(const std::string& file) {
  std::random_device random;
  return text_of(own_path(file).parent_path() / (".qelpro-" + std::to_string(random()) + ".tmp"));
}

/// A path there that is always the same for the same file.
inline std::string path_beside_for_a_moment(const std::string& file) {
  const std::filesystem::path path(file);
  return (path.parent_path() /
          (".qelpro-" + std::to_string(std::hash<std::string>()(path.filename().string())) +
           ".tmp"))
      .string();
}

/// The folder of the file, as a message names it.
inline std::string folder_of(const std::string& file) {
  const std::string folder = text_of(own_path(file).parent_path());
  return folder.empty() ? "." : folder;
}

}  // namespace qelpro
