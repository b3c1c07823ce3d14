#pragma once

#include <string>
#include <string_view>
#include <vector>

/// How an encoding is told to a person.
struct EncodingText {
  std::string_view name;
  std::string_view read;  ///< The scan format.
  std::string example;  ///< A value as it stands in a file: printed by the encoding where a member
                        ///< writes it.
  bool written;         ///< Whether a member writes it.
  std::string_view absent;  ///< What becomes of an output that the text does not supply.
};

/// All encodings of the catalogue.
const std::vector<EncodingText>& encodings();
