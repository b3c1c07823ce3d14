#pragma once

#include <string>

#include "api/proio/support.h"

namespace qelpro_test {

/// Looks at lines through two of their accessors.
class Lines : public ProcessObject {
 protected:
  double fill_time(int stage = 1) {
    double value = 777;
    object_.GetFillTime(value, stage);
    return value;
  }
  std::string remark_of(const std::string& contents) {
    char* text = nullptr;
    over(contents).GetMachineRemark(text);
    return text != nullptr ? text : "(none)";
  }
};

}  // namespace qelpro_test
