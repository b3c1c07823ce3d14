#include "output.h"

#include <cerrno>
#include <cstdio>

#include "system/failure.h"
#include "system/files.h"
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
  if (pending_.size() >= kBlock) {
    flush();
  }
}

void Output::flush() {
  if (to_terminal_) {
    pending_ = visible(pending_, Controls::all_but_layout);
  }
  errno = 0;
  if (std::fwrite(pending_.data(), 1, pending_.size(), stdout) != pending_.size() ||
      std::fflush(stdout) != 0) {
    pending_.clear();
    fail_to_write();
  }
  pending_.clear();
}

void Output::finish() {
  if (pending_.empty()) {
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

void write_answer(const std::optional<std::string>& file, const std::function<void(Sink&)>& write) {
  if (!file || *file == "-") {
    write(answer());
    return;
  }
  TextSink contents;
  write(contents);
  write_whole(*file, contents.text());
}

}  // namespace qelpro
