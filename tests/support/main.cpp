#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <string>

#include "support/environment.h"

// QELPRO_TEST_LOCALE     the name of the locale in which the tests run, and the programs that they
//                        start; without it they run in "C"
// QELPRO_SKIPPED_TESTS   a file that takes a line for each test that is skipped

namespace {

constexpr int kSkipped = 77;

// False where the machine has no such locale.
bool set_locale(const char* name) {
  if (std::setlocale(LC_ALL, name) == nullptr) {
    return false;
  }
#ifndef _WIN32
  std::locale::global(std::locale(name));
#endif
  qelpro_test::set_environment("LC_ALL", name);
  return true;
}

std::string program_name(std::string path) {
  path.erase(0, path.find_last_of("/\\") + 1);
  return path.substr(0, path.find(".exe"));
}

class SkippedTests : public testing::EmptyTestEventListener {
 public:
  SkippedTests(std::string program, const char* file) : program_(std::move(program)), file_(file) {}

 private:
  void OnTestPartResult(const testing::TestPartResult& result) override {
    if (result.skipped()) {
      reason_ = result.message();
    }
  }
  void OnTestEnd(const testing::TestInfo& test) override {
    if (test.result()->Skipped()) {
      if (std::FILE* file = std::fopen(file_, "a")) {
        std::fprintf(file, "%s: %s.%s: %s\n", program_.c_str(), test.test_suite_name(), test.name(),
                     one_line(reason_).c_str());
        std::fclose(file);
      }
    }
  }
  static std::string one_line(std::string text) {
    while (!text.empty() && text.back() == '\n') {
      text.pop_back();
    }
    for (char& character : text) {
      character = character == '\n' ? ' ' : character;
    }
    return text;
  }

  std::string program_;
  const char* file_;
  std::string reason_;
};

}  // namespace

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  if (const char* name = std::getenv("QELPRO_TEST_LOCALE"); name != nullptr && *name != '\0') {
    if (!set_locale(name)) {
      std::printf("skipped: the machine has no locale %s\n", name);
      return kSkipped;
    }
  }
  if (const char* file = std::getenv("QELPRO_SKIPPED_TESTS"); file != nullptr && *file != '\0') {
    testing::UnitTest::GetInstance()->listeners().Append(
        new SkippedTests(program_name(arguments[0]), file));
  }
  return RUN_ALL_TESTS();
}
