#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "blocks/key.h"
#include "file/address.h"

namespace qelpro {

/// An entry's value in a table: a number or a text, or the fields of an encoding that has several.
using ScannedValue = std::variant<int, double, std::string, std::vector<qel::Field>>;

/// The values of a column. Most are numbers, of which there may be millions.
class ScannedValues {
 public:
  [[nodiscard]] std::size_t size() const { return numbers_.size(); }
  [[nodiscard]] ScannedValue at(std::size_t index) const;
  [[nodiscard]] bool are_whole() const { return whole_ == size(); }
  [[nodiscard]] bool are_real() const { return whole_ == 0 && others_.empty(); }
  [[nodiscard]] bool are_numbers() const { return others_.empty(); }
  /// The values where they are numbers.
  [[nodiscard]] std::vector<double>& numbers() { return numbers_; }

  void push_back(ScannedValue value);
  void append(ScannedValues values);

 private:
  std::vector<double> numbers_;  // 0 where the value is none
  std::vector<bool> is_whole_;   // of each
  std::size_t whole_ = 0;
  std::vector<std::pair<std::size_t, ScannedValue>> others_;  // by index
};

/// The values of one address, of those files that have it.
struct ScannedColumn {
  std::size_t request = 0;          ///< Which of the words asked for it.
  std::string name;                 ///< The word, or the address that a pattern matched.
  std::vector<std::uint32_t> rows;  ///< The files' indices, ascending.
  ScannedValues values;
};

/// Puts the values of files together, file by file.
class Columns {
 public:
  explicit Columns(const std::vector<Request>& requests);

  /// The value that a file has of a request; `address` is what a pattern matched. Rows ascend. One
  /// value of an address is enough, which several requests may find.
  void add(std::size_t row, std::size_t request, const std::string& address, ScannedValue value);
  /// Those of the files behind these, of the same requests.
  void append(Columns later);
  /// In the order of the requests, and then of first appearance.
  std::vector<ScannedColumn> take();

 private:
  std::size_t column_of(std::size_t request, const std::string& name);

  std::vector<ScannedColumn> columns_;
  std::vector<std::size_t> since_;  // of each, when its request found it first
  std::size_t now_ = 0;
  std::unordered_map<std::string, std::size_t> by_name_;
};

}  // namespace qelpro
