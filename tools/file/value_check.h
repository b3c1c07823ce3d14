#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/key.h"

namespace qelpro {

/// Whether a key's encoding reads a text whole. The encodings take what scans and pass over the
/// rest; this tells the rest.

/// What is wrong with a value, as its encoding reads it.
enum class Fault {
  not_read,       ///< A field is not read, or not as it stands.
  missing_field,  ///< A value of several fields lacks some.
  text_behind,    ///< More stands there than is read.
  decimal_comma,  ///< A real goes on with "," and a digit.
  too_large,      ///< A real is too large to be read.
  not_finite      ///< A real says itself that it is not finite ("nan"), and is read so.
};
struct ValueFault {
  Fault fault;
  std::string text;  ///< For a message.
};

/// How the catalogue reads an entry.
struct Reading {
  const qel::KeyInfo* key =
      nullptr;     ///< Null for a key, or a section, that the catalogue does not know.
  int number = 0;  ///< The key's number.
  std::optional<std::string>
      unread;  ///< What of the text is not read as it stands, and why, for a message.
  std::optional<ValueFault> fault = {};
};

/// Of several encodings of one key the first that reads the text whole, or else the first.
/// `section` may be null.
Reading reading_of(const qel::SectionInfo* section, std::string_view key, std::string_view text);
/// The same; `fields` are those of the text where `read_plainly` yields them, and none elsewhere.
Reading reading_of(const qel::SectionInfo* section, std::string_view key, std::string_view text,
                   std::vector<qel::Field>& fields);

/// Reads a text that is nothing but the numbers of its key, as most are, into `fields`, over what
/// is there. False for any other, which may be read whole all the same; a text that is too long to
/// be looked at is one.
bool read_plainly(const qel::KeyInfo& key, std::string_view text, std::vector<qel::Field>& fields);

/// What is wrong with the text for one encoding; the first fault of several.
std::optional<ValueFault> fault_of(const qel::KeyInfo& key, std::string_view text, int number);

/// What one encoding does not read of the text: its fault, but not a real that says itself that it
/// is not finite.
std::optional<std::string> unread_part(const qel::KeyInfo& key, std::string_view text, int number);

/// The same for one number as `atoi` and `atof` take it.
std::optional<std::string> unread_part_of_integer(std::string_view text);
std::optional<std::string> unread_part_of_real(std::string_view text);

/// The fields of an encoding's text in order, a letter each: "d" a whole number, "o" one that is
/// dropped and may be missing, "g" one that some modes have, "f" a real, "s" a size, "w" a name,
/// "q" one in double quotes, "c" the character between two, "e" a "=", "n" a note in parentheses.
/// Empty where the text is the value.
std::string_view fields_of_encoding(std::string_view encoding);

/// Whether the encoding of that name is known here. Every one of the catalogue is.
bool is_checked(std::string_view encoding);

}  // namespace qelpro
