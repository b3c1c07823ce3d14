#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

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

TEST(Load, OfManyProcessesOnOneFileLosesNoStore) {
  constexpr int kProcesses = 8;
  const int stores = load(60, 5000);
  // A key is stored again and again, so that the file stays of a size that a simulation has.
  constexpr int kKeys = 50;
  const Scratch scratch;
  const std::string others = "\n[Others]\nfirst = 1\n# a remark\nlast = 2\n";
  const std::string path = scratch.file(others);
  std::vector<pid_t> children;
  children.reserve(kProcesses);
  for (int process = 0; process < kProcesses; ++process) {
    children.push_back(in_a_process([&, process] {
      CQELPROWriter_Manipulator writer;
      int done = 0;
      if (writer.SetFilePath(path.c_str())) {
        for (int number = 0; number < stores; ++number) {
          done += writer.WriteString("[Many]", key(process, number % kKeys).c_str(),
                                     value(process, number).c_str())
                      ? 1
                      : 0;
        }
      }
      return done == stores;
    }));
  }
  for (const pid_t child : children) {
    EXPECT_TRUE(ended_well(child));
  }
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* text = nullptr;
  int found = 0;
  for (int process = 0; process < kProcesses; ++process) {
    for (int number = std::max(0, stores - kKeys); number < stores; ++number) {
      found +=
          reader.ReadString("[Many]", key(process, number % kKeys).c_str(), text, nullptr, 0) &&
                  text == value(process, number)
              ? 1
              : 0;
    }
  }
  EXPECT_EQ(found, kProcesses * std::min(stores, kKeys));
  EXPECT_EQ(bytes_of(path).substr(0, others.size()), others);
}

// Every key of its own: nothing that was ever stored is lost.
TEST(Load, OfManyProcessesThatAddKeysLosesNone) {
  constexpr int kProcesses = 8;
  const int stores = load(40, 5000);
  const Scratch scratch;
  const std::string path = scratch.file("\n[Others]\nfirst = 1\n");
  std::vector<pid_t> children;
  children.reserve(kProcesses);
  for (int process = 0; process < kProcesses; ++process) {
    children.push_back(in_a_process([&, process] {
      CQELPROWriter_Manipulator writer;
      bool done = writer.SetFilePath(path.c_str());
      for (int number = 0; number < stores; ++number) {
        done = writer.WriteString("[Many]", key(process, number).c_str(),
                                  value(process, number).c_str()) &&
               done;
      }
      return done;
    }));
  }
  for (const pid_t child : children) {
    EXPECT_TRUE(ended_well(child));
  }
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* text = nullptr;
  int found = 0;
  for (int process = 0; process < kProcesses; ++process) {
    for (int number = 0; number < stores; ++number) {
      found += reader.ReadString("[Many]", key(process, number).c_str(), text, nullptr, 0) &&
                       text == value(process, number)
                   ? 1
                   : 0;
    }
  }
  std::cout << "[ measured ] " << found << " of " << kProcesses * stores << " values are there\n";
  EXPECT_EQ(found, kProcesses * stores);
}

// One program stores, others read: what they read is the old value or the new one. What stands
// behind the stored line moves meanwhile, and is not to be seen half moved.
TEST(Load, OfOneWriterAndManyReadersGivesOldOrNewValues) {
  constexpr int kReaders = 4;
  constexpr int kKeys = 300;
  const auto duration = std::chrono::seconds(load(1, 60));
  const Scratch scratch;
  std::string contents = "\n[A]\n";
  for (int number = 0; number < kKeys; ++number) {
    contents += key(0, number) + " = " + std::to_string(number) + ":;\n";
  }
  const std::string path = scratch.file(contents);
  const auto end = std::chrono::steady_clock::now() + duration;
  const pid_t writer_process = in_a_process([&] {
    CQELPROWriter_Manipulator writer;
    bool done = writer.SetFilePath(path.c_str());
    for (long round = 0; std::chrono::steady_clock::now() < end; ++round) {
      const int number = static_cast<int>(round * 7 % 40);
      const std::string text = std::to_string(number) + ":" +
                               std::string(static_cast<std::size_t>(round % 60), 'v') + ";";
      done = writer.WriteString("[A]", key(0, number).c_str(), text.c_str()) && done;
    }
    return done;
  });
  struct Counts {
    long reads = 0;
    long missing = 0;
    long torn = 0;
  };
  int results[2];
  ASSERT_EQ(::pipe(results), 0);
  std::vector<pid_t> readers;
  for (int process = 0; process < kReaders; ++process) {
    readers.push_back(in_a_process([&, process] {
      Counts counts;
      CQELPROReader_Manipulator session;
      bool opened = session.SetFilePath(path.c_str());
      unsigned state = 11U + static_cast<unsigned>(process);
      while (std::chrono::steady_clock::now() < end) {
        state = state * 1664525U + 1013904223U;
        const int number = static_cast<int>((state >> 8U) % kKeys);
        char* text = nullptr;
        CQELPROReader_Manipulator once;
        CQELPROReader_Manipulator* reader = &session;
        if (process % 2 == 1) {
          opened = once.SetFilePath(path.c_str()) && opened;
          reader = &once;
        }
        ++counts.reads;
        if (!reader->ReadString("[A]", key(0, number).c_str(), text, nullptr, 0)) {
          ++counts.missing;
          continue;
        }
        const std::string got = text;
        const std::string front = std::to_string(number) + ":";
        const bool whole = got.size() > front.size() && got.compare(0, front.size(), front) == 0 &&
                           got.find_first_not_of('v', front.size()) == got.size() - 1 &&
                           got.back() == ';';
        counts.torn += whole ? 0 : 1;
      }
      return opened && ::write(results[1], &counts, sizeof counts) == sizeof counts;
    }));
  }
  EXPECT_TRUE(ended_well(writer_process));
  Counts sum;
  for (const pid_t child : readers) {
    EXPECT_TRUE(ended_well(child));
    Counts counts;
    ASSERT_EQ(::read(results[0], &counts, sizeof counts), static_cast<ssize_t>(sizeof counts));
    sum.reads += counts.reads;
    sum.missing += counts.missing;
    sum.torn += counts.torn;
  }
  ::close(results[0]);
  ::close(results[1]);
  std::cout << "[ measured ] of " << sum.reads << " reads " << sum.missing << " found nothing, "
            << sum.torn << " a value that is neither old nor new\n";
  EXPECT_LE(sum.torn + sum.missing, sum.reads / 1000);
}

}  // namespace
}  // namespace qelpro_test
