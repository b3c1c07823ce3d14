#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

// A writer that is killed at any moment leaves every entry that it was not writing as it was.
// QELPRO_KILLS sets how often.

namespace qelpro_test {
namespace {

constexpr int kEntries = 40;
// A kill may take the room that stores in steps need, which is never given back.
constexpr int kKillsOfAFile = 20;

std::string key(int number) { return "k" + std::to_string(number); }

// As stores lay a line out.
std::string line(const std::string& key, const std::string& value) {
  std::string text = key;
  text.resize(20, ' ');
  return text + " = " + value + "\n";
}

// Values that tell themselves by their text, of lengths that make the file's rest move.
std::string value(int number, int round) {
  return std::to_string(number) + ":" + std::string(static_cast<std::size_t>(round * 7 % 60), 'v') +
         ";";
}

bool is_whole(const std::string& text, int number) {
  const std::string front = std::to_string(number) + ":";
  return text.size() > front.size() && text.compare(0, front.size(), front) == 0 &&
         text.back() == ';' && text.find_first_not_of('v', front.size()) == text.size() - 1;
}

int kills() {
  const char* wanted = std::getenv("QELPRO_KILLS");
  return wanted != nullptr ? std::atoi(wanted) : 200;
}

TEST(KilledWriter, LeavesEveryOtherEntryWhole) {
  const Scratch scratch;
  std::string contents = "[A]\n";
  for (int number = 0; number < kEntries; ++number) {
    contents += line(key(number), value(number, 0));
    for (int other = 0; other < 10; ++other) {
      contents += line("o" + std::to_string(other), "as it was");
    }
  }
  const std::string path = scratch.file(contents);
  std::mt19937 random(7);
  int half_written = 0;
  for (int kill_number = 0; kill_number < kills(); ++kill_number) {
    if (kill_number % kKillsOfAFile == 0) {
      put_bytes(path, contents);
    }
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      CQELPROWriter_Manipulator writer;
      writer.SetFilePath(path.c_str());
      for (int round = 0;; ++round) {
        const int number = (kill_number * 13 + round * 7) % kEntries;
        writer.WriteString("[A]", key(number).c_str(), value(number, round + kill_number).c_str());
      }
    }
    ::usleep(static_cast<useconds_t>(200 + random() % 2500));
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    CQELPROReader_Manipulator reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    int broken = 0;
    for (int number = 0; number < kEntries; ++number) {
      char buffer[512];
      char* text = nullptr;
      const bool found = reader.ReadString("[A]", key(number).c_str(), text, buffer, sizeof buffer);
      broken += found && is_whole(text, number) ? 0 : 1;
    }
    if (broken != 0) {
      ++half_written;
      put_bytes(path, contents);
    }
  }
  std::cout << "[ measured ] " << half_written << " of " << kills()
            << " kills left an entry broken\n";
  EXPECT_EQ(half_written, 0);
}

}  // namespace
}  // namespace qelpro_test
