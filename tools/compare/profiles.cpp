#include "compare/profiles.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>

#include "compare/curve.h"
#include "file/profile.h"

namespace qelpro {
namespace {

// A profile that stands whole in a file: every point that its count promises is there, a pair of
// reals.
struct Whole {
  Curve curve;
  std::vector<const FileEntry*> entries;  // the count, then the points
  Json points = Json::array();
};

std::optional<std::array<double, 2>> pair_of(const TypedValue& typed) {
  if (typed.unread || typed.fields.size() != 2) {
    return std::nullopt;
  }
  const auto* const x = std::get_if<double>(&typed.fields.front());
  const auto* const y = std::get_if<double>(&typed.fields.back());
  if (x == nullptr || y == nullptr) {
    return std::nullopt;
  }
  return std::array{*x, *y};
}

std::optional<Whole> whole(const Profile& profile) {
  if (profile.count == nullptr ||
      typed_value(profile.section_info, profile.count->key, profile.count->value).unread ||
      profile.promised < 0 || profile.points.size() < static_cast<std::size_t>(profile.promised)) {
    return std::nullopt;
  }
  Whole result;
  result.entries.push_back(profile.count);
  for (int number = 1; number <= profile.promised; ++number) {
    const ProfilePoint& point = profile.points[static_cast<std::size_t>(number) - 1];
    const TypedValue typed = profile.typed_value_of(point);
    const std::optional<std::array<double, 2>> pair = pair_of(typed);
    if (point.number != number || !pair) {
      return std::nullopt;
    }
    result.curve.push_back(*pair);
    result.entries.push_back(point.entry);
    result.points.push_back(json_of(typed, point.entry->value));
  }
  return result;
}

// A curve whose x falls is the same curve, listed from its other end.
Curve rising(Curve curve) {
  if (!curve.empty() && curve.back()[0] < curve.front()[0]) {
    std::ranges::reverse(curve);
  }
  return curve;
}

const FileEntry* first_of(const Whole& profile) {
  return *std::ranges::min_element(profile.entries, {}, &FileEntry::line);
}

std::string count_of(const Whole& profile) {
  return std::to_string(profile.curve.size()) + (profile.curve.size() == 1 ? " point" : " points");
}

// Few enough digits that what a subtraction left over is not among them.
std::string rounded(double value, int digits) {
  std::array<char, 32> buffer{};
  const auto printed = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                     std::chars_format::general, digits);
  return {buffer.data(), printed.ptr};
}

Difference difference_of(const Profile& profile, const Whole* before, const Whole* after) {
  Difference difference;
  difference.of = Difference::Of::profile;
  difference.kind = before == nullptr  ? Difference::Kind::added
                    : after == nullptr ? Difference::Kind::removed
                                       : Difference::Kind::changed;
  difference.address = {profile.section, profile.kind.name};
  if (before != nullptr) {
    difference.before = count_of(*before);
    difference.typed_before = before->points;
  }
  if (after != nullptr) {
    difference.after = count_of(*after);
    difference.typed_after = after->points;
  }
  return difference;
}

void add_largest(Difference& difference, const LargestDifference& largest) {
  constexpr int kDigitsOfDifference = 6;
  constexpr int kDigitsOfPlace = 12;
  difference.remark = "largest difference " + rounded(largest.difference, kDigitsOfDifference) +
                      " at " + rounded(largest.at, kDigitsOfPlace);
  difference.largest = largest;
}

// Keeps what two profiles of one kind say, unless they are no curves that can be compared.
class ProfileComparison {
 public:
  ProfileComparison(const Tolerances& tolerances, ComparedProfiles& result)
      : tolerances_(tolerances), result_(result) {}

  void compare(const Profile* before, const Profile* after) {
    const std::optional<Whole> old = before != nullptr ? whole(*before) : std::nullopt;
    const std::optional<Whole> now = after != nullptr ? whole(*after) : std::nullopt;
    if (old && now) {
      compare_curves(*before, *old, *now);
    } else if (old && after == nullptr && !old->curve.empty()) {
      take(&*old, nullptr);
      result_.told.push_back({first_of(*old), difference_of(*before, &*old, nullptr)});
    } else if (now && before == nullptr && !now->curve.empty()) {
      take(nullptr, &*now);
      result_.told.push_back({first_of(*now), difference_of(*after, nullptr, &*now)});
    }
  }

 private:
  void compare_curves(const Profile& profile, const Whole& before, const Whole& after) {
    if (has_same_points(before.curve, after.curve, tolerances_)) {
      take(&before, &after);
      return;
    }
    const Curve old_curve = rising(before.curve);
    const Curve new_curve = rising(after.curve);
    if (!are_comparable(old_curve, new_curve)) {
      return;
    }
    take(&before, &after);
    Difference difference = difference_of(profile, &before, &after);
    if (!before.curve.empty() && !after.curve.empty()) {
      const auto largest = largest_difference(old_curve, new_curve, tolerances_);
      if (!largest) {
        return;
      }
      add_largest(difference, *largest);
    }
    result_.told.push_back({first_of(before), std::move(difference)});
  }

  void take(const Whole* before, const Whole* after) {
    for (const auto& [profile, taken] :
         {std::pair(before, &result_.taken_before), std::pair(after, &result_.taken_after)}) {
      if (profile != nullptr) {
        taken->insert(taken->end(), profile->entries.begin(), profile->entries.end());
      }
    }
  }

  const Tolerances& tolerances_;
  ComparedProfiles& result_;
};

const Profile* find(const std::vector<Profile>& profiles, const ProfileKind& kind) {
  const auto found = std::ranges::find_if(
      profiles, [&kind](const Profile& profile) { return profile.kind.point == kind.point; });
  return found != profiles.end() ? &*found : nullptr;
}

}  // namespace

ComparedProfiles compare_profiles(const SectionPair& sections, const Tolerances& tolerances) {
  ComparedProfiles result;
  if (tolerances.points) {
    return result;
  }
  const std::vector<Profile> before = profiles_of(sections.before, sections.section_before);
  const std::vector<Profile> after = profiles_of(sections.after, sections.section_after);
  ProfileComparison comparison(tolerances, result);
  for (const Profile& profile : before) {
    if (profile.kind.is_curve()) {
      comparison.compare(&profile, find(after, profile.kind));
    }
  }
  for (const Profile& profile : after) {
    if (profile.kind.is_curve() && find(before, profile.kind) == nullptr) {
      comparison.compare(nullptr, &profile);
    }
  }
  return result;
}

}  // namespace qelpro
