#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "system/sink.h"

namespace qelpro {

using Json = nlohmann::ordered_json;

/// Writes a value as JSON, in lines that are indented by two. The lines after the first one are
/// indented by so many more.
///
/// Numbers that JSON does not know are their texts: "nan", "inf", "-inf". A byte of a text that is
/// no UTF-8 is the escape of the lone surrogate U+DC00 + byte, so that nothing is lost.
void write_json(Sink& output, const Json& value, std::size_t indent = 0);

/// Adds a member of whose name it is known that the object has it not: without a look at the
/// others.
void append_member(Json& object, std::string name, Json value);

/// A number as it is written, which may have more digits than a double keeps. It travels as a
/// binary value, of which JSON itself has none.
Json number_of_text(std::string_view text);
bool is_number_text(const Json& value);
/// The text of a number of any kind.
std::string number_text(const Json& value);

/// A value of one line, as a person reads it: a text as it is, anything else as JSON has it.
std::string plain_text(const Json& value);

}  // namespace qelpro
