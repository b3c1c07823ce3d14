#include "support/scratch.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

namespace qelpro_test {

Scratch::Scratch() {
  std::random_device random;
  do {
    folder_ =
        (std::filesystem::temp_directory_path() / ("qelpro-" + std::to_string(random()))).string();
  } while (!std::filesystem::create_directory(folder_));
}

Scratch::~Scratch() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::string Scratch::file(std::string_view contents, std::string_view name) const {
  const std::string result = path(name);
  put_bytes(result, contents);
  return result;
}

std::wstring Scratch::wide_file(std::string_view contents, std::wstring_view name) const {
  std::wstring result(folder_.begin(), folder_.end());
  result.append(L"/").append(name);
  // Characters, not units of this platform's wide text, which a path would convert by the program's
  // locale.
  const std::filesystem::path path(std::u32string(result.begin(), result.end()));
  std::ofstream(path, std::ios::binary)
      .write(contents.data(), static_cast<std::streamsize>(contents.size()));
  return result;
}

std::string bytes_of(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  std::ostringstream contents;
  contents << stream.rdbuf();
  return contents.str();
}

void put_bytes(const std::string& path, std::string_view contents) {
  std::ofstream(path, std::ios::binary)
      .write(contents.data(), static_cast<std::streamsize>(contents.size()));
}

bool exists(const std::string& path) { return std::filesystem::exists(path); }

std::vector<std::string> names_in(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string data_path(std::string_view name) { return QELPRO_TEST_DATA "/" + std::string(name); }

}  // namespace qelpro_test
