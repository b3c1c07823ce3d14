#include <gtest/gtest.h>
#include <pthread.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include "QELG/QELG.h"
#include "guest/uses.h"
#include "load/scale.h"

// A host may cancel a thread that is in a member. No member ends in the middle: the thread ends
// after it, as soon as the host's own code lets it.

namespace qelpro_test {
namespace {

std::size_t open_files() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

struct Cancelled {
  const Use* use;
  bool done = false;
  bool returned = false;
};

// A use of a thread whose cancellation has been asked for before; it would end at the first place
// that lets it.
void* use_cancelled(void* argument) {
  auto& cancelled = *static_cast<Cancelled*>(argument);
  pthread_cancel(pthread_self());
  cancelled.done = cancelled.use->run();
  cancelled.returned = true;
  pthread_testcancel();
  return nullptr;
}

void* ended(pthread_t thread) {
  void* result = nullptr;
  EXPECT_EQ(pthread_join(thread, &result), 0);
  return result;
}

TEST(CancelledThread, EndsAfterTheMember) {
  const Uses uses;
  const std::vector<Use> all = uses.done();
  EXPECT_GT(all.size(), uses.all().size() * 9 / 10);
  const std::size_t before = open_files();
  for (const Use& use : all) {
    if (use.member == "SetFilePtr") {
      continue;  // opens a stream of its own
    }
    Cancelled cancelled{&use};
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, nullptr, use_cancelled, &cancelled), 0);
    EXPECT_EQ(ended(thread), PTHREAD_CANCELED);
    EXPECT_TRUE(cancelled.returned && cancelled.done) << use.object << ' ' << use.member;
  }
  EXPECT_EQ(open_files(), before);
}

// Bytes in memory as a stream that asks for the cancellation of its own thread whenever it is read
// or written: the request comes in the middle of a member.
struct Bytes {
  std::string all;
  std::size_t at = 0;
  bool cancels = false;

  void cancel() const {
    if (cancels) {
      pthread_cancel(pthread_self());
      pthread_testcancel();
    }
  }
};

ssize_t read_bytes(void* cookie, char* to, std::size_t count) {
  auto& bytes = *static_cast<Bytes*>(cookie);
  bytes.cancel();
  const std::size_t got = std::min(count, bytes.all.size() - bytes.at);
  bytes.all.copy(to, got, bytes.at);
  bytes.at += got;
  return static_cast<ssize_t>(got);
}

ssize_t write_bytes(void* cookie, const char* from, std::size_t count) {
  auto& bytes = *static_cast<Bytes*>(cookie);
  bytes.cancel();
  bytes.all.replace(bytes.at, count, from, count);
  bytes.at += count;
  return static_cast<ssize_t>(count);
}

int seek_bytes(void* cookie, off64_t* offset, int whence) {
  auto& bytes = *static_cast<Bytes*>(cookie);
  const off64_t from = whence == SEEK_SET   ? 0
                       : whence == SEEK_CUR ? static_cast<off64_t>(bytes.at)
                                            : static_cast<off64_t>(bytes.all.size());
  bytes.at = std::min(static_cast<std::size_t>(from + *offset), bytes.all.size());
  *offset = static_cast<off64_t>(bytes.at);
  return 0;
}

struct StreamWork {
  CQELPROReader_Manipulator* reader = nullptr;
  CQELPROWriter_Manipulator* writer = nullptr;
  int type = PTHREAD_CANCEL_DEFERRED;
  Bytes bytes;
};

// A function that has nothing to clean up, as those have to be that can be cancelled at any time.
void* work_on_a_stream(void* argument) {
  auto& work = *static_cast<StreamWork*>(argument);
  double value = 0;
  int ignored = 0;
  pthread_setcanceltype(work.type, &ignored);
  work.bytes.cancels = true;
  if (work.reader != nullptr) {
    work.reader->FlowX_ReadFillingTime(value, 1);
  } else {
    work.writer->FlowX_WriteFillingTime(123.456, 1);
  }
  pthread_testcancel();
  return nullptr;
}

constexpr const char* kOld = "[Flow-1]\nFillTime = 1      \n[Pack-1]\nA = 1\n";

