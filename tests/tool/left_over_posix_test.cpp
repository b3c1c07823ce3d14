#include <gmock/gmock.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <locale>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "support/environment.h"
#include "support/scratch.h"
#include "tool/shell.h"
#include "tool/writers.h"

// Whatever happens to a command that writes: its file is the old one or the new one, whole, nothing
// stands beside it, and no byte was ever written into the old one.

namespace {

using namespace qelpro_test;

// The new contents come by another file: a program that has the old one open keeps it.
TEST_P(WritingCommand, WritesNothingIntoTheOldFile) {
  std::FILE* old = std::fopen(file_.c_str(), "rb");
  EXPECT_EQ(write(file_).status, 0);
  char bytes[256] = {};
  const std::size_t length = std::fread(bytes, 1, sizeof bytes, old);
  std::fclose(old);
  EXPECT_EQ(std::string(bytes, length), kOld);
  EXPECT_EQ(bytes_of(file_), GetParam().made);
  EXPECT_EQ(names_in(scratch_.path("")), std::vector<std::string>{"file.pro"});
}

#ifdef QELPRO_FAILING_CALLS
const std::string kWithFailingCalls =
    std::string("export LD_PRELOAD='") + QELPRO_FAILING_CALLS + "' ";
const std::vector<std::string> kAlone = {"file.pro"};
constexpr int kMoreThanThereAre = 1000000;

struct Report {
  int calls = 0;
  std::string failed_call;
  std::string role;
};

// Hundreds of files that are synchronized are fast in memory.
class InMemory {
 protected:
  InMemory() {
    if (::access("/dev/shm", W_OK) == 0) {
      set_environment("TMPDIR", "/dev/shm");
    }
  }
  KeptEnvironment before_{"TMPDIR"};
};

// A file system that has files without a name, and one that has not.
class EveryCall : private InMemory, public WritingCommand {
 protected:
  // Runs the command with settings of the library of failing calls, over the old file.
  Outcome with(const std::string& settings) {
    put_bytes(file_, kOld);
    std::filesystem::remove(reports_.path("report"));
    return write(file_, kWithFailingCalls + "QELPRO_TEST_REPORT='" + reports_.path("report") +
                            "' " + named_ + settings + "; ");
  }
  Outcome with(const std::string& what, int number, const std::string& more = "") {
    return with("QELPRO_TEST_" + what + "_AT=" + std::to_string(number) + more);
  }
  [[nodiscard]] Report report() const {
    Report report;
    std::istringstream words(bytes_of(reports_.path("report")));
    words.imbue(std::locale::classic());  // in which a blank never goes on a number
    words >> report.calls >> report.failed_call >> report.role;
    report.failed_call += report.role.empty() ? "" : " " + report.role;
    return report;
  }
  // How many calls the command makes when nothing fails.
  int calls() {
    EXPECT_EQ(with("FAIL", kMoreThanThereAre).status, 0);
    EXPECT_EQ(bytes_of(file_), GetParam().made);
    const int calls = report().calls;
    EXPECT_GT(calls, 10);
    return calls;
  }
  [[nodiscard]] bool is_old_or_new() const {
    const std::string contents = bytes_of(file_);
    return contents == kOld || contents == GetParam().made;
  }
  // Does the work over both kinds of file systems.
  template <class Work>
  void on_both(Work work) {
    for (const char* named : {"", "QELPRO_TEST_NAMED=1 "}) {
      named_ = named;
      work();
    }
  }

  Scratch reports_;
  std::string named_;
};

// Why a command may succeed although a call failed.
const std::pair<const char*, const char*> kExplained[] = {
    {"stat", "what stands there is looked at again once it is open"},
    {"fstat of_old", "the same"},
    {"lock of_old", "a file system without locks goes without"},
    {"fstat of_reading", "the file is read again, under the lock of its stores"},
    {"fchown of_new",
     "who may not give a file away keeps it, and its group where that is possible"},
    {"open",
     "a file without a name gets one at once; a folder is synchronized where that is "
     "possible"},
    {"fsync of_folder", "the file is there nevertheless"},
    {"linkat", "another name is taken"},
    {"link", "the same"},
    {"close of_reading", "nothing was written by it"},
    {"close of_old", "the same"},
    {"close of_folder", "the same"},
};

TEST_P(EveryCall, FailsAndTheFileIsTheOldOneAlone) {
  on_both([&] {
    std::set<std::string> successes;
    const int count = calls();
    for (int number = 1; number <= count; ++number) {
      const Outcome outcome = with("FAIL", number);
      const Report told = report();
      EXPECT_EQ(names_in(scratch_.path("")), kAlone) << told.failed_call << ", call " << number;
      if (outcome.status == 0) {
        EXPECT_EQ(bytes_of(file_), GetParam().made) << told.failed_call << ", call " << number;
        successes.insert(told.failed_call);
      } else {
        EXPECT_EQ(outcome.status, 3) << told.failed_call << ", call " << number;
        EXPECT_EQ(bytes_of(file_), kOld) << told.failed_call << ", call " << number;
        EXPECT_NE(outcome.err, "");
      }
    }
    for (const std::string& call : successes) {
      EXPECT_TRUE(std::any_of(std::begin(kExplained), std::end(kExplained),
                              [&](const auto& row) { return call == row.first; }))
          << call << ": a success that nobody explains";
    }
  });
}

// Half of a write and no room for the rest; and half of each write, which goes on.
TEST_P(EveryCall, TornIsAFailureAndShortIsNone) {
  on_both([&] {
    int torn = 0;
    const int count = calls();
    for (int number = 1; number <= count; ++number) {
      const Outcome outcome = with("TEAR", number);
      const bool was_torn = report().failed_call == "write";
      torn += was_torn ? 1 : 0;
      EXPECT_EQ(outcome.status, was_torn ? 3 : 0) << number;
      EXPECT_EQ(bytes_of(file_), was_torn ? kOld : GetParam().made) << number;
      EXPECT_EQ(names_in(scratch_.path("")), kAlone) << number;
    }
    EXPECT_GT(torn, 0);
    EXPECT_EQ(with("QELPRO_TEST_SHORT=1").status, 0);
    EXPECT_EQ(bytes_of(file_), GetParam().made);
  });
}

// A program that is asked to end, at whatever moment, leaves nothing.
TEST_P(EveryCall, InterruptedLeavesNothing) {
  on_both([&] {
    const int count = calls();
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT, SIGALRM, SIGPIPE, SIGUSR1, SIGUSR2,
                             SIGXCPU, SIGVTALRM, SIGPROF}) {
      // One signal at every call; the others, which are treated alike, at some.
      const int step = signal == SIGTERM ? 1 : 7;
      for (int number = 1; number <= count; number += step) {
        const Outcome outcome =
            with("SIGNAL", number,
                 " QELPRO_TEST_SIGNAL_NUMBER=" + std::to_string(signal) + "; ulimit -c 0");
        EXPECT_EQ(outcome.status, 128 + signal) << number;
        EXPECT_EQ(names_in(scratch_.path("")), kAlone) << signal << ", call " << number;
        EXPECT_TRUE(is_old_or_new()) << signal << ", call " << number;
      }
    }
  });
}

