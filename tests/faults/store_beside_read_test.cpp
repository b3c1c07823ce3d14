#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "faults/io_calls.h"
#include "support/in_c_locale.h"
#include "support/scratch.h"

// Another program stores while a read goes on: before each of the read's calls to the operating
// system in turn, whole, or begun before one and ended before another. What the read yields is the
// old value or the new one.

namespace qelpro_test {
namespace {

constexpr double kOld = 111.5;
constexpr double kNew = 2222.25;
constexpr double kNothing = -1;

// The line that the store changes stands in the middle, and what stands behind it moves.
std::string contents(const std::string& value, const std::string& changed) {
  std::string text = "\n[FileHeader]\nName = a.pro\n[FlowCTLInfo]\nTotalInlet = 1\n[Flow-1]\n";
  text += "PreFill = 1\nFillTime = " + (changed == "FillTime" ? value : "111.5") + "\n";
  text += "FRSet = 1\nFR-1 = " + (changed == "FR-1" ? value : "111.5") + " 7\n";
  text += "[PartInsertContactAngle]\nGroupCount = 2\n1 = \"Rib\" 5\n2 = \"Core\" " +
          (changed == "Core" ? value : "111.5") + "\n[Summary]\nTotalNodeBC = 2\n";
  text += "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\tTop\t1\n1\tSide\t2\n1 = 4\t5\n1 = " +
          (changed == "Point" ? value : "111.5") + "\t7\n[Last]\nz = " + std::string(100, 'z') +
          "\n";
  return text;
}

using Read = std::function<double()>;

struct Way {
  const char* name;
  const char* changed;
  // Makes ready what is there before the store.
  std::function<Read(const char* path)> begin;
};

std::ostream& operator<<(std::ostream& out, const Way& way) { return out << way.name; }

using Reader = CQELPROReader_Manipulator;

template <class Member>
std::function<Read(const char*)> by_session(Member member) {
  return [member](const char* path) -> Read {
    auto reader = std::make_shared<Reader>();
    EXPECT_TRUE(reader->SetFilePath(path));
    return [reader, member] {
      double value = kNothing;
      return member(*reader, value) ? value : kNothing;
    };
  };
}

template <class Member>
std::function<Read(const char*)> by_stream(Member member) {
  return [member](const char* path) -> Read {
    const std::shared_ptr<std::FILE> stream(std::fopen(path, "r"), &std::fclose);
    auto reader = std::make_shared<Reader>();
    std::FILE* lent = stream.get();
    EXPECT_TRUE(reader->SetFilePtr(lent));
    double value = kNothing;
    reader->FlowX_ReadPreFill(value, 1);
    return [stream, reader, member] {
      double read = kNothing;
      return member(*reader, read) ? read : kNothing;
    };
  };
}

template <class Member>
std::function<Read(const char*)> by_object(Member member) {
  return [member](const char* path) -> Read {
    return [path = std::string(path), member] {
      CPROIO_Manipulator object;
      double value = kNothing;
      return object.SetFilePath(path.c_str()) && member(object, value) ? value : kNothing;
    };
  };
}

bool filling_time(Reader& reader, double& value) { return reader.FlowX_ReadFillingTime(value, 1); }
bool profile(Reader& reader, double& value) {
  double y = 0;
  return reader.FlowX_ReadFRProfile(value, y, 1, 1) && y == 7;
}
bool condition(Reader& reader, double& value) {
  double y = 0;
  return reader.MoldTemperatureBCX_ReadBCSetting(value, y, 1, 2, 2) && y == 7;
}
bool core(Reader& reader, double& value) {
  return reader.PartInsertContactAngle_ReadAngle("Core", value);
}
bool text(Reader& reader, double& value) {
  char* found = nullptr;
  const bool done = reader.ReadString("[Flow-1]", "FillTime", found, nullptr, 0);
  value = done ? to_double(found) : value;
  return done;
}
bool scanned_text(Reader& reader, double& value) {
  char* found = nullptr;
  const bool done = reader.ReadValue("Flow-1", "FillTime", found, nullptr, 0);
  value = done ? to_double(found) : value;
  return done;
}

// The line is known: one look at it is the read.
Read known(const char* path) {
  Read read = by_session(filling_time)(path);
  EXPECT_EQ(read(), kOld);
  EXPECT_EQ(read(), kOld);
  return read;
}

// The line in front of it is known.
Read after_the_one_before(const char* path) {
  auto reader = std::make_shared<Reader>();
  double value = kNothing;
  EXPECT_TRUE(reader->SetFilePath(path) && filling_time(*reader, value));
  return [reader] {
    double x = kNothing;
    return profile(*reader, x) ? x : kNothing;
  };
}

Read loaded(const char* path) {
  return [path = std::string(path)] {
    CQELProcessData_Manipulator loader;
    const std::unique_ptr<const QELG_SimulatorProcess> process(
        loader.GetProcessDataStructure(path.c_str()));
    double value = kNothing;
    return process != nullptr && process->GetNumOfInlets() == 1 &&
                   get_process_FillTime(*process->GetFlowPackOfInlet(0), value)
               ? value
               : kNothing;
  };
}

// Another program, whose store has two writes.
class OtherProgram {
 public:
  OtherProgram(std::string path, const std::string& changed)
      : path_(std::move(path)), bytes_(contents("2222.25", changed)) {
    split_ = bytes_.find("2222.25") + 2;
  }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;
  ~OtherProgram() { end(); }

