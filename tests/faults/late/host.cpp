#include <dlfcn.h>
#include <malloc.h>
#include <pthread.h>
#include <sys/auxv.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "faults/late/members.h"

// A program that has no C++ library of its own loads the engine while its threads are running, and
// those find no memory when they first use it. Each use either is done, or says that it was not;
// with memory, the same use is done. What threads took is given back.

namespace {

enum class Shortage {
  none,
  budget,    // no more than so many bytes at once
  one,       // one allocation fails
  all_after  // and all after it
};

struct Memory {
  Shortage shortage = Shortage::none;
  std::size_t limit = 0;
  std::size_t held = 0;
  std::size_t calls = 0;
  bool lacked = false;
};
thread_local Memory memory;
std::size_t held_by_all = 0;  // changed and looked at by one thread at a time, or atomically

// The loader's own allocations end the program when they fail, whatever program that is.
bool is_loader(const void* caller) {
  constexpr std::uintptr_t kItsSize = 0x40000;
  const std::uintptr_t base = ::getauxval(AT_BASE);
  const auto at = reinterpret_cast<std::uintptr_t>(caller);
  return at >= base && at - base < kItsSize;
}

bool is_lacking(std::size_t size, const void* caller) {
  bool lacks = false;
  switch (memory.shortage) {
    case Shortage::none:
      break;
    case Shortage::budget:
      lacks = memory.held + size > memory.limit;
      break;
    case Shortage::one:
      lacks = !is_loader(caller) && ++memory.calls == memory.limit;
      break;
    case Shortage::all_after:
      lacks = !is_loader(caller) && ++memory.calls >= memory.limit;
      break;
  }
  memory.lacked = memory.lacked || lacks;
  if (lacks) {
    errno = ENOMEM;
  }
  return lacks;
}

void* counted(void* block) {
  if (block != nullptr) {
    const std::size_t size = ::malloc_usable_size(block);
    memory.held += size;
    __atomic_fetch_add(&held_by_all, size, __ATOMIC_RELAXED);
  }
  return block;
}

void* uncounted(void* block) {
  if (block != nullptr) {
    const std::size_t size = ::malloc_usable_size(block);
    memory.held -= size < memory.held ? size : memory.held;
    __atomic_fetch_sub(&held_by_all, size, __ATOMIC_RELAXED);
  }
  return block;
}

}  // namespace

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);

void* malloc(std::size_t size) {
  return is_lacking(size, __builtin_return_address(0)) ? nullptr : counted(__libc_malloc(size));
}
void* calloc(std::size_t count, std::size_t size) {
  return is_lacking(count * size, __builtin_return_address(0))
             ? nullptr
             : counted(__libc_calloc(count, size));
}
void* realloc(void* block, std::size_t size) {
  return is_lacking(size, __builtin_return_address(0))
             ? nullptr
             : counted(__libc_realloc(uncounted(block), size));
}
void free(void* block) { __libc_free(uncounted(block)); }
}

