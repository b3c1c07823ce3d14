#include <windows.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/os_file.h"
#include "system/beside.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {
namespace {

[[noreturn]] void fail(const std::string& file, const std::string& what) {
  throw SystemFailure(file, what + reason_of(errno), errno);
}

[[noreturn]] void fail_by_system(const std::string& file, const std::string& what) {
  const auto error = static_cast<int>(::GetLastError());
  throw Failure(kFileError, at(file, what + std::system_category().message(error)));
}

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

bool put(std::FILE* stream, std::string_view contents) {
  return std::fwrite(contents.data(), 1, contents.size(), stream) == contents.size();
}

Stream make_beside(const std::string& file, const std::string& target, std::string& path) {
  path = path_beside(target);
  Stream stream(std::fopen(path.c_str(), "wbx"), &std::fclose);
  if (stream == nullptr) {
    path.clear();
    fail(file, "cannot be written: no file can be made in \"" + folder_of(target) + "\": ");
  }
  return stream;
}

}  // namespace

std::string read_file(const std::string& file) {
  if (file == "-") {
    return read_standard_input();
  }
  std::error_code error;
  const auto kind = std::filesystem::status(file, error);
  if (std::filesystem::exists(kind) && !std::filesystem::is_regular_file(kind)) {
    throw Failure(kFileError, at(file, std::filesystem::is_directory(kind) ? reason_of(EISDIR)
                                                                           : "not a regular file"));
  }
  const Stream stream(std::fopen(file.c_str(), "rb"), &std::fclose);
  if (stream == nullptr) {
    fail(file, "");
  }
  std::string contents;
  std::array<char, 65536> block{};
  while (const std::size_t got = std::fread(block.data(), 1, block.size(), stream.get())) {
    contents.append(block.data(), got);
  }
  if (std::ferror(stream.get()) != 0) {
    fail(file, "cannot be read to its end: ");
  }
  return contents;
}

struct Replacement::Handles {
  qel::platform::OsFile old_file;  // holds the lock
};

Replacement::Replacement(const std::string& file)
    : file_(file), handles_(std::make_unique<Handles>()) {
  std::error_code error;
  target_ = std::filesystem::canonical(file, error).string();
  if (error) {
    errno = ENOENT;
    fail(file, "");
  }
  if (const Stream writable(std::fopen(target_.c_str(), "r+b"), &std::fclose);
      writable == nullptr) {
    fail(file, "cannot be opened for writing: ");
  }
  if (!handles_->old_file.open_for_store(target_.c_str())) {
    throw SystemFailure(file, kIsBusy, EAGAIN);
  }
  old_contents_ = read_file(target_);
}

Replacement::~Replacement() {
  if (!temporary_.empty()) {
    std::remove(temporary_.c_str());
  }
}

const std::string& Replacement::write(std::string_view contents) {
  Stream stream = make_beside(file_, target_, temporary_);
  const bool whole = put(stream.get(), contents);
  if (std::fclose(stream.release()) != 0 || !whole) {
    fail(file_, "cannot be written, and is as it was: ");
  }
  return temporary_;
}

void Replacement::commit() {
  // The one call that keeps the old file's attributes and access list.
  if (::ReplaceFileA(target_.c_str(), temporary_.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                     nullptr, nullptr) == 0) {
    fail_by_system(file_, "cannot be written, and is as it was: ");
  }
  temporary_.clear();
}

// A console's interruption ends the program on a thread of its own, and cannot be held back.
struct NewFile::Guard {};

NewFile::NewFile(const std::string& file, std::size_t room) : file_(file) {
  if (std::error_code error;
      std::filesystem::exists(std::filesystem::symlink_status(file, error))) {
    throw Failure(kFileError, at(file, "exists already"));
  }
  Stream stream = make_beside(file, file, temporary_);
  const bool whole = put(stream.get(), std::string(room, ' '));
  const bool emptied = std::fclose(stream.release()) == 0 &&
                       Stream(std::fopen(temporary_.c_str(), "wb"), &std::fclose) != nullptr;
  if (!whole || !emptied) {
    const int error = errno;
    std::remove(temporary_.c_str());
    errno = error;
    fail(file, "cannot be written: ");
  }
}

NewFile::~NewFile() {
  if (!temporary_.empty()) {
    std::remove(temporary_.c_str());
  }
}

void NewFile::publish() {
  if (::MoveFileExA(temporary_.c_str(), file_.c_str(), MOVEFILE_WRITE_THROUGH) == 0) {
    fail_by_system(file_, "cannot be written: ");
  }
  temporary_.clear();
}

}  // namespace qelpro
