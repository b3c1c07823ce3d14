#pragma once

#include <string>
#include <string_view>

#include "blocks/key.h"
#include "json/json_text.h"

namespace qelpro {

/// The text to store for a value of JSON: a text as it stands, a number with the digits that it is
/// written with, a list of fields in the layout of the key's encoding. Of several encodings of one
/// key the first that takes the value.
///
/// A `Failure` of usage where the key's encoding would read another value, where a list is given to
/// a key that the catalogue does not know, and for what is no text, number or list. `section` may
/// be null.
std::string text_of_json(const qel::SectionInfo* section, std::string_view key, const Json& value);

}  // namespace qelpro
