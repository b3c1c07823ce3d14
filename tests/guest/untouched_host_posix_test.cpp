#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cfenv>
#include <clocale>
#include <csignal>
#include <cstring>
#include <locale>
#include <string>
#include <vector>

#include "guest/uses.h"
#include "support/child.h"

// What belongs to the program that uses the library is as it was after every member of every class.

namespace qelpro_test {
namespace {

constexpr int kSignals = 32;
constexpr int kUnlikely = 4242;

// What of a program is looked at, as texts that can be told apart.
struct Host {
  std::vector<std::string> all;
};
bool operator==(const Host& a, const Host& b) { return a.all == b.all; }

std::string signal_now(int number) {
  struct sigaction action {};
  if (::sigaction(number, nullptr, &action) != 0) {
    return "none";
  }
  return std::to_string(reinterpret_cast<std::uintptr_t>(action.sa_handler)) + ' ' +
         std::to_string(action.sa_flags);
}

std::string mask_now() {
  sigset_t mask{};
  ::pthread_sigmask(SIG_BLOCK, nullptr, &mask);
  std::string text;
  for (int number = 1; number < kSignals; ++number) {
    text += sigismember(&mask, number) == 1 ? '1' : '0';
  }
  return text;
}

std::string umask_now() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return std::to_string(mask);
}

Host host_now() {
  Host host;
  for (int number = 1; number < kSignals; ++number) {
    host.all.push_back("signal " + std::to_string(number) + ": " + signal_now(number));
  }
  std::array<char, 4096> folder{};
  host.all.push_back("mask: " + mask_now());
  host.all.push_back("locale: " + std::string(std::setlocale(LC_ALL, nullptr)));
  host.all.push_back("locale of the thread: " +
                     std::to_string(reinterpret_cast<std::uintptr_t>(::uselocale(nullptr))));
  host.all.push_back("locale of streams: " + std::locale().name());
  host.all.push_back("umask: " + umask_now());
  host.all.push_back("folder: " + std::string(::getcwd(folder.data(), folder.size())));
  host.all.push_back("rounding: " + std::to_string(std::fegetround()));
  host.all.push_back("exceptions: " + std::to_string(::fegetexcept()));
  for (std::FILE* stream : {stdin, stdout, stderr}) {
    host.all.push_back("stream: " + std::to_string(::fileno(stream)) + ' ' +
                       std::to_string(std::ferror(stream)) + std::to_string(std::feof(stream)));
  }
  return host;
}

class UntouchedHost : public testing::Test {
 protected:
  const Uses uses_;
  const std::vector<Use> done_ = uses_.done();
};

TEST_F(UntouchedHost, KeepsWhatIsTheProcesss) {
  EXPECT_GT(done_.size(), uses_.all().size() * 9 / 10);
  const Host before = host_now();
  for (const Use& use : uses_.all()) {
    use.run();
    ASSERT_EQ(host_now(), before) << use.object << ' ' << use.member;
  }
}

int error_before = 0;
int error_after = 0;

// Looks at errno right around the member: what a test does around it has errors of its own.
void with_errno() {
  Uses::before = [] { errno = error_before; };
  Uses::after = [] { error_after = errno; };
}

TEST_F(UntouchedHost, FindsItsErrnoAfterWhatWasDone) {
  with_errno();
  for (const int error : {0, kUnlikely}) {
    error_before = error;
    for (const Use& use : done_) {
      if (use.member != "SetFilePtr") {  // which opens a stream by itself
        EXPECT_TRUE(use.run());
        EXPECT_EQ(error_after, error) << use.object << ' ' << use.member;
      }
    }
  }
  Uses::before = Uses::after = [] {};
}

// A key that is not there is no refusal of the operating system.
TEST_F(UntouchedHost, FindsItsErrnoAfterAKeyThatIsNotThere) {
  const Scratch scratch;
  std::string path = scratch.file("[FileHeader]\n");
  CQELPROReader_Manipulator reader;
  CPROIO_Manipulator object;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  object.SetFilePath(path.data());
  double value = 0;
  errno = kUnlikely;
  EXPECT_FALSE(reader.FlowX_ReadFillingTime(value, 1));
  EXPECT_EQ(errno, kUnlikely);
  EXPECT_FALSE(object.GetFillTime(value, 1));
  EXPECT_EQ(errno, kUnlikely);
}

TEST(Errno, TellsWhyAFileCannotBeOpened) {
  const Scratch scratch;
  const std::string missing = scratch.path("no such folder/file.pro");
  CQELPROReader_Manipulator reader;
  errno = 0;
  EXPECT_FALSE(reader.SetFilePath(missing.c_str()));
  EXPECT_EQ(errno, ENOENT);
  CQELPROWriter_Manipulator writer;
  errno = 0;
  EXPECT_FALSE(writer.SetFilePath(missing.c_str()));
  EXPECT_EQ(errno, ENOENT);
  CQELPCSInterpolator interpolator;
  errno = 0;
  EXPECT_FALSE(interpolator.LoadDataFromFile(missing.c_str()));
  EXPECT_EQ(errno, ENOENT);
  CQELMachineIdentification machines;
  machines.SetMachineUserBankPath(missing.c_str());
  errno = 0;
  EXPECT_FALSE(machines.LoadFileData());
  EXPECT_EQ(errno, ENOENT);
  CQELProcessData_Manipulator loader;
  errno = 0;
  EXPECT_EQ(loader.GetProcessDataStructure(missing.c_str()), nullptr);
  EXPECT_EQ(errno, ENOENT);
}

TEST(Errno, TellsWhyAStoreWasRefused) {
  const Scratch scratch;
  const std::string path = scratch.file("[FileHeader]\nName = a\n");
  EXPECT_TRUE(in_child({.unprivileged = true},
                       [&] {
                         CQELPROWriter_Manipulator writer;
                         ::chmod(path.c_str(), 0444);
                         errno = 0;
                         return !writer.SetFilePath(path.c_str()) && errno == EACCES;
                       }) ||
              ::chmod(path.c_str(), 0644) != 0);
}

// What a thread that rounds in another direction reads and writes: the number that stands there, as
// every other thread.
TEST(Rounding, ChangesNoNumber) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFillTime = 0.1\n");
  for (const int direction : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
    std::fesetround(direction);
    CQELPROReader_Manipulator reader;
    CQELPROWriter_Manipulator writer;
    std::string text = path;
    CPROIO_Manipulator object;
    object.SetFilePath(text.data());
    double value = 0;
    double older = 0;
    char* written = nullptr;
    const bool read = reader.SetFilePath(path.c_str()) && reader.FlowX_ReadFillingTime(value, 1) &&
                      object.GetFillTime(older, 1);
    // The seventh digit is a half, and the one before it even.
    const bool stored = writer.SetFilePath(path.c_str()) &&
                        writer.WriteString("[Flow-1]", "FillTime", "0.1") &&
                        writer.FlowX_WriteMeltTemperature(1000002.5, 1) &&
                        reader.ReadString("[Flow-1]", "MeltTemp", written, nullptr, 0);
    const int after = std::fegetround();
    std::fesetround(FE_TONEAREST);
    EXPECT_TRUE(read && stored);
    EXPECT_EQ(after, direction);
    EXPECT_EQ(value, 0.1) << direction;
    EXPECT_EQ(older, 0.1) << direction;
    EXPECT_STREQ(written, "1e+006") << direction;
  }
}

