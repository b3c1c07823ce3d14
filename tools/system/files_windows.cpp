#include <io.h>
#include <windows.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "platform/os_file.h"
#include "platform/steady_read.h"
#include "system/beside.h"
#include "system/failure.h"
#include "system/files.h"
#include "system/own_path.h"

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

Stream open_stream(const std::string& file, const wchar_t* mode) {
  return {::_wfopen(own_path(file).c_str(), mode), &std::fclose};
}

void remove(const std::string& file) { ::_wremove(own_path(file).c_str()); }

bool put(std::FILE* stream, std::string_view contents) {
  return std::fwrite(contents.data(), 1, contents.size(), stream) == contents.size();
}

// Empty where there is no file.
std::string where_links_lead(const std::string& file) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE handle = ::CreateFileW(own_path(file).c_str(), 0, kShared, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return {};
  }
  std::wstring path(::GetFinalPathNameByHandleW(handle, nullptr, 0, 0), L'\0');
  path.resize(::GetFinalPathNameByHandleW(handle, path.data(), static_cast<DWORD>(path.size()), 0));
  ::CloseHandle(handle);
  return path.empty() ? file : text_of(path);  // not every version tells of a long path
}

Stream make_beside(const std::string& file, const std::string& target, std::string& path) {
  path = path_beside(target);
  Stream stream = open_stream(path, L"wbx");
  if (stream == nullptr) {
    path.clear();
    fail(file, "cannot be written: no file can be made in \"" + folder_of(target) + "\": ");
  }
  return stream;
}

Stream open_to_read(const std::string& file) {
  Stream stream = open_stream(file, L"rb");
  if (stream == nullptr) {
    fail(file, "");
  }
  return stream;
}

std::string read_all(const Stream& stream, const std::string& file) {
  std::rewind(stream.get());
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

}  // namespace

std::string read_file(const std::string& file) {
  if (file == "-") {
    return read_standard_input();
  }
  std::error_code error;
  const auto kind = std::filesystem::status(own_path(file), error);
  if (std::filesystem::exists(kind) && !std::filesystem::is_regular_file(kind)) {
    throw Failure(kFileError, at(file, std::filesystem::is_directory(kind) ? reason_of(EISDIR)
                                                                           : "not a regular file"));
  }
  const Stream stream = open_to_read(file);
  qel::platform::WatchedHandle watched(::_get_osfhandle(::_fileno(stream.get())));
  return qel::platform::read_steadily(watched, [&] { return read_all(stream, file); });
}

void write_into(const std::string& path, const std::string& file, std::string_view contents) {
  errno = 0;
  std::ofstream out(path, std::ios::binary);
  out.write(contents.data(), static_cast<std::streamsize>(contents.size()));
  out.close();
  if (!out) {
    fail(file, "cannot be written: ");
  }
}

struct Replacement::Handles {
  qel::platform::OsFile old_file;  // holds the lock
  std::string temporary;
};

Replacement::Replacement(const std::string& file)
    : file_(file), handles_(std::make_unique<Handles>()) {
  target_ = where_links_lead(file);
  if (target_.empty()) {
    errno = ENOENT;
    fail(file, "");
  }
  if (const Stream writable = open_stream(target_, L"r+b"); writable == nullptr) {
    fail(file, "cannot be opened for writing: ");
  }
  if (!handles_->old_file.open_for_store(target_.c_str())) {
    throw SystemFailure(file, kIsBusy, EAGAIN);
  }
  old_contents_ = read_all(open_to_read(target_), target_);
}

Replacement::~Replacement() {
  if (!handles_->temporary.empty()) {
    remove(handles_->temporary);
  }
}

const std::string& Replacement::write(std::string_view contents) {
  Stream stream = make_beside(file_, target_, handles_->temporary);
  const bool whole = put(stream.get(), contents);
  if (std::fclose(stream.release()) != 0 || !whole) {
    fail(file_, "cannot be written, and is as it was: ");
  }
  return handles_->temporary;
}

void Replacement::commit() {
  // The one call that keeps the old file's attributes and access list.
  if (::ReplaceFileW(own_path(target_).c_str(), own_path(handles_->temporary).c_str(), nullptr,
                     REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) == 0) {
    fail_by_system(file_, "cannot be written, and is as it was: ");
  }
  handles_->temporary.clear();
}

// A console's interruption ends the program on a thread of its own, and cannot be held back.
struct NewFile::Guard {};

NewFile::NewFile(const std::string& file, std::size_t room) : file_(file) {
  if (std::error_code error;
      std::filesystem::exists(std::filesystem::symlink_status(own_path(file), error))) {
    throw Failure(kFileError, at(file, "exists already"));
  }
  Stream stream = make_beside(file, file, temporary_);
  const bool whole = put(stream.get(), std::string(room, ' '));
  const bool emptied =
      std::fclose(stream.release()) == 0 && open_stream(temporary_, L"wb") != nullptr;
  if (!whole || !emptied) {
    const int error = errno;
    remove(temporary_);
    errno = error;
    fail(file, "cannot be written: ");
  }
}

NewFile::~NewFile() {
  if (!temporary_.empty()) {
    remove(temporary_);
  }
}

void NewFile::publish() {
  if (::MoveFileExW(own_path(temporary_).c_str(), own_path(file_).c_str(),
                    MOVEFILE_WRITE_THROUGH) == 0) {
    fail_by_system(file_, "cannot be written: ");
  }
  temporary_.clear();
}

}  // namespace qelpro
