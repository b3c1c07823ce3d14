#include <fcntl.h>
#include <gmock/gmock.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "support/scratch.h"

// What long work says of itself at a terminal.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

// What a terminal as stderr gets, the answer going elsewhere. Nothing where none can be opened.
std::optional<std::string> shown_at_a_terminal(const std::vector<std::string>& arguments) {
  int terminal = -1;
  const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child < 0) {
    return std::nullopt;
  }
  if (child == 0) {
    ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
    std::vector<char*> words = {const_cast<char*>("qelpro")};
    for (const std::string& argument : arguments) {
      words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    ::execv(QELPRO_TOOL_PATH, words.data());
    ::_exit(127);
  }
  std::string shown;
  std::array<char, 4096> block{};
  for (ssize_t got = 0; (got = ::read(terminal, block.data(), block.size())) > 0;) {
    shown.append(block.data(), static_cast<std::size_t>(got));
  }
  ::close(terminal);
  int status = -1;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  return shown;
}

// One line, which is written over and gone at the end.
void expect_progress(const std::vector<std::string>& arguments, const std::string& of) {
  const std::optional<std::string> shown = shown_at_a_terminal(arguments);
  if (!shown) {
    GTEST_SKIP() << "no terminal can be opened here";
  }
  EXPECT_THAT(*shown, AllOf(HasSubstr(of), Not(HasSubstr("\n"))));
  EXPECT_EQ(shown->find_last_not_of(" \r"), shown->rfind(')'));
}

TEST(Progress, OfASweepIsGoneAtTheEnd) {
  const Scratch scratch;
  const std::string file = scratch.file("[Flow-1]\nFillTime = 1\n", "base.pro");
  expect_progress({"sweep", file, "--set", "Flow-1.FillTime=1:1500:1", "-o", scratch.path("study")},
                  " of 1500 files (");
}

TEST(Progress, OfACheckOfSeveralFilesIsGoneAtTheEnd) {
  const Scratch scratch;
  const std::string file = scratch.file("[Flow-1]\nFillTime = 1\n");
  expect_progress({"check", file, file, file}, "2 of 3 files (66 %)");
}

TEST(Progress, IsNotShownOfOneFile) {
  const Scratch scratch;
  const auto shown = shown_at_a_terminal({"check", scratch.file("[Flow-1]\nFillTime = 1\n")});
  if (!shown) {
    GTEST_SKIP() << "no terminal can be opened here";
  }
  EXPECT_EQ(*shown, "");
}

}  // namespace
