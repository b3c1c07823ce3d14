#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "QELG/QELG.h"
#include "api/proio/support.h"
#include "faults/allocations.h"
#include "load/scale.h"
#include "members/every_call.h"
#include "support/scratch.h"

// Every allocation of every member fails once, in turn, alone and with all after it. No exception
// leaves the library, a member that says no has left its outputs and its file alone, and the same
// call of the same object works as soon as there is memory. Every run of the tests takes some of
// the members, `./dev load` all of them.

namespace qelpro_test {
namespace {

using allocations::Failure;

int planned_at = 0;
Failure planned = Failure::none;
allocations::Outcome outcome;
const Around kAround{[] { allocations::fail(planned_at, planned); },
                     [] { outcome = allocations::stop(); }};

// What happened to one object: a call without memory, and the same call once more.
struct Trial {
  Answer first;
  allocations::Outcome memory;
  std::string left;  // the file after the first call
  Answer again;
  std::string left_again;
};

template <class Object>
Trial try_twice(const EveryCall<Object>& call, Object& object, const std::string& path, int n,
                Failure failure) {
  Trial trial;
  planned_at = n;
  planned = failure;
  trial.first = call.make(object, kAround);
  trial.memory = outcome;
  trial.left = masked(bytes_of(path));
  planned = Failure::none;
  trial.again = call.make(object, kAround);
  trial.left_again = masked(bytes_of(path));
  return trial;
}

// Tries a call with every of its allocations failing, and hands each trial to `check`, with the one
// where none failed.
template <class Attempt, class Check>
void fail_each_allocation(const std::string& name, Attempt attempt, Check check) {
  const Trial undisturbed = attempt(0, Failure::none);
  const int calls = undisturbed.memory.calls;
  for (const Failure failure : {Failure::one, Failure::all_after}) {
    for (int n = 1; n <= calls && !testing::Test::HasFailure(); ++n) {
      SCOPED_TRACE(name + ", allocation " + std::to_string(n) + " of " + std::to_string(calls) +
                   (failure == Failure::one ? "" : " and all behind it"));
      const Trial trial = attempt(n, failure);
      EXPECT_TRUE(trial.memory.failed);
      EXPECT_FALSE(trial.first.threw);
      check(trial, undisturbed);
    }
  }
}

// Some of the calls, or all where the load is whole.
template <class Object, class Work>
void for_each(const std::vector<EveryCall<Object>>& calls, std::size_t first, Work work) {
  const std::size_t step = load(std::size_t{12}, std::size_t{1});
  for (std::size_t i = step == 1 ? 0 : first; i < calls.size(); i += step) {
    work(calls[i]);
  }
}

class FailingMemory : public testing::Test {
 protected:
  // A file with a value for every member.
  std::string everything() {
    const std::string path =
        scratch_.file("[FileHeader]\nRemark = " + std::string(200, 'r') + "\n", "everything.pro");
    planned = Failure::none;
    for (const auto& call : writer_calls()) {
      CQELPROWriter_Manipulator writer;
      EXPECT_TRUE(writer.SetFilePath(path.c_str()));
      call.make(writer, kAround);
    }
    return bytes_of(path);
  }
  Scratch scratch_;
};

TEST_F(FailingMemory, OfReadersLeavesTheirOutputsAlone) {
  const std::string path = scratch_.file(everything());
  for_each(reader_calls(), 0, [&](const auto& call) {
    const auto attempt = [&](int n, Failure failure) {
      CQELPROReader_Manipulator reader;
      EXPECT_TRUE(reader.SetFilePath(path.c_str()));
      return try_twice(call, reader, path, n, failure);
    };
    // A session's second lookup by position goes by what the first one learnt, also where that
    // found no memory to end.
    const bool by_position = call.name == "MoldTemperatureBCX_ReadBC";
    fail_each_allocation(call.name, attempt, [&](const Trial& trial, const Trial& undisturbed) {
      EXPECT_EQ(trial.first, trial.first.done ? undisturbed.first : call.untouched);
      EXPECT_TRUE(by_position || trial.again == undisturbed.first) << trial.again;
    });
  });
}

TEST_F(FailingMemory, OfReadersOverALentStreamLeavesTheirOutputsAlone) {
  const std::string path = scratch_.file(everything());
  for_each(reader_calls(), 5, [&](const auto& call) {
    const auto attempt = [&](int n, Failure failure) {
      std::FILE* stream = std::fopen(path.c_str(), "r");
      Trial trial;
      {
        CQELPROReader_Manipulator reader;
        EXPECT_TRUE(reader.SetFilePtr(stream));
        trial = try_twice(call, reader, path, n, failure);
      }
      std::fclose(stream);
      return trial;
    };
    fail_each_allocation(call.name, attempt, [&](const Trial& trial, const Trial& undisturbed) {
      EXPECT_EQ(trial.first, trial.first.done ? undisturbed.first : call.untouched);
      EXPECT_EQ(trial.again, undisturbed.first);
    });
  });
}

// The file is as it was before the store or as the store leaves it, and the member says which.
TEST_F(FailingMemory, OfWritersLeavesTheirFileAlone) {
  for (const std::string& contents : {std::string("[FileHeader]\nName = a file\n"), everything()}) {
    for_each(writer_calls(), contents.size() % 12, [&](const auto& call) {
      const auto attempt = [&](int n, Failure failure) {
        const std::string path = scratch_.file(contents);
        CQELPROWriter_Manipulator writer;
        EXPECT_TRUE(writer.SetFilePath(path.c_str()));
        return try_twice(call, writer, path, n, failure);
      };
      fail_each_allocation(call.name, attempt, [&](const Trial& trial, const Trial& undisturbed) {
        EXPECT_EQ(trial.left, trial.first.done ? undisturbed.left : masked(contents));
        EXPECT_EQ(trial.again, undisturbed.first);
        EXPECT_EQ(trial.left_again, trial.first.done ? undisturbed.left_again : undisturbed.left);
      });
    });
  }
}

TEST_F(FailingMemory, OfWritersOverALentStreamLeavesItAlone) {
  const std::string contents = everything();
  for_each(writer_calls(), 4, [&](const auto& call) {
    const auto attempt = [&](int n, Failure failure) {
      const std::string path = scratch_.file(contents);
      std::FILE* stream = std::fopen(path.c_str(), "r+");
      Trial trial;
      {
        CQELPROWriter_Manipulator writer;
        EXPECT_TRUE(writer.SetFilePtr(stream));
        trial = try_twice(call, writer, path, n, failure);
      }
      std::fclose(stream);
      return trial;
    };
    fail_each_allocation(call.name, attempt, [&](const Trial& trial, const Trial& undisturbed) {
      EXPECT_EQ(trial.left, trial.first.done ? undisturbed.left : masked(contents));
      EXPECT_EQ(trial.again, undisturbed.first);
    });
  });
}

// The members of an adapter write several entries, some of them whatever becomes of each.
TEST_F(FailingMemory, OfAdaptersKeepsThemUsable) {
  const std::string contents = everything();
  for_each(adapter_calls(), 3, [&](const auto& call) {
    const auto attempt = [&](int n, Failure failure) {
      const std::string path = scratch_.file(contents);
      CQEL_ProcessAdapter adapter;
      EXPECT_TRUE(adapter.SetProcessPath(path.c_str()));
      return try_twice(call, adapter, path, n, failure);
    };
    fail_each_allocation(call.name, attempt, [&](const Trial& trial, const Trial& undisturbed) {
      EXPECT_EQ(trial.again, undisturbed.first);
      EXPECT_EQ(trial.left_again, undisturbed.left);
    });
  });
}

// The self-contained object says yes whatever became of a store; a getter that says no has read
// nothing.
TEST_F(FailingMemory, OfTheSelfContainedObjectKeepsItUsable) {
  planned = Failure::none;
  std::string made = scratch_.file("", "made.pro");
  {
    CPROIO_Manipulator object;
    object.SetFilePath(made.data());
    object.SetDefault();
    for (const auto& call : object_calls()) {
      CPROIO_Manipulator each;
      each.SetFilePath(made.data());
      call.make(each, kAround);
    }
  }
  const std::string contents = bytes_of(made);
  for_each(object_calls(), 7, [&](const auto& call) {
    const auto attempt = [&](int n, Failure failure) {
      std::string path = scratch_.file(contents);
      CPROIO_Manipulator object;
      object.SetFilePath(path.data());
      return try_twice(call, object, path, n, failure);
    };
    fail_each_allocation(call.name, attempt, [&](const Trial& trial, const Trial& undisturbed) {
      EXPECT_EQ(trial.again, undisturbed.first);
      EXPECT_EQ(trial.left_again, undisturbed.left_again);
    });
  });
}

}  // namespace
}  // namespace qelpro_test
