#pragma once

#include <optional>
#include <string>
#include <vector>

#include "compare/curve.h"
#include "compare/tolerance.h"
#include "file/address.h"
#include "file/document_text.h"
#include "json/json_text.h"

namespace qelpro {

/// One difference between two files: of an entry, of a profile, or of a section that one file alone
/// has.
struct Difference {
  enum class Kind { changed, added, removed };
  enum class Of { entry, profile, section };
  Kind kind = Kind::changed;
  Of of = Of::entry;
  Address address;     ///< The key of a profile is what its count is called, "FR".
  std::string before;  ///< The text as it stands; "5 points" of a profile.
  std::string after;
  std::string remark;                ///< "largest difference 3.2 at 40" of a profile.
  std::optional<Json> typed_before;  ///< The typed value; the points of a profile.
  std::optional<Json> typed_after;
  std::optional<LargestDifference> largest;  ///< Of two profiles that have points.
};

/// In the order of the first file, then what the second alone has in its order.
std::vector<Difference> differences(const SectionedText& before, const SectionedText& after,
                                    const Tolerances& tolerances = {});

/// A difference as it is printed, in the parts that are coloured apart. Together they are one line
/// without its line break.
struct DifferenceText {
  std::string head;  ///< "~ Flow-1.FillTime: "; the whole of a line that begins with "-" or "+".
  std::string before;
  std::string between;
  std::string after;
  std::string tail;
};
DifferenceText text_of(const Difference& difference);

/// "~ Flow-1.FillTime: 1.0 -> 1.5", without a line break.
std::string line_of(const Difference& difference);

/// "changed"
const char* word_of(Difference::Kind kind);

Json json_of(const Difference& difference);

}  // namespace qelpro
