#include "QELG/data.h"

#include <cstddef>
#include <vector>

template <class T>
struct QELG_Array<T>::Data {
  std::vector<T> values;
};

template <class T>
QELG_Array<T>::QELG_Array() = default;

template <class T>
QELG_Array<T>::~QELG_Array() = default;

template <class T>
bool QELG_Array<T>::AppendDataPoint(T value) {
  constexpr std::size_t kFewPoints = 8;  // as many as most profiles have that have any
  try {
    if (data_ == nullptr) {
      data_ = std::make_unique<Data>();
      data_->values.reserve(kFewPoints);
    }
    data_->values.push_back(value);
    return true;
  } catch (...) {
    return false;
  }
}

template <class T>
unsigned int QELG_Array<T>::GetNumOfDataPoints() const {
  return data_ != nullptr ? static_cast<unsigned int>(data_->values.size()) : 0;
}

template <class T>
bool QELG_Array<T>::GetDataPoint(unsigned int index, T& value) const {
  if (index >= GetNumOfDataPoints()) {
    return false;
  }
  value = data_->values[index];
  return true;
}

template class QELG_Array<double>;
template class QELG_Array<QELG_2dPoint>;

QELG_Profile::QELG_Profile() = default;

QELG_Profile::~QELG_Profile() = default;

bool QELG_Profile::AppendDataPoint(QELG_2dPoint point) { return points_.AppendDataPoint(point); }

unsigned int QELG_Profile::GetNumOfDataPoints() const { return points_.GetNumOfDataPoints(); }

bool QELG_Profile::GetDataPoint(unsigned int index, QELG_2dPoint& point) const {
  return points_.GetDataPoint(index, point);
}
