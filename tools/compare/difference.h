#pragma once

#include <string>
#include <vector>

#include "file/document_text.h"

namespace qelpro {

/// One difference between two files.
struct Difference {
  enum class Kind { changed, added, removed };
  Kind kind = Kind::changed;
  std::string address;  ///< "Flow-1.FillTime"; "[Flow-2]" for a section that one file alone has.
  std::string before;   ///< The text as it stands; or what is said of a profile.
  std::string after;
  std::string remark;  ///< "largest difference 3.2 at 40" of a profile.
};

struct Tolerances {
  double relative = 0;
  double absolute = 0;
  bool points = false;  ///< Profiles are compared point by point.
};

/// In the order of the first file, then of what the second alone has.
std::vector<Difference> differences(const SectionedText& before, const SectionedText& after,
                                    const Tolerances& tolerances);

/// "~ Flow-1.FillTime: 1.0 -> 1.5", without a line break.
std::string line_of(const Difference& difference);

}  // namespace qelpro
