#pragma once

#include "objects/attempt.h"
#include "proio/entry.h"
#include "proio/items.h"

/// What the accessors are made of: the raw layer, with a value of one or several items.

template <class... Items>
bool CPROIO_Manipulator::Get(const qel::proio::Row& entry, Items&&... items) {
  char* text = nullptr;
  const bool found = IsOK(Read(SectionOf(entry), KeyOf(entry), text, kByKey));
  if (found) {
    qel::proio::scan_items(text, items...);
  }
  return found;
}

/// Items that the value does not supply become 0, or null.
template <class... Items>
bool CPROIO_Manipulator::GetZeroed(const qel::proio::Row& entry, Items&&... items) {
  char* text = nullptr;
  const bool found = Get(entry, text);
  if (found) {
    (qel::proio::clear_item(items), ...);
    qel::proio::scan_items(text, items...);
  }
  return found;
}

/// For keys that files of an older layout have not: 0 there, even where the key stands in the file.
template <class... Items>
bool CPROIO_Manipulator::GetGated(const qel::proio::Row& entry, Items&... items) {
  if (checkIsThisPROFileSupport(kGatedVersion)) {
    return Get(entry, items...);
  }
  ((items = 0), ...);
  return false;
}

template <class... Items>
bool CPROIO_Manipulator::Set(const qel::proio::Row& entry, Items... items) {
  if ((qel::proio::is_null(items) || ...)) {
    return false;
  }
  return qel::attempt([&] {
    return IsOK(Write(SectionOf(entry), KeyOf(entry), qel::fields::print("\t", items...).c_str(),
                      true, kByKey));
  });
}
