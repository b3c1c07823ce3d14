#pragma once

#include <span>
#include <vector>

#include "compare/difference.h"
#include "file/entries.h"

namespace qelpro {

/// A section that both files have.
struct SectionPair {
  const Entries& before;
  const Entries& after;
  const TextSection& section_before;
  const TextSection& section_after;
};

/// What the curves of a section say of its entries.
struct ComparedProfiles {
  /// A difference, and the first of the entries that it is told of: one of the file that the
  /// difference is told of.
  struct Told {
    const FileEntry* first = nullptr;
    Difference difference;
  };
  std::vector<Told> told;
  /// The counts and the points that were compared, of each file.
  std::vector<const FileEntry*> taken_before;
  std::vector<const FileEntry*> taken_after;
};

/// Compares the profiles that make a curve and stand whole in both files, or in one of them and not
/// at all in the other. Points beyond a count belong to none.
ComparedProfiles compare_profiles(const SectionPair& sections, const Tolerances& tolerances);

}  // namespace qelpro
