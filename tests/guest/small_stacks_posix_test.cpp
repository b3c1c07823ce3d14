#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <string>
#include <utility>

#include "guest/stack_posix.h"
#include "guest/uses.h"
#include "support/child.h"

// Hosts give threads as little as 32 KB of stack, of which what the system keeps of a thread is a
// part. Each member of each class works there.

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define QELPRO_OTHER_FRAMES "a sanitizer's frames are larger than the library's own"
#elif !defined(NDEBUG)
#define QELPRO_OTHER_FRAMES "frames are larger where the library is not optimized"
#endif

namespace qelpro_test {
namespace {

constexpr std::size_t kKiB = 1024;

// What each member takes of the stack, in bytes. Prints the most of each class.
TEST(SmallStack, HoldsEveryMember) {
#ifdef QELPRO_OTHER_FRAMES
  GTEST_SKIP() << QELPRO_OTHER_FRAMES;
#else
  const Uses uses;
  std::map<std::string, std::pair<std::size_t, std::string> > most;
  Uses::before = StackUse::begin;
  Uses::after = StackUse::end;
  on_stack_of(256 * kKiB, [&] {
    for (const Use& use : uses.all()) {
      use.run();
      auto& of_class = most[use.object];
      if (StackUse::measured() > of_class.first) {
        of_class = {StackUse::measured(), use.member};
      }
      EXPECT_LE(StackUse::measured(), 12 * kKiB) << use.object << ' ' << use.member;
    }
  });
  Uses::before = Uses::after = [] {};
  for (const auto& [name, use] : most) {
    std::cout << "[ measured ] " << name << ": " << use.first << " bytes, " << use.second << '\n';
  }
  EXPECT_TRUE(in_child({}, [&] {
    on_stack_of(32 * kKiB, [&] {
      for (const Use& use : uses.all()) {
        use.run();
      }
    });
    return true;  // a stack that is too small would have ended the program
  }));
#endif
}

}  // namespace
}  // namespace qelpro_test
