#include "core/steady_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <string>
#include <utility>

#include "platform/steady_read.h"

namespace qelpro_test {
namespace {

using qel::SteadyFile;
using qel::platform::ReadEnd;

// A file in memory, which counts how often it is asked whether it is undisturbed.
class AskedFile final : public qel::platform::ReadAccess {
 public:
  std::int64_t size() override { return static_cast<std::int64_t>(bytes.size()); }
  std::int64_t read_at(std::int64_t offset, char* to, std::size_t count) override {
    const auto at = std::min(static_cast<std::size_t>(offset), bytes.size());
    longest = std::max(longest, count);
    return fails ? -1 : static_cast<std::int64_t>(bytes.copy(to, count, at));
  }
  bool begins_read() override {
    ++begun;
    return !is_stored_into;
  }
  ReadEnd ends_read() override {
    ++ended;
    const ReadEnd answer = end;
    end = ReadEnd::undisturbed;
    return answer;
  }
  [[nodiscard]] bool lasts() const override { return settled; }
  void lock_for_read() override { ++locked; }

  std::string bytes;
  ReadEnd end = ReadEnd::undisturbed;  // of the next read
  bool settled = true;
  bool is_stored_into = false;
  bool fails = false;
  std::size_t longest = 0;  // of what was asked for
  int begun = 0;
  int ended = 0;
  int locked = 0;
};

class Steady : public testing::Test {
 protected:
  std::string read(std::int64_t offset, std::size_t count) {
    return qel::platform::read_steadily(file_, [&] {
      std::string text(count, '?');
      const std::int64_t got = file_.read_at(offset, text.data(), count);
      return got < 0 ? "failed" : text.substr(0, static_cast<std::size_t>(got));
    });
  }
  // Three pages and a part of one, each place of its own.
  static std::string many_lines() {
    std::string text;
    for (int number = 0; text.size() < 14000; ++number) {
      text += std::to_string(number) + "\n";
    }
    return text.substr(0, 14000);
  }

