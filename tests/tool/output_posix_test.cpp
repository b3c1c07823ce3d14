#include <fcntl.h>
#include <gmock/gmock.h>
#include <pty.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "support/environment.h"
#include "support/scratch.h"
#include "tool/shell.h"

// What becomes of an answer on its way out of the process.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kFile = "[Flow-1]\nFillTime = 1.5\nRemark = \x1b[31mred\x07 \xc2\x9b ok\n";

// Every way in which the tool answers.
const std::vector<std::string> kAnswers = {
    "get \"$1\" Flow-1 FillTime",
    "show \"$1\"",
    "show \"$1\" --json",
    "process \"$1\"",
    "process \"$1\" --json",
    "machines \"$2\"",
    "machines \"$2\" Tessaro --json",
    "coolant \"$3\" 6 10",
    "coolant \"$3\" --table 6 --from 1 --to 2 --step 1 --json",
    "diff \"$1\" \"$2\"",
    "diff \"$1\" \"$2\" --json",
    "explain",
    "explain Flow-1 --json",
    "--help",
    "get --help",
    "--version"};

Outcome answer(const std::string& command, const std::string& redirection) {
  const Scratch scratch;
  return shell("\"$0\" " + command + " " + redirection,
               {scratch.file(kFile), data_path("machines.bank"), data_path("coolants.pcs")});
}

TEST(Output, ThatDoesNotFitOnTheDeviceIsAnError) {
  for (const std::string& command : kAnswers) {
    const Outcome outcome = answer(command, ">/dev/full");
    EXPECT_EQ(outcome.status, 3) << command;
    EXPECT_EQ(outcome.err, "qelpro: standard output: cannot be written: No space left on device\n")
        << command;
  }
}

TEST(Output, ThatHasNowhereToGoIsAnError) {
  for (const std::string& command : kAnswers) {
    const Outcome outcome = answer(command, ">&-");
    EXPECT_EQ(outcome.status, 3) << command;
    EXPECT_THAT(outcome.err, HasSubstr("standard output: cannot be written")) << command;
  }
}

TEST(Output, BeyondALimitOfFileSizesIsAnError) {
  const Scratch scratch;
  std::string contents = "[A]\n";
  for (int i = 0; i < 1000; ++i) {
    contents += "k" + std::to_string(i) + " = 1\n";
  }
  const Outcome outcome = shell("ulimit -f 1; \"$0\" show \"$1\" >\"$2\"",
                                {scratch.file(contents), scratch.path("out")});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("File too large"));
}

TEST(Output, OfASilentCommandMayHaveNowhereToGo) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\nx = 1\n");
  const Outcome outcome = shell("\"$0\" set \"$1\" A x 2 >&- 2>&- <&-", {file});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(bytes_of(file), "[A]\nx = 2\n");
}

TEST(Output, NeverLandsInAFileWhenTheStreamsAreClosed) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\nx = 1\n");
  EXPECT_EQ(shell("\"$0\" set \"$1\" A 'y z' 2 >&- 2>&- <&-", {file}).status, 2);
  EXPECT_EQ(bytes_of(file), "[A]\nx = 1\n");
}

TEST(Output, IntoAClosedPipeEndsQuietly) {
  const Scratch scratch;
  std::string contents = "[A]\n";
  for (int i = 0; i < 20000; ++i) {
    contents += "k" + std::to_string(i) + " = 1\n";
  }
  for (const char* prelude : {"", "trap '' PIPE; "}) {
    const Outcome outcome =
        shell(std::string(prelude) + "{ \"$0\" show \"$1\"; echo $? >\"$2\"; } | head -n 1",
              {scratch.file(contents), scratch.path("status")});
    EXPECT_EQ(outcome.out, "[A]  # unknown section\n") << prelude;
    EXPECT_EQ(outcome.err, "") << prelude;
  }
}

// What a terminal gets that is the output of the tool; nothing on a machine that has no terminals
// to give, such as a bare chroot.
std::optional<std::string> on_terminal(const std::vector<std::string>& arguments) {
  std::vector<char*> words = {const_cast<char*>(QELPRO_TOOL_PATH)};
  for (const std::string& argument : arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  int terminal = -1;
  const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child == 0) {
    ::execv(words[0], words.data());
    ::_exit(127);
  }
  if (child < 0) {
    return std::nullopt;
  }
  std::string text;
  char block[4096];
  for (ssize_t got = 0; (got = ::read(terminal, block, sizeof block)) > 0;) {
    text.append(block, static_cast<std::size_t>(got));
  }
  ::close(terminal);
  ::waitpid(child, nullptr, 0);
  return text;
}