class CancelledInAMember : public testing::TestWithParam<int> {
 protected:
  template <class Object>
  void run(Object* StreamWork::*object) {
    StreamWork work;
    work.type = GetParam();
    work.bytes.all = kOld;
    std::FILE* stream =
        fopencookie(&work.bytes, "r+", {read_bytes, write_bytes, seek_bytes, nullptr});
    Object manipulator;
    ASSERT_TRUE(manipulator.SetFilePtr(stream));
    work.*object = &manipulator;
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, nullptr, work_on_a_stream, &work), 0);
    // Some versions of the system's library forget to tell so where a thread ends as soon as it can
    // be cancelled at any time again.
    EXPECT_TRUE(ended(thread) == PTHREAD_CANCELED || GetParam() == PTHREAD_CANCEL_ASYNCHRONOUS);
    work.bytes.cancels = false;
    double time = 0;
    CQELPROReader_Manipulator reader;  // the stream is no other's, and has all
    EXPECT_TRUE(reader.SetFilePtr(stream) && reader.FlowX_ReadFillingTime(time, 1));
    EXPECT_EQ(time, work.writer != nullptr ? 123.456 : 1);
    EXPECT_NE(work.bytes.all.find("\n[Pack-1]\nA = 1\n"), std::string::npos);
    std::fclose(stream);
  }
};

TEST_P(CancelledInAMember, HasReadAndLocksNothing) { run(&StreamWork::reader); }

TEST_P(CancelledInAMember, HasStoredAll) { run(&StreamWork::writer); }

INSTANTIATE_TEST_SUITE_P(Type, CancelledInAMember,
                         testing::Values(PTHREAD_CANCEL_DEFERRED, PTHREAD_CANCEL_ASYNCHRONOUS),
                         [](const auto& row) {
                           return row.param == PTHREAD_CANCEL_DEFERRED ? "Deferred"
                                                                       : "Asynchronous";
                         });

// What threads do that are cancelled at any moment.
struct Work {
  CQELPROReader_Manipulator* reader;
  CQELPROWriter_Manipulator* writer;
  CPROIO_Manipulator* object;
  const char* path;
  int kind;
  std::atomic<bool> began = false;
};

void* work_until_cancelled(void* argument) {
  auto& work = *static_cast<Work*>(argument);
  double value = 0;
  for (int n = 0;; ++n) {
    switch (work.kind) {
      case 0:
        work.reader->FlowX_ReadFillingTime(value, 1);
        break;
      case 1:
        work.writer->FlowX_WriteFillingTime((n & 1) != 0 ? 1 : 123.456, 1);
        break;
      case 2:
        work.object->GetFillTime(value, 1);
        break;
      case 3:
        work.object->SetFillTime((n & 1) != 0 ? 1 : 123.456, 1);
        break;
      default: {
        CQELProcessData_Manipulator loader;
        delete loader.GetProcessDataStructure(work.path);
        break;
      }
    }
    work.began = true;
    pthread_testcancel();
  }
}

std::string contents(const char* time) {
  return "[FileHeader]\nName = a\nDate = 2001/01/01 00:00:00\n[Flow-1]\nFillTime = " +
         std::string(time) + "\nFRSet = 2\n" + std::string(6000, '#') + "\n[Pack-1]\nA = 1\n";
}

TEST(CancelledThread, AtAnyMomentLeavesTheOldOrTheNewFile) {
  const Scratch scratch;
  std::string path = scratch.file(contents("1"));
  CQELPROReader_Manipulator reader;
  CQELPROWriter_Manipulator writer;
  CPROIO_Manipulator object;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()) && writer.SetFilePath(path.c_str()));
  object.SetFilePath(path.data());
  double value = 0;
  const std::size_t before = open_files();
  std::mt19937 random(20);
  for (int round = 0; round < load(100, 20000); ++round) {
    Work work{&reader, &writer, &object, path.c_str(), round % 5};
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, nullptr, work_until_cancelled, &work), 0);
    while (!work.began) {
      std::this_thread::yield();
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 200));
    ASSERT_EQ(pthread_cancel(thread), 0);
    ASSERT_EQ(ended(thread), PTHREAD_CANCELED);
    ASSERT_TRUE(reader.FlowX_ReadFillingTime(value, 1) && (value == 1 || value == 123.456))
        << value;
    const std::string bytes = bytes_of(path);
    ASSERT_NE(bytes.find("\nFRSet = 2\n" + std::string(6000, '#') + "\n[Pack-1]\nA = 1\n"),
              std::string::npos)
        << bytes;
  }
  EXPECT_EQ(open_files(), before);
}

}  // namespace
}  // namespace qelpro_test
