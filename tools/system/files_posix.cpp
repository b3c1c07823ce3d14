#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include "platform/steady_read.h"
#include "platform/store_lock.h"
#include "system/beside.h"
#include "system/calls_posix.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {
namespace {

[[noreturn]] void fail(const std::string& file, const std::string& what, int error = errno) {
  throw SystemFailure(file, what + reason_of(error), error);
}

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { reset(-1); }

  [[nodiscard]] int get() const { return number_; }
  [[nodiscard]] bool is_open() const { return number_ >= 0; }
  void reset(int number) {
    if (is_open()) {
      ::close(number_);
    }
    number_ = number;
  }
  // False when something that was written is lost.
  bool close() {
    const int number = number_;
    number_ = -1;
    return ::close(number) == 0 || errno == EINTR;
  }

 private:
  int number_ = -1;
};

int open_file(const std::string& file, int flags, mode_t mode = 0) {
  return static_cast<int>(
      retried([&] { return ::open(file.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); }));
}

// What a shell hands over by name, as in "diff <(...) b": it is open already.
bool is_handed_over(const std::string& file) {
  return file.starts_with("/dev/fd/") || file.starts_with("/proc/self/fd/") ||
         file == "/dev/stdin" || file == "/dev/null";
}

// Only a regular file is opened: to open a named pipe would wait for its other end.
void check_is_regular(const std::string& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0) {
    fail(file, "");
  }
  if (S_ISDIR(status.st_mode)) {
    fail(file, "", EISDIR);
  }
  if (!S_ISREG(status.st_mode)) {
    throw SystemFailure(file, "not a regular file", EINVAL);
  }
}

std::string read_all(int descriptor, const std::string& file) {
  constexpr std::size_t kSmallest = std::size_t{16} * 1024;
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) {
    fail(file, "");
  }
  std::string contents(static_cast<std::size_t>(status.st_size) + 1, '\0');
  std::size_t length = 0;
  for (;;) {
    if (length == contents.size()) {
      contents.resize(length + std::max(length, kSmallest));
    }
    const long got = retried(
        [&] { return ::read(descriptor, contents.data() + length, contents.size() - length); });
    if (got < 0) {
      fail(file, "cannot be read to its end: ");
    }
    if (got == 0) {
      contents.resize(length);
      return contents;
    }
    length += static_cast<std::size_t>(got);
  }
}

// Access lists and the like; what the file system or the user's rights do not allow is left.
void copy_attributes(int from, int to) {
  constexpr std::size_t kLongestList = std::size_t{64} * 1024;
  std::vector<char> names(kLongestList);
  std::vector<char> value(kLongestList);
  const ssize_t length = ::flistxattr(from, names.data(), names.size());
  for (const char* name = names.data(); name < names.data() + length;
       name += std::char_traits<char>::length(name) + 1) {
    const ssize_t size = ::fgetxattr(from, name, value.data(), value.size());
    if (size >= 0) {
      ::fsetxattr(to, name, value.data(), static_cast<std::size_t>(size), 0);
    }
  }
}

// So that a name that was given lasts through a crash of the machine; where that cannot be had, the
// file is there nevertheless.
void sync_folder(const std::string& file) {
  const Descriptor folder(open_file(folder_of(file), O_RDONLY | O_DIRECTORY));
  if (folder.is_open()) {
    ::fsync(folder.get());
  }
}

// While it lives, signals that end a program wait: no temporary file is left over.
class SignalsWait {
 public:
  SignalsWait() {
    sigset_t ending;
    sigemptyset(&ending);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGALRM, SIGPIPE, SIGUSR1, SIGUSR2,
                             SIGXCPU, SIGVTALRM, SIGPROF}) {
      sigaddset(&ending, signal);
    }
    ::sigprocmask(SIG_BLOCK, &ending, &before_);
  }
  SignalsWait(const SignalsWait&) = delete;
  SignalsWait& operator=(const SignalsWait&) = delete;
  ~SignalsWait() { ::sigprocmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_{};
};

