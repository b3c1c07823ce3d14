#pragma once

#include <functional>
#include <future>
#include <optional>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "faults/allocations.h"
#include "support/scratch.h"

/// Every exported member of every exported class, as a table: how it is called, and what may be
/// seen of it where an allocation that it makes fails.
namespace qelpro_test::memory {

/// What came of a call without memory, and of the same call of the same object with memory.
struct Trial {
  std::string before;     // the outputs
  std::string old_bytes;  // of the file, its dates masked

  bool threw = false;
  std::optional<bool> done;  // nothing where the member does not say
  std::string outputs;
  std::string bytes;
  allocations::Outcome memory;

  std::optional<bool> done_again;
  std::string outputs_again;
  std::string bytes_again;

  int left = 0;  // blocks that are not freed when the objects are gone
};

/// Threads that each do something first, and then stay: what the engine keeps of one that ended
/// would be the next one's.
class StayingThreads {
 public:
  StayingThreads() = default;
  StayingThreads(const StayingThreads&) = delete;
  StayingThreads& operator=(const StayingThreads&) = delete;
  ~StayingThreads() {
    end_.set_value();
    for (std::thread& thread : threads_) {
      thread.join();
    }
  }
  /// Waits until it is done.
  template <class Work>
  void run(Work work) {
    std::promise<void> done;
    threads_.emplace_back([&work, &done, ended = ended_] {
      work();
      done.set_value();
      ended.wait();
    });
    done.get_future().wait();
  }

 private:
  std::promise<void> end_;
  std::shared_future<void> ended_ = end_.get_future().share();
  std::vector<std::thread> threads_;
};

/// Where a row's objects are made and its call is tried.
class Stage {
 public:
  Stage(const Scratch& scratch, int n, allocations::Failure failure)
      : scratch_(scratch), n_(n), failure_(failure) {}

  /// A process file that has a value for every member.
  [[nodiscard]] std::string process_file();
  /// The call is the first one of its thread.
  void use_new_thread(StayingThreads& threads) { new_threads_ = &threads; }
  /// It has no line that begins so, from here on.
  void leave_out(const std::string& beginning) { lacks_ = beginning; }
  /// One that has few.
  [[nodiscard]] std::string short_file();
  [[nodiscard]] std::string machine_bank() const;
  [[nodiscard]] std::string coolant_file() const;
  /// A file that the call may change.
  [[nodiscard]] std::string watch(const std::string& bytes, const char* name);

  /// Tries the call; `tell` says what its outputs hold.
  template <class Call, class Tell>
  void call(Call call, Tell tell) {
    trial.before = tell();
    trial.old_bytes = bytes();
    without_memory([&] {
      allocations::fail(n_, failure_);
      try {
        trial.done = answer_of(call);
      } catch (...) {
        trial.threw = true;
      }
      trial.memory = allocations::stop();
    });
    trial.outputs = tell();
    trial.bytes = bytes();
    allocations::fail(0, allocations::Failure::none);
    trial.done_again = answer_of(call);
    allocations::stop();
    trial.outputs_again = tell();
    trial.bytes_again = bytes();
  }
  template <class Call>
  void call(Call call) {
    this->call(call, [] { return std::string(); });
  }

  /// Where the call without memory is made: on this thread, or as the first one of another.
  template <class Work>
  void without_memory(Work work) {
    if (new_threads_ != nullptr) {
      new_threads_->run(work);
    } else {
      work();
    }
  }
  /// What `call` does, where the call itself has to say when it begins and ends.
  [[nodiscard]] int n() const { return n_; }
  [[nodiscard]] allocations::Failure failure() const { return failure_; }
  /// Of the watched file.
  [[nodiscard]] std::string bytes() const;

  /// The contents of `process_file`.
  static const std::string& contents();

  Trial trial;

 private:
  template <class Call>
  static std::optional<bool> answer_of(Call& call) {
    if constexpr (std::is_same_v<decltype(call()), bool>) {
      return call();
    } else {
      call();
      return std::nullopt;
    }
  }

  const Scratch& scratch_;
  int n_;
  allocations::Failure failure_;
  StayingThreads* new_threads_ = nullptr;
  std::string watched_;
  std::string lacks_;
};

/// What a call without memory may leave.
enum class Leaves {
  all_or_nothing,  ///< What it leaves with memory when it says true, and what there was before.
  entries,         ///< Of the file: each line as it was, or as it is to be.
  fallback,        ///< In its outputs: what it gives for a file that lacks the entries.
};

struct Row {
  std::string member;  ///< With its class, as the library exports it.
  const char* way;     ///< Where there are several ways to call it.
  std::function<void(Stage&)> run;
  Leaves leaves = Leaves::all_or_nothing;
  /// The entry without which it falls back.
  std::string lacks{};
  /// Why the call can be done although an allocation failed; null where it cannot.
  const char* done_nevertheless = nullptr;
  /// Whether that holds of the C library's own allocations alone.
  bool only_of_c_library = false;
  /// A following call may go by what the one before it learnt.
  bool same_again = true;
};

/// A reason to be done: the lookups of a call that find bytes that a session has not read yet.
inline constexpr const char* kCopy =
    "a session's copy of what it reads is for the next reads: this one does without";

/// Members that are made from the rows of the catalogue, and others whose names stand in the
/// headers' lists.
std::vector<Row> listed_rows();
/// The other members of readers and writers.
std::vector<Row> session_rows();
/// Of all other classes of the engine, and its functions.
std::vector<Row> other_rows();
/// Of the simulator's library.
std::vector<Row> simulator_rows();

std::vector<Row> all_rows();

}  // namespace qelpro_test::memory
