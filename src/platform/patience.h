#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

namespace qel::platform {

/// How long a store waits for another one's end.
class Patience {
 public:
  /// Waits a little; false when it has waited long enough. The pauses stay short: who stores
  /// without an end leaves the file free for moments only.
  bool waits() {
    using namespace std::chrono_literals;
    if (std::chrono::steady_clock::now() >= end_) {
      return false;
    }
    std::this_thread::sleep_for(pause_);
    pause_ = std::min<std::chrono::microseconds>(2 * pause_, 160us);
    return true;
  }

 private:
  std::chrono::steady_clock::time_point end_ =
      std::chrono::steady_clock::now() + std::chrono::seconds(5);
  std::chrono::microseconds pause_{20};
};

}  // namespace qel::platform