// A file that is to get its name, or another one's, once it is whole. It has none until then where
// the file system knows such files: the system takes it away when the program ends, however it
// does. Elsewhere it has a temporary name.
class Unnamed {
 public:
  Unnamed(std::string file, std::string target, mode_t mode)
      : file_(std::move(file)), target_(std::move(target)) {
    descriptor_.reset(open_file(folder_of(target_), O_TMPFILE | O_RDWR, mode));
    if (descriptor_.is_open()) {
      path_ = link_of(descriptor_.get());
      if (::access(path_.c_str(), F_OK) == 0) {
        return;
      }
    }
    // Any reason: where a file with a name cannot be made either, that one is told.
    descriptor_.reset(-1);
    at_free_name([&] {
      descriptor_.reset(open_file(name_, O_RDWR | O_CREAT | O_EXCL, mode));
      return descriptor_.is_open();
    });
    path_ = name_;
  }
  Unnamed(const Unnamed&) = delete;
  Unnamed& operator=(const Unnamed&) = delete;
  ~Unnamed() {
    if (!name_.empty()) {
      ::unlink(name_.c_str());
    }
  }

  [[nodiscard]] int descriptor() const { return descriptor_.get(); }
  [[nodiscard]] const std::string& path() const { return path_; }

  // Puts it into the place of the target, of which nobody else makes another one meanwhile. False,
  // with the reason in errno, where it cannot be had.
  bool replace() {
    if (name_.empty()) {
      link_beside();
    }
    if (!descriptor_.close() || ::rename(name_.c_str(), target_.c_str()) != 0) {
      return false;
    }
    name_.clear();
    return true;
  }

  // Gives it the target's name, which must be free. What is on the disk already loses nothing when
  // it is closed.
  bool publish() {
    if (name_.empty()) {
      return link_to(target_);
    }
    // Neither call takes the place of what is there; not every file system knows both.
    if (::renameat2(AT_FDCWD, name_.c_str(), AT_FDCWD, target_.c_str(), RENAME_NOREPLACE) == 0) {
      name_.clear();
      return true;
    }
    return errno != EEXIST && ::link(name_.c_str(), target_.c_str()) == 0;
  }

 private:
  bool link_to(const std::string& name) const {
    return ::linkat(AT_FDCWD, path_.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
  }

  // A name for the moment until it takes the target's. It is the same each time, so that what a
  // program left there that was killed in that moment goes when the file is next written.
  void link_beside() {
    name_ = path_beside_for_a_moment(target_);
    if (link_to(name_) || (errno == EEXIST && ::unlink(name_.c_str()) == 0 && link_to(name_))) {
      return;
    }
    at_free_name([&] { return link_to(name_); });
  }

  // Tries temporary names until one is free for what `make` makes under it.
  template <class Make>
  void at_free_name(Make make) {
    constexpr int kAttempts = 100;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
      name_ = path_beside(target_);
      if (make()) {
        return;
      }
      if (errno != EEXIST) {
        break;
      }
    }
    const int error = errno;
    name_.clear();
    fail(file_,
         "cannot be written: no file can be made in \"" + folder_of(target_) + "\": ", error);
  }

  std::string file_;
  std::string target_;
  std::string path_;  // under which it can be opened
  std::string name_;  // to be taken away again
  Descriptor descriptor_;
};

}  // namespace

std::string read_file(const std::string& file) {
  if (file == "-") {
    return read_standard_input();
  }
  if (!is_handed_over(file)) {
    check_is_regular(file);
  }
  const Descriptor descriptor(open_file(file, O_RDONLY));
  if (!descriptor.is_open()) {
    fail(file, "");
  }
  struct stat status {};
  if (::fstat(descriptor.get(), &status) != 0) {
    fail(file, "");
  }
  if (!S_ISREG(status.st_mode)) {
    return read_all(descriptor.get(), file);
  }
  qel::platform::WatchedHandle watched(descriptor.get());
  return qel::platform::read_steadily(watched, [&] {
    ::lseek(descriptor.get(), 0, SEEK_SET);
    return read_all(descriptor.get(), file);
  });
}

void write_into(const std::string& path, const std::string& file, std::string_view contents) {
  constexpr mode_t kAsTheUserWants = 0666;
  Descriptor descriptor(open_file(path, O_WRONLY | O_CREAT | O_TRUNC, kAsTheUserWants));
  if (!descriptor.is_open() || !write_all(descriptor.get(), contents) || !descriptor.close()) {
    fail(file, "cannot be written: ");
  }
}

struct Replacement::Handles {
  Descriptor old_file;                        // holds the lock
  std::unique_ptr<SignalsWait> signals_wait;  // goes after the file that has a temporary name
  std::unique_ptr<Unnamed> new_file;
};

