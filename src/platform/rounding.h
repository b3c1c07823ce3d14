#pragma once

#include <cfenv>
#include <cfloat>

namespace qel::platform {

/// The number that a text is nearest to does not depend on how the host's thread rounds.
class NearestRounding {
 public:
  NearestRounding() {
    if (!is_nearest()) {
      host_ = std::fegetround();
      std::fesetround(FE_TONEAREST);
    }
  }
  ~NearestRounding() {
    if (host_ != FE_TONEAREST) {
      std::fesetround(host_);
    }
  }
  NearestRounding(const NearestRounding&) = delete;
  NearestRounding& operator=(const NearestRounding&) = delete;

 private:
  // To ask the system takes ten times as long.
  static bool is_nearest() {
    static const volatile float kTiny = FLT_MIN;  // what the compiler knows it rounds by itself
    const float tiny = kTiny;
    return 1.0F + tiny == 1.0F - tiny;
  }

  int host_ = FE_TONEAREST;
};

}  // namespace qel::platform
