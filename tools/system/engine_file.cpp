#include "system/engine_file.h"

#include <filesystem>
#include <system_error>

#include "system/beside.h"
#include "system/files.h"

namespace qelpro {

EngineFile::EngineFile(const std::string& file, std::string_view contents) : path_(file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(own_path(file), error)) {
    path_ = path_beside(text_of(std::filesystem::temp_directory_path() / "standard_input"));
    write_whole(path_, contents);
    is_temporary_ = true;
  }
}

EngineFile::~EngineFile() {
  if (is_temporary_) {
    std::error_code ignored;
    std::filesystem::remove(own_path(path_), ignored);
  }
}

}  // namespace qelpro
