#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <vector>

#include "blocks/field.h"

namespace qel {

/// The names of the members that serve a key; most keys have one, some none, a few several.
using Members = std::array<const char*, 4>;

/// What else touches a key, beside the members of the reader and the writer.
struct Elsewhere {
  Members older{};    ///< Members of CPROIO_Manipulator.
  Members adapter{};  ///< Members of CQEL_ProcessAdapter.
  const char* loader =
      nullptr;  ///< Which function takes the value when CQELProcessData_Manipulator builds a
                ///< process; null where none does.
  Members value_reader{};  ///< Members of CQELProcessValueReader.
};

/// One key of a section as everything but its encoding sees it: the catalogue, the tool and the
/// documents run from this.
struct KeyInfo {
  const char* text;      ///< As it stands in the file; with "%d" where the point number goes.
  Members readers;       ///< Members of CQELPROReader_Manipulator.
  Members writers;       ///< Members of CQELPROWriter_Manipulator.
  const char* meaning;   ///< What the value is, with its unit where the file states one.
  const char* encoding;  ///< The encoding's name.
  std::vector<Field> (*fields)(const char* text,
                               int number);  ///< The value's fields as a reading member gives them.
  Elsewhere elsewhere;
};

/// A key with its encoding: the type that scans and prints its values.
template <class Encoding>
struct Key : KeyInfo {
  constexpr Key(const char* key, Members read, Members write, const char* what,
                Elsewhere others = {})
      : KeyInfo{key, read, write, what, Encoding::kName, &fields_of<Encoding>, others} {}
};

/// One kind of section: its name or pattern, what it holds, and its keys.
struct SectionInfo {
  const char* name;
  const char* subject;
  const KeyInfo* const* keys;
  std::size_t key_count;
};

/// The numbers that go into a numbered key and into the name of an indexed section.
struct Place {
  int point = 0;
  int section = 0;
};

constexpr Place in_section(int number) { return {0, number}; }
constexpr Place at_point(int number) { return {number, 0}; }
constexpr Place at_point(int number, int section) { return {number, section}; }

}  // namespace qel
