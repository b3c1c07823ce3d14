#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <ostream>
#include <string>

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

struct ShortLines {
  std::string front;
  std::string line;
  std::size_t count;
};

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t kFewer = 10;  // the memory is the sanitizer's, and not measured
#else
constexpr std::size_t kFewer = 1;
#endif

// As the test's name tells it: what stands in the file, and no address.
[[maybe_unused]] void PrintTo(const ShortLines& lines, std::ostream* out) {
  *out << lines.count << " lines";
}

class ShowOfShortLines : public testing::TestWithParam<ShortLines> {};

// The program itself takes some memory, whatever the file.
TEST_P(ShowOfShortLines, NeedsMemoryOfAtMostTwentyTimesTheFile) {
  const Scratch scratch;
  const std::string contents =
      repeated(GetParam().front, GetParam().line, GetParam().count / kFewer);
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
    constexpr std::size_t kProgram = std::size_t{12} * 1024 * 1024;
    // A child counts what this process held when it was made.
    rusage own{};
    ::getrusage(RUSAGE_SELF, &own);
    const std::size_t held = static_cast<std::size_t>(own.ru_maxrss) * 1024;
    EXPECT_LE(static_cast<std::size_t>(usage.ru_maxrss) * 1024,
              std::max(held, kProgram + 20 * contents.size()))
        << option;
#endif
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ShowOfShortLines,
    testing::Values(ShortLines{"[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n", "1\n", 50'000},
                    ShortLines{"[A]\n", "\n", 1'000'000}, ShortLines{"[A]\n", "a\n", 200'000},
                    ShortLines{"", "[A]\n", 150'000}, ShortLines{"[A]\n", "a=\n", 150'000}));

}  // namespace
