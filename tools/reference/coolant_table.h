#pragma once

#include <QELPROEngine/CQELPCSInterpolator.h>

#include <array>
#include <string>

namespace qelpro {

/// The coolants of a settings file.
class CoolantTable {
 public:
  /// Reads it. A `Failure` where that is not possible.
  explicit CoolantTable(const std::string& file);

  /// The four properties at an argument. A `Failure` of what is not found for a coolant that the
  /// file has not, which tells those that it has.
  [[nodiscard]] std::array<double, 4> properties(int coolant, double argument);

 private:
  [[noreturn]] void fail_to_find(int coolant) const;

  std::string file_;
  std::string contents_;
  CQELPCSInterpolator tables_;
};

}  // namespace qelpro