namespace {

struct Library {
  void* handle;
  decltype(&prepare_members) prepare;
  decltype(&drop_members) drop;
  decltype(&kinds_of_use) kinds;
  decltype(&name_of_use) name;
  decltype(&use_members) use;
};
Library library;

void require(bool fact, const char* what) {
  if (!fact) {
    std::fflush(stdout);
    std::fprintf(stderr, "not so: %s\n", what);
    std::_Exit(1);
  }
}

template <class Function>
void find(Function& function, const char* name) {
  function = reinterpret_cast<Function>(::dlsym(library.handle, name));
  require(function != nullptr, name);
}

void load(const char* plug_in) {
  library.handle = ::dlopen(plug_in, RTLD_NOW | RTLD_LOCAL);
  require(library.handle != nullptr, "the plug-in loads");
  find(library.prepare, "prepare_members");
  find(library.drop, "drop_members");
  find(library.kinds, "kinds_of_use");
  find(library.name, "name_of_use");
  find(library.use, "use_members");
}

void unload() { require(::dlclose(library.handle) == 0, "the plug-in unloads"); }

// One thread's first use, and the next one of the same kind.
struct Trial {
  pthread_t thread;
  pthread_mutex_t turn;  // locked until the thread may go on
  int kind;
  Shortage shortage;
  std::size_t limit;
  bool lacked;
  int first;
  int again;
};

void* run(void* argument) {
  auto* const trial = static_cast<Trial*>(argument);
  ::pthread_mutex_lock(&trial->turn);
  memory = {trial->shortage, trial->limit, 0, 0, false};
  trial->first = library.use(trial->kind);
  memory.shortage = Shortage::none;
  trial->lacked = memory.lacked;
  trial->again = library.use(trial->kind);
  ::pthread_mutex_unlock(&trial->turn);
  return nullptr;
}

void start(Trial& trial) {
  ::pthread_mutex_init(&trial.turn, nullptr);
  ::pthread_mutex_lock(&trial.turn);
  pthread_attr_t small;
  ::pthread_attr_init(&small);
  ::pthread_attr_setstacksize(&small, std::size_t{256} * 1024);
  require(::pthread_create(&trial.thread, &small, run, &trial) == 0, "a thread starts");
  ::pthread_attr_destroy(&small);
}

void finish(Trial& trial) {
  ::pthread_mutex_unlock(&trial.turn);
  ::pthread_join(trial.thread, nullptr);
  ::pthread_mutex_destroy(&trial.turn);
}

constexpr int kKinds = 10;
constexpr std::size_t kBudgetStep = 1024;
constexpr std::size_t kMostBudget = std::size_t{64} * 1024;
constexpr std::size_t kMostCalls = 24;
constexpr std::size_t kTrialsOfAKind = kMostBudget / kBudgetStep + 2 * kMostCalls;

Trial trials[kKinds * kTrialsOfAKind];

std::size_t plan(int kinds) {
  std::size_t count = 0;
  for (int kind = 0; kind < kinds; ++kind) {
    for (std::size_t budget = 0; budget < kMostBudget; budget += kBudgetStep) {
      trials[count++] = {{}, {}, kind, Shortage::budget, budget, false, 0, 0};
    }
    for (std::size_t n = 1; n <= kMostCalls; ++n) {
      trials[count++] = {{}, {}, kind, Shortage::one, n, false, 0, 0};
      trials[count++] = {{}, {}, kind, Shortage::all_after, n, false, 0, 0};
    }
  }
  return count;
}

void first_uses(const char* plug_in, char* path) {
  const std::size_t most = plan(kKinds);
  for (std::size_t i = 0; i < most; ++i) {
    start(trials[i]);
  }
  load(plug_in);
  require(library.kinds() == kKinds, "every kind has its threads");
  require(library.prepare(path) == 1, "objects are made");
  int refused[kKinds] = {};
  int done[kKinds] = {};
  for (std::size_t i = 0; i < most; ++i) {
    Trial& trial = trials[i];
    finish(trial);
    require(trial.first >= 0, library.name(trial.kind));
    require(trial.first == 1 || trial.lacked, "what has its memory is done");
    require(trial.again == 1, "what has memory again is done");
    ++(trial.first == 1 ? done : refused)[trial.kind];
  }
  for (int kind = 0; kind < kKinds; ++kind) {
    std::printf("%s: %d done, %d refused\n", library.name(kind), done[kind], refused[kind]);
    require(refused[kind] > 0 && done[kind] > 0, "both come about");
  }
  std::printf("%zu threads that began before the library was loaded\n", most);
}

// Threads that start and end, one after the other, and some at once: each with an object of its
// own.
void many_threads() {
  int own_object = 0;
  while (std::strcmp(library.name(own_object), "open a file") != 0) {
    ++own_object;
  }
  constexpr int kThreads = 10000;
  constexpr int kAtOnce = 8;
  static Trial few[kAtOnce];
  std::size_t before = 0;
  for (int thread = 0; thread < kThreads; thread += kAtOnce) {
    for (Trial& trial : few) {
      trial = {{}, {}, own_object, Shortage::none, 0, false, 0, 0};
      start(trial);
    }
    for (Trial& trial : few) {
      ::pthread_mutex_unlock(&trial.turn);
    }
    for (Trial& trial : few) {
      ::pthread_join(trial.thread, nullptr);
      require(trial.first == 1, "a thread reads");
    }
    if (thread == kThreads / 10) {
      before = held_by_all;
    }
  }
  std::printf("%d threads: %td bytes more than after a tenth of them\n", kThreads,
              static_cast<std::ptrdiff_t>(held_by_all - before));
  require(held_by_all <= before + 2 * std::size_t{16} * 1024, "threads give back what they took");
}

// Another thread uses the library each time that it is loaded, and lives on when it is unloaded.
struct Visitor {
  pthread_mutex_t lock = PTHREAD_MUTEX_INITIALIZER;
  pthread_cond_t change = PTHREAD_COND_INITIALIZER;
  int asked = 0;
  int answered = 0;
  bool ends = false;
};
Visitor visitor;

void* visit(void* /*argument*/) {
  ::pthread_mutex_lock(&visitor.lock);
  for (;;) {
    while (visitor.asked == visitor.answered && !visitor.ends) {
      ::pthread_cond_wait(&visitor.change, &visitor.lock);
    }
    if (visitor.ends) {
      break;
    }
    require(library.use(0) == 1, "another thread reads");
    visitor.answered = visitor.asked;
    ::pthread_cond_broadcast(&visitor.change);
  }
  ::pthread_mutex_unlock(&visitor.lock);
  return nullptr;
}

void* use_and_end(void* started) {
  require(library.use(0) == 1, "a thread reads that ends");
  __atomic_store_n(static_cast<bool*>(started), true, __ATOMIC_RELEASE);
  return nullptr;
}

void load_again(const char* plug_in, char* path) {
  constexpr int kLoads = 300;
  pthread_t thread;
  require(::pthread_create(&thread, nullptr, visit, nullptr) == 0, "a thread starts");
  std::size_t before = 0;
  for (int loads = 0; loads < kLoads; ++loads) {
    load(plug_in);
    require(library.prepare(path) == 1 && library.use(0) == 1, "the loading thread reads");
    ::pthread_mutex_lock(&visitor.lock);
    ++visitor.asked;
    ::pthread_cond_broadcast(&visitor.change);
    while (visitor.asked != visitor.answered) {
      ::pthread_cond_wait(&visitor.change, &visitor.lock);
    }
    ::pthread_mutex_unlock(&visitor.lock);
    // One that has used the library and ends while the library is unloaded.
    bool used = false;
    pthread_t ending;
    require(::pthread_create(&ending, nullptr, use_and_end, &used) == 0, "a thread starts");
    while (!__atomic_load_n(&used, __ATOMIC_ACQUIRE)) {
    }
    library.drop();
    // What it runs after that is not the library's.
    unload();
    ::pthread_join(ending, nullptr);
    if (loads == kLoads / 10) {
      before = held_by_all;
    }
  }
  std::printf("%d loads: %td bytes more than after a tenth of them\n", kLoads,
              static_cast<std::ptrdiff_t>(held_by_all - before));
  require(held_by_all <= before + std::size_t{4} * 1024, "a library gives back what it took");
  ::pthread_mutex_lock(&visitor.lock);
  visitor.ends = true;
  ::pthread_cond_broadcast(&visitor.change);
  ::pthread_mutex_unlock(&visitor.lock);
  ::pthread_join(thread, nullptr);
}

}  // namespace

int main(int count, char** arguments) {
  require(count == 3, "the plug-in and a file are given");
  require(::dlsym(RTLD_DEFAULT, "__cxa_get_globals") == nullptr, "there is no C++ library yet");
  first_uses(arguments[1], arguments[2]);
  many_threads();
  library.drop();
  unload();
  load_again(arguments[1], arguments[2]);
  return 0;
}
