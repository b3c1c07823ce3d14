#include "status.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>

int fail(Status status, const std::string& message) {
  std::cerr << "qelpro: " << message << '\n';
  return status;
}

std::string place(const std::string& file, const std::string& section, const std::string& key) { return file + ": " + section + " " + key; }

std::string with_brackets(const std::string& section) { return !section.empty() && section.front() == '[' ? section : "[" + section + "]"; }

std::string why_unreadable(const std::string& file) {
  std::error_code error;
  const auto kind = std::filesystem::status(file, error);
  if (!std::filesystem::exists(kind)) {
    return std::strerror(ENOENT);
  }
  if (!std::filesystem::is_regular_file(kind)) {
    return "not a regular file";
  }
  errno = 0;
  if (!std::ifstream(file, std::ios::binary)) {
    return errno != 0 ? std::strerror(errno) : "cannot be read";
  }
  return {};
}
