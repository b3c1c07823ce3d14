#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "support/scratch.h"

// `show` of files with very many very short lines.

namespace {

using namespace qelpro_test;

std::string repeated(const std::string& front, const std::string& line, std::size_t count) {
  std::string contents = front;
  while (count-- != 0) {
    contents += line;
  }
  return contents;
}

class ShowOfShortLines : public testing::TestWithParam<std::vector<std::string>> {};

// The program itself takes some memory, whatever the file.
TEST_P(ShowOfShortLines, NeedsMemoryOfAtMostTwentyTimesTheFile) {
  constexpr std::size_t kLines = 300'000;
  constexpr std::size_t kProgram = std::size_t{12} * 1024 * 1024;
  const Scratch scratch;
  const std::string contents = repeated(GetParam()[0], GetParam()[1], kLines);
  const std::string file = scratch.file(contents);
  for (const char* option : {"--json", "--"}) {
    const pid_t child = ::fork();
    if (child == 0) {
      ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
      ::execl(QELPRO_TOOL_PATH, "qelpro", "show", option, file.c_str(), nullptr);
      ::_exit(127);
    }
    int status = -1;
    rusage usage{};
    ASSERT_EQ(::wait4(child, &status, 0, &usage), child);
    EXPECT_EQ(status, 0) << option;
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LE(static_cast<std::size_t>(usage.ru_maxrss) * 1024, kProgram + 20 * contents.size()) << option;
#endif
  }
}

INSTANTIATE_TEST_SUITE_P(Lines, ShowOfShortLines,
                         testing::Values(std::vector<std::string>{"[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n", "1\n"},
                                         std::vector<std::string>{"[A]\n", "\n"}, std::vector<std::string>{"[A]\n", "a\n"},
                                         std::vector<std::string>{"", "[A]\n"}, std::vector<std::string>{"[A]\n", "a=\n"}));

}  // namespace
