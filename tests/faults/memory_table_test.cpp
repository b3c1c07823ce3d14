#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <sstream>

#include "QELPROEngine/QELPROEngine.h"
#include "faults/memory_rows.h"
#include "load/scale.h"

// Every allocation of every exported member fails once, in turn, alone and with all after it: the
// operators' of the language, and the C library's own. No exception leaves the library, a member
// that says no has left its outputs and its file alone, the same call of the same object is done as
// soon as there is memory, and nothing is held when the object is gone. Every run of the tests
// takes some of the members, `./dev test --memory` all of them.

namespace qelpro_test {
namespace {

using allocations::Failure;
using memory::Leaves;
using memory::Row;
using memory::Stage;
using memory::Trial;

Trial tried(const Row& row, int n, Failure failure, const std::string& lacks = {}) {
  const Scratch scratch;
  Stage stage(scratch, n, failure);
  stage.leave_out(lacks);
  row.run(stage);
  stage.trial.left = allocations::take_left();
  return stage.trial;
}

std::vector<std::string> lines_of(const std::string& bytes) {
  std::vector<std::string> lines;
  std::istringstream in(bytes);
  for (std::string line; std::getline(in, line);) {
    lines.push_back(line);
  }
  return lines;
}

// Whether each line stands in the old contents or in the new ones; blanks may pad the end.
bool is_between(const std::string& bytes, const std::string& old_bytes,
                const std::string& new_bytes) {
  std::set<std::string> known;
  for (const std::string* text : {&old_bytes, &new_bytes}) {
    const std::vector<std::string> lines = lines_of(*text);
    known.insert(lines.begin(), lines.end());
  }
  const std::vector<std::string> lines = lines_of(bytes);
  return std::all_of(lines.begin(), lines.end(), [&known](const std::string& line) {
    return known.count(line) != 0 || line.find_first_not_of(' ') == std::string::npos;
  });
}

struct Count {
  int members = 0;
  int failures = 0;
  int done_nevertheless = 0;
};

void check_first(const Row& row, const Trial& trial, const Trial& calm) {
  EXPECT_FALSE(trial.threw);
  if (row.leaves == Leaves::entries) {
    EXPECT_TRUE(is_between(trial.bytes, trial.old_bytes, calm.bytes)) << trial.bytes;
    return;
  }
  const bool is_as_calm = trial.outputs == calm.outputs && trial.bytes == calm.bytes;
  const bool is_untouched = trial.outputs == trial.before && trial.bytes == trial.old_bytes;
  if (!trial.done.has_value()) {
    EXPECT_TRUE(is_as_calm || is_untouched) << trial.outputs << "\n" << trial.bytes;
  } else if (*trial.done) {
    EXPECT_TRUE(is_as_calm) << trial.outputs << "\n" << trial.bytes;
  } else if (row.leaves == Leaves::fallback) {
    EXPECT_TRUE(trial.outputs == trial.before ||
                trial.outputs == tried(row, 0, Failure::none, row.lacks).outputs)
        << trial.outputs;
    EXPECT_EQ(trial.bytes, trial.old_bytes);
  } else {
    EXPECT_TRUE(is_untouched) << trial.outputs << "\n" << trial.bytes;
  }
}

void check_again(const Row& row, const Trial& trial, const Trial& calm) {
  if (!row.same_again) {
    return;
  }
  EXPECT_EQ(trial.done_again, calm.done);
  EXPECT_TRUE(trial.outputs_again == calm.outputs || trial.outputs_again == calm.outputs_again)
      << trial.outputs_again;
  EXPECT_TRUE(trial.bytes_again == calm.bytes || trial.bytes_again == calm.bytes_again)
      << trial.bytes_again;
}

// What has failed so far: a row ends at its first failure, and others go on.
int failed_so_far() {
  return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

// A call that is done although an allocation failed has a reason in its row, or is a finding.
void hold(const Row& row, Count& count) {
  SCOPED_TRACE(row.member + (*row.way != '\0' ? std::string(", ") + row.way : ""));
  const int before = failed_so_far();
  const Trial calm = tried(row, 0, Failure::none);
  EXPECT_FALSE(calm.threw);
  EXPECT_EQ(calm.left, 0) << "blocks that nobody frees";
  ++count.members;
  // A few members make hundreds, and each trial of them all.
  constexpr int kFew = 16;
  const int step = load(1 + calm.memory.calls / kFew, 1);
  for (const Failure failure : {Failure::one, Failure::all_after}) {
    for (int n = 1; n <= calm.memory.calls && failed_so_far() == before; n += step) {
      SCOPED_TRACE("allocation " + std::to_string(n) + " of " + std::to_string(calm.memory.calls) +
                   (failure == Failure::one ? "" : " and all behind it"));
      const Trial trial = tried(row, n, failure);
      EXPECT_TRUE(trial.memory.failed);
      EXPECT_EQ(trial.left, 0) << "blocks that nobody frees";
      check_first(row, trial, calm);
      check_again(row, trial, calm);
      ++count.failures;
      if (trial.done.value_or(false)) {
        ++count.done_nevertheless;
        EXPECT_NE(row.done_nevertheless, nullptr) << "done, although an allocation failed";
        EXPECT_TRUE(trial.memory.of_c_library || !row.only_of_c_library)
            << "done, although an allocation of the library failed";
      }
    }
  }
}

TEST(Memory, MayLackAtAnyAllocationOfAnyMember) {
  const std::vector<Row> rows = memory::all_rows();
  // What a thread keeps for itself is there from here on.
  tried(rows.front(), 0, Failure::none);
  const std::size_t step = load(std::size_t{12}, std::size_t{1});
  const auto start = std::chrono::steady_clock::now();
  Count count;
  constexpr int kManyFailures = 40;
  for (std::size_t i = 0; i < rows.size() && failed_so_far() < kManyFailures; i += step) {
    hold(rows[i], count);
  }
  const double seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::printf(
      "[ measured ] %d of %zu ways to call members: %d allocations failed, %d calls were done "
      "nevertheless, each for a reason; %.1f s\n",
      count.members, rows.size(), count.failures, count.done_nevertheless, seconds);
}

// A thread that has no memory for what the engine keeps of it, nor for anything else, calls members
// of objects that others have made.
TEST(Memory, MayLackFromAThreadsFirstMemberOn) {
  const std::vector<Row> rows = memory::all_rows();
  const std::size_t step = load(std::size_t{5}, std::size_t{1});
  memory::StayingThreads threads;
  int failures = 0;
  for (std::size_t i = 0; i < rows.size(); i += step) {
    const Row& row = rows[i];
    SCOPED_TRACE(row.member + (*row.way != '\0' ? std::string(", ") + row.way : ""));
    const Trial calm = tried(row, 0, Failure::none);
    const Scratch scratch;
    Stage stage(scratch, 1, Failure::all_after);
    stage.use_new_thread(threads);
    row.run(stage);
    if (stage.trial.memory.failed) {
      check_first(row, stage.trial, calm);
      check_again(row, stage.trial, calm);
      ++failures;
    }
  }
  EXPECT_GT(failures, 100);
}

// The script that holds the table against what the libraries export asks for the names.
TEST(Memory, HasRowsForMembersOfEveryClass) {
  std::set<std::string> classes;
  for (const Row& row : memory::all_rows()) {
    if (std::getenv("QELPRO_LIST_MEMBERS") != nullptr) {
      std::printf("member %s\n", row.member.c_str());
    }
    const std::size_t end = row.member.find("::");
    classes.insert(row.member.substr(0, end != std::string::npos ? end : 0));
  }
  constexpr std::size_t kEngine = 10;
  constexpr std::size_t kSimulator = 5;
  constexpr std::size_t kNone = 1;
  EXPECT_EQ(classes.size(), kEngine + kSimulator + kNone);
}

}  // namespace
}  // namespace qelpro_test
