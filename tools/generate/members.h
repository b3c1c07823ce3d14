#pragma once

#include <string>
#include <string_view>

/// The members of one exported object that serve one key each, made from the rows of src/blocks.
struct ExportedObject {
  std::string_view name;  ///< The class.
  bool writes = false;    ///< Whether its members write; else they read.
};

inline constexpr ExportedObject kReader{"CQELPROReader_Manipulator", false};
inline constexpr ExportedObject kWriter{"CQELPROWriter_Manipulator", true};

/// The object's header with the region of the made declarations renewed. A member that the header
/// declares outside of the region is written by hand, and none of it is made. Throws where the
/// header has no such region.
std::string with_declarations(const ExportedObject& object, const std::string& header);

/// The source file that defines those members.
std::string definitions(const ExportedObject& object, const std::string& header);
