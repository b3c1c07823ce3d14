#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/scratch.h"
#include "tool/shell.h"

// Commands while calls of the operating system fail, and while others work on the same file.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string long_file() {
  std::string contents = "[A]\nx = 1\n";
  while (contents.size() < 62 * 1024) {
    contents += "k" + std::to_string(contents.size()) + " = 1\n";
  }
  return contents;
}

// A script's prelude that runs the tool without the rights of the superuser.
const std::string kUnprivileged = "exec setpriv --reuid=65534 --regid=65534 --clear-groups -- ";
bool may_drop_rights() { return ::geteuid() == 0 && shell(kUnprivileged + "true").status == 0; }

#ifdef QELPRO_FAILING_CALLS
const std::string kPreload = std::string("export LD_PRELOAD='") + QELPRO_FAILING_CALLS + "'; ";

unsigned int mode_of(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

TEST(EveryCommand, FailsOnAFileThatCannotBeReadToItsEnd) {
  const Scratch scratch;
  const std::string contents = long_file();
  const std::string file = scratch.file(contents, "unreadable");
  for (const std::string command :
       {"get \"$1\" A x", "show \"$1\"", "show \"$1\" --json", "process \"$1\"", "set \"$1\" A x 2",
        "set \"$1\" A new 2", "machines \"$1\"", "coolant \"$1\" 6 10"}) {
    const Outcome outcome = shell(kPreload + "\"$0\" " + command, {file});
    EXPECT_EQ(outcome.status, 3) << command;
    EXPECT_EQ(outcome.out, "") << command;
    EXPECT_EQ(outcome.err, "qelpro: " + file + ": cannot be read to its end: Input/output error\n")
        << command;
    EXPECT_EQ(bytes_of(file), contents) << command;
  }
}

TEST(Set, LeavesTheOldFileAndNothingElseWhenACallFails) {
  for (const std::string call : {"write", "fsync", "fchmod", "rename"}) {
    const Scratch scratch;
    const std::string file = scratch.file("[A]\nx = 1\n");
    const Outcome outcome =
        shell(kPreload + "export QELPRO_TEST_FAIL=" + call + "; \"$0\" set \"$1\" A x 2", {file});
    EXPECT_EQ(outcome.status, 3) << call;
    EXPECT_THAT(outcome.err,
                AllOf(StartsWith("qelpro: " + file + ": "), EndsWith(": Input/output error\n")))
        << call;
    EXPECT_EQ(bytes_of(file), "[A]\nx = 1\n") << call;
    EXPECT_EQ(names_in(scratch.path("")), std::vector<std::string>{"file.pro"}) << call;
  }
}

TEST(New, LeavesNothingAfterWhenACallFails) {
  for (const std::string call : {"write", "fsync", "ftruncate", "link"}) {
    const Scratch scratch;
    const Outcome outcome = shell(
        kPreload + "export QELPRO_TEST_FAIL=" + call + "; \"$0\" new \"$1\"", {scratch.path()});
    EXPECT_EQ(outcome.status, 3) << call;
    EXPECT_THAT(outcome.err, AllOf(HasSubstr(scratch.path()), EndsWith(": Input/output error\n")))
        << call;
    EXPECT_TRUE(names_in(scratch.path("")).empty()) << call;
  }
}

TEST(New, LeavesNothingButTheNewFileWhenItIsInterrupted) {
  for (const std::string call : {"write", "fsync", "ftruncate", "linkat"}) {
    const Scratch scratch;
    shell(kPreload + "export QELPRO_TEST_SIGNAL=" + call + "; \"$0\" new \"$1\"", {scratch.path()});
    for (const std::string& name : names_in(scratch.path(""))) {
      EXPECT_EQ(name, "file.pro") << call;
    }
  }
}

TEST(New, WorksWhereAFileCannotBeRenamedWithoutReplacing) {
  const Scratch scratch;
  EXPECT_EQ(
      shell(kPreload + "export QELPRO_TEST_NAMED=1 QELPRO_TEST_FAIL=renameat2; \"$0\" new \"$1\"",
            {scratch.path()})
          .status,
      0);
  EXPECT_EQ(names_in(scratch.path("")), std::vector<std::string>{"file.pro"});
}

TEST(Set, WritesBesideTheFileAndWithItsModeFromTheFirstByte) {
  for (const mode_t mode : {0600U, 0640U, 0400U, 0666U}) {
    const Scratch scratch;
    const Scratch logs;
    const std::string file = scratch.file("[A]\nx = 1\n");
    ASSERT_EQ(::chmod(file.c_str(), mode), 0);
    ASSERT_EQ(shell(kPreload + "umask 0; export QELPRO_TEST_LOG=\"$2\"; \"$0\" set \"$1\" A x 2",
                    {file, logs.path("log")})
                  .status,
              0);
    char mode_text[8];
    std::snprintf(mode_text, sizeof mode_text, "%o", mode);
    EXPECT_THAT(bytes_of(logs.path("log")),
                AllOf(StartsWith(std::filesystem::canonical(scratch.path("")).string()),
                      EndsWith(" " + std::string(mode_text) + " 0")));
    EXPECT_EQ(mode_of(file), mode);
  }
}

TEST(EveryCommand, FailsWhereTheMemoryDoesNotTakeTheFile) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\n");
  std::filesystem::resize_file(file, std::uintmax_t{1} << 30U);
  for (const std::string command :
       {"get \"$1\" A x", "show \"$1\"", "process \"$1\"", "set \"$1\" A x 2"}) {
    const Outcome outcome = shell("ulimit -v 500000; \"$0\" " + command, {file});
    EXPECT_EQ(outcome.status, 3) << command;
    EXPECT_EQ(outcome.err, "qelpro: out of memory\n") << command;
  }
  EXPECT_EQ(names_in(scratch.path("")), std::vector<std::string>{"file.pro"});
}
#endif

