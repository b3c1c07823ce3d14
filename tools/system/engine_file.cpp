#include "system/engine_file.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "system/beside.h"
#include "system/files.h"

namespace qelpro {

EngineFile::EngineFile(const std::string& file, std::string_view contents) : path_(file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) {
    path_ = path_beside((std::filesystem::temp_directory_path() / "standard_input").string());
    write_whole(path_, contents);
    is_temporary_ = true;
  }
}

EngineFile::~EngineFile() {
  if (is_temporary_) {
    std::remove(path_.c_str());
  }
}

}  // namespace qelpro
