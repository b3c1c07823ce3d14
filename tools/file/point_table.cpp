#include "file/point_table.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>
#include <variant>

#include "file/typed.h"
#include "system/failure.h"
#include "system/visible.h"

namespace qelpro {
namespace {

// More points than a file that a person waits for has; and no reason to fill the memory.
constexpr std::size_t kMostMissing = 1'000'000;

std::string prefix_of(const ProfileKind& kind) {
  std::string prefix(qel::prefix_of(kind.point->text));
  while (!prefix.empty() && (prefix.back() == '-' || prefix.back() == '_')) {
    prefix.pop_back();
  }
  return prefix;
}

[[noreturn]] void refuse(const std::string& file, const std::string& section,
                         const std::string& key, const std::string& what) {
  throw Failure(kUsage, at({file, 0, with_brackets(section), key}, what));
}

std::vector<double> numbers_of(const std::string& file, const Profile& profile,
                               const ProfilePoint& point) {
  const TypedValue typed = profile.typed_value_of(point);
  const std::string text(point.entry->value);
  if (typed.unread) {
    refuse(file, profile.section, point.entry->key, in_quotes(text) + ": " + *typed.unread);
  }
  std::vector<double> numbers;
  for (const qel::Field& field : typed.fields) {
    if (std::holds_alternative<std::string>(field)) {
      refuse(file, profile.section, point.entry->key, in_quotes(text) + " is no point of numbers");
    }
    const auto* const real = std::get_if<double>(&field);
    const auto* const whole = std::get_if<int>(&field);
    numbers.push_back(real != nullptr    ? *real
                      : whole != nullptr ? *whole
                                         : std::numeric_limits<double>::quiet_NaN());
  }
  return numbers;
}

std::size_t promised(const std::string& file, const Profile& profile) {
  const char* const key = profile.kind.count->text;
  if (profile.count == nullptr) {
    throw Failure(kNotFound, at({file, 0, with_brackets(profile.section), key},
                                "not found: the file does not say how many points there are"));
  }
  const TypedValue count =
      typed_value(profile.section_info, profile.count->key, profile.count->value);
  if (count.unread) {
    refuse(file, profile.section, key,
           in_quotes(std::string(profile.count->value)) + ": " + *count.unread);
  }
  const auto number = static_cast<std::size_t>(std::max(0, profile.promised));
  if (number > profile.points.size() + kMostMissing) {
    refuse(file, profile.section, key,
           std::to_string(number) + " points are promised, of which the file has " +
               std::to_string(profile.points.size()));
  }
  return number;
}

std::vector<ProfileKind> kinds_of(const std::string& file, const std::string& section,
                                  const std::string& name) {
  const qel::SectionInfo* const known = known_section(section);
  std::vector<ProfileKind> kinds =
      known != nullptr ? profiles_of(*known) : std::vector<ProfileKind>();
  std::erase_if(
      kinds, [&](const ProfileKind& kind) { return kind.name != name && prefix_of(kind) != name; });
  if (kinds.empty()) {
    throw Failure(kNotFound, at({file, 0, with_brackets(section), name},
                                "is no table of points that the catalogue knows"));
  }
  return kinds;
}

}  // namespace

Profile profile_named(const std::string& file, const Entries& entries, const std::string& section,
                      const std::string& name) {
  const std::vector<ProfileKind> kinds = kinds_of(file, section, name);
  Profile chosen{kinds.front(), known_section(section), section, nullptr, 0, {}};
  const TextSection* const there = entries.find_section(section);
  if (there == nullptr) {
    return chosen;
  }
  for (Profile& profile : profiles_of(entries, *there)) {
    const bool is_one = std::ranges::any_of(
        kinds, [&](const ProfileKind& kind) { return kind.point == profile.kind.point; });
    const bool is_better = chosen.count == nullptr || !profile.points.empty();
    if (is_one && chosen.points.empty() && is_better) {
      chosen = std::move(profile);
    }
  }
  return chosen;
}

PointTable point_table(const std::string& file, const Entries& entries, const std::string& section,
                       const std::string& name) {
  constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();
  const Profile profile = profile_named(file, entries, section, name);
  PointTable table;
  table.count = promised(file, profile);
  table.width = profile.kind.point->encoding->read.size();
  bool is_first = true;
  for (const ProfilePoint& point : profile.points) {
    if (static_cast<std::size_t>(point.number) > table.count) {
      break;
    }
    const std::vector<double> numbers = numbers_of(file, profile, point);
    if (is_first) {
      table.width = numbers.size();
      table.numbers.assign(table.count * table.width, kMissing);
      is_first = false;
    }
    if (numbers.size() != table.width) {
      refuse(file, section, point.entry->key,
             "has " + std::to_string(numbers.size()) + " numbers, and the points before it " +
                 std::to_string(table.width));
    }
    std::ranges::copy(numbers, table.numbers.begin() +
                                   static_cast<std::ptrdiff_t>(
                                       (static_cast<std::size_t>(point.number) - 1) * table.width));
  }
  if (is_first) {
    table.numbers.assign(table.count * table.width, kMissing);
  }
  return table;
}

}  // namespace qelpro
