#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>
#include <thread>

#include "process.h"

// A host that loads and unloads a plug-in many times: unloaded_host PLUGIN CYCLES. What it holds
// does not grow, and no thread that used the plug-in ends badly afterwards.

using namespace unloaded;

namespace {

void put(const std::filesystem::path& path, const char* contents) {
  std::ofstream(path, std::ios::binary) << contents;
}

// A thread that lives longer than what it uses.
class Worker {
 public:
  Worker() : thread_([this] { serve(); }) {}
  ~Worker() {
    {
      const std::lock_guard lock(mutex_);
      ends_ = true;
    }
    changed_.notify_all();
    thread_.join();
  }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  bool work(UseEachClass use, const char* folder) {
    std::unique_lock lock(mutex_);
    use_ = use;
    folder_ = folder;
    changed_.notify_all();
    changed_.wait(lock, [this] { return use_ == nullptr; });
    return done_;
  }

 private:
  void serve() {
    std::unique_lock lock(mutex_);
    for (;;) {
      changed_.wait(lock, [this] { return use_ != nullptr || ends_; });
      if (ends_) {
        return;
      }
      done_ = use_(folder_) != 0;
      use_ = nullptr;
      changed_.notify_all();
    }
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  UseEachClass use_ = nullptr;
  const char* folder_ = nullptr;
  bool done_ = false;
  bool ends_ = false;
  std::thread thread_;
};

// Where the library is not optimized its frames are larger.
#ifdef NDEBUG
constexpr bool kTriesSmallStacks = true;
#else
constexpr bool kTriesSmallStacks = false;
#endif

// Uses the plug-in on one with a small stack first, which sets up all that is set up once, on this
// thread, on one that goes on, and on one that ends after it was unloaded.
bool cycle(const std::string& plugin, const std::string& folder, Worker& worker, bool with_others) {
  bool done = true;
  Worker* const ending = with_others ? new Worker : nullptr;
  {
    const Plugin loaded(plugin);
    done = (!kTriesSmallStacks || !with_others || on_small_stack(loaded.use(), folder.c_str())) &&
           loaded.use()(folder.c_str()) != 0 && worker.work(loaded.use(), folder.c_str()) &&
           (ending == nullptr || ending->work(loaded.use(), folder.c_str()));
  }
  delete ending;
  return done && !is_engine_loaded();
}

void tell(const char* when, const Held& held) {
  std::cout << when << ": " << held.memory / 1024 << " KiB, " << held.files << " files, "
            << held.keys << " keys left\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    return 2;
  }
  const int cycles = std::atoi(argv[2]);
  const auto folder =
      std::filesystem::temp_directory_path() /
      ("unloaded-" + std::to_string(std::hash<std::thread::id>()(std::this_thread::get_id())));
  std::filesystem::create_directories(folder);
  put(folder / "machines.bank",
      "[Header]\nVersion,7007\n[Machine Database]\n1,Maker,Grade,4,5,6,7,8,9,10,11,12,13,14,15,16,"
      "17,18,19,20,21,22\n");
  put(folder / "coolants.pcs",
      "[Coolant-1]\nName = Water\nDataCount = 2\nData-1 = 10 1 2 3 4\nData-2 = 20 3 6 -3 4\n");
  int wrong = 0;
  {
    Worker worker;
    const auto repeat = [&](int times) {
      for (int n = 0; n < times; ++n) {
        wrong += cycle(argv[1], folder.string(), worker, n % 10 == 0) ? 0 : 1;
      }
    };
    repeat(cycles / 10 + 10);
    const Held before = held_now();
    repeat(cycles);
    const Held after = held_now();
    tell("before", before);
    tell("after", after);
    const double grown = static_cast<double>(after.memory) - static_cast<double>(before.memory);
    if (!kTriesSmallStacks) {
      std::cout << "skipped: small stacks, for which the library has to be optimized\n";
    }
    std::cout << grown / cycles << " bytes a cycle in " << cycles << " cycles, " << wrong
              << " wrong\n";
    constexpr double kNoise = 256 * 1024;
    if (grown > kNoise + kStaysBehind * cycles || after.files > before.files ||
        after.keys < before.keys) {
      ++wrong;
    }
  }
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
  return wrong == 0 ? 0 : 1;
}
