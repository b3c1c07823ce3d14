// What a start of the tool costs that reads one value, beside one of a program that does nothing:
// both are started alternately, and each ratio is of this run.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "generated_file.h"

namespace {

constexpr int kStarts = 1000;

class Program {
 public:
  explicit Program(std::vector<std::string> words) : words_(std::move(words)) {
    for (std::string& word : words_) {
      arguments_.push_back(word.data());
    }
    arguments_.push_back(nullptr);
  }

  // From the start to the end, its output thrown away.
  void run() {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = -1;
    if (posix_spawn(&child, arguments_[0], &actions, nullptr, arguments_.data(), environ) != 0 ||
        waitpid(child, &status, 0) != child || status != 0) {
      std::fprintf(stderr, "%s does not run\n", arguments_[0]);
      std::exit(1);
    }
    times_.emplace_back(std::chrono::steady_clock::now() - begin);
    posix_spawn_file_actions_destroy(&actions);
  }

  // In milliseconds, of all starts the one at that part of them.
  double time_at(double part) {
    std::ranges::sort(times_);
    return times_[static_cast<std::size_t>(part * static_cast<double>(times_.size() - 1))].count();
  }

 private:
  std::vector<std::string> words_;
  std::vector<char*> arguments_;
  std::vector<std::chrono::duration<double, std::milli>> times_;
};

}  // namespace

int main() {
  const std::string file = (std::filesystem::temp_directory_path() /
                            ("qelpro-start-" + std::to_string(::getpid()) + ".pro"))
                               .string();
  std::ofstream(file, std::ios::binary) << generated_file(2);
  Program nothing({"/bin/true"});
  Program get({QELPRO_TOOL_PATH, "get", file, "Flow-1", "FillTime"});
  for (int start = 0; start < kStarts; ++start) {
    nothing.run();
    get.run();
  }
  std::filesystem::remove(file);
  std::printf("%-12s %10s %10s %6s\n", "start", "/bin/true", "qelpro get", "ratio");
  for (const auto& [name, part] :
       {std::pair("fastest", 0.0), std::pair("quarter", 0.25), std::pair("median", 0.5)}) {
    std::printf("%-12s %7.3f ms %7.3f ms %6.2f\n", name, nothing.time_at(part), get.time_at(part),
                get.time_at(part) / nothing.time_at(part));
  }
  return 0;
}
