#pragma once

#include "QELPROEngine/CPROIO_Manipulator.h"

namespace qel::proio {

using Manipulator = CPROIO_Manipulator;

/// A section name or a key: a text as it stands, or one of the kinds that hold a number.
template <class Kind>
struct Name {
  constexpr Name(const char* name)
      : text(name) {}  // NOLINT(google-explicit-constructor): the rows of the table stay readable
  constexpr Name(Kind numbered) : kind(numbered) {}

  const char* text = nullptr;  ///< Null for a numbered kind.
  Kind kind{};
};

/// Where an entry stands. The numbers matter to numbered names alone.
struct Row {
  Name<Manipulator::BLOCK> section;
  Name<Manipulator::KEY> key;
  int section_number = 0;
  int key_number = 0;

  /// The entry in the section of this number.
  [[nodiscard]] constexpr Row in(int number) const { return {section, key, number, key_number}; }
  /// The entry whose key has this number.
  [[nodiscard]] constexpr Row at(int number) const {
    return {section, key, section_number, number};
  }
};

}  // namespace qel::proio
