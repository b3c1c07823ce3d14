#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iterator>
#include <memory>
#include <string>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "api/proio/support.h"
#include "faults/every_store.h"
#include "faults/io_calls.h"
#include "support/broken_medium_posix.h"
#include "support/in_c_locale.h"
#include "support/scratch.h"

// Every call to the operating system fails once, in turn, in every kind of store. The file is as it
// was before the store or as the store leaves it, never anything between, and the member says
// which. A store that succeeds although a call failed has a reason for it, which stands in a table.

namespace qelpro_test {
namespace {

using io_calls::Failure;

// Why a store may succeed although a call failed.
struct Explained {
  const char* call;
  Failure failure;
  bool is_made_up_for;  ///< By calls that an undisturbed store does not make.
  const char* why;
};
constexpr Explained kExplained[] = {
    {"pwrite", Failure::short_write, true, "another call writes the rest"},
    {"open", Failure::error, true, "what cannot be opened is created, which opens it"},
    {"statx", Failure::error, true, "the same"},
    {"fstat", Failure::error, true, "of a read, which is repeated under the lock of stores"},
    {"statx", Failure::error, false, "whatever stands there is looked at again once it is open"},
    {"fcntl", Failure::error, false, "a file system without locks goes without"},
    {"close", Failure::error, false, "of a file that was only read"},
};

const char* name_of(Failure failure) {
  constexpr const char* kNames[] = {"none", "error", "short write", "torn write", "interrupted"};
  return kNames[static_cast<int>(failure)];
}

// Whether the file that the n-th call closes was opened to be read.
bool is_of_a_reading(const io_calls::Outcome& outcome, int n) {
  while (n > 1 && outcome.name(n).rfind("open", 0) != 0) {
    --n;
  }
  return outcome.name(n) == io_calls::kOpenToRead;
}

bool is_explained(const io_calls::Outcome& outcome, int n, Failure failure, int undisturbed_calls) {
  if (std::strcmp(outcome.failed_call, "close") == 0 && !is_of_a_reading(outcome, n)) {
    return false;
  }
  return std::any_of(std::begin(kExplained), std::end(kExplained), [&](const Explained& row) {
    return std::strcmp(row.call, outcome.failed_call) == 0 && row.failure == failure &&
           row.is_made_up_for == (outcome.calls > undisturbed_calls);
  });
}

class FailingCalls : public testing::TestWithParam<StoreCase> {
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
  const StoreCase& row = GetParam();
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
        EXPECT_TRUE(!outcome.failed || is_explained(outcome, n, failure, calls))
            << where << ": a success that nobody explains, after: " << name_of(failure);
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
  const StoreCase& row = GetParam();
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

INSTANTIATE_TEST_SUITE_P(Document, FailingCalls, testing::ValuesIn(document_stores()),
                         name_of_store);
INSTANTIATE_TEST_SUITE_P(CallerStream, FailingCalls, testing::ValuesIn(stream_stores()),
                         name_of_store);
INSTANTIATE_TEST_SUITE_P(Adapter, FailingCalls, testing::ValuesIn(adapter_stores()), name_of_store);

// What the operating system may say when there is no room; the file is then as it was.
TEST_P(FailingCalls, StoreNothingWhereRoomIsRefused) {
  const StoreCase& row = GetParam();
  const std::string path = scratch_.file(row.contents);
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(row.run(path));
  const int call = io_calls::stop().find("fallocate");
  if (call == 0) {
    ASSERT_STRNE(row.name, "Longer");
    return;  // the file does not grow by a block
  }
  for (const int error : {ENOSPC, EDQUOT, EIO, EFBIG, EPERM}) {
    put_bytes(path, row.contents);
    io_calls::fail(call, Failure::error, error);
    EXPECT_FALSE(row.run(path)) << std::strerror(error);
    const io_calls::Outcome outcome = io_calls::stop();
    EXPECT_TRUE(outcome.failed);
    EXPECT_EQ(outcome.find("pwrite") + outcome.find("fwrite") + outcome.find("ftruncate"), 0)
        << "a byte was written before, or after";
    EXPECT_TRUE(bytes_of(path) == row.contents) << std::strerror(error);
  }
}

// Nothing is written before the room is there.
TEST_P(FailingCalls, StoreWhereRoomCannotBeAskedFor) {
  const StoreCase& row = GetParam();
  int calls = 0;
  const std::string after = undisturbed(calls);
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(row.run(scratch_.file(row.contents)));
  const io_calls::Outcome whole = io_calls::stop();
  const int call = whole.find("fallocate");
  if (call == 0) {
    return;
  }
  for (const char* const write : {"pwrite", "fwrite"}) {
    EXPECT_TRUE(whole.find(write) == 0 || whole.find(write) > call) << write;
  }
  for (const int error : {EOPNOTSUPP, ENOSYS}) {
    const std::string path = scratch_.file(row.contents);
    io_calls::fail(call, Failure::error, error);
    EXPECT_TRUE(row.run(path)) << std::strerror(error);
    EXPECT_TRUE(io_calls::stop().failed);
    EXPECT_TRUE(bytes_of(path) == after) << std::strerror(error);
  }
}

// A program that the caller starts on another thread would hold the file open.
TEST_P(FailingCalls, NoFileIsOpenedForOtherProgramsToo) {
  const std::string path = scratch_.file(GetParam().contents);
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(GetParam().run(path));
  EXPECT_EQ(io_calls::stop().inherited, 0);
}

// The self-contained object yields true whatever happened. It writes twice, the entry and the
// stamp.
class FailingCallsOfTheObject : public testing::TestWithParam<StoreCase> {
 protected:
  Scratch scratch_;
};

TEST_P(FailingCallsOfTheObject, LeaveTheFileBeforeBetweenOrAfterItsTwoWrites) {
  const StoreCase& row = GetParam();
  std::string path = scratch_.file(row.contents);
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(row.run(path));
  const int calls = io_calls::stop().calls;
  const std::string after = masked(bytes_of(path));
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
      EXPECT_NE(left.find(kStamp), std::string::npos);
    }
  }
  EXPECT_GT(failures, 3);
}

// What was written may be lost when closing fails: it gets no stamp that says otherwise.
TEST_P(FailingCallsOfTheObject, PutNoStampOnWhatMayBeLost) {
  const StoreCase& row = GetParam();
  std::string path = scratch_.file(row.contents);
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(row.run(path));
  const io_calls::Outcome whole = io_calls::stop();
  EXPECT_EQ(whole.inherited, 0);
  const int close = whole.find("close", whole.find("pwrite"));
  ASSERT_GT(close, 0);
  ASSERT_GT(whole.find("pwrite", close), 0) << "the stamp";
  path = scratch_.file(row.contents);
  io_calls::fail(close, Failure::error);
  EXPECT_TRUE(row.run(path));
  EXPECT_TRUE(io_calls::stop().failed);
  EXPECT_NE(bytes_of(path).find("7.5"), std::string::npos);
  EXPECT_NE(bytes_of(path).find(std::string(kStamp) + "2001/01/01 00:00:00\n"), std::string::npos);
}

TEST_P(FailingCallsOfTheObject, StoreNothingWhereRoomIsRefused) {
  const StoreCase& row = GetParam();
  std::string path = scratch_.file(row.contents);
  io_calls::fail(0, Failure::none);
  ASSERT_TRUE(row.run(path));
  const int call = io_calls::stop().find("fallocate");
  if (call == 0) {
    ASSERT_STRNE(row.name, "Longer");
    return;  // the file does not grow by a block
  }
  for (const int error : {ENOSPC, EDQUOT, EIO, EFBIG}) {
    path = scratch_.file(row.contents);
    io_calls::fail(call, Failure::error, error);
    EXPECT_TRUE(row.run(path));
    const io_calls::Outcome outcome = io_calls::stop();
    EXPECT_EQ(outcome.find("pwrite") + outcome.find("ftruncate"), 0);
    EXPECT_TRUE(bytes_of(path) == row.contents) << std::strerror(error);
  }
}

INSTANTIATE_TEST_SUITE_P(Object, FailingCallsOfTheObject, testing::ValuesIn(object_stores()),
                         name_of_store);

// A file that has been read is closed, or is not; the others ask whether a store ran beside the
// read, and where there is no answer the read is repeated.
bool is_harmless(const io_calls::Outcome& outcome) {
  constexpr const char* kCalls[] = {"close", "fcntl", "fstat", "fseeko", "fflush"};
  return std::any_of(std::begin(kCalls), std::end(kCalls), [&outcome](const char* call) {
    return std::strcmp(outcome.failed_call, call) == 0;
  });
}

// A read that fails is never a value, and leaves the outputs alone.
TEST(FailingReads, AreToldByTheDocumentAndByTheObject) {
  const Scratch scratch;
  std::string path = scratch.file(flow_file());
  std::string conditions = scratch.file(conditions_file(), "conditions.pro");
  std::FILE* stream = std::fopen(path.c_str(), "r");
  const std::function<bool(double&)> reads[] = {
      [&stream](double& value) {
        CQELPROReader_Manipulator reader;
        return reader.SetFilePtr(stream) && reader.FlowX_ReadFillingTime(value, 1);
      },
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
        value = done ? to_double(text) : value;
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
      EXPECT_TRUE(outcome.failed) << n;
      EXPECT_TRUE(!done || is_harmless(outcome)) << outcome.failed_call;
    }
  }
  std::fclose(stream);
}

