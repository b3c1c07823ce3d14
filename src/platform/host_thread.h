#pragma once

#include <cerrno>

/// What of the thread that calls a member is the host's, and stays as it is.
namespace qel::platform {

#ifdef _WIN32

/// Threads are not cancelled here.
class CancelState {
 public:
  void restore() const noexcept {}
};

#else

// The system's own declarations leave it open whether a thread is unwound out of these calls, as
// one is that can be cancelled at any time. A function that promises that nothing leaves it would
// have to look after that, and end the program; to one that knows of nothing it does no harm.
extern "C" {
int qel_set_cancel_state(int state, int* previous) noexcept __asm__("pthread_setcancelstate");
int qel_set_cancel_type(int type, int* previous) noexcept __asm__("pthread_setcanceltype");
}

/// From its beginning to `restore`, the thread is not cancelled: half a store, and a lock that
/// nobody gives back, would be left. A request to cancel it waits.
class CancelState {
 public:
  CancelState() noexcept {
    qel_set_cancel_state(kDisabled, &state_);
    // A request that comes at this very moment may look at the type alone.
    qel_set_cancel_type(kDeferred, &type_);
  }
  void restore() const noexcept {
    if (type_ != kDeferred) {
      qel_set_cancel_type(type_, nullptr);
    }
    qel_set_cancel_state(state_, nullptr);
  }

  static constexpr int kDisabled = 1;  ///< The system's PTHREAD_CANCEL_DISABLE.
  static constexpr int kDeferred = 0;  ///< The system's PTHREAD_CANCEL_DEFERRED.

 private:
  int state_ = 0;
  int type_ = 0;
};

#endif

/// A member at work. The thread may end in `leave`: its scope has nothing else to destroy.
class Member {
 public:
  /// The host's `errno` comes back where the member was done; after a failure it tells what the
  /// operating system refused, if it refused something.
  bool leave(bool done) const noexcept {
    if (done) {
      errno = error_;
    }
    cancel_state_.restore();
    return done;
  }

 private:
  int error_ = errno;
  CancelState cancel_state_;
};

}  // namespace qel::platform
