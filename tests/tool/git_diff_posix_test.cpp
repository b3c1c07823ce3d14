#include <gmock/gmock.h>

#include <cstdlib>
#include <string>

#include "support/scratch.h"
#include "tool/shell.h"

// The tool as the program with which git compares process files.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// Runs a script in a repository of its own, whose git sees no settings of a user or a machine.
Outcome in_repository(const std::string& script) {
  const Scratch scratch;
  return shell(
      "set -e; cd \"$1\"; unset $(env | sed -n 's/^\\(GIT_[A-Z_]*\\)=.*/\\1/p')\n"
      "export HOME=\"$1\" XDG_CONFIG_HOME=\"$1\" GIT_CONFIG_NOSYSTEM=1 GIT_PAGER=cat\n"
      "git init -q .; git config user.name a; git config user.email a@example.com\n"
      "git config diff.process.command \"'$0' diff\"\n"
      "echo '*.pro diff=process' > .gitattributes\n" +
          script,
      {scratch.path(".")});
}

bool has_git() { return std::system("git --version >/dev/null 2>&1") == 0; }

#define NEEDS_GIT() \
  if (!has_git()) GTEST_SKIP() << "git is missing"

constexpr const char* kTwoCommitted =
    "printf '[Cool]\\nCoolTime = 15\\nOpenTime = 5\\n' > 'a file.pro'\n"
    "printf '[Cool]\\nCoolTime = 1\\n' > b.pro\n"
    "git add -A; git commit -qm x\n";

TEST(GitDiff, ShowsWhatChangedInTheEntries) {
  NEEDS_GIT();
  const Outcome outcome =
      in_repository(std::string(kTwoCommitted) +
                    "printf '[Cool]\\nOpenTime = 5.0\\nCoolTime = 16\\n' > 'a file.pro'\n"
                    "printf '[Cool]\\nCoolTime = 2\\n' > b.pro\n"
                    "git diff\n");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out,
            "diff --qelpro a/a file.pro b/a file.pro\n~ Cool.CoolTime: 15 -> 16\n"
            "diff --qelpro a/b.pro b/b.pro\n~ Cool.CoolTime: 1 -> 2\n");
  EXPECT_EQ(outcome.err, "");
}

TEST(GitDiff, SaysSoWhereNoEntryDiffers) {
  NEEDS_GIT();
  const Outcome outcome =
      in_repository(std::string(kTwoCommitted) + "printf '\\n; words\\n' >> b.pro; git diff\n");
  EXPECT_EQ(outcome.out, "diff --qelpro a/b.pro b/b.pro\n(no entry differs)\n");
}

TEST(GitDiff, ShowsFilesThatCameAndWent) {
  NEEDS_GIT();
  const Outcome outcome = in_repository(std::string(kTwoCommitted) +
                                        "git rm -q b.pro; printf '[Unit]\\nTime = s\\n' > c.pro\n"
                                        "git add -A; git diff --cached --no-renames\n");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out,
            "diff --qelpro a/b.pro b/b.pro\ndeleted file mode 100644\n- [Cool]\n"
            "diff --qelpro a/c.pro b/c.pro\nnew file mode 100644\n+ [Unit]\n");
}

TEST(GitDiff, ShowsAFileWithAnotherNameAndMode) {
  NEEDS_GIT();
  const Outcome outcome =
      in_repository(std::string(kTwoCommitted) +
                    "git mv 'a file.pro' c.pro; printf 'AirTemp = 25\\n' >> c.pro; chmod +x b.pro\n"
                    "git add -A; git diff --cached -M20%\n");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.out,
              AllOf(HasSubstr("diff --qelpro a/b.pro b/b.pro\nold mode 100644\nnew mode 100755\n"),
                    HasSubstr("diff --qelpro a/a file.pro b/c.pro\n"),
                    HasSubstr("rename from a file.pro\nrename to c.pro\n"),
                    HasSubstr("+ Cool.AirTemp: 25\n")));
}

TEST(GitDiff, GoesOnBehindAFileThatCannotBeRead) {
  NEEDS_GIT();
  const Outcome outcome = in_repository(
      std::string(kTwoCommitted) +
      "printf '\\377\\376x\\0' > 'a file.pro'; printf '[Cool]\\n' > b.pro; git diff\n");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("- Cool.CoolTime: 1\n"));
  EXPECT_THAT(outcome.err, AllOf(StartsWith("qelpro: a file.pro"), HasSubstr("UTF-16")));
}

TEST(GitDiff, NamesPathsThatAreNotMerged) {
  NEEDS_GIT();
  const Outcome outcome = in_repository(
      std::string(kTwoCommitted) +
      "git checkout -qb other; printf '[Cool]\\nCoolTime = 2\\n' > b.pro; git commit -qam y\n"
      "git checkout -q -; printf '[Cool]\\nCoolTime = 3\\n' > b.pro; git commit -qam z\n"
      "git merge -q other >/dev/null 2>&1 || true; git diff --cached\n");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("* Unmerged path b.pro\n"));
}

TEST(GitDiff, TakesWhatGitGivesAlsoWithoutGit) {
  const Scratch scratch;
  const Outcome outcome = shell("\"$0\" diff p.pro \"$1\" 1a 100644 /dev/null . .",
                                {scratch.file("[Cool]\nCoolTime = 15\n")});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "diff --qelpro a/p.pro b/p.pro\ndeleted file mode 100644\n- [Cool]\n");
}

}  // namespace