// Wherever a stream begins to fail, a value is the file's or none; and no key counts as missing
// that may stand in what was not read, so that none is added a second time.
TEST(FailingReads, OfAStreamThatFailsMidwayAreNoValues) {
  const std::string contents =
      "[Pack-1]\nPackTime = 3\n" + std::string(9000, 'y') + "\n" + flow_file();
  const std::size_t value_end = contents.find("FillTime = 1.5\n") + 15;
  for (const std::size_t readable :
       {std::size_t{0}, std::size_t{9}, std::size_t{4096}, value_end - 14, value_end - 2,
        value_end - 1, value_end, contents.size()}) {
    BrokenMedium medium{contents, readable};
    std::FILE* stream = opened(medium);
    CQELPROReader_Manipulator reader;
    double value = -1;
    const bool done = reader.SetFilePtr(stream) && reader.FlowX_ReadFillingTime(value, 1);
    EXPECT_EQ(value, done ? 1.5 : -1) << readable;
    EXPECT_TRUE(readable >= value_end || !done) << readable;
    EXPECT_TRUE(readable < contents.size() || done) << readable;
    CQELPROWriter_Manipulator writer;
    const bool stored = writer.SetFilePtr(stream) && writer.FlowX_WriteFillingTime(2.5, 1);
    EXPECT_TRUE(readable == contents.size() || !stored) << readable;
    std::fclose(stream);
  }
}

