#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/key.h"
#include "file/entries.h"
#include "json/json_text.h"
#include "system/failure.h"

namespace qelpro {

/// An entry's value as the catalogue reads it.
struct TypedValue {
  const qel::KeyInfo* key = nullptr;  ///< Null where the catalogue does not know the entry.
  int number = 0;                     ///< Of a numbered key.
  std::vector<qel::Field> fields;     ///< As a reading member gives them; none of an unknown key.
  std::optional<std::string> unread;  ///< What of the text is not read as it stands, and why.
};

TypedValue typed_value(const Entries& entries, const FileEntry& entry);
TypedValue typed_value(const qel::SectionInfo* section, std::string_view key,
                       std::string_view value);

/// The same over what is there, for who reads one entry after the other: no memory is asked for
/// again.
void read_typed(const Entries& entries, const FileEntry& entry, TypedValue& typed);
void read_typed(const qel::SectionInfo* section, std::string_view key, std::string_view value,
                TypedValue& typed);

/// What there is to say of an entry that is not read whole.
Failure unread_failure(const std::string& file, const Entries& entries, const FileEntry& entry,
                       const TypedValue& typed);

/// A number, a text, or a list of fields; the text as it stands of an unknown key, and where the
/// encoding does not read it whole.
Json json_of(const TypedValue& typed, std::string_view text);
Json json_of(const Entries& entries, const FileEntry& entry);

/// A field for a person: the fewest digits that read back as the same number.
std::string text_of(const qel::Field& field);

/// A field that somebody gives, with the digits that it is written with where those count.
struct GivenField {
  qel::Field value;
  std::string digits;
};

/// The text that an encoding reads as these fields, in the layout in which the library writes it,
/// with the digits that are given or else the fewest that read back as the same numbers. A
/// `Failure` of usage that names the field where there is none.
std::string text_of(const qel::KeyInfo& key, int number, std::span<const GivenField> fields);

/// The fewest digits that read back as the same number, with the exponent of three digits that
/// process files have: 1e-007.
std::string shortest(double value);

}  // namespace qelpro
