#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "inner/core/document_fixture.h"
#include "support/broken_medium_posix.h"
#include "support/child.h"

namespace qelpro_test {
namespace {

TEST_F(Document, CannotOpenWhatIsNoRegularFile) {
  const std::string fifo = scratch.path("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  for (const std::string& odd : {scratch.path(""), fifo, std::string("/dev/zero"),
                                 std::string("/dev/null"), std::string("")}) {
    for (const int mode : {CQELPROIO::kReading, CQELPROIO::kWriting}) {
      EXPECT_FALSE(document.SetFilePath(odd.c_str(), mode)) << odd;
      EXPECT_FALSE(document.SetFilePath(widened(odd).c_str(), mode)) << odd;
    }
    EXPECT_EQ(document.InsertValue(odd.c_str(), "[A]", "x", "1"), kNoOpen) << odd;
    EXPECT_EQ(scan(document, odd.c_str(), "[A]", "x"), "(nothing)") << odd;
  }
}

TEST_F(Document, NeitherReadsNorWritesWhatItMayNot) {
  make("[A]\nx = 1\n");
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  std::filesystem::permissions(folder, std::filesystem::perms::all);
  const std::string locked = scratch.file("[A]\nx = 1\n", "locked.pro");
  const std::string read_only = scratch.file("[A]\nx = 1\n", "read_only.pro");
  ASSERT_EQ(::chmod(locked.c_str(), 0), 0);
  ASSERT_EQ(::chmod(read_only.c_str(), 0444), 0);
  EXPECT_TRUE(in_child({.unprivileged = true}, [&] {
    CQELPROIO reading;
    CQELPROIO writing;
    return !reading.SetFilePath(locked.c_str(), CQELPROIO::kReading) &&
           !writing.SetFilePath(read_only.c_str(), CQELPROIO::kWriting) &&
           writing.InsertValue(read_only.c_str(), "[A]", "y", "1") == kNoOpen &&
           reading.SetFilePath(read_only.c_str(), CQELPROIO::kReading) &&
           look(reading, "[A]", "x") == "1";
  }));
  EXPECT_EQ(bytes_of(read_only), "[A]\nx = 1\n");
  std::size_t files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder)) {
    ++files;
  }
  EXPECT_EQ(files, 3U) << "nothing is created beside it";
}

TEST_F(Document, ReadsThroughAStreamOverMemory) {
  char memory[64] = "[A]\nx = 1\n";
  stream = ::fmemopen(memory, sizeof memory, "r");
  ASSERT_TRUE(document.SetFilePtr(stream));
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  std::fclose(stream);
}

// A line that cannot be read is not one that is not there.
TEST_F(Document, TellsALineThatCannotBeReadFromOneThatIsAbsent) {
  BrokenMedium medium{"[A]\nfirst\n" + std::string(9000, '#') + "\nsecond\n", 4096};
  stream = opened(medium);
  ASSERT_TRUE(document.SetFilePtr(stream));
  const auto visits = [this](const char* section) {
    return document.VisitLines(
        section, 3, [] {}, [](std::string_view) {});
  };
  EXPECT_EQ(visits("[A]"), kNoOpen);
  EXPECT_EQ(visits("[B]"), kNoOpen);
  medium.readable = medium.contents.size();
  EXPECT_EQ(visits("[A]"), kDone);
  EXPECT_EQ(visits("[B]"), kAbsent);
  std::fclose(stream);
}

TEST_F(Document, StoresIntoAStreamOverMemoryNoMoreThanItHolds) {
  char memory[64] = "[A]\nx                    = 1\ny = 2\n";
  stream = ::fmemopen(memory, sizeof memory, "r+");
  ASSERT_TRUE(document.SetFilePtr(stream));
  EXPECT_EQ(document.SetValue("[A]", "x", "3", kByKey), kDone);
  const std::string stored(memory, sizeof memory);
  EXPECT_EQ(stored.substr(0, 35), "[A]\nx                    = 3\ny = 2\n");
  EXPECT_EQ(document.SetValue("[A]", "x", "345", kByKey), kNoOpen)
      << "the memory is its whole length";
  std::fclose(stream);
  EXPECT_EQ(std::string(memory, sizeof memory), stored);
}

TEST_F(Document, KeepsModeOwnerAndInodeOfAFile) {
  write("[A]\nx = 1\ny = 2\n");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  struct stat before {};
  ASSERT_EQ(::stat(path.c_str(), &before), 0);
  ASSERT_EQ(document.SetValue("[A]", "x", "a longer value", kByKey), kDone);
  ASSERT_EQ(document.SetValue("[A]", "z", "3", kByKey), kDone);
  ASSERT_EQ(document.SetValue("[C]", "z", "3", kByKey), kDone);
  ASSERT_EQ(document.ReplaceValue("[A]", "x", "1"), kDone);
  struct stat after {};
  ASSERT_EQ(::stat(path.c_str(), &after), 0);
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  EXPECT_EQ(after.st_ino, before.st_ino);
}

