#include "platform/os_file.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include <string>

#include "inner/platform/file_fixture.h"
#include "support/child.h"

namespace qelpro_test {
namespace {

using qel::platform::OsFile;

TEST(OsFile, TakesNothingButARegularFile) {
  const Scratch scratch;
  const std::string fifo = scratch.path("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  OsFile file;
  for (const std::string& odd :
       {scratch.path(""), fifo, std::string("/dev/zero"), std::string("/dev/null")}) {
    EXPECT_FALSE(file.open_for_reading(odd.c_str())) << odd;
    EXPECT_FALSE(file.open_for_update(odd.c_str())) << odd;
    EXPECT_FALSE(file.create(odd.c_str())) << odd;
  }
}

TEST(OsFile, ReportsAWriteThatTheSystemCutsShort) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  EXPECT_TRUE(qelpro_test::in_child({.longest_file = 12, .survives_long_file = true}, [&] {
    OsFile file;
    return file.open_for_update(path.c_str()) && file.write_at(10, "ab", 2) &&
           !file.write_at(10, "abcd", 4);
  }));
}

TEST(OsFile, IsNotHandedToChildPrograms) {
  const Scratch scratch;
  const std::string path = scratch.file("x");
  OsFile file;
  ASSERT_TRUE(file.open_for_reading(path.c_str()));
  std::FILE* stream = file.duplicate_as_stream();
  ASSERT_NE(stream, nullptr);
  EXPECT_NE(::fcntl(::fileno(stream), F_GETFD) & FD_CLOEXEC, 0);
  EXPECT_EQ(std::fgetc(stream), 'x');
  std::fclose(stream);
  EXPECT_EQ(read(file, 0, 1), "x");
}

TEST(OsFile, SecuresNoRoomInAFileThatIsOpenForReading) {
  const Scratch scratch;
  OsFile file;
  ASSERT_TRUE(file.open_for_reading(scratch.file("0123456789").c_str()));
  EXPECT_FALSE(file.reserve(10, 1 << 20));
}

TEST(OsFile, DoesNotOpenANamedPipe) {
  const Scratch scratch;
  const std::string fifo = scratch.path("fifo");
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  const int other_end = ::open(fifo.c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(other_end, 0);
  OsFile file;
  EXPECT_FALSE(file.open_for_update(fifo.c_str()));
  pollfd seen{other_end, POLLIN, 0};
  EXPECT_EQ(::poll(&seen, 1, 0), 0) << "a writer that came and went leaves its mark";
  ::close(other_end);
}

// Another program that gives its lease on the file back once the system asks for it.
class LeaseHolder {
 public:
  explicit LeaseHolder(const std::string& path) {
    int ready[2];
    EXPECT_EQ(::pipe(ready), 0);
    child_ = ::fork();
    if (child_ == 0) {
      sigset_t asked;
      sigemptyset(&asked);
      sigaddset(&asked, SIGIO);
      ::sigprocmask(SIG_BLOCK, &asked, nullptr);
      const int fd = ::open(path.c_str(), O_RDWR);
      const char held = ::fcntl(fd, F_SETLEASE, F_WRLCK) == 0 ? 'y' : 'n';
      int signal = 0;
      if (::write(ready[1], &held, 1) == 1 && held == 'y' && ::sigwait(&asked, &signal) == 0) {
        ::usleep(20000);
        ::fcntl(fd, F_SETLEASE, F_UNLCK);
      }
      ::_exit(0);
    }
    char held = 'n';
    is_held_ = ::read(ready[0], &held, 1) == 1 && held == 'y';
    ::close(ready[0]);
    ::close(ready[1]);
  }
  LeaseHolder(const LeaseHolder&) = delete;
  LeaseHolder& operator=(const LeaseHolder&) = delete;
  ~LeaseHolder() {
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
  }
  [[nodiscard]] bool is_held() const { return is_held_; }

 private:
  pid_t child_ = -1;
  bool is_held_ = false;
};

TEST(OsFile, WaitsForAFileOnWhichAnotherProgramHoldsALease) {
  const Scratch scratch;
  const std::string path = scratch.file("x");
  for (const bool updates : {false, true}) {
    const LeaseHolder holder(path);
    if (!holder.is_held()) {
      GTEST_SKIP() << "this file system knows no leases";
    }
    OsFile file;
    EXPECT_TRUE(updates ? file.open_for_update(path.c_str()) : file.open_for_reading(path.c_str()));
    EXPECT_EQ(read(file, 0, 1), "x");
  }
}

TEST(OsFile, SecuresNoRoomBeyondTheProcesssLimitOnFiles) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  EXPECT_TRUE(qelpro_test::in_child({.longest_file = 12}, [&] {
    OsFile file;
    return file.open_for_update(path.c_str()) && file.reserve(10, 12) && !file.reserve(10, 13) &&
           file.reserve(10, 5);
  }));
  EXPECT_TRUE(qelpro_test::in_child({.longest_file = 5}, [&] {
    OsFile file;
    return file.open_for_update(path.c_str()) && file.reserve(10, 5) && !file.reserve(10, 10);
  }));
}

TEST(OsFile, CountsWhatThisProgramWritesToTheFileByWhateverName) {
  const Scratch scratch;
  const std::string path = scratch.file("0123456789");
  const std::string link = scratch.path("link");
  ASSERT_EQ(::link(path.c_str(), link.c_str()), 0);
  OsFile reading;
  OsFile writing;
  ASSERT_TRUE(reading.open_for_reading(path.c_str()) && writing.open_for_update(link.c_str()));
  const std::uint32_t before = reading.change_count();
  EXPECT_TRUE(writing.write_at(0, "a", 1));
  EXPECT_NE(reading.change_count(), before);
  const std::uint32_t between = reading.change_count();
  EXPECT_TRUE(writing.truncate(5));
  EXPECT_NE(reading.change_count(), between);
}

}  // namespace
}  // namespace qelpro_test
