#include "work/workers.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace qelpro {
namespace {

// What the threads share.
class Shared {
 public:
  Shared(std::uint64_t size, std::uint64_t block, const std::function<void(const Block&)>& work)
      : size_(size), block_(block), work_(work) {}

  void enter() {
    const std::lock_guard lock(mutex_);
    ++running_;
  }

  // The life of a thread that has entered.
  void run() {
    try {
      while (!stopped_) {
        const std::uint64_t first = next_.fetch_add(block_);
        if (first >= size_) {
          break;
        }
        const Block block{first, std::min(size_, first + block_)};
        work_(block);
        done_ += block.last - block.first;
      }
    } catch (...) {
      const std::lock_guard lock(mutex_);
      if (!failure_) {
        failure_ = std::current_exception();
      }
      stopped_ = true;
    }
    const std::lock_guard lock(mutex_);
    if (--running_ == 0) {
      all_ended_.notify_all();
    }
  }

  void wait(const std::function<bool(std::uint64_t)>& watch) {
    constexpr std::chrono::milliseconds kNowAndThen(100);
    std::unique_lock lock(mutex_);
    while (!all_ended_.wait_for(lock, kNowAndThen, [&] { return running_ == 0; })) {
      lock.unlock();
      if (!watch(done_)) {
        stopped_ = true;
      }
      lock.lock();
    }
  }

  std::uint64_t done() {
    if (failure_) {
      std::rethrow_exception(failure_);
    }
    return done_;
  }
  void stop() { stopped_ = true; }

 private:
  std::uint64_t size_;
  std::uint64_t block_;
  const std::function<void(const Block&)>& work_;
  std::atomic<std::uint64_t> next_ = 0;
  std::atomic<std::uint64_t> done_ = 0;
  std::atomic<bool> stopped_ = false;
  std::mutex mutex_;
  std::condition_variable all_ended_;
  std::size_t running_ = 0;
  std::exception_ptr failure_;
};

// Joins them, whatever happens.
class Threads {
 public:
  explicit Threads(Shared& shared) : shared_(shared) {}
  Threads(const Threads&) = delete;
  Threads& operator=(const Threads&) = delete;
  ~Threads() {
    shared_.stop();
    for (std::thread& thread : threads_) {
      thread.join();
    }
  }
  void start(std::size_t count) {
    threads_.reserve(count);
    for (std::size_t at = 0; at < count; ++at) {
      shared_.enter();
      try {
        threads_.emplace_back(&Shared::run, &shared_);
      } catch (const std::system_error&) {
        // The system gives no more of them: then those that there are do it, or this one.
        shared_.run();
        return;
      }
    }
  }

 private:
  Shared& shared_;
  std::vector<std::thread> threads_;
};

}  // namespace

std::size_t core_count() { return std::max(1U, std::thread::hardware_concurrency()); }

std::uint64_t work_on_all_cores(std::uint64_t size, std::uint64_t largest,
                                const std::function<void(const Block&)>& work,
                                const std::function<bool(std::uint64_t)>& watch) {
  return work_on_cores(core_count(), size, largest, work, watch);
}

std::uint64_t work_on_cores(std::size_t cores, std::uint64_t size, std::uint64_t largest,
                            const std::function<void(const Block&)>& work,
                            const std::function<bool(std::uint64_t)>& watch) {
  constexpr std::uint64_t kBlocksOfAThread = 4;
  if (size == 0) {
    return 0;
  }
  const std::uint64_t threads = std::min<std::uint64_t>(size, cores);
  const std::uint64_t even = (size - 1) / (threads * kBlocksOfAThread) + 1;
  Shared shared(size, std::max<std::uint64_t>(1, std::min(largest, even)), work);
  {
    Threads all(shared);
    all.start(threads);
    shared.wait(watch);
  }
  return shared.done();
}

}  // namespace qelpro
