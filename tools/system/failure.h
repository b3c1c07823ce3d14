#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace qelpro {

/// The exit statuses of the tool.
enum Status : int { kDone = 0, kNotFound = 1, kUsage = 2, kFileError = 3 };

/// What ends a command before its time: the exit status, and the message, in which a character 0 is
/// told as "\x00": it would end there.
class Failure : public std::runtime_error {
 public:
  Failure(Status status, const std::string& message);
  [[nodiscard]] Status status() const { return status_; }

 private:
  Status status_;
};

/// A `Failure` of a file that the operating system has a number for.
class SystemFailure : public Failure {
 public:
  /// `what` says what failed, with the reason; `error` is that of errno.
  SystemFailure(const std::string& file, const std::string& what, int error);
  [[nodiscard]] const std::string& file() const { return file_; }
  [[nodiscard]] const std::string& reason() const { return reason_; }
  [[nodiscard]] int error() const { return error_; }

 private:
  std::string file_;
  std::string reason_;
  int error_;
};

/// Does work on a file whose user knows it under another name than its path, by which messages call
/// it then.
template <class Work>
auto under_name(const std::string& name, const Work& work) {
  try {
    return work();
  } catch (const SystemFailure& failure) {
    throw SystemFailure(name, failure.reason(), failure.error());
  }
}

/// Throws a `Failure` of usage.
[[noreturn]] void refuse_usage(const std::string& what);

/// Where something is, for a message. What is empty, or line 0, is left out.
struct Where {
  std::string file;
  std::size_t line = 0;
  std::string section;
  std::string key;
};

/// "FILE:LINE: [SECTION] KEY: what happened"
std::string at(const Where& where, std::string_view what);
/// "FILE: what happened"
std::string at(const std::string& file, std::string_view what);

/// Writes "qelpro: message" to stderr, in one line.
void complain(std::string_view message);

/// The operating system's words for an error number.
std::string reason_of(int error);

}  // namespace qelpro
