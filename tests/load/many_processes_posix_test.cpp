#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "load/scale.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

// Runs the work in a process of its own; its result is the exit status.
pid_t in_a_process(const std::function<bool()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::_exit(work() ? 0 : 1);
  }
  return child;
}

bool ended_well(pid_t child) {
  int status = 0;
  return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string key(int process, int number) {
  return "p" + std::to_string(process) + "n" + std::to_string(number);
}

// Of a length of its own, so that what stands behind it moves.
std::string value(int process, int number) {
  return key(process, number) +
         std::string(static_cast<std::size_t>((number * 7 + process) % 40), '.');
}

// Processes that store into one file at once, each under keys of its own, which it goes through
// again and again.
struct Processes {
  static constexpr int kCount = 8;
  int stores;
  int keys;

  void run(const std::string& path) const {
    std::vector<pid_t> children;
    children.reserve(kCount);
    for (int process = 0; process < kCount; ++process) {
      children.push_back(in_a_process([&, process] {
        CQELPROWriter_Manipulator writer;
        bool done = writer.SetFilePath(path.c_str());
        for (int number = 0; number < stores; ++number) {
          done = writer.WriteString("[Many]", key(process, number % keys).c_str(),
                                    value(process, number).c_str()) &&
                 done;
        }
        return done;
      }));
    }
    for (const pid_t child : children) {
      EXPECT_TRUE(ended_well(child));
    }
  }

  // Of the values that were stored last, those that are there.
  [[nodiscard]] int found(const std::string& path) const {
    CQELPROReader_Manipulator reader;
    EXPECT_TRUE(reader.SetFilePath(path.c_str()));
    char* text = nullptr;
    int found = 0;
    for (int process = 0; process < kCount; ++process) {
      for (int number = stores - keys; number < stores; ++number) {
        found +=
            reader.ReadString("[Many]", key(process, number % keys).c_str(), text, nullptr, 0) &&
                    text == value(process, number)
                ? 1
                : 0;
      }
    }
    return found;
  }
};

const std::string kOthers = "\n[Others]\nfirst = 1\n# a remark\nlast = 2\n";

TEST(Load, OfManyProcessesOnOneFileLosesNoStore) {
  const Scratch scratch;
  const std::string path = scratch.file(kOthers);
  // The file stays of a size that a simulation has.
  const Processes processes{load(60, 5000), 50};
  processes.run(path);
  EXPECT_EQ(processes.found(path), Processes::kCount * processes.keys);
  EXPECT_EQ(bytes_of(path).substr(0, kOthers.size()), kOthers);
}

// Every key is new: nothing that was ever stored is lost.
TEST(Load, OfManyProcessesThatAddKeysLosesNone) {
  const Scratch scratch;
  const std::string path = scratch.file(kOthers);
  const int stores = load(40, 5000);
  const Processes processes{stores, stores};
  processes.run(path);
  const int found = processes.found(path);
  std::cout << "[ measured ] " << found << " of " << Processes::kCount * stores
            << " values are there\n";
  EXPECT_EQ(found, Processes::kCount * stores);
  EXPECT_EQ(bytes_of(path).substr(0, kOthers.size()), kOthers);
}

// What the writer stores: a text, a filling time and a point of a profile, each of which tells by
// itself whether it is whole, and of many lengths.
constexpr int kKeys = 300;
constexpr int kPoints = 60;

std::string marked_text(int number, long round) {
  std::string text = std::to_string(number) + ":";
  return text.append(static_cast<std::size_t>(round % 60), 'v').append(";");
}

bool is_marked_text(int number, const std::string& text) {
  const std::string front = std::to_string(number) + ":";
  return text.size() > front.size() && text.compare(0, front.size(), front) == 0 &&
         text.find_first_not_of('v', front.size()) == text.size() - 1 && text.back() == ';';
}

// A whole number and one bit behind the point: 1.5, 1.25, 1.125, ...
double marked_number(int number, long round) {
  return number + std::ldexp(1, -1 - static_cast<int>(round % 4));
}

bool is_marked_number(int number, double value) {
  int exponent = 0;
  return value > number && std::frexp(value - number, &exponent) == 0.5 && exponent <= 0;
}

std::string file_of_marked_values() {
  std::string contents = "\n[FlowCTLInfo]\nTotalInlet = 1\n[A]\n";
  for (int number = 0; number < kKeys; ++number) {
    contents += key(0, number) + " = " + marked_text(number, 0) + "\n";
  }
  contents += "[Flow-1]\nFillTime = 1.5\nFRSet = " + std::to_string(kPoints) + "\n";
  for (int point = 1; point <= kPoints; ++point) {
    const std::string number = std::to_string(point) + ".5";
    contents.append("FR-").append(std::to_string(point)).append(" = ");
    contents.append(number).append("\t").append(number).append("\n");
  }
  return contents;
}

bool store_marked_values(CQELPROWriter_Manipulator& writer, long round) {
  const int number = static_cast<int>(round * 7 % 40);
  const int point = 1 + number;
  const double value = marked_number(point, round);
  return writer.WriteString("[A]", key(0, number).c_str(), marked_text(number, round).c_str()) &&
         writer.FlowX_WriteFillingTime(marked_number(1, round), 1) &&
         writer.FlowX_WriteFRProfile(value, value, point, 1);
}

enum class Found { whole, nothing, torn };

// One program's reads of whatever key.
struct ReadingProgram {
  const char* name;
  std::function<std::function<Found(unsigned)>(const char* path)> begin;
};

Found found(bool is_there, bool is_whole) {
  return is_there ? is_whole ? Found::whole : Found::torn : Found::nothing;
}

Found text_of(CQELPROReader_Manipulator& reader, unsigned random) {
  const int number = static_cast<int>(random % kKeys);
  char* text = nullptr;
  const bool is_there = reader.ReadString("[A]", key(0, number).c_str(), text, nullptr, 0);
  return found(is_there, is_there && is_marked_text(number, text));
}

Found point_of(CQELPROReader_Manipulator& reader, unsigned random) {
  const int point = 1 + static_cast<int>(random % kPoints);
  double x = 0;
  double y = 0;
  const bool is_there = reader.FlowX_ReadFRProfile(x, y, point, 1);
  return found(is_there, x == y && is_marked_number(point, x));
}

const ReadingProgram kReadingPrograms[] = {
    {"texts, each by a reader of its own",
     [](const char* path) {
       return [path](unsigned random) {
         CQELPROReader_Manipulator reader;
         return reader.SetFilePath(path) ? text_of(reader, random) : Found::nothing;
       };
     }},
    {"points by one reading session",
     [](const char* path) {
       auto reader = std::make_shared<CQELPROReader_Manipulator>();
       reader->SetFilePath(path);
       return [reader](unsigned random) { return point_of(*reader, random); };
     }},
    {"points through a stream",
     [](const char* path) {
       const std::shared_ptr<std::FILE> stream(std::fopen(path, "r"), &std::fclose);
       auto reader = std::make_shared<CQELPROReader_Manipulator>();
       std::FILE* lent = stream.get();
       reader->SetFilePtr(lent);
       return [stream, reader](unsigned random) { return point_of(*reader, random); };
     }},
    {"filling times by the older object and the loader",
     [](const char* path) {
       return [path](unsigned random) {
         double value = 0;
         if (random % 2 == 0) {
           CPROIO_Manipulator object;
           const bool is_there = object.SetFilePath(path) && object.GetFillTime(value, 1);
           return found(is_there, is_marked_number(1, value));
         }
         CQELProcessData_Manipulator loader;
         const std::unique_ptr<const QELG_SimulatorProcess> process(
             loader.GetProcessDataStructure(path));
         const bool is_there = process != nullptr && process->GetNumOfInlets() == 1 &&
                               get_process_FillTime(*process->GetFlowPackOfInlet(0), value);
         return found(is_there, is_marked_number(1, value));
       };
     }},
};

// One program stores, others read: what they read is the old value or the new one. What stands
// behind the stored line moves meanwhile, and is not to be seen half moved.
TEST(Load, OfOneWriterAndManyReadersGivesOldOrNewValues) {
  const auto duration = std::chrono::seconds(load(1, 60));
  const Scratch scratch;
  const std::string path = scratch.file(file_of_marked_values());
  const auto end = std::chrono::steady_clock::now() + duration;
  struct Counts {
    long calls = 0;
    long missing = 0;
    long torn = 0;
  };
  const auto in_a_process_that_counts = [&](int(&results)[2], const auto& work) {
    EXPECT_EQ(::pipe(results), 0);
    return in_a_process([&] {
      Counts counts;
      work(counts);
      return ::write(results[1], &counts, sizeof counts) == sizeof counts;
    });
  };
  const auto counts_of = [](pid_t child, int(&results)[2]) {
    Counts counts;
    EXPECT_TRUE(ended_well(child));
    EXPECT_EQ(::read(results[0], &counts, sizeof counts), static_cast<ssize_t>(sizeof counts));
    ::close(results[0]);
    ::close(results[1]);
    return counts;
  };
  int stored[2];
  const pid_t writer_process = in_a_process_that_counts(stored, [&](Counts& counts) {
    CQELPROWriter_Manipulator writer;
    writer.SetFilePath(path.c_str());
    for (; std::chrono::steady_clock::now() < end; ++counts.calls) {
      counts.missing += store_marked_values(writer, counts.calls) ? 0 : 1;
    }
  });
  constexpr std::size_t kReaders = std::size(kReadingPrograms);
  int results[kReaders][2];
  pid_t readers[kReaders];
  for (std::size_t number = 0; number < kReaders; ++number) {
    readers[number] = in_a_process_that_counts(results[number], [&](Counts& counts) {
      const auto read = kReadingPrograms[number].begin(path.c_str());
      auto state = 11U + static_cast<unsigned>(number);
      for (; std::chrono::steady_clock::now() < end; ++counts.calls) {
        state = state * 1664525U + 1013904223U;
        const Found found = read(state >> 8U);
        counts.missing += found == Found::nothing ? 1 : 0;
        counts.torn += found == Found::torn ? 1 : 0;
      }
    });
  }
  const Counts stores = counts_of(writer_process, stored);
  EXPECT_EQ(stores.missing, 0);
  std::cout << "[ measured ] beside " << 3 * stores.calls << " stores:\n";
  for (std::size_t number = 0; number < kReaders; ++number) {
    const Counts counts = counts_of(readers[number], results[number]);
    std::cout << "[ measured ] of " << counts.calls << " reads of " << kReadingPrograms[number].name
              << " " << counts.missing << " found nothing, " << counts.torn
              << " a value that is neither old nor new\n";
    EXPECT_GT(counts.calls, 0);
    EXPECT_EQ(counts.missing, 0) << kReadingPrograms[number].name;
    EXPECT_EQ(counts.torn, 0) << kReadingPrograms[number].name;
  }
}

}  // namespace
}  // namespace qelpro_test
