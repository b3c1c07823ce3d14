#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "system/failure.h"
#include "system/files.h"
#include "system/own_path.h"

namespace qelpro {

bool exists(const std::string& file) {
  std::error_code error;
  return std::filesystem::exists(std::filesystem::symlink_status(own_path(file), error));
}

void write_whole(const std::string& file, std::string_view contents) {
  std::error_code error;
  const auto kind = std::filesystem::status(own_path(file), error).type();
  if (kind == std::filesystem::file_type::character || kind == std::filesystem::file_type::fifo) {
    write_into(file, file, contents);
  } else if (exists(file)) {
    Replacement replacement(file);
    replacement.write(contents);
    replacement.commit();
  } else {
    write_new(file, contents);
  }
}

void write_new(const std::string& file, std::string_view contents) {
  NewFile made(file, contents.size());
  write_into(made.temporary_path(), file, contents);
  made.publish();
}

std::string read_standard_input() {
  constexpr std::size_t kBlock = std::size_t{64} * 1024;
  std::string contents;
  std::size_t got = 1;
  while (got != 0) {
    const std::size_t length = contents.size();
    contents.resize(length + kBlock);
    errno = 0;
    got = std::fread(contents.data() + length, 1, kBlock, stdin);
    contents.resize(length + got);
  }
  if (std::ferror(stdin) != 0) {
    throw Failure(kFileError, "standard input: cannot be read: " + reason_of(errno));
  }
  return contents;
}

}  // namespace qelpro