TEST(Output, ToATerminalShowsControlCharactersAsEscapes) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"get", file, "Flow-1", "Remark"},
        {"show", file},
        {"show", file, "--json"},
        {"get", file, "Flow-1", "\x1b[2J"},
        {"get", scratch.path("\x1b]0;x\x07"), "A", "b"}}) {
    const std::optional<std::string> text = on_terminal(command);
    if (!text) {
      GTEST_SKIP() << "no terminal could be opened: " << std::strerror(errno);
    }
    EXPECT_THAT(*text,
                AllOf(Not(HasSubstr("\x1b")), Not(HasSubstr("\x07")), Not(HasSubstr("\xc2\x9b"))))
        << testing::PrintToString(command);
    EXPECT_NE(*text, "");
  }
  EXPECT_EQ(on_terminal({"get", file, "Flow-1", "Remark"}), "\\x1B[31mred\\x07 \\x9B ok\r\n");
}

TEST(Output, ToATerminalHasTheColorsOfTheToolAlone) {
  const Scratch scratch;
  const std::string before = scratch.file(kFile);
  const std::string after = scratch.file("[Flow-1]\nFillTime = 1.5\nRemark = new\n", "b.pro");
  const KeptEnvironment kept("NO_COLOR");
  const KeptEnvironment terminal("TERM");
  set_environment("NO_COLOR", std::nullopt);
  set_environment("TERM", "xterm");
  const std::optional<std::string> colored = on_terminal({"diff", before, after});
  if (!colored) {
    GTEST_SKIP() << "no terminal could be opened: " << std::strerror(errno);
  }
  EXPECT_EQ(
      *colored,
      "~ Flow-1.Remark: \x1b[1;31m\\x1B[31mred\\x07 \\x9B ok\x1b[0m -> \x1b[32mnew\x1b[0m\r\n");
  const std::string plain = "~ Flow-1.Remark: \\x1B[31mred\\x07 \\x9B ok -> new\r\n";
  EXPECT_EQ(on_terminal({"diff", before, after, "--color=never"}), plain);
  set_environment("NO_COLOR", "1");
  EXPECT_EQ(on_terminal({"diff", before, after}), plain);
}

TEST(Output, ToAPipeOrAFileHasTheBytes) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile);
  EXPECT_EQ(run(QELPRO_TOOL_PATH, {"get", file, "Flow-1", "Remark"}).out,
            "\x1b[31mred\x07 \xc2\x9b ok\n");
  EXPECT_EQ(shell("\"$0\" get \"$1\" Flow-1 Remark | cat", {file}).out,
            "\x1b[31mred\x07 \xc2\x9b ok\n");
}

TEST(Show, NeedsMemoryOfAtMostTwentyTimesTheFile) {
  const Scratch scratch;
  std::string contents;
  for (int section = 1; contents.size() < 1'200'000; ++section) {
    contents += "[Flow-" + std::to_string(section) + "]\nFillTime = 1.5\nFRSet = 20\n";
    for (int point = 1; point <= 20; ++point) {
      contents += "FR-" + std::to_string(point) + " = " + std::to_string(point) + "\t50\n";
    }
  }
  const std::string file = scratch.file(contents);
  const std::string out = scratch.path("out");
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(::open(out.c_str(), O_WRONLY | O_CREAT, 0666), STDOUT_FILENO);
    ::execl(QELPRO_TOOL_PATH, "qelpro", "show", "--json", file.c_str(), nullptr);
    ::_exit(127);
  }
  int status = -1;
  rusage usage{};
  ASSERT_EQ(::wait4(child, &status, 0, &usage), child);
  ASSERT_EQ(status, 0);
  EXPECT_GT(bytes_of(out).size(), contents.size());
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  EXPECT_LE(static_cast<std::size_t>(usage.ru_maxrss) * 1024, 20 * contents.size());
#endif
}

}  // namespace