TEST(Set, LosesNothingOnAFullDisk) {
  const Scratch scratch;
  if (::mount("tmpfs", scratch.path("").c_str(), "tmpfs", 0, "size=64k") != 0) {
    GTEST_SKIP() << "no file system may be mounted here";
  }
  const std::string contents = long_file().substr(0, 20 * 1024);
  const std::string file = scratch.file(contents);
  const Outcome full = shell(
      "\"$0\" set \"$1\" A x \"$2\"; s=$?; cat /dev/zero >\"$1.fill\" 2>/dev/null; \"$0\" set "
      "\"$1\" A y 3; exit $s",
      {file, std::string(3000, 'v')});
  const Outcome made = shell("\"$0\" new \"$1\"", {scratch.path("new.pro")});
  const std::string after = bytes_of(file);
  const std::vector<std::string> names = names_in(scratch.path(""));
  ::umount2(scratch.path("").c_str(), MNT_DETACH);
  EXPECT_EQ(full.status, 0);
  EXPECT_EQ(full.err,
            "qelpro: " + file + ": cannot be written, and is as it was: No space left on device\n");
  EXPECT_GT(after.size(), contents.size());
  EXPECT_EQ(made.status, 3);
  EXPECT_THAT(made.err, HasSubstr("No space left on device"));
  EXPECT_EQ(names, (std::vector<std::string>{"file.pro", "file.pro.fill"}));
}

TEST(Set, IsRefusedByALimitOfFileSizesAndNotKilled) {
  const Scratch scratch;
  const std::string contents = long_file();
  const std::string file = scratch.file(contents);
  const Outcome outcome = shell("ulimit -f 8; \"$0\" set \"$1\" A x 2", {file});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("File too large"));
  EXPECT_EQ(bytes_of(file), contents);
  EXPECT_EQ(names_in(scratch.path("")), std::vector<std::string>{"file.pro"});
}