// Half a table would give other properties, and half a bank hides machines.
TEST(FailingReads, OfReferenceDataLoadNothing) {
  const std::string bank = data_path("machines.bank");
  const std::string settings = data_path("coolants.pcs");
  CQELMachineIdentification machines;
  machines.SetMachineUserBankPath(bank.c_str());
  CQELPCSInterpolator coolants;
  struct Load {
    std::function<bool()> load;
    std::function<bool()> has_something;
  };
  const Load loads[] = {
      {[&] { return machines.LoadFileData(); },
       [&] {
         const char** makers = nullptr;
         int count = 0;
         return machines.GetMakerCount() > 0 || machines.GetAllMaker(&makers, &count);
       }},
      {[&] { return coolants.LoadDataFromFile(settings.c_str()); },
       [&] {
         double p[4] = {};
         return coolants.InterpolateCoolantProperties(0, 20, p[0], p[1], p[2], p[3]);
       }},
  };
  for (const Load& row : loads) {
    io_calls::fail(0, Failure::none);
    ASSERT_TRUE(row.load());
    const io_calls::Outcome whole = io_calls::stop();
    ASSERT_GT(whole.find("pread"), 0);
    ASSERT_TRUE(row.has_something());
    EXPECT_EQ(whole.inherited, 0);
    for (int n = 1; n <= whole.calls; ++n) {
      io_calls::fail(n, Failure::error);
      const bool done = row.load();
      const io_calls::Outcome outcome = io_calls::stop();
      EXPECT_TRUE(outcome.failed) << n;
      EXPECT_EQ(done, std::strcmp(outcome.failed_call, "close") == 0) << outcome.failed_call;
      EXPECT_EQ(row.has_something(), done) << outcome.failed_call;
      io_calls::fail(n, Failure::interrupted);
      EXPECT_TRUE(row.load());
      EXPECT_TRUE(row.has_something()) << io_calls::stop().failed_call;
    }
  }
}

}  // namespace
}  // namespace qelpro_test
