#pragma once

/// @file
/// What profiles and lists of a simulator process are made of.

#include <memory>

#include "QELG/export.h"

/// A point of a profile.
struct QELG_API QELG_2dPoint {
  /// The origin.
  QELG_2dPoint() : x(0), y(0) {}
  /// The point (first, second).
  QELG_2dPoint(double first, double second) : x(first), y(second) {}

  double x;  ///< Where on the profile: a time, a ram position, how far filling has gone.
  double y;  ///< The profile's value there.
};

/// A list that grows at its end.
template <class T>
class QELG_API QELG_Array {
 public:
  QELG_Array();
  QELG_Array(const QELG_Array&) = delete;
  QELG_Array& operator=(const QELG_Array&) = delete;
  ~QELG_Array();

  /// False when there is no memory for it.
  bool AppendDataPoint(T value);
  /// How many items there are.
  unsigned int GetNumOfDataPoints() const;
  /// The item at an index from 0 on; false after the last one.
  bool GetDataPoint(unsigned int index, T& value) const;

 private:
  struct Data;
  std::unique_ptr<Data> data_;
};

extern template class QELG_Array<double>;
extern template class QELG_Array<QELG_2dPoint>;

/// A profile: points in the order in which they were appended.
class QELG_API QELG_Profile {
 public:
  QELG_Profile();
  QELG_Profile(const QELG_Profile&) = delete;
  QELG_Profile& operator=(const QELG_Profile&) = delete;
  ~QELG_Profile();

  /// Adds a point after the last one. False when there is no memory for it.
  bool AppendDataPoint(QELG_2dPoint point);
  /// How many points there are.
  unsigned int GetNumOfDataPoints() const;
  /// The point at an index from 0 on; false, `point` untouched, after the last one.
  bool GetDataPoint(unsigned int index, QELG_2dPoint& point) const;

 private:
  QELG_Array<QELG_2dPoint> points_;
};
