#include <gmock/gmock.h>
#include <sys/mount.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/scratch.h"
#include "tool/shell.h"
#include "tool/writers.h"

// Commands that write a file, while calls fail, while they are killed, and two at once.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST_P(WritingCommand, Writes) {
  EXPECT_EQ(write(file_).err, "");
  EXPECT_EQ(bytes_of(file_), GetParam().made);
}

#ifdef QELPRO_FAILING_CALLS
TEST_P(WritingCommand, LeavesTheOldFileAndNothingElseWhenACallFails) {
  for (const std::string call : {"write", "fsync", "fchmod", "rename"}) {
    const Outcome outcome = write(file_, std::string("export LD_PRELOAD='") + QELPRO_FAILING_CALLS +
                                             "' QELPRO_TEST_FAIL=" + call + "; ");
    EXPECT_EQ(outcome.status, 3) << call;
    EXPECT_THAT(outcome.err,
                AllOf(StartsWith("qelpro: " + file_ + ": "), EndsWith(": Input/output error\n")))
        << call;
    EXPECT_EQ(bytes_of(file_), kOld) << call;
    EXPECT_EQ(names_in(scratch_.path("")), std::vector<std::string>{"file.pro"}) << call;
  }
}

// In front of the renaming the file is the old one, and after it the new one.
TEST_P(WritingCommand, LeavesTheOldOrTheNewFileWhereItIsKilled) {
  for (const std::string call : {"write", "fsync", "fchmod", "rename"}) {
    const Outcome outcome = write(file_, std::string("export LD_PRELOAD='") + QELPRO_FAILING_CALLS +
                                             "' QELPRO_TEST_KILL=" + call + "; ");
    EXPECT_EQ(outcome.status, 137) << call;
    EXPECT_EQ(bytes_of(file_), kOld) << call;
  }
  for (int delay = 0; delay < 20; ++delay) {
    put_bytes(file_, kOld);
    write(file_, "",
          " & p=$!; sleep 0.0" + std::to_string(delay / 10) + std::to_string(delay % 10) +
              "; kill -9 $p; wait $p");
    EXPECT_THAT(bytes_of(file_), testing::AnyOf(kOld, GetParam().made));
  }
}
#endif

TEST_P(WritingCommand, KeepsPermissionsAndLinks) {
  const std::string link = scratch_.path("link.pro");
  std::filesystem::create_symlink("file.pro", link);
  std::filesystem::permissions(file_, std::filesystem::perms(0640));
  EXPECT_EQ(write(link).err, "");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(bytes_of(file_), GetParam().made);
  EXPECT_EQ(std::filesystem::status(file_).permissions(), std::filesystem::perms(0640));
}

TEST_P(WritingCommand, LosesNothingOnAFullDisk) {
  if (::mount("tmpfs", scratch_.path("").c_str(), "tmpfs", 0, "size=16k") != 0) {
    GTEST_SKIP() << "no file system may be mounted here";
  }
  put_bytes(file_, kOld);
  const Outcome outcome = write(file_, "cat /dev/zero >\"$1.fill\" 2>/dev/null; ");
  const std::string after = bytes_of(file_);
  ::umount2(scratch_.path("").c_str(), MNT_DETACH);
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("No space left on device"));
  EXPECT_EQ(after, kOld);
}

INSTANTIATE_TEST_SUITE_P(Commands, WritingCommand, testing::ValuesIn(kWriters), NameOfWriter());

TEST(TwoAtOnce, EveryOneThatReportsSuccessIsInTheFile) {
  const Scratch scratch;
  const std::string file = scratch.file("[A]\nx = 1\n[Gone]\n");
  const Scratch forms;
  put_bytes(forms.path("form.json"), "{\"C\": {\"imported\": \"1\"}}");
  const Outcome outcome = shell(
      "for i in 1 2 3 4 5 6 7 8; do \"$0\" set \"$1\" A.k$i=$i B.k$i=$i & done; \"$0\" unset "
      "\"$1\" 'Gone.*' & \"$0\" import \"$2\" --onto \"$1\" & wait",
      {file, forms.path("form.json")});
  EXPECT_EQ(outcome.err, "");
  const std::string contents = bytes_of(file);
  for (int number = 1; number <= 8; ++number) {
    const std::string n = std::to_string(number);
    EXPECT_THAT(contents, HasSubstr("\nk" + n + " = " + n + "\n"));
    EXPECT_EQ(shell("\"$0\" get \"$1\" B.k" + n, {file}).out, n + "\n");
  }
  EXPECT_THAT(contents, testing::Not(HasSubstr("Gone")));
  EXPECT_EQ(shell("\"$0\" get \"$1\" C.imported", {file}).out, "1\n");
}

}  // namespace
