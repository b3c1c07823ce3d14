#include "progress.h"

#include <cstdio>
#include <utility>

#include "system/streams.h"

namespace qelpro {

Progress::Progress(std::uint64_t size, std::string what)
    : size_(size), what_(std::move(what)), to_terminal_(is_terminal(stderr)) {}

void Progress::show(std::uint64_t done) {
  constexpr std::uint64_t kWhole = 100;
  if (!to_terminal_) {
    return;
  }
  std::string line = std::to_string(done) + " of " + std::to_string(size_) + " " + what_;
  if (size_ != 0) {
    line += " (" + std::to_string(done * kWhole / size_) + " %)";
  }
  const std::size_t length = line.size();
  line.insert(0, "\r");
  if (length < shown_) {
    line.append(shown_ - length, ' ');
  }
  shown_ = length;
  std::fwrite(line.data(), 1, line.size(), stderr);
  std::fflush(stderr);
}

void Progress::clear() {
  if (shown_ != 0) {
    const std::string line = "\r" + std::string(shown_, ' ') + "\r";
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
    shown_ = 0;
  }
}

}  // namespace qelpro
