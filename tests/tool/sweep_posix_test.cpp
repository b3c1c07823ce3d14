#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "support/scratch.h"
#include "tool/shell.h"

// `sweep` where it is interrupted, where the disk is full, and at a terminal.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const std::string kFile = "[Flow-1]\nFillTime = 1\n";

// Every file that is there is one of the plan, whole; yields how many there are.
std::size_t whole_files(const std::string& folder) {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with("manifest.")) {
      continue;
    }
    EXPECT_TRUE(name.starts_with("base-") && name.ends_with(".pro")) << name;
    const std::size_t digits = name.size() - std::string("base-.pro").size();
    const int number = std::stoi(name.substr(5, digits));
    EXPECT_EQ(bytes_of(entry.path().string()),
              "[Flow-1]\nFillTime = " + std::to_string(number) + "\n")
        << name;
    ++count;
  }
  return count;
}

pid_t start(const std::vector<std::string>& arguments) {
  const pid_t child = ::fork();
  if (child == 0) {
    const int nothing = ::open("/dev/null", O_RDWR);
    ::dup2(nothing, STDERR_FILENO);
    std::vector<char*> words;
    for (const std::string& argument : arguments) {
      words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    ::execv(QELPRO_TOOL_PATH, words.data());
    ::_exit(127);
  }
  return child;
}

TEST(SweepInTrouble, LeavesWholeFilesWhenItIsInterruptedAndResumes) {
  for (const int signal : {SIGINT, SIGTERM, SIGKILL}) {
    const Scratch scratch;
    const std::string file = scratch.file(kFile, "base.pro");
    const std::string folder = scratch.path("study");
    const std::vector<std::string> arguments = {
        "qelpro", "sweep", file, "--set", "Flow-1.FillTime=1:1500:1", "-o", folder};
    const pid_t child = start(arguments);
    while (::waitpid(child, nullptr, WNOHANG) == 0 && !exists(folder + "/base-0001.pro")) {
      ::usleep(1000);
    }
    ::kill(child, signal);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child) << "it was through before the signal";
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
    const std::size_t made = whole_files(folder);
    EXPECT_GT(made, 0U);
    EXPECT_LE(made, 1500U);
    const Outcome resumed = shell(
        "\"$0\" sweep \"$1\" --set Flow-1.FillTime=1:1500:1 -o \"$2\" --resume", {file, folder});
    EXPECT_EQ(resumed.status, 0) << resumed.err;
    EXPECT_EQ(whole_files(folder), 1500U);
  }
}

TEST(SweepInTrouble, RefusesAFolderWithoutRoomBeforeTheFirstWrite) {
  const Scratch scratch;
  if (::mount("tmpfs", scratch.path("").c_str(), "tmpfs", 0, "size=256k") != 0) {
    GTEST_SKIP() << "no file system may be mounted here";
  }
  const std::string file = scratch.file(kFile, "base.pro");
  const Outcome outcome = shell("\"$0\" sweep \"$1\" --set Flow-1.FillTime=1:1000:1 -o \"$2\"",
                                {file, scratch.path("s")});
  const bool made = exists(scratch.path("s"));
  ::umount2(scratch.path("").c_str(), MNT_DETACH);
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, AllOf(HasSubstr("no room: 1000 files need"), HasSubstr(" are free")));
  EXPECT_FALSE(made);
}

// The inodes end before the room does, which is seen only when it happens.
TEST(SweepInTrouble, LeavesWholeFilesWhereTheDiskEndsInTheMiddle) {
  const Scratch scratch;
  if (::mount("tmpfs", scratch.path("").c_str(), "tmpfs", 0, "size=32m,nr_inodes=600") != 0) {
    GTEST_SKIP() << "no file system may be mounted here";
  }
  const std::string file = scratch.file(kFile, "base.pro");
  const std::string folder = scratch.path("s");
  const std::string script = "\"$0\" sweep \"$1\" --set Flow-1.FillTime=1:1000:1 -o \"$2\" ";
  const Outcome full = shell(script, {file, folder});
  const std::size_t made = whole_files(folder);
  ::mount("tmpfs", scratch.path("").c_str(), "tmpfs", MS_REMOUNT, "size=32m,nr_inodes=2000");
  const Outcome resumed = shell(script + "--resume", {file, folder});
  const std::size_t all = whole_files(folder);
  ::umount2(scratch.path("").c_str(), MNT_DETACH);
  EXPECT_EQ(full.status, 3);
  EXPECT_THAT(full.err, HasSubstr("No space left on device"));
  EXPECT_LT(made, 1000U);
  EXPECT_EQ(resumed.status, 0) << resumed.err;
  EXPECT_EQ(all, 1000U);
}

TEST(SweepInTrouble, TellsWhatTheUserMayNotDo) {
  const std::string unprivileged = "exec setpriv --reuid=65534 --regid=65534 --clear-groups -- ";
  if (::geteuid() != 0 || shell(unprivileged + "true").status != 0) {
    GTEST_SKIP() << "needs the superuser, who becomes someone else";
  }
  const Scratch scratch;
  const std::string file = scratch.file(kFile, "base.pro");
  std::filesystem::permissions(scratch.path(""), std::filesystem::perms(0755));
  std::filesystem::create_directory(scratch.path("theirs"));
  for (const std::string folder : {"theirs", "new"}) {
    const Outcome outcome =
        shell(unprivileged + "\"$0\" sweep \"$1\" --set Flow-1.FillTime=1,2 -o \"$2\"",
              {file, scratch.path(folder)});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_THAT(outcome.err, HasSubstr("Permission denied"));
  }
  EXPECT_TRUE(std::filesystem::is_empty(scratch.path("theirs")));
}

#ifdef QELPRO_FAILING_CALLS
TEST(SweepInTrouble, LeavesNothingBehindAFailingCall) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile, "base.pro");
  const std::string folder = scratch.path("s");
  const Outcome outcome =
      shell(std::string("export LD_PRELOAD='") + QELPRO_FAILING_CALLS +
                "' QELPRO_TEST_FAIL=write; \"$0\" sweep \"$1\" --set Flow-1.FillTime=1,2 -o \"$2\"",
            {file, folder});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("Input/output error"));
  EXPECT_TRUE(std::filesystem::is_empty(folder));
}
#endif

TEST(SweepInTrouble, MakesTheFilesWithFewDescriptors) {
  const Scratch scratch;
  const std::string file = scratch.file(kFile, "base.pro");
  const Outcome outcome =
      shell("ulimit -n 20; \"$0\" sweep \"$1\" --set Flow-1.FillTime=1:500:1 -o \"$2\"",
            {file, scratch.path("s")});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(whole_files(scratch.path("s")), 500U);
}

TEST(SweepInTrouble, ReadsStandardInput) {
  const Scratch scratch;
  const Outcome outcome = shell("\"$0\" sweep - --set Flow-1.FillTime=1,2 -o \"$2\" <\"$1\"",
                                {scratch.file(kFile), scratch.path("s")});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(bytes_of(scratch.path("s/process-0002.pro")), "[Flow-1]\nFillTime = 2\n");
}

}  // namespace
