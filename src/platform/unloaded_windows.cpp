// What the compiler's libraries keep for the life of a program. Linked into a library they are its
// own, and would stay behind each time that a host lets go of it: 72 KiB for exceptions that find
// no memory, and one of the system's thousand indices of thread-local data, without which the next
// library ends the program.

#ifdef QELPRO_OWN_RUNTIME

#include <windows.h>

#include <pthread.h>

// NOLINTBEGIN(bugprone-reserved-identifier): names of those libraries
namespace __gnu_cxx {
void __freeres();
}
extern "C" void* __pth_gpointer_locked(pthread_t thread);
// NOLINTEND(bugprone-reserved-identifier)

namespace {

// The library of threads does not tell its index: it is the one under which it keeps this thread.
void free_index_of_threads() {
  constexpr DWORD kMostIndices = 64 + 1024;
  const void* const thread = __pth_gpointer_locked(::pthread_self());
  for (DWORD index = 0; index < kMostIndices && thread != nullptr; ++index) {
    if (::TlsGetValue(index) == thread) {
      ::TlsFree(index);
      return;
    }
  }
}

// After everything else that is done when the library is unloaded.
[[gnu::destructor(101)]] void give_back() {
  __gnu_cxx::__freeres();
  free_index_of_threads();
}

}  // namespace

#endif
