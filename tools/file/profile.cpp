#include "file/profile.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>
#include <variant>

#include "blocks/catalogue.h"
#include "file/meaning.h"
#include "file/typed.h"

namespace qelpro {
namespace {

// What a count is called without what says that it counts.
std::string name_of(std::string_view count) {
  for (const std::string_view end : {"_Section", "Set"}) {
    if (count.size() > end.size() && count.ends_with(end)) {
      return std::string(count.substr(0, count.size() - end.size()));
    }
  }
  for (const std::string_view begin : {"Total"}) {
    if (count.starts_with(begin)) {
      return std::string(count.substr(begin.size()));
    }
  }
  return std::string(count);
}

bool is_two_reals(const qel::KeyInfo& key) {
  return key.encoding->read.size() == 2 && key.encoding->read[0].kind == qel::Kind::real &&
         key.encoding->read[1].kind == qel::Kind::real;
}

const qel::KeyInfo* row_of(const qel::SectionInfo& section, std::string_view text) {
  for (const qel::KeyInfo& key : section.keys) {
    if (key.text == text) {
      return &key;
    }
  }
  return nullptr;
}

std::string_view without_article(std::string_view words) {
  for (const std::string_view article : {"the ", "a ", "an "}) {
    if (words.starts_with(article)) {
      return words.substr(article.size());
    }
  }
  return words;
}

// The words in front of the unit that they state.
std::pair<std::string, std::string> with_unit(std::string_view words) {
  const std::string_view unit = unit_of(words);
  if (!unit.empty()) {
    words = words.substr(0, words.rfind(", in " + std::string(unit)));
  }
  return {std::string(without_article(words)), std::string(unit)};
}

}  // namespace

bool ProfileKind::is_curve() const { return is_two_reals(*point); }

std::vector<ProfileKind> profiles_of(const qel::SectionInfo& section) {
  std::vector<ProfileKind> kinds;
  for (const qel::KeyInfo& key : section.keys) {
    // Of several encodings of one key the first counts.
    if (key.details.counted_by != nullptr && row_of(section, key.text) == &key) {
      kinds.push_back(
          {name_of(key.details.counted_by), row_of(section, key.details.counted_by), &key});
    }
  }
  return kinds;
}

std::vector<std::array<double, 2>> Profile::curve() const {
  std::vector<std::array<double, 2>> curve;
  for (const ProfilePoint& point : points) {
    if (point.number > promised || !kind.is_curve()) {
      break;
    }
    const TypedValue typed = typed_value_of(point);
    // A text of one number may be whole, as another encoding of the key.
    if (typed.key == kind.point && !typed.unread) {
      curve.push_back({std::get<double>(typed.fields[0]), std::get<double>(typed.fields[1])});
    }
  }
  return curve;
}

TypedValue Profile::typed_value_of(const ProfilePoint& point) const {
  return typed_value(section_info, point.entry->key, point.entry->value);
}

std::vector<Profile> profiles_of(const Entries& entries, const TextSection& section) {
  std::vector<Profile> profiles;
  const qel::SectionInfo* const known = entries.known_section(section);
  if (known == nullptr || section.repeated) {
    return profiles;
  }
  for (ProfileKind& kind : profiles_of(*known)) {
    profiles.push_back(
        {std::move(kind), known, std::string(without_brackets(section.name)), nullptr, 0, {}});
    Profile& profile = profiles.back();
    profile.count = entries.find(section.name, profile.kind.count->text);
    if (profile.count != nullptr) {
      const TypedValue count = typed_value(known, profile.count->key, profile.count->value);
      profile.promised = count.unread ? 0 : std::get<int>(count.fields.front());
    }
  }
  for (const FileEntry& entry : entries.of(section)) {
    int number = 0;
    const qel::KeyInfo* const key = qel::find_key(*known, entry.key.c_str(), number);
    for (Profile& profile : profiles) {
      if (key == profile.kind.point && number >= 1) {
        profile.points.push_back({number, &entry});
      }
    }
  }
  for (Profile& profile : profiles) {
    std::ranges::stable_sort(profile.points, {}, &ProfilePoint::number);
  }
  std::erase_if(profiles, [](const Profile& profile) {
    return profile.count == nullptr && profile.points.empty();
  });
  return profiles;
}

std::vector<Profile> profiles_of(const Entries& entries) {
  std::vector<Profile> profiles;
  for (const TextSection& section : entries.document().sections()) {
    std::ranges::move(profiles_of(entries, section), std::back_inserter(profiles));
  }
  return profiles;
}

ProfileWords words_of(const ProfileKind& kind) {
  constexpr std::string_view kPointOf = "a point of the ";
  const std::string_view meaning = kind.point->meaning;
  ProfileWords words;
  const std::size_t colon = meaning.find(": ");
  const std::string_view title = meaning.substr(0, colon);
  words.title =
      title.starts_with(kPointOf) ? title.substr(kPointOf.size()) : without_article(title);
  if (colon == std::string_view::npos) {
    return words;
  }
  const std::string_view axes = meaning.substr(colon + 2);
  const std::size_t between = axes.find(", and ");
  const std::size_t plain = axes.find(" and ");
  if (between != std::string_view::npos) {
    std::tie(words.x, words.x_unit) = with_unit(axes.substr(0, between));
    std::tie(words.y, words.y_unit) = with_unit(axes.substr(between + 6));
  } else if (plain != std::string_view::npos) {
    std::tie(words.x, words.x_unit) = with_unit(axes.substr(0, plain));
    std::tie(words.y, words.y_unit) = with_unit(axes.substr(plain + 5));
  }
  return words;
}

}  // namespace qelpro
