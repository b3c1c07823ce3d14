#pragma once

namespace qel {

/// What a lookup or a store came to. The numbers are part of the document's contract.
enum class Result : int {
  done = 1,
  no_open = 0,   ///< The file cannot be opened, or a store was refused or could not be carried out.
  no_file = -1,  ///< No stream and no path.
  absent = -2,   ///< The section, key or line is not there.
};

inline constexpr int to_int(Result result) { return static_cast<int>(result); }

}  // namespace qel
