#include "scan/columns.h"

#include <algorithm>
#include <numeric>

namespace qelpro {

ScannedValue ScannedValues::at(std::size_t index) const {
  const auto other =
      std::ranges::lower_bound(others_, index, {}, &std::pair<std::size_t, ScannedValue>::first);
  if (other != others_.end() && other->first == index) {
    return other->second;
  }
  return is_whole_[index] ? ScannedValue(static_cast<int>(numbers_[index]))
                          : ScannedValue(numbers_[index]);
}

void ScannedValues::push_back(ScannedValue value) {
  const int* const whole = std::get_if<int>(&value);
  const double* const real = std::get_if<double>(&value);
  const double number = whole != nullptr ? *whole : real != nullptr ? *real : 0;
  is_whole_.push_back(whole != nullptr);
  whole_ += whole != nullptr ? 1 : 0;
  if (whole == nullptr && real == nullptr) {
    others_.emplace_back(numbers_.size(), std::move(value));
  }
  numbers_.push_back(number);
}

void ScannedValues::append(ScannedValues values) {
  for (std::pair<std::size_t, ScannedValue>& other : values.others_) {
    others_.emplace_back(other.first + size(), std::move(other.second));
  }
  numbers_.insert(numbers_.end(), values.numbers_.begin(), values.numbers_.end());
  is_whole_.insert(is_whole_.end(), values.is_whole_.begin(), values.is_whole_.end());
  whole_ += values.whole_;
}

Columns::Columns(const std::vector<Request>& requests) {
  for (std::size_t request = 0; request < requests.size(); ++request) {
    if (!requests[request].is_pattern) {
      column_of(request, requests[request].argument);
    }
  }
}

void Columns::add(std::size_t row, std::size_t request, const std::string& address,
                  ScannedValue value) {
  ScannedColumn& column = columns_[column_of(request, address)];
  if (column.rows.empty() || column.rows.back() != row) {
    column.rows.push_back(static_cast<std::uint32_t>(row));
    column.values.push_back(std::move(value));
  }
}

void Columns::append(Columns later) {
  for (ScannedColumn& added : later.take()) {
    ScannedColumn& column = columns_[column_of(added.request, added.name)];
    column.rows.insert(column.rows.end(), added.rows.begin(), added.rows.end());
    column.values.append(std::move(added.values));
  }
}

std::vector<ScannedColumn> Columns::take() {
  std::vector<std::size_t> order(columns_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::sort(order, {}, [this](std::size_t column) {
    return std::pair(columns_[column].request, since_[column]);
  });
  std::vector<ScannedColumn> taken;
  taken.reserve(order.size());
  for (const std::size_t column : order) {
    taken.push_back(std::move(columns_[column]));
  }
  return taken;
}

std::size_t Columns::column_of(std::size_t request, const std::string& name) {
  const auto [known, is_new] = by_name_.try_emplace(name, columns_.size());
  if (is_new) {
    columns_.push_back({request, name, {}, {}});
    since_.push_back(now_++);
  } else if (ScannedColumn& column = columns_[known->second]; request < column.request) {
    // It stands where it was asked for first.
    column.request = request;
    since_[known->second] = now_++;
  }
  return known->second;
}

}  // namespace qelpro
