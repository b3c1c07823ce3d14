#pragma once

#include <cstddef>
#include <string>

namespace qelpro {

enum class Severity { error, warning, note };

/// "error"
const char* name_of(Severity severity);

/// Something that is wrong, or may be, with a file.
struct Finding {
  std::string file;
  std::size_t line = 1;    ///< From 1.
  std::size_t column = 1;  ///< From 1, in bytes.
  Severity severity = Severity::error;
  std::string code;     ///< "P101"
  std::string message;  ///< One sentence, that a person reads.
  std::string section;  ///< With brackets; empty where there is none.
  std::string key;
  std::string hint;  ///< The name that is near, or what to do; may be empty.
};

}  // namespace qelpro
