#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <thread>

#include "QELPROEngine/QELPROEngine.h"
#include "faults/io_calls.h"
#include "support/scratch.h"

// Stores of several programs into one file: each holds a lock while it reads and writes.

namespace qelpro_test {
namespace {

constexpr off_t kLockedByte = off_t{1} << 62U;

struct flock whole_lock(short kind) {
  struct flock lock {};
  lock.l_type = kind;
  lock.l_whence = SEEK_SET;
  lock.l_start = kLockedByte;
  lock.l_len = 1;
  return lock;
}

// Somebody else's store, as long as it lives.
class Holder {
 public:
  explicit Holder(const std::string& path) : fd_(::open(path.c_str(), O_RDWR)) {
    struct flock lock = whole_lock(F_WRLCK);
    EXPECT_EQ(::fcntl(fd_, F_OFD_SETLK, &lock), 0);
  }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;
  ~Holder() { ::close(fd_); }

 private:
  int fd_;
};

const std::string kFile = "\n[Flow-1]\nFillTime = 1.5\n";

bool store(const std::string& path, double value) {
  CQELPROWriter_Manipulator writer;
  return writer.SetFilePath(path.c_str()) && writer.FlowX_WriteFillingTime(value, 1);
}

TEST(LockedFile, IsNotStoredIntoBySomebodyElse) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  const Holder holder(path);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_FALSE(store(path, 2));
  // It waited, and it came back.
  EXPECT_GT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
  EXPECT_EQ(bytes_of(path), kFile);
}

TEST(LockedFile, IsNotStoredIntoByTheOlderObjectOrThroughALentStream) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  std::string object_path = path;
  const Holder holder(path);
  bool by_object = false;
  bool by_stream = true;
  std::thread first([&] {
    CPROIO_Manipulator object;
    object.SetFilePath(object_path.data());
    by_object = object.SetFillTime(2, 1);
  });
  std::thread second([&] {
    std::FILE* stream = std::fopen(path.c_str(), "r+");
    {
      CQELPROWriter_Manipulator writer;
      by_stream = writer.SetFilePtr(stream) && writer.FlowX_WriteFillingTime(2, 1);
    }
    std::fclose(stream);
  });
  first.join();
  second.join();
  EXPECT_TRUE(by_object);  // it says yes whatever becomes of the file
  EXPECT_FALSE(by_stream);
  EXPECT_EQ(bytes_of(path), kFile);
}

TEST(LockedFile, IsStoredIntoOnceItIsFree) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  auto holder = std::make_unique<Holder>(path);
  std::atomic<bool> done = false;
  std::thread waiting([&] { done = store(path, 2); });
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_EQ(bytes_of(path), kFile);
  holder.reset();
  waiting.join();
  EXPECT_TRUE(done);
  EXPECT_EQ(bytes_of(path), "\n[Flow-1]\nFillTime             = 2\n");
}

TEST(LockedFile, IsReadMeanwhile) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  const Holder holder(path);
  CQELPROReader_Manipulator reader;
  double value = 0;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(value, 1));
  EXPECT_EQ(value, 1.5);
}

// A traditional lock of the whole file, as a host may hold it around what it does.
// A lock of the whole file is no store's: nobody is at work whose end a read could wait for.
TEST(LockedFile, IsReadAtOnceWhereSomebodyHasLockedAllOfIt) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  const int fd = ::open(path.c_str(), O_RDWR);
  struct flock all {};
  all.l_type = F_WRLCK;
  ASSERT_EQ(::fcntl(fd, F_OFD_SETLK, &all), 0);
  io_calls::fail(0, io_calls::Failure::none);
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  double value = 0;
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(value, 1));
  EXPECT_EQ(value, 1.5);
  CPROIO_Manipulator object;
  EXPECT_TRUE(object.SetFilePath(path.c_str()) && object.GetFillTime(value, 1));
  EXPECT_LT(io_calls::stop().calls, 30) << "who waits asks again and again";
  ::close(fd);
}

TEST(LockedFile, IsStoredIntoByTheHostThatLockedIt) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  const int fd = ::open(path.c_str(), O_RDWR);
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  ASSERT_EQ(::fcntl(fd, F_SETLK, &whole), 0);
  EXPECT_TRUE(store(path, 2));
  ::close(fd);
}

TEST(LockedFile, IsGivenBack) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  EXPECT_TRUE(store(path, 2));
  std::FILE* stream = std::fopen(path.c_str(), "r+");
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePtr(stream));
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(3, 1));
  EXPECT_FALSE(writer.WriteString("[A", "x", "1"));
  const Holder holder(path);  // at once, with the stream still open
  std::fclose(stream);
}

// A store that waited has the file that stands under the path now, not the one that it opened.
TEST(LockedFile, ThatIsReplacedMeanwhileLosesNoStore) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  const std::string other = scratch.file("\n[Flow-1]\nFillTime = 9\nMeltTemp = 7\n", "other.pro");
  auto holder = std::make_unique<Holder>(path);
  std::atomic<bool> done = false;
  std::thread waiting([&] { done = store(path, 2); });
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  ASSERT_EQ(std::rename(other.c_str(), path.c_str()), 0);
  holder.reset();
  waiting.join();
  EXPECT_TRUE(done);
  EXPECT_EQ(bytes_of(path), "\n[Flow-1]\nFillTime             = 2\nMeltTemp = 7\n");
}

// What another program wrote since a stream was last read is not overwritten with what it held.
TEST(LockedFile, IsReadAnewThroughALentStream) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  std::FILE* stream = std::fopen(path.c_str(), "r+");
  {
    CQELPROWriter_Manipulator writer;
    ASSERT_TRUE(writer.SetFilePtr(stream));
    ASSERT_TRUE(writer.FlowX_WriteFillingTime(2, 1));
    ASSERT_TRUE(store(path, 12.125));
    CQELPROWriter_Manipulator by_path;
    ASSERT_TRUE(by_path.SetFilePath(path.c_str()));
    ASSERT_TRUE(by_path.FlowX_WriteFillingTime(4, 2));
    EXPECT_TRUE(writer.WriteString("[Flow-1]", "FillTime", "3"));
  }
  std::fclose(stream);
  CQELPROReader_Manipulator reader;
  double value = 0;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(value, 1) && value == 3);
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(value, 2) && value == 4);
}

}  // namespace
}  // namespace qelpro_test
