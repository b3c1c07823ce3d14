#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

namespace qel::platform {

/// How long a store waits for another one's end, or a read for a store's.
class Patience {
 public:
  explicit Patience(std::chrono::seconds most) : end_(std::chrono::steady_clock::now() + most) {}

  static constexpr std::chrono::seconds kOfStores{5};
  /// A store takes milliseconds. One that was stopped in its middle is not to stop every read.
  static constexpr std::chrono::seconds kOfReads{1};

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
  std::chrono::steady_clock::time_point end_;
  std::chrono::microseconds pause_{20};
};

}  // namespace qel::platform
