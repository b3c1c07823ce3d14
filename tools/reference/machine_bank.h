#pragma once

#include <map>
#include <string>
#include <vector>

namespace qelpro {

/// The machines of a bank.
class MachineBank {
 public:
  /// Reads it. A `Failure` with the line where it is no bank of the version that is read.
  explicit MachineBank(const std::string& file);

  /// In the order of their bytes.
  [[nodiscard]] const std::vector<std::string>& makers() const { return makers_; }
  /// In the file's order, repeats included. A `Failure` of what is not found for another maker.
  [[nodiscard]] const std::vector<std::string>& grades(const std::string& maker) const;

 private:
  std::string file_;
  std::vector<std::string> makers_;
  std::map<std::string, std::vector<std::string>> grades_;
};

}  // namespace qelpro