  void begin() {
    file_ = ::open(path_.c_str(), O_RDWR | O_CLOEXEC);
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = off_t{1} << 62U;
    lock.l_len = 1;
    EXPECT_EQ(::fcntl(file_, F_OFD_SETLK, &lock), 0);
    write(0, split_);
  }
  void end() {
    if (file_ >= 0) {
      write(split_, bytes_.size());
      ::close(file_);
      file_ = -1;
    }
  }

 private:
  void write(std::size_t from, std::size_t to) {
    EXPECT_EQ(::pwrite(file_, bytes_.data() + from, to - from, static_cast<off_t>(from)),
              static_cast<ssize_t>(to - from));
  }
  std::string path_;
  std::string bytes_;
  std::size_t split_ = 0;
  int file_ = -1;
};

class StoreBesideARead : public testing::TestWithParam<Way> {
 protected:
  // What a read yields beside a store that begins before one of its calls and ends before another,
  // and how many calls it makes.
  double read_beside(const std::string& path, int begin, int end, int& calls) {
    const Read read = GetParam().begin(path.c_str());
    OtherProgram other(path, GetParam().changed);
    io_calls::announce([&](int call) {
      if (call == begin) {
        other.begin();
      }
      if (call == end) {
        other.end();
      }
    });
    const double value = read();
    calls = io_calls::stop().calls;
    return value;
  }
  std::string file(int number) {
    return scratch_.file(contents("111.5", ""), std::to_string(number) + ".pro");
  }
  Scratch scratch_;
};

TEST_P(StoreBesideARead, IsSeenWholeOrNotAtAll) {
  int calls = 0;
  ASSERT_EQ(read_beside(file(0), 0, 0, calls), kOld);
  ASSERT_GE(calls, 1);
  // A store shortly after another may leave the stamp of a file as it is, where the clock is slow.
  std::vector<std::string> paths;
  for (int number = 1; number <= calls; ++number) {
    paths.push_back(file(number));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  int seen = 0;
  for (int n = 1; n <= calls; ++n) {
    int made = 0;
    const double value = read_beside(paths[static_cast<std::size_t>(n - 1)], n, n, made);
    EXPECT_TRUE(value == kOld || value == kNew) << value << ", before call " << n;
    seen += value == kNew ? 1 : 0;
  }
  EXPECT_GE(seen, 1);
}

TEST_P(StoreBesideARead, IsWaitedForWhereItHasBegun) {
  int calls = 0;
  ASSERT_EQ(read_beside(file(0), 0, 0, calls), kOld);
  const int most = calls + 12;
  int waits = 0;
  for (int begin = 1; begin <= calls; ++begin) {
    for (int end = begin + 1; end <= most; ++end) {
      int made = 0;
      const double value = read_beside(file(0), begin, end, made);
      EXPECT_TRUE(value == kOld || value == kNew)
          << value << ", before calls " << begin << " and " << end << " of " << made;
      waits += value == kNew ? 1 : 0;
      if (made < end) {
        break;  // over before the store is
      }
    }
  }
  EXPECT_GE(waits, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Reads, StoreBesideARead,
    testing::Values(Way{"OneShot", "FillTime", by_session(text)},
                    Way{"ScannedText", "FillTime", by_session(scanned_text)},
                    Way{"FirstOfASession", "FillTime", by_session(filling_time)},
                    Way{"KnownToASession", "FillTime", known},
                    Way{"NextOfASession", "FR-1", after_the_one_before},
                    Way{"ConditionOfASession", "Point", by_session(condition)},
                    Way{"GroupOfASession", "Core", by_session(core)},
                    Way{"OfAStream", "FillTime", by_stream(filling_time)},
                    Way{"ConditionOfAStream", "Point", by_stream(condition)},
                    Way{"GroupOfAStream", "Core", by_stream(core)},
                    Way{"OfTheObject", "FillTime",
                        by_object([](auto& o, double& x) { return o.GetFillTime(x, 1); })},
                    Way{"ConditionOfTheObject", "Point", by_object([](auto& o, double& x) {
                          double y = 0;
                          return o.GetBCProfile(2, 1, x, y) && y == 7;
                        })},
                    Way{"Loader", "FillTime", loaded}),
    [](const auto& row) { return row.param.name; });

// A store that does not end is waited for once, for about a second.
TEST(StoreThatStops, DoesNotStopReads) {
  const Scratch scratch;
  const std::string path = scratch.file(contents("111.5", ""));
  OtherProgram other(path, "FillTime");
  other.begin();
  const auto start = std::chrono::steady_clock::now();
  Reader reader;
  double value = 0;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadPreFill(value, 1));
  EXPECT_EQ(value, 1);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

// A host's own lock of the whole file is no store.
TEST(LockOfAHost, IsNotWaitedFor) {
  const Scratch scratch;
  const std::string path = scratch.file(contents("111.5", ""));
  const int file = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  ASSERT_EQ(::fcntl(file, F_SETLK, &lock), 0);
  Reader reader;
  double value = 0;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(value, 1));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(900));
  EXPECT_EQ(value, kOld);
  ::close(file);
}

}  // namespace
}  // namespace qelpro_test
