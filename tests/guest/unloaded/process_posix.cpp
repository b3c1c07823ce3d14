#include <dlfcn.h>
#include <malloc.h>
#include <pthread.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

#include "process.h"

namespace unloaded {

Plugin::Plugin(const std::string& path)
    : handle_(::dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL)), use_(nullptr) {
  if (handle_ == nullptr) {
    std::cerr << ::dlerror() << '\n';
    std::exit(2);
  }
  use_ = reinterpret_cast<UseEachClass>(::dlsym(handle_, "use_each_class"));
}

Plugin::~Plugin() { ::dlclose(handle_); }

namespace {

struct SmallWork {
  UseEachClass use;
  const char* folder;
  bool done;
};

void* do_small(void* argument) {
  auto& work = *static_cast<SmallWork*>(argument);
  work.done = work.use(work.folder) != 0;
  return nullptr;
}

}  // namespace

bool on_small_stack(UseEachClass use, const char* folder) {
  constexpr std::size_t kSmall = std::size_t{32} * 1024;
  SmallWork work{use, folder, false};
  pthread_attr_t attributes{};
  pthread_t thread{};
  const bool ran = ::pthread_attr_init(&attributes) == 0 &&
                   ::pthread_attr_setstacksize(&attributes, kSmall) == 0 &&
                   ::pthread_create(&thread, &attributes, do_small, &work) == 0 &&
                   ::pthread_join(thread, nullptr) == 0;
  ::pthread_attr_destroy(&attributes);
  return ran && work.done;
}

const double kStaysBehind = 0;

Held held_now() {
  Held held;
  ::malloc_trim(0);
  std::ifstream statm("/proc/self/statm");
  std::size_t all = 0;
  std::size_t resident = 0;
  std::size_t shared = 0;
  statm >> all >> resident >> shared;
  held.memory = (resident - shared) * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
  const std::filesystem::directory_iterator files("/proc/self/fd");
  held.files = static_cast<std::size_t>(std::distance(begin(files), end(files)));
  std::vector<pthread_key_t> keys;
  for (pthread_key_t key{}; ::pthread_key_create(&key, nullptr) == 0;) {
    keys.push_back(key);
  }
  held.keys = keys.size();
  for (const pthread_key_t key : keys) {
    ::pthread_key_delete(key);
  }
  return held;
}

bool is_engine_loaded() {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    if (line.find("QELPROEngine") != std::string::npos) {
      return true;
    }
  }
  return false;
}

}  // namespace unloaded
