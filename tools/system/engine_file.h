#pragma once

#include <string>
#include <string_view>

namespace qelpro {

/// A path under which the engine, which opens files by itself, reads what a command was given: the
/// file's own, or for standard input and pipes that of a temporary file while this lives.
class EngineFile {
 public:
  EngineFile(const std::string& file, std::string_view contents);
  EngineFile(const EngineFile&) = delete;
  EngineFile& operator=(const EngineFile&) = delete;
  ~EngineFile();

  [[nodiscard]] const std::string& path() const { return path_; }

 private:
  std::string path_;
  bool is_temporary_ = false;
};

}  // namespace qelpro