Replacement::Replacement(const std::string& file)
    : file_(file), handles_(std::make_unique<Handles>()) {
  struct stat held {};
  struct stat named {};
  do {
    check_is_regular(file);
    const std::unique_ptr<char, void (*)(void*)> real(::realpath(file.c_str(), nullptr),
                                                      &std::free);
    if (real == nullptr) {
      fail(file, "");
    }
    target_ = real.get();
    handles_->old_file.reset(open_file(target_, O_RDWR));
    if (!handles_->old_file.is_open()) {
      fail(file, "cannot be opened for writing: ");
    }
    if (qel::platform::lock_for_store(handles_->old_file.get()) ==
        qel::platform::LockAnswer::busy) {
      throw SystemFailure(file, kIsBusy, EAGAIN);
    }
    // Whoever held the lock has put another file into this one's place.
  } while (::fstat(handles_->old_file.get(), &held) != 0 || ::stat(target_.c_str(), &named) != 0 ||
           held.st_dev != named.st_dev || held.st_ino != named.st_ino);
  old_contents_ = read_all(handles_->old_file.get(), file);
}

Replacement::~Replacement() = default;

const std::string& Replacement::write(std::string_view contents) {
  constexpr mode_t kOwnersAlone = 0600;
  constexpr mode_t kAllBits = 07777;
  constexpr mode_t kGroupBits = 0070;
  constexpr mode_t kOtherBits = 0007;
  handles_->signals_wait = std::make_unique<SignalsWait>();
  handles_->new_file = std::make_unique<Unnamed>(file_, target_, kOwnersAlone);
  const int descriptor = handles_->new_file->descriptor();
  struct stat status {};
  if (::fstat(handles_->old_file.get(), &status) != 0) {
    fail(file_, "");
  }
  // Who may not give a file away keeps it, and its group where that is possible.
  if (::fchown(descriptor, status.st_uid, status.st_gid) != 0 &&
      ::fchown(descriptor, static_cast<uid_t>(-1), status.st_gid) != 0) {
    // Another group gets what everybody may.
    status.st_mode = (status.st_mode & ~kGroupBits) | ((status.st_mode & kOtherBits) << 3U);
  }
  copy_attributes(handles_->old_file.get(), descriptor);
  if (::fchmod(descriptor, status.st_mode & kAllBits) != 0) {
    fail(file_, "its permissions cannot be kept: ");
  }
  if (!write_all(descriptor, contents) || retried([&] { return ::fsync(descriptor); }) != 0) {
    fail(file_, "cannot be written, and is as it was: ");
  }
  return handles_->new_file->path();
}

void Replacement::commit() {
  if (!handles_->new_file->replace()) {
    fail(file_, "cannot be written, and is as it was: ");
  }
  sync_folder(target_);
}

struct NewFile::Guard {
  SignalsWait signals_wait;  // goes after the file that has a temporary name
  std::unique_ptr<Unnamed> new_file;
};

NewFile::NewFile(const std::string& file, std::size_t room)
    : guard_(std::make_unique<Guard>()), file_(file) {
  constexpr mode_t kAsTheUserWants = 0666;
  struct stat status {};
  if (::lstat(file.c_str(), &status) == 0) {
    throw SystemFailure(
        file,
        S_ISLNK(status.st_mode) ? "a symbolic link of this name exists already" : "exists already",
        EEXIST);
  }
  guard_->new_file = std::make_unique<Unnamed>(file, file, kAsTheUserWants);
  temporary_ = guard_->new_file->path();
  const int descriptor = guard_->new_file->descriptor();
  if (!write_all(descriptor, std::string(room, ' ')) ||
      retried([&] { return ::fsync(descriptor); }) != 0 ||
      retried([&] { return ::ftruncate(descriptor, 0); }) != 0) {
    fail(file, "cannot be written: ");
  }
}

NewFile::~NewFile() = default;

void NewFile::publish() {
  const int descriptor = guard_->new_file->descriptor();
  if (retried([&] { return ::fsync(descriptor); }) != 0 || !guard_->new_file->publish()) {
    if (errno == EEXIST) {
      throw SystemFailure(file_, "exists already", EEXIST);
    }
    fail(file_, "cannot be written: ");
  }
  sync_folder(file_);
}

}  // namespace qelpro