// A file that has no name yet goes with the program that made it. In the moment between its name
// and the renaming one may stay: the next command that writes the file takes it away.
TEST_P(EveryCall, KilledLeavesNothingForLong) {
  int left = 0;
  const int count = calls();
  for (int number = 1; number <= count; ++number) {
    EXPECT_EQ(with("KILL", number).status, 128 + SIGKILL);
    EXPECT_TRUE(is_old_or_new()) << number;
    if (names_in(scratch_.path("")) != kAlone) {
      ++left;
      EXPECT_EQ(with("FAIL", kMoreThanThereAre).status, 0);
      EXPECT_EQ(names_in(scratch_.path("")), kAlone) << number;
      EXPECT_EQ(bytes_of(file_), GetParam().made);
    }
  }
  EXPECT_LE(left, 2) << "in front of the closing and the renaming";
}

TEST_P(EveryCall, OpensNoFileForOtherPrograms) {
  on_both([&] {
    const std::string log = reports_.path("inherited");
    EXPECT_EQ(with("QELPRO_TEST_INHERITED='" + log + "'").status, 0);
    EXPECT_EQ(bytes_of(log), "");
  });
}

// One by the entries, one that puts another file in the place, and one of another command.
INSTANTIATE_TEST_SUITE_P(Commands, EveryCall,
                         testing::Values(kWriters[0], kWriters[3], kWriters[5]), NameOfWriter());

// What reads, and what makes files.
TEST(EveryCommand, OpensNoFileForOtherPrograms) {
  const Scratch scratch;
  const Scratch logs;
  const std::string log = logs.path("inherited");
  const std::string file = scratch.file(bytes_of(data_path("injection_two_inlets.pro")));
  for (const std::string& command : std::vector<std::string>{
           "get \"$1\" Flow-1.FillTime", "show \"$1\"", "process \"$1\"", "check \"$1\"",
           "diff \"$1\" \"$1\"", "report \"$1\" -o \"$1.html\"", "new \"$1.new\"",
           "sweep \"$1\" --set Flow-1.FillTime=1,2 -o \"$1.study\"",
           "machines '" + data_path("machines.bank") + "'",
           "coolant '" + data_path("coolants.pcs") + "' 0 20", "get - Flow-1.FillTime <\"$1\""}) {
    const Outcome outcome =
        shell(kWithFailingCalls + "QELPRO_TEST_INHERITED='" + log + "'; \"$0\" " + command, {file});
    EXPECT_LE(outcome.status, 1) << command << outcome.err;
    EXPECT_EQ(exists(log) ? bytes_of(log) : "", "") << command;
    std::filesystem::remove(log);
  }
}

class NewInMemory : private InMemory, public testing::Test {};
TEST_F(NewInMemory, LeavesNothingButTheNewFileHoweverItEnds) {
  const Scratch reports;
  for (const std::string named : {"", "QELPRO_TEST_NAMED=1 "}) {
    for (const std::string what : {"FAIL", "SIGNAL", "KILL"}) {
      // The default values are hundreds of calls that are alike.
      for (int number = 1; number < 700; number += number < 30 ? 1 : 67) {
        const Scratch scratch;
        const Outcome outcome =
            shell(kWithFailingCalls + named + "QELPRO_TEST_SIGNAL_NUMBER=15 QELPRO_TEST_" + what +
                      "_AT=" + std::to_string(number) + "; \"$0\" new \"$1\"",
                  {scratch.path()});
        const std::vector<std::string> names = names_in(scratch.path(""));
        if (named.empty() || what != "KILL") {
          EXPECT_TRUE(names.empty() || names == kAlone) << what << " " << number;
        }
        EXPECT_TRUE(outcome.status != 0 || names == kAlone) << what << " " << number;
        EXPECT_TRUE(outcome.status != 3 || names.empty()) << what << " " << number;
      }
    }
  }
}
#endif

}  // namespace
