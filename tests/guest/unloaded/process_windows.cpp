#include <windows.h>

#include <psapi.h>

#include <cstdlib>
#include <iostream>
#include <vector>

#include "process.h"

namespace unloaded {

Plugin::Plugin(const std::string& path) : handle_(::LoadLibraryA(path.c_str())), use_(nullptr) {
  if (handle_ == nullptr) {
    const DWORD error = ::GetLastError();
    std::cerr << "cannot load " << path << ": " << error << '\n';
    std::exit(2);
  }
  use_ = reinterpret_cast<UseEachClass>(
      reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(handle_), "use_each_class")));
}

Plugin::~Plugin() { ::FreeLibrary(static_cast<HMODULE>(handle_)); }

namespace {

struct SmallWork {
  UseEachClass use;
  const char* folder;
  bool done;
};

DWORD WINAPI do_small(void* argument) {
  auto& work = *static_cast<SmallWork*>(argument);
  work.done = work.use(work.folder) != 0;
  return 0;
}

}  // namespace

bool on_small_stack(UseEachClass use, const char* folder) {
  constexpr SIZE_T kSmall = SIZE_T{32} * 1024;
  SmallWork work{use, folder, false};
  const HANDLE thread =
      ::CreateThread(nullptr, kSmall, do_small, &work, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  if (thread == nullptr) {
    return false;
  }
  ::WaitForSingleObject(thread, INFINITE);
  ::CloseHandle(thread);
  return work.done;
}

namespace {

// What the heaps of the process have handed out.
std::size_t in_heaps() {
  HANDLE heaps[64];
  const DWORD count = ::GetProcessHeaps(64, heaps);
  std::size_t bytes = 0;
  for (DWORD i = 0; i < count && i < 64; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    ::HeapLock(heaps[i]);
    while (::HeapWalk(heaps[i], &entry) != 0) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
        bytes += entry.cbData;
      }
    }
    ::HeapUnlock(heaps[i]);
  }
  return bytes;
}

}  // namespace

// The runtime keeps what it had of a thread that goes on.
const double kStaysBehind = 32.0 * 1024;

Held held_now() {
  Held held;
  held.memory = in_heaps();
  DWORD handles = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &handles);
  held.files = handles;
  std::vector<DWORD> keys;
  for (DWORD key = ::TlsAlloc(); key != TLS_OUT_OF_INDEXES; key = ::TlsAlloc()) {
    keys.push_back(key);
  }
  held.keys = keys.size();
  for (const DWORD key : keys) {
    ::TlsFree(key);
  }
  return held;
}

bool is_engine_loaded() { return ::GetModuleHandleA("QELPROEngine.dll") != nullptr; }

}  // namespace unloaded
