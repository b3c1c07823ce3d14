#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "blocks/argument.h"
#include "blocks/destination.h"
#include "blocks/type_name.h"
#include "blocks/typed_value.h"

namespace qel {

/// The names of the members that serve a key; most keys have one, some none, a few several.
using Members = std::array<const char*, 4>;

/// What else there is to say of a key, beside the members of the reader and the writer.
struct Details {
  Argument number{"point", "the point"};  ///< Of a numbered key.
  Argument unused{};                      ///< A number that the members take and nobody looks at.
  const char* reading = "";               ///< What else a member that reads does, in sentences.
  const char* writing = "";
  Members older{};                   ///< Members of CPROIO_Manipulator.
  Members adapter{};                 ///< Members of CQEL_ProcessAdapter.
  Destination loader{};              ///< Where CQELProcessData_Manipulator puts the value.
  bool loads_second = false;         ///< It takes the second number of a pair, not the first.
  Members value_reader{};            ///< Members of CQELProcessValueReader.
  const char* counted_by = nullptr;  ///< The key of the same section that counts such points.
};

/// What members and documents need to know of an encoding.
struct EncodingInfo {
  std::string_view type;
  const char* name;
  std::span<const FieldArgument> read;
  std::span<const FieldArgument> written;
  const char* reading;  ///< What a caller of a member that reads should know; or empty.
  const char* writing;
  /// The fields of a text as a reading member gives them.
  std::vector<Field> (*fields)(const char* text, int number);
  /// The same of a text that is as plain as most; false for any other. Null where none is.
  bool (*plain_fields)(const char* text, std::vector<Field>& fields);
};

template <class Encoding>
constexpr auto plain_fields() -> bool (*)(const char*, std::vector<Field>&) {
  if constexpr (requires { Encoding::kIsPlain; }) {
    return &plain_fields_of<Encoding>;
  } else {
    return nullptr;
  }
}

template <class Encoding>
constexpr auto written_arguments() {
  if constexpr (requires { Encoding::kWrittenArguments; }) {
    return field_arguments<typename Encoding::Written>(Encoding::kWrittenArguments);
  } else {
    return field_arguments<typename Encoding::Values>(Encoding::kArguments);
  }
}

template <class Encoding>
constexpr const char* reading_of() {
  if constexpr (requires { Encoding::kReading; }) {
    return Encoding::kReading;
  } else {
    return "";
  }
}

template <class Encoding>
constexpr const char* writing_of() {
  if constexpr (requires { Encoding::kWriting; }) {
    return Encoding::kWriting;
  } else {
    return "";
  }
}

template <class Encoding>
struct EncodingRow {
  static constexpr auto kRead = field_arguments<typename Encoding::Values>(Encoding::kArguments);
  static constexpr auto kWritten = written_arguments<Encoding>();
  static constexpr EncodingInfo kInfo{type_name<Encoding>(),
                                      Encoding::kName,
                                      kRead,
                                      kWritten,
                                      reading_of<Encoding>(),
                                      writing_of<Encoding>(),
                                      &fields_of<Encoding>,
                                      plain_fields<Encoding>()};
};

/// One key of a section as everything but its encoding sees it: the members, the tool and the
/// documents are made from this.
struct KeyInfo {
  const char* text;     ///< As it stands in the file; with "%d" where the point number goes.
  Members readers;      ///< Members of CQELPROReader_Manipulator.
  Members writers;      ///< Members of CQELPROWriter_Manipulator.
  const char* meaning;  ///< What the value is, with its unit where the file states one.
  const EncodingInfo* encoding;
  Details details;
};

/// A key with its encoding: the type that scans and prints its values.
template <class Encoding>
struct Key : KeyInfo {
  constexpr Key(const char* key, Members read, Members write, const char* what, Details others = {})
      : KeyInfo{key, read, write, what, &EncodingRow<Encoding>::kInfo, others} {}
};

/// One kind of section: its name or pattern, what it holds, and its keys.
struct SectionInfo {
  const char* name;
  const char* block;  ///< The class of its block without "CQELPROBlockIO"; null where it has none.
  const char* subject;
  std::span<const KeyInfo> keys;
  Argument number{};  ///< What a numbered section is numbered by.
};

/// Whether a number stands in such a name, and what stands before it.
constexpr bool is_numbered(std::string_view name) {
  return name.find('%') != std::string_view::npos;
}
constexpr std::string_view prefix_of(std::string_view name) {
  return name.substr(0, name.find('%'));
}

/// The text of a row's key. A row that is not there does not compile.
template <std::size_t count>
consteval const char* key_of(const KeyInfo (&keys)[count], std::string_view text) {
  for (const KeyInfo& key : keys) {
    if (key.text == text) {
      return key.text;
    }
  }
  throw "no row of that key";
}

/// The row whose value goes there in a load, the first of several. Where there is none it does not
/// compile.
template <std::size_t count>
consteval const KeyInfo& row_to(const KeyInfo (&keys)[count], const Destination& destination) {
  for (const KeyInfo& key : keys) {
    if (key.details.loader == destination) {
      return key;
    }
  }
  throw "no row of that destination";
}

/// The numbers that go into a numbered key and into the name of an indexed section.
struct Place {
  int point = 0;
  int section = 0;
};

constexpr Place in_section(int number) { return {0, number}; }
constexpr Place at_point(int number) { return {number, 0}; }
constexpr Place at_point(int number, int section) { return {number, section}; }

}  // namespace qel
