#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/key.h"
#include "file/entries.h"
#include "file/typed.h"

namespace qelpro {

/// A table of the catalogue: the key that counts its points, and the numbered key of the points. A
/// count that counts several kinds of points has a table for each.
struct ProfileKind {
  std::string name;  ///< What the count is called without its "Set" or "_Section": "FR", "RP_IP".
  const qel::KeyInfo* count = nullptr;
  const qel::KeyInfo* point = nullptr;
  /// Whether its points are pairs of reals, which make a curve.
  [[nodiscard]] bool is_curve() const;
};

/// The tables of a section in the catalogue's order.
std::vector<ProfileKind> profiles_of(const qel::SectionInfo& section);

/// A point of a table in a file.
struct ProfilePoint {
  int number = 0;
  const FileEntry* entry = nullptr;
};

/// A table of a file.
struct Profile {
  ProfileKind kind;
  const qel::SectionInfo* section_info = nullptr;
  std::string section;               ///< Without brackets.
  const FileEntry* count = nullptr;  ///< Null where the file does not say it.
  int promised = 0;                  ///< What it says; 0 where it is none or not whole.
  std::vector<ProfilePoint> points;  ///< Those that are there, by number, also beyond the count.

  /// "Flow-1.FR"
  [[nodiscard]] std::string address() const { return section + "." + kind.name; }
  [[nodiscard]] TypedValue typed_value_of(const ProfilePoint& point) const;
  /// The points that the count promises and that are there whole, as a curve.
  [[nodiscard]] std::vector<std::array<double, 2>> curve() const;
};

/// The tables of a file of which there is a count or a point, by section in the file's order.
std::vector<Profile> profiles_of(const Entries& entries);
std::vector<Profile> profiles_of(const Entries& entries, const TextSection& section);

/// What a profile's axes and title say, from what the catalogue says of its points.
struct ProfileWords {
  std::string title;   ///< "flow rate profile"
  std::string x;       ///< "how far filling has gone"
  std::string x_unit;  ///< "" where it has none
  std::string y;       ///< "flow rate"
  std::string y_unit;  ///< "cc/sec"
};
ProfileWords words_of(const ProfileKind& kind);

}  // namespace qelpro
