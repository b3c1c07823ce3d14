#include "system/interruption.h"

#include <pthread.h>

#include <algorithm>
#include <array>
#include <csignal>

namespace qelpro {
namespace {

constexpr std::array kEnding = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

}  // namespace

struct Interruption::Before {
  sigset_t mask{};
  sigset_t held{};
};

Interruption::Interruption() : before_(std::make_unique<Before>()) {
  sigemptyset(&before_->held);
  for (const int signal : kEnding) {
    // One that the caller had ignored, as nohup does, would wait here all the same.
    struct sigaction action {};
    if (::sigaction(signal, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) {
      sigaddset(&before_->held, signal);
    }
  }
  ::pthread_sigmask(SIG_BLOCK, &before_->held, &before_->mask);
}

Interruption::~Interruption() { ::pthread_sigmask(SIG_SETMASK, &before_->mask, nullptr); }

bool Interruption::is_asked_for() const {
  sigset_t pending;
  sigemptyset(&pending);
  ::sigpending(&pending);
  return std::ranges::any_of(kEnding, [&](int signal) {
    return sigismember(&pending, signal) == 1 && sigismember(&before_->held, signal) == 1;
  });
}

}  // namespace qelpro
