#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "system/calls_posix.h"
#include "system/failure.h"
#include "system/files.h"
#include "system/new_files.h"

namespace qelpro {
namespace {

[[noreturn]] void fail(const std::string& file, int error) {
  throw SystemFailure(file, "cannot be written: " + reason_of(error), error);
}

}  // namespace

// Files without a name: the system takes them away when the program ends, however it does.
struct NewFiles::Held {
  std::vector<std::pair<std::string, int>> files;
  bool are_nameless = true;  // Not every file system has such.

  // So that a crash of the machine finds them whole. The whole file system at once is faster than
  // many files, and slower than a few while others write, too.
  [[nodiscard]] bool sync(int folder) const {
    constexpr std::size_t kFew = 8;
    return files.size() > kFew ? ::syncfs(folder) == 0
                               : std::ranges::all_of(files, [](const auto& file) {
                                   return ::fsync(file.second) == 0;
                                 });
  }

  void close_all() {
    for (const auto& [file, descriptor] : files) {
      ::close(descriptor);
    }
    files.clear();
  }
};

NewFiles::NewFiles(std::string folder)
    : folder_(std::move(folder)), held_(std::make_unique<Held>()) {}

NewFiles::~NewFiles() { held_->close_all(); }

std::size_t NewFiles::most_at_once(std::size_t threads) {
  constexpr std::size_t kEnough = 256;
  rlimit limit{};
  const std::size_t open_files =
      ::getrlimit(RLIMIT_NOFILE, &limit) == 0 ? static_cast<std::size_t>(limit.rlim_cur) : 0;
  return std::clamp(open_files / 2 / std::max<std::size_t>(threads, 1), std::size_t{1}, kEnough);
}

void NewFiles::add(const std::string& name, std::string_view contents) {
  constexpr mode_t kAsTheUserWants = 0666;
  const std::string file = folder_ + "/" + name;
  const int descriptor =
      held_->are_nameless
          ? ::open(folder_.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kAsTheUserWants)
          : -1;
  if (descriptor < 0) {
    if (held_->are_nameless && errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL) {
      fail(file, errno);
    }
    held_->are_nameless = false;
    write_whole(file, contents);
    return;
  }
  held_->files.emplace_back(file, descriptor);
  if (::access(link_of(descriptor).c_str(), F_OK) != 0) {
    // They cannot be given a name here.
    ::close(descriptor);
    held_->files.pop_back();
    held_->are_nameless = false;
    write_whole(file, contents);
    return;
  }
  if (!write_all(descriptor, contents)) {
    fail(file, errno);
  }
}

void NewFiles::publish() {
  if (held_->files.empty()) {
    return;
  }
  const int folder = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0 || !held_->sync(folder)) {
    const int error = errno;
    if (folder >= 0) {
      ::close(folder);
    }
    fail(folder_, error);
  }
  int error = 0;
  std::string failed;
  for (const auto& [file, descriptor] : held_->files) {
    // Does not take the place of what is there.
    if (::linkat(AT_FDCWD, link_of(descriptor).c_str(), AT_FDCWD, file.c_str(),
                 AT_SYMLINK_FOLLOW) != 0) {
      error = errno;
      failed = file;
      break;
    }
  }
  // So that the names last through a crash of the machine; where that cannot be had, the files are
  // there nevertheless.
  ::fsync(folder);
  ::close(folder);
  held_->close_all();
  if (error != 0) {
    if (error == EEXIST) {
      throw SystemFailure(failed, "exists already", EEXIST);
    }
    fail(failed, error);
  }
}

}  // namespace qelpro
