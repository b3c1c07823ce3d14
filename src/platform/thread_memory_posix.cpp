#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#include "platform/exception_memory.h"
#include "platform/thread_memory.h"

// No code of this library runs when a thread ends: another thread may be unloading the library at
// that moment, and no lock would keep the code in its place. A piece of memory knows its thread
// instead, and the next thread that needs one takes over that of a thread which is no more. The
// list only grows, without a lock that a fork could leave locked, and is as long as there were ever
// threads at once. It is given back when the library is unloaded.

namespace qel::platform {
namespace {

struct Piece {
  alignas(std::max_align_t) std::byte bytes[kThreadMemory];
  std::atomic<std::uint64_t> owner;
  Piece* next;
};

constexpr std::uint64_t kNobody = 0;

pthread_once_t key_once = PTHREAD_ONCE_INIT;
pthread_key_t pieces_key;
std::atomic<bool> has_key{false};
std::atomic<Piece*> pieces{nullptr};

// Threads may still be at work when the program ends: their memory then stays.
bool tells_exit = false;
bool exits = false;

void make_key() {
  tells_exit = std::atexit([] { exits = true; }) == 0;
  has_key.store(::pthread_key_create(&pieces_key, nullptr) == 0, std::memory_order_release);
}

// At the program's end this comes after what was handed to atexit, and before it when the library
// is unloaded.
__attribute__((destructor)) void give_back() {
  if (!has_key.load(std::memory_order_acquire) || exits || !tells_exit) {
    return;
  }
  ::pthread_key_delete(pieces_key);
  for (Piece* piece = pieces.load(std::memory_order_acquire); piece != nullptr;) {
    Piece* const next = piece->next;
    std::free(piece);
    piece = next;
  }
}

// A process that was forked has the pieces of the one before it, and none of its threads but one.
constexpr unsigned kProcessShift = 32;

std::uint64_t process_part(::pid_t process) {
  return static_cast<std::uint64_t>(process) << kProcessShift;
}

// Whether the thread was one of this process, and is no more.
bool has_ended(std::uint64_t owner, ::pid_t process) {
  const auto thread = static_cast<::pid_t>(owner & 0xffffffffU);
  return owner == kNobody || (owner - static_cast<std::uint64_t>(thread) == process_part(process) &&
                              ::syscall(SYS_tgkill, process, thread, 0) != 0 && errno == ESRCH);
}

// ThreadSanitizer does not know that a thread which has ended wrote before that: it would find a
// race.
#ifdef __SANITIZE_THREAD__
constexpr bool kTakesOver = false;
#else
constexpr bool kTakesOver = true;
#endif

// This thread's number is that of an ended thread where it was given anew.
Piece* take_over(std::uint64_t thread, ::pid_t process) {
  for (Piece* piece = pieces.load(std::memory_order_acquire); piece != nullptr && kTakesOver;
       piece = piece->next) {
    std::uint64_t owner = piece->owner.load(std::memory_order_acquire);
    if ((owner == thread || has_ended(owner, process)) &&
        piece->owner.compare_exchange_strong(owner, thread, std::memory_order_acq_rel)) {
      std::memset(piece->bytes, 0, sizeof piece->bytes);
      return piece;
    }
  }
  return nullptr;
}

Piece* new_piece(std::uint64_t thread) {
  void* const memory = std::calloc(1, sizeof(Piece));
  if (memory == nullptr) {
    return nullptr;
  }
  auto* const piece = static_cast<Piece*>(memory);
  new (&piece->owner) std::atomic<std::uint64_t>(thread);
  piece->next = pieces.load(std::memory_order_acquire);
  while (!pieces.compare_exchange_weak(piece->next, piece, std::memory_order_acq_rel)) {
  }
  return piece;
}

void* first_memory() {
  ::pthread_once(&key_once, make_key);
  if (!has_key.load(std::memory_order_acquire) || !prepare_exception_memory()) {
    return nullptr;
  }
  const ::pid_t process = ::getpid();
  const std::uint64_t thread =
      process_part(process) | static_cast<std::uint64_t>(::syscall(SYS_gettid));
  Piece* piece = take_over(thread, process);
  if (piece == nullptr) {
    piece = new_piece(thread);
  }
  if (piece != nullptr && ::pthread_setspecific(pieces_key, piece) != 0) {
    piece->owner.store(kNobody, std::memory_order_release);
    piece = nullptr;
  }
  return piece;
}

}  // namespace

void* thread_memory() noexcept {
  if (has_key.load(std::memory_order_acquire)) {
    if (void* const piece = ::pthread_getspecific(pieces_key)) {
      return piece;  // begins with its bytes
    }
  }
  const int error = errno;
  void* const piece = first_memory();
  errno = error;
  return piece;
}

}  // namespace qel::platform