// Simulators let the operations that have no result stop the program.
TEST(FloatingPointTraps, AreNotSprung) {
  const Uses uses;
  const Scratch scratch;
  EXPECT_TRUE(in_child({}, [&] {
    ::feenableexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
    for (const Use& use : uses.all()) {
      use.run();
    }
    CQELPROWriter_Manipulator writer;
    CQELPROReader_Manipulator reader;
    const std::string path = scratch.file("[Flow-1]\nFillTime = 1\n");
    bool read = writer.SetFilePath(path.c_str()) && reader.SetFilePath(path.c_str());
    for (const char* text : {"1e999", "-1e999", "1e-999", "nan", "inf", "0x1p2000", "1e308",
                             "99999999999999999999999999"}) {
      double value = 0;
      int number = 0;
      read = read && writer.WriteString("[Flow-1]", "FillTime", text) &&
             writer.WriteString("[Flow-1]", "FRSet", text) &&
             reader.FlowX_ReadFillingTime(value, 1) && reader.FlowX_ReadFRSection(number, 1);
    }
    return read && ::fegetexcept() == (FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
  }));
}

// A host that dies of signals that the library could have kept from it, and one that does not.
TEST(Signals, AreNeitherRaisedNorCaught) {
  const Scratch scratch;
  const std::string path = scratch.file("[FileHeader]\nName = a\n");
  EXPECT_TRUE(in_child({.longest_file = 30}, [&] {
    CQELPROWriter_Manipulator writer;
    return writer.SetFilePath(path.c_str()) &&
           !writer.WriteString("[FileHeader]", "Name", std::string(1000, 'x').c_str());
  }));
  EXPECT_EQ(bytes_of(path), "[FileHeader]\nName = a\n");
}

}  // namespace
}  // namespace qelpro_test
