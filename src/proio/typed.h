#pragma once

#include "objects/attempt.h"
#include "objects/null.h"
#include "proio/row.h"
#include "proio/values.h"

/// What the accessors are made of: the raw layer, with a text of one or several values.

template <class... Values>
bool CPROIO_Manipulator::Get(const qel::proio::Row& row, Values&&... values) {
  char* text = nullptr;
  const bool found =
      qel::attempt([&] { return IsOK(Read(SectionOf(row), KeyOf(row), text, kByKey)); });
  if (found) {
    qel::proio::scan_values(text, values...);
  }
  return found;
}

/// Values that the text does not supply become 0, or null.
template <class... Values>
bool CPROIO_Manipulator::GetZeroed(const qel::proio::Row& row, Values&&... values) {
  char* text = nullptr;
  const bool found = Get(row, text);
  if (found) {
    (qel::proio::clear_value(values), ...);
    qel::proio::scan_values(text, values...);
  }
  return found;
}

/// For keys that files of an older layout have not: 0 there, even where the key stands in the file.
template <class... Values>
bool CPROIO_Manipulator::GetGated(const qel::proio::Row& row, Values&... values) {
  if (checkIsThisPROFileSupport(kGatedVersion)) {
    return Get(row, values...);
  }
  ((values = 0), ...);
  return false;
}

template <class... Values>
bool CPROIO_Manipulator::Set(const qel::proio::Row& row, Values... values) {
  if (qel::any_is_null(values...)) {
    return false;
  }
  return qel::attempt([&] {
    const std::string text = qel::fields::print("\t", values...);
    return IsOK(Write(SectionOf(row), KeyOf(row), text.c_str(), true, kByKey));
  });
}
