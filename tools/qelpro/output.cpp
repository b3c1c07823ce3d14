#include "output.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "system/failure.h"
#include "system/files.h"
#include "system/own_path.h"
#include "system/streams.h"
#include "system/visible.h"

namespace qelpro {

namespace {

[[noreturn]] void fail_to_write() {
  const int error = errno;
  if (error == EPIPE) {
    end_without_reader();
  }
  throw Failure(kFileError, "standard output: cannot be written: " + reason_of(error));
}

}  // namespace

Output::Output() : to_terminal_(is_terminal(stdout)) {}

void Output::put(std::string_view text) {
  constexpr std::size_t kBlock = std::size_t{64} * 1024;
  pending_ += text;
  if (pending_.size() + settled_.size() >= kBlock) {
    flush();
  }
}

void Output::put_escape(std::string_view escape) {
  settle();
  settled_ += escape;
}

void Output::settle() {
  settled_ += to_terminal_ ? visible(pending_, Controls::all_but_layout) : pending_;
  pending_.clear();
}

void Output::flush() {
  settle();
  errno = 0;
  if (std::fwrite(settled_.data(), 1, settled_.size(), stdout) != settled_.size() ||
      std::fflush(stdout) != 0) {
    settled_.clear();
    fail_to_write();
  }
  settled_.clear();
}

void Output::finish() {
  if (pending_.empty() && settled_.empty()) {
    return;
  }
  flush();
  // Some file systems tell what was lost only here.
  if (std::fclose(stdout) != 0) {
    fail_to_write();
  }
}

Output& answer() {
  static Output output;
  return output;
}

void write_answer(const std::optional<std::string>& file, const std::vector<std::string>& read,
                  const std::function<void(Sink&)>& write) {
  if (!file || *file == "-") {
    write(answer());
    return;
  }
  for (const std::string& input : read) {
    std::error_code error;
    if (std::filesystem::equivalent(own_path(*file), own_path(input), error)) {
      throw Failure(kUsage, at(*file, "the output would take the place of what it is made from"));
    }
  }
  TextSink contents;
  write(contents);
  write_whole(*file, contents.text());
}

}  // namespace qelpro
