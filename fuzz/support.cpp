#include "support.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace qelpro_fuzz {
namespace {

struct File {
  File() {
    const char* folder = std::getenv("TMPDIR");
    path = std::string(folder != nullptr ? folder : "/tmp") + "/qelpro_fuzz_" +
           std::to_string(getpid()) + ".pro";
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { std::remove(path.c_str()); }
  std::string path;
};

const std::string& path_of_file() {
  static const File file;
  return file.path;
}

}  // namespace

const char* file_with(std::string_view contents) {
  const char* path = path_of_file().c_str();
  std::FILE* file = std::fopen(path, "wb");
  if (file == nullptr ||
      std::fwrite(contents.data(), 1, contents.size(), file) != contents.size() ||
      std::fclose(file) != 0) {
    fail("cannot write " + path_of_file());
  }
  return path;
}

std::string bytes_of_file() {
  std::string contents;
  std::FILE* file = std::fopen(path_of_file().c_str(), "rb");
  if (file == nullptr) {
    return contents;
  }
  char block[4096];
  for (std::size_t got = 0; (got = std::fread(block, 1, sizeof block, file)) > 0;) {
    contents.append(block, got);
  }
  std::fclose(file);
  return contents;
}

void fail(const std::string& message) {
  std::fwrite(message.data(), 1, message.size(), stderr);  // NUL bytes included
  std::fputc('\n', stderr);
  std::abort();
}

void fail(std::initializer_list<std::string_view> parts) {
  std::string message;
  for (const std::string_view part : parts) {
    message += part;
  }
  fail(message);
}

}  // namespace qelpro_fuzz