  AskedFile asked_;
  SteadyFile file_{asked_};
};

TEST_F(Steady, AsksOnceForWhatStandsAsItStood) {
  asked_.bytes = many_lines();
  EXPECT_EQ(read(100, 256), asked_.bytes.substr(100, 256));
  EXPECT_EQ(asked_.ended, 1);
  EXPECT_EQ(read(100, 256), asked_.bytes.substr(100, 256));
  EXPECT_EQ(read(3000, 256), asked_.bytes.substr(3000, 256));
  EXPECT_EQ(asked_.ended, 1) << "the page is known";
  EXPECT_EQ(read(4000, 256), asked_.bytes.substr(4000, 256));
  EXPECT_EQ(asked_.ended, 2) << "it goes on in a page that is not";
  EXPECT_EQ(read(4000, 256), asked_.bytes.substr(4000, 256));
  EXPECT_EQ(read(0, 4096), asked_.bytes.substr(0, 4096));
  EXPECT_EQ(asked_.ended, 2);
  EXPECT_EQ(read(0, 8192), asked_.bytes.substr(0, 8192));
  EXPECT_EQ(asked_.ended, 3) << "a long read is always asked about";
  EXPECT_EQ(asked_.begun, 1);
  EXPECT_EQ(asked_.locked, 0);
}

TEST_F(Steady, KnowsWhereTheFileEnds) {
  for (const std::size_t size : {std::size_t{8192}, std::size_t{14000}}) {
    file_.forget();
    asked_.bytes = many_lines().substr(0, size);
    const auto at = static_cast<std::int64_t>(size) - 10;
    EXPECT_EQ(read(at, 256), asked_.bytes.substr(size - 10));
    const int ended = asked_.ended;
    EXPECT_EQ(read(at, 256), asked_.bytes.substr(size - 10));
    EXPECT_EQ(read(at + 20, 256), "");
    EXPECT_EQ(asked_.ended, ended);
    asked_.bytes += "more";
    EXPECT_EQ(read(at, 256), asked_.bytes.substr(size - 10));
    EXPECT_EQ(asked_.ended, ended + 1) << "a longer file is another one";
    EXPECT_EQ(read(at, 256), asked_.bytes.substr(size - 10));
    asked_.bytes.resize(size - 5);
    EXPECT_EQ(read(at, 256), asked_.bytes.substr(size - 10));
    EXPECT_EQ(asked_.ended, ended + 3) << "so is a shorter one";
    EXPECT_EQ(read(at + 9000, 256), "");
  }
}

TEST_F(Steady, SeesEveryByteThatChanged) {
  asked_.bytes = many_lines();
  for (const std::size_t at :
       {std::size_t{4000}, std::size_t{4095}, std::size_t{4096}, std::size_t{4255}}) {
    read(4000, 256);
    const int ended = asked_.ended;
    read(4000, 256);
    ASSERT_EQ(asked_.ended, ended);
    asked_.bytes[at] = '#';
    asked_.end = ReadEnd::outdated;
    EXPECT_EQ(read(4000, 256), asked_.bytes.substr(4000, 256));
    EXPECT_EQ(asked_.ended, ended + 2) << "the first look was at another file, the second is asked";
    EXPECT_EQ(read(4000, 256), asked_.bytes.substr(4000, 256));
    EXPECT_EQ(asked_.ended, ended + 2);
  }
  EXPECT_EQ(asked_.locked, 0);
}

TEST_F(Steady, ReadsUnderTheLockWhereAStoreRan) {
  asked_.bytes = many_lines();
  asked_.end = ReadEnd::disturbed;
  EXPECT_EQ(read(0, 256), asked_.bytes.substr(0, 256));
  EXPECT_EQ(asked_.locked, 1);
  asked_.is_stored_into = true;
  EXPECT_EQ(read(0, 256), asked_.bytes.substr(0, 256));
  EXPECT_EQ(asked_.locked, 2);
  EXPECT_EQ(asked_.ended, 1);
  asked_.is_stored_into = false;
  EXPECT_EQ(read(0, 256), asked_.bytes.substr(0, 256));
  EXPECT_EQ(asked_.ended, 2) << "nothing is kept of what was read under the lock";
}

// Bytes that stand in a page of which there is a copy, behind one of which there is none.
TEST_F(Steady, ReadsOverTheEndOfAPageIntoOneThatItKnows) {
  asked_.bytes = many_lines();
  EXPECT_EQ(read(5000, 256), asked_.bytes.substr(5000, 256));
  EXPECT_EQ(read(4000, 256), asked_.bytes.substr(4000, 256));
  EXPECT_EQ(asked_.ended, 2);
  EXPECT_EQ(read(4000, 256), asked_.bytes.substr(4000, 256));
  EXPECT_EQ(asked_.ended, 2) << "both pages are known";
}

// One byte of it is as much a part of that page as any other.
TEST_F(Steady, KeepsWhatItHasWhereOneByteMoreIsNew) {
  asked_.bytes = many_lines();
  read(0, 256);
  EXPECT_EQ(read(4000, 97), asked_.bytes.substr(4000, 97));
  EXPECT_EQ(asked_.ended, 2);
  EXPECT_EQ(read(0, 256), asked_.bytes.substr(0, 256));
  EXPECT_EQ(read(4096, 1), asked_.bytes.substr(4096, 1));
  EXPECT_EQ(asked_.ended, 2) << "both pages are known";
}

// A read that ended without an answer leaves nothing that the next one would take for known.
TEST_F(Steady, KeepsNothingOfAReadThatWasLeft) {
  asked_.bytes = many_lines();
  EXPECT_THROW(qel::platform::read_steadily(file_,
                                            [&]() -> int {
                                              char byte = 0;
                                              file_.read_at(100, &byte, 1);
                                              throw std::bad_alloc();
                                            }),
               std::bad_alloc);
  asked_.bytes[100] = '#';
  EXPECT_EQ(read(100, 256), asked_.bytes.substr(100, 256));
  EXPECT_EQ(asked_.begun, 2);
  EXPECT_EQ(asked_.ended, 1) << "the first read has no end";
  EXPECT_EQ(read(100, 256), asked_.bytes.substr(100, 256));
  EXPECT_EQ(asked_.ended, 1) << "the page is known";
}

// A file that was written a moment ago may be written again without a mark of it.
TEST_F(Steady, KeepsNothingOfAFileThatHasNotSettled) {
  asked_.bytes = many_lines();
  asked_.settled = false;
  read(0, 256);
  read(0, 256);
  EXPECT_EQ(asked_.begun, 2);
  EXPECT_EQ(asked_.ended, 2);
}

TEST_F(Steady, KeepsNothingOfAReadThatFailed) {
  asked_.bytes = many_lines();
  asked_.fails = true;
  EXPECT_EQ(read(0, 256), "failed");
  EXPECT_EQ(read(0, 20000), "failed");
  asked_.fails = false;
  EXPECT_EQ(read(0, 256), asked_.bytes.substr(0, 256));
  asked_.fails = true;
  EXPECT_EQ(read(0, 256), "failed");
  asked_.fails = false;
  asked_.bytes[5] = '#';
  EXPECT_EQ(read(0, 256), asked_.bytes.substr(0, 256));
}

TEST_F(Steady, KeepsNothingOfAnotherFile) {
  asked_.bytes = many_lines();
  read(0, 256);
  file_.forget();
  asked_.is_stored_into = true;
  EXPECT_FALSE(file_.begins_read());
}

TEST_F(Steady, AsksOnceForASingleByteAndForTheLastOnesOfAPage) {
  asked_.bytes = many_lines();
  for (const auto& [offset, count] : {std::pair(5000, std::size_t{1}), {8000, 192}, {8191, 1}}) {
    read(offset, count);
    const int ended = asked_.ended;
    asked_.longest = 0;
    EXPECT_EQ(read(offset, count), asked_.bytes.substr(static_cast<std::size_t>(offset), count));
    EXPECT_EQ(asked_.longest, count) << "no more is read than is asked for";
    EXPECT_EQ(asked_.ended, ended);
  }
}

// What is not as it was is asked about, although nothing is read that was not known.
TEST_F(Steady, AsksAboutBytesThatAreNotAsTheyWere) {
  asked_.bytes = many_lines();
  read(0, 256);
  asked_.bytes[5] = '#';
  file_.begins_read();
  char byte = '?';
  file_.read_at(5, &byte, 1);
  EXPECT_EQ(byte, '#');
  asked_.end = ReadEnd::outdated;
  EXPECT_EQ(file_.ends_read(), ReadEnd::outdated);
}

TEST_F(Steady, KeepsBytesAnewThatAreNotAsTheyWere) {
  asked_.bytes = many_lines();
  read(0, 256);
  asked_.bytes[5] = '#';
  read(0, 256);
  read(0, 256);
  const int ended = asked_.ended;
  EXPECT_EQ(read(0, 256), asked_.bytes.substr(0, 256));
  EXPECT_EQ(asked_.ended, ended) << "they are known again";
}

// Up to so many pages are kept; a read may go on behind them.
TEST_F(Steady, KeepsAsManyPagesAsThereIsRoomFor) {
  constexpr std::size_t kKept = std::size_t{4} << 20U;
  asked_.bytes.assign(kKept - 5, 'x');
  asked_.bytes += "0123456789";
  const auto end = static_cast<std::int64_t>(kKept);
  EXPECT_EQ(read(end - 8, 3), "xxx");
  EXPECT_EQ(read(end - 8, 3), "xxx");
  EXPECT_EQ(asked_.ended, 1);
  EXPECT_EQ(read(end - 8, 12), "xxx012345678");
  EXPECT_EQ(read(end - 8, 12), "xxx012345678");
  EXPECT_EQ(asked_.ended, 3) << "what stands behind them is always new";
}

// What stands so far behind is read, and asked for each time.
TEST_F(Steady, ReadsFilesOfAnySize) {
  asked_.bytes.assign(std::size_t{5} << 20U, 'x');
  asked_.bytes += "end";
  const auto at = static_cast<std::int64_t>(asked_.bytes.size()) - 10;
  EXPECT_EQ(read(at, 256), "xxxxxxxend");
  EXPECT_EQ(read(at, 256), "xxxxxxxend");
  EXPECT_EQ(asked_.ended, 2);
}

}  // namespace
}  // namespace qelpro_test
