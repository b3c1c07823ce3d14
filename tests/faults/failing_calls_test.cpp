#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "api/proio/support.h"
#include "faults/io_calls.h"
#include "support/scratch.h"

// Every call to the operating system fails once, in turn, in every kind of store. The file is as it
// was before the store or as the store leaves it, never anything between, and the member says
// which.

namespace qelpro_test {
namespace {

using io_calls::Failure;

struct Case {
  const char* name;
  std::string contents;
  std::function<bool(const std::string& path)> run;
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

template <class Store>
std::function<bool(const std::string&)> written(Store store) {
  return [store](const std::string& path) {
    CQELPROWriter_Manipulator writer;
    return writer.SetFilePath(path.c_str()) && store(writer);
  };
}

// The calls of the stream's own opening and closing are not the store's.
template <class Store>
std::function<bool(const std::string&)> through_a_stream(Store store) {
  return [store](const std::string& path) {
    std::FILE* stream = std::fopen(path.c_str(), "r+");
    bool done = false;
    {
      CQELPROWriter_Manipulator writer;
      done = writer.SetFilePtr(stream) && store(writer);
    }
    std::fclose(stream);
    return done;
  };
}

const std::string kRest = "[Pack-1]\nPackTime = 3\n" + std::string(6000, 'y') + "\n[Last]\nz = 1\n";
const std::string kFile =
    "[FileHeader]\nName = a.pro\n[Flow-1]\nFillTime = 1.5\nFR-1 = 0 10\n" + kRest;

class FailingCalls : public testing::TestWithParam<Case> {
 protected:
  // What the case leaves when nothing fails, and how many calls it makes.
  std::string undisturbed(int& calls) {
    const std::string path = scratch_.file(GetParam().contents);
    io_calls::fail(0, Failure::none);
    const bool done = GetParam().run(path);
    calls = io_calls::stop().calls;
    EXPECT_TRUE(done);
    return bytes_of(path);
  }
  Scratch scratch_;
};

TEST_P(FailingCalls, LeaveTheFileBeforeOrAfterTheStore) {
  const Case& row = GetParam();
  int calls = 0;
  const std::string after = undisturbed(calls);
  ASSERT_GT(calls, 3);
  int failures = 0;
  for (const Failure failure : {Failure::error, Failure::short_write, Failure::torn_write}) {
    for (int n = 1; n <= calls; ++n) {
      const std::string path = scratch_.file(row.contents);
      io_calls::fail(n, failure);
      const bool done = row.run(path);
      const io_calls::Outcome outcome = io_calls::stop();
      failures += outcome.failed ? 1 : 0;
      const std::string left = bytes_of(path);
      const std::string where = std::string(outcome.failed_call) + ", call " + std::to_string(n) +
                                " of " + std::to_string(calls);
      if (done) {
        EXPECT_TRUE(left == after) << where << ": success, but not what the store leaves";
      } else {
        // That a file could not be closed is known only once it is written.
        const bool too_late = std::strcmp(outcome.failed_call, "close") == 0;
        EXPECT_TRUE(left == row.contents || (too_late && left == after))
            << where << ": failure, but the file is not as it was";
      }
    }
  }
  EXPECT_GT(failures, 3);
}

TEST_P(FailingCalls, AreMadeAgainWhereASignalInterruptedThem) {
  const Case& row = GetParam();
  int calls = 0;
  const std::string after = undisturbed(calls);
  for (int n = 1; n <= calls; ++n) {
    const std::string path = scratch_.file(row.contents);
    io_calls::fail(n, Failure::interrupted);
    EXPECT_TRUE(row.run(path)) << n;
    const io_calls::Outcome outcome = io_calls::stop();
    EXPECT_TRUE(bytes_of(path) == after)
        << outcome.failed_call << ", call " << n << " of " << calls;
    // A file that a signal kept from being closed is closed all the same; nobody closes it again.
    EXPECT_EQ(outcome.calls,
              calls + (outcome.failed && std::strcmp(outcome.failed_call, "close") != 0 ? 1 : 0))
        << outcome.failed_call;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Document, FailingCalls,
    testing::Values(
        Case{"SameLength", kFile,
             written([](auto& w) { return w.FlowX_WriteFillingTime(2.5, 1); })},
        Case{"Longer", kFile, written([](auto& w) {
               return w.WriteString("[Flow-1]", "FillTime", std::string(3000, 'v').c_str());
             })},
        Case{"Shorter", kFile,
             written([](auto& w) { return w.WriteString("[Pack-1]", "PackTime", ""); })},
        Case{"NewKey", kFile,
             written([](auto& w) { return w.FlowX_WriteMeltTemperature(230, 1); })},
        Case{"NewSection", kFile, written([](auto& w) { return w.Cool_WriteCoolTime(20); })},
        Case{"NewFile", "", written([](auto& w) { return w.Cool_WriteCoolTime(20); })},
        Case{"Replace", kFile,
             written([](auto& w) { return w.GateValveX_WriteGateSetting(1.5, 1, 2, 1, 1); })},
        Case{"ByPosition", kFile, written([](auto& w) {
               char name[] = "Top";
               return w.MoldTemperatureBCX_WriteBC(1, name, 2, 1);
             })}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(CallerStream, FailingCalls,
                         testing::Values(Case{"SameLength", kFile, through_a_stream([](auto& w) {
                                                return w.FlowX_WriteFillingTime(2.5, 1);
                                              })},
                                         Case{"Longer", kFile, through_a_stream([](auto& w) {
                                                return w.WriteString(
                                                    "[Flow-1]", "FillTime",
                                                    std::string(3000, 'v').c_str());
                                              })},
                                         Case{"NewSection", kFile, through_a_stream([](auto& w) {
                                                return w.Cool_WriteCoolTime(20);
                                              })}),
                         [](const auto& row) { return row.param.name; });

// The self-contained object yields true whatever happened. It writes twice, the entry and the
// stamp.
class FailingCallsOfTheObject : public testing::TestWithParam<Case> {
 protected:
  Scratch scratch_;
};

TEST_P(FailingCallsOfTheObject, LeaveTheFileBeforeBetweenOrAfterItsTwoWrites) {
  const Case& row = GetParam();
  std::string path = scratch_.file(row.contents);
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(row.run(path));
  const int calls = io_calls::stop().calls;
  const std::string after = masked(bytes_of(path));
  const std::string stamp = "Date           = ";
  int failures = 0;
  for (const Failure failure : {Failure::error, Failure::short_write, Failure::torn_write}) {
    for (int n = 1; n <= calls; ++n) {
      path = scratch_.file(row.contents);
      io_calls::fail(n, failure);
      EXPECT_TRUE(row.run(path));
      const io_calls::Outcome outcome = io_calls::stop();
      failures += outcome.failed ? 1 : 0;
      const std::string left = bytes_of(path);
      // The stamp has the length of the one before, so that whole writes tell themselves by their
      // text.
      const bool entry_written = left.find("7.5") != std::string::npos;
      const std::string undone = entry_written ? after : masked(row.contents);
      EXPECT_TRUE(masked(left) == undone)
          << outcome.failed_call << ", call " << n << " of " << calls;
      EXPECT_NE(left.find(stamp), std::string::npos);
    }
  }
  EXPECT_GT(failures, 3);
}

const std::string kStamped = "[FileHeader]\nDate           = 2001/01/01 00:00:00\n" + kFile;
const std::string kConditions =
    "[FileHeader]\nDate           = 2001/01/01 00:00:00\n[Summary]\nTotalNodeBC = 2\n"
    "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\tTop\n1\tSide\n1 = 2\t3\n1 = 1.5\t7\n" +
    kFile;

template <class Store>
std::function<bool(const std::string&)> by_object(Store store) {
  return [store](const std::string& path) {
    std::string copy = path;
    CPROIO_Manipulator object;
    object.SetFilePath(copy.data());
    return store(object);
  };
}

INSTANTIATE_TEST_SUITE_P(
    Object, FailingCallsOfTheObject,
    testing::Values(
        Case{"ByPosition", kConditions,
             by_object([](auto& o) { return o.SetBCProfile(2, 1, 7.5, 1); })},
        Case{"Replace", kStamped, by_object([](auto& o) { return o.SetFillTime(7.5, 1); })},
        Case{"Append", kStamped, by_object([](auto& o) { return o.SetMeltTemperature(7.5, 1); })},
        Case{"NewSection", kStamped, by_object([](auto& o) { return o.SetCoolTime(7.5); })}),
    [](const auto& row) { return row.param.name; });

// A file that has been read is closed, or is not; whether a store ran beside the read is asked by
// the others, and where there is no answer the read is repeated.
bool is_harmless(const io_calls::Outcome& outcome) {
  return std::strcmp(outcome.failed_call, "close") == 0 ||
         std::strcmp(outcome.failed_call, "fcntl") == 0 ||
         std::strcmp(outcome.failed_call, "fstat") == 0;
}

// A read that fails is never a value, and leaves the outputs alone.
TEST(FailingReads, AreToldByTheDocumentAndByTheObject) {
  const Scratch scratch;
  std::string path = scratch.file(kFile);
  std::string conditions = scratch.file(kConditions, "conditions.pro");
  const std::function<bool(double&)> reads[] = {
      [&path](double& value) {
        CQELPROReader_Manipulator reader;
        return reader.SetFilePath(path.c_str()) && reader.FlowX_ReadFillingTime(value, 1);
      },
      [&path](double& value) {
        CPROIO_Manipulator object;
        return object.SetFilePath(static_cast<const char*>(path.c_str())) &&
               object.GetFillTime(value, 1);
      },
      [&conditions](double& value) {
        CPROIO_Manipulator object;
        double y = 0;
        return object.SetFilePath(static_cast<const char*>(conditions.c_str())) &&
               object.GetBCProfile(2, 1, value, y);
      },
      [&path](double& value) {
        CQELPROReader_Manipulator reader;
        char buffer[32];
        char* text = nullptr;
        const bool done = reader.SetFilePath(path.c_str()) &&
                          reader.ReadString("[Flow-1]", "FillTime", text, buffer, sizeof buffer);
        value = done ? std::strtod(text, nullptr) : value;
        return done;
      },
  };
  for (const auto& read : reads) {
    io_calls::fail(0, Failure::none);
    double value = 0;
    ASSERT_TRUE(read(value));
    const int calls = io_calls::stop().calls;
    for (int n = 1; n <= calls; ++n) {
      value = -1;
      io_calls::fail(n, Failure::error);
      const bool done = read(value);
      const io_calls::Outcome outcome = io_calls::stop();
      EXPECT_EQ(value, done ? 1.5 : -1) << outcome.failed_call;
      EXPECT_TRUE(!done || is_harmless(outcome)) << outcome.failed_call;
    }
  }
}

// No process rather than half of one.
TEST(FailingReads, YieldNoProcess) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  const auto load = [&path] {
    CQELProcessData_Manipulator loader;
    const std::unique_ptr<const QELG_SimulatorProcess> process(
        loader.GetProcessDataStructure(path.c_str()));
    return process != nullptr;
  };
  std::this_thread::sleep_for(std::chrono::milliseconds(50));  // a young file is asked about twice
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(load());
  const int calls = io_calls::stop().calls;
  // The file is opened, asked about, measured, read, looked at and closed, once.
  ASSERT_EQ(calls, 6);
  for (int n = 1; n <= calls; ++n) {
    io_calls::fail(n, Failure::error);
    const bool done = load();
    const io_calls::Outcome outcome = io_calls::stop();
    EXPECT_TRUE(outcome.failed) << n;
    const bool is_measured = n != 3;
    EXPECT_EQ(done, is_harmless(outcome) && is_measured) << outcome.failed_call << ' ' << n;
  }
}

}  // namespace
}  // namespace qelpro_test