TEST(Set, TellsWhatTheUserMayNotDo) {
  if (!may_drop_rights()) {
    GTEST_SKIP() << "needs the superuser, who becomes someone else";
  }
  const Scratch scratch;
  std::filesystem::permissions(scratch.path(""), std::filesystem::perms::all);
  const std::string file = scratch.file("[A]\nx = 1\n");
  ASSERT_EQ(::chmod(file.c_str(), 0444), 0);
  const Outcome read_only = shell(kUnprivileged + "\"$0\" set \"$1\" A x 2", {file});
  EXPECT_EQ(read_only.status, 3);
  EXPECT_EQ(read_only.err,
            "qelpro: " + file + ": cannot be opened for writing: Permission denied\n");
  ASSERT_EQ(::chmod(file.c_str(), 0), 0);
  const Outcome unreadable = shell(kUnprivileged + "\"$0\" get \"$1\" A x", {file});
  EXPECT_EQ(unreadable.status, 3);
  EXPECT_EQ(unreadable.err, "qelpro: " + file + ": Permission denied\n");
  ASSERT_EQ(::chmod(file.c_str(), 0666), 0);
  ASSERT_EQ(::chmod(scratch.path("").c_str(), 0755), 0);
  const Outcome folder = shell(kUnprivileged + "\"$0\" set \"$1\" A x 2", {file});
  EXPECT_EQ(folder.status, 3);
  EXPECT_THAT(folder.err,
              AllOf(HasSubstr("no file can be made in"), HasSubstr("Permission denied")));
  EXPECT_EQ(bytes_of(file), "[A]\nx = 1\n");
}

TEST(Set, KeepsOwnerModeAndSymbolicLinks) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\nx = 1\n");
  ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
  if (::geteuid() == 0) {
    ASSERT_EQ(::chown(file.c_str(), 1234, 4321), 0);
  }
  std::filesystem::create_symlink("file.pro", scratch.path("link.pro"));
  ASSERT_EQ(shell("cd \"$1\"; umask 077; \"$0\" set link.pro A x 2", {scratch.path("")}).status, 0);
  EXPECT_EQ(std::filesystem::read_symlink(scratch.path("link.pro")), "file.pro");
  EXPECT_EQ(bytes_of(file), "[A]\nx = 2\n");
  struct stat status {};
  ASSERT_EQ(::stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  if (::geteuid() == 0) {
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 4321U);
  }
}

TEST(Set, ManyAtOnceAllLandInTheFile) {
  const Scratch scratch;
  const std::string file = scratch.file(long_file());
  const Outcome outcome = shell(
      "for i in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20; do \"$0\" set \"$1\" A new$i "
      "$i & done; wait",
      {file});
  EXPECT_EQ(outcome.err, "");
  const std::string contents = bytes_of(file);
  for (int i = 1; i <= 20; ++i) {
    EXPECT_THAT(contents,
                HasSubstr("\nnew" + std::to_string(i) + " = " + std::to_string(i) + "\n"));
  }
  EXPECT_EQ(names_in(scratch.path("")), std::vector<std::string>{"file.pro"});
}

TEST(New, DoesNotWriteThroughADanglingLink) {
  const Scratch scratch;
  std::filesystem::create_symlink(scratch.path("elsewhere.pro"), scratch.path("link.pro"));
  const Outcome outcome = shell("\"$0\" new \"$1\"", {scratch.path("link.pro")});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("symbolic link"));
  EXPECT_FALSE(exists(scratch.path("elsewhere.pro")));
  EXPECT_EQ(names_in(scratch.path("")), std::vector<std::string>{"link.pro"});
}

TEST(EveryCommand, RefusesWhatIsNoRegularFileWithoutWaitingForIt) {
  const Scratch scratch;
  const std::string pipe = scratch.path("pipe");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
  for (const std::string command : {"get \"$1\" A x", "show \"$1\"", "process \"$1\"",
                                    "set \"$1\" A x 2", "machines \"$1\"", "coolant \"$1\" 6 10"}) {
    const Outcome outcome = shell("timeout 20 \"$0\" " + command, {pipe});
    EXPECT_EQ(outcome.status, 3) << command;
    EXPECT_EQ(outcome.err, "qelpro: " + pipe + ": not a regular file\n") << command;
    EXPECT_EQ(shell("\"$0\" " + command, {scratch.path("")}).err,
              "qelpro: " + scratch.path("") + ": Is a directory\n")
        << command;
  }
}

}  // namespace
