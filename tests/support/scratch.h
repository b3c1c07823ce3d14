#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qelpro_test {

/// A folder of its own for one test, gone at the end of the scope.
class Scratch {
 public:
  Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  ~Scratch();

  [[nodiscard]] std::string path(std::string_view name = "file.pro") const {
    return folder_ + "/" + std::string(name);
  }
  /// Makes a file with these bytes and gives its path.
  [[nodiscard]] std::string file(std::string_view contents,
                                 std::string_view name = "file.pro") const;
  /// The same under a name of any characters.
  [[nodiscard]] std::wstring wide_file(std::string_view contents, std::wstring_view name) const;

 private:
  std::string folder_;
};

std::string bytes_of(const std::string& path);
void put_bytes(const std::string& path, std::string_view contents);
bool exists(const std::string& path);
/// What stands in a folder, by name.
std::vector<std::string> names_in(const std::string& folder);

/// The path of a file in tests/data.
std::string data_path(std::string_view name);

}  // namespace qelpro_test