TEST_F(Document, WritesThroughLinks) {
  make("[A]\nx = 1\n");
  const std::string symbolic = scratch.path("symbolic.pro");
  const std::string hard = scratch.path("hard.pro");
  std::filesystem::create_symlink(path, symbolic);
  std::filesystem::create_hard_link(path, hard);
  ASSERT_TRUE(document.SetFilePath(symbolic.c_str(), CQELPROIO::kWriting));
  ASSERT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
  ASSERT_EQ(document.ReplaceValue("[A]", "x", "a longer value"), kDone);
  EXPECT_TRUE(std::filesystem::is_symlink(symbolic));
  EXPECT_EQ(std::filesystem::hard_link_count(path), 2U);
  EXPECT_EQ(bytes_of(path), "[A]\nx = a longer value\n");
  EXPECT_EQ(bytes_of(hard), bytes_of(path));
}

TEST_F(Document, LosesNothingWhereAFileMayGrowNoFurther) {
  const std::string contents = "[A]\nx = 1\n" + std::string(8000, '#') + "\n[B]\ny = 2\n";
  make(contents);
  EXPECT_TRUE(in_child({.longest_file = contents.size() + 5}, [&] {
    CQELPROIO writing;
    return writing.SetFilePath(path.c_str(), CQELPROIO::kWriting) &&
           writing.SetValue("[A]", "x", "longer", kByKey) == kNoOpen &&
           writing.SetValue("[A]", "z", "longer", kByKey) == kNoOpen &&
           writing.SetValue("[C]", "x", "1", kByKey) == kNoOpen &&
           writing.InsertValue(path.c_str(), "[A]", "x", "longer") == kNoOpen &&
           writing.ReplaceValue("[A]", "x", "longer than it") == kNoOpen;
  }));
  EXPECT_TRUE(bytes_of(path) == contents);
  EXPECT_TRUE(in_child({.longest_file = contents.size()}, [&] {
    CQELPROIO writing;
    return writing.SetFilePath(path.c_str(), CQELPROIO::kWriting) &&
           writing.ReplaceValue("[A]", "x", "2") == kDone;
  }));
  EXPECT_EQ(bytes_of(path).substr(0, 10), "[A]\nx = 2\n");
}

TEST_F(Document, LosesNothingWhereAFileOfALentStreamMayGrowNoFurther) {
  const std::string contents = "[A]\nx = 1\n" + std::string(8000, '#') + "\n[B]\ny = 2\n";
  make(contents);
  EXPECT_TRUE(in_child({.longest_file = contents.size() + 5}, [&] {
    CQELPROIO lent;
    stream = std::fopen(path.c_str(), "r+");
    const bool refused = lent.SetFilePtr(stream) &&
                         lent.SetValue("[A]", "x", "longer", kByKey) == kNoOpen &&
                         lent.SetValue("[C]", "x", "1", kByKey) == kNoOpen &&
                         lent.WriteOnce("[A]", "x", "longer") == kNoOpen;
    const bool intact = look(lent, "[A]", "x") == "1" && look(lent, "[B]", "y") == "2";
    return std::fclose(stream) == 0 && refused && intact;
  }));
  EXPECT_TRUE(bytes_of(path) == contents);
}

TEST_F(Document, DoesNotReadWithoutEndFromALentDevice) {
  stream = std::fopen("/dev/zero", "r+");
  ASSERT_TRUE(document.SetFilePtr(stream));
  EXPECT_EQ(look(document, "[A]", "x"), "0");
  EXPECT_EQ(look_once(document, "[A]", "x"), "0");
  EXPECT_EQ(document.SetValue("[A]", "x", "1", kByKey), kNoOpen);
  std::fclose(stream);
}

TEST_F(Document, ReadsOnInAFileThatWasDeleted) {
  read("\n[A]\nx = 1\ny = 2\n");
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  std::filesystem::remove(path);
  EXPECT_EQ(look(document, "[A]", "y"), "2");
  EXPECT_EQ(look_once(document, "[A]", "y"), "0") << "a one-shot read opens the path again";
}

TEST_F(Document, CannotStoreThroughAStreamThatWritesAtTheEnd) {
  make("[A]\nx = 1\n");
  stream = std::fopen(path.c_str(), "a+");
  ASSERT_TRUE(document.SetFilePtr(stream));
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kNoOpen);
  EXPECT_EQ(document.SetValue("[B]", "x", "2", kByKey), kNoOpen);
  std::fclose(stream);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
}

}  // namespace
}  // namespace qelpro_test
