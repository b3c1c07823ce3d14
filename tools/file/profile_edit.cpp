#include <algorithm>
#include <cmath>
#include <utility>

#include "blocks/catalogue.h"
#include "file/edit.h"
#include "file/near.h"
#include "file/point_table.h"
#include "file/typed.h"
#include "system/failure.h"

namespace qelpro {
namespace {

// Of a point's encodings the first that has so many numbers.
const qel::KeyInfo* row_with(const qel::SectionInfo& section, const qel::KeyInfo& point,
                             std::size_t width) {
  for (const qel::KeyInfo& key : section.keys) {
    if (std::string_view(key.text) == point.text && key.encoding->read.size() == width &&
        std::ranges::none_of(key.encoding->read, [](const qel::FieldArgument& field) {
          return field.kind != qel::Kind::real && field.kind != qel::Kind::integer;
        })) {
      return &key;
    }
  }
  return nullptr;
}

std::vector<GivenField> fields_of(const std::vector<double>& point) {
  std::vector<GivenField> fields;
  fields.reserve(point.size());
  for (const double number : point) {
    fields.push_back({number, ""});
  }
  return fields;
}

std::string text_of_point(const qel::SectionInfo& section, const qel::KeyInfo& point, int number,
                          const std::vector<double>& numbers) {
  const qel::KeyInfo* const row = row_with(section, point, numbers.size());
  if (row == nullptr) {
    refuse_usage("a point is written as: " + std::string(point.encoding->name));
  }
  if (!std::ranges::all_of(numbers, [](double value) { return std::isfinite(value); })) {
    refuse_usage("a number of the point is not finite");
  }
  return text_of(*row, number, fields_of(numbers));
}

}  // namespace

Edit set_profile(std::string section, std::string name, std::vector<std::vector<double>> points) {
  return {[section = std::move(section), name = std::move(name), points = std::move(points)](
              const std::string& file, const Entries& entries) {
    const qel::SectionInfo* const known = known_section(section);
    const Profile old = profile_named(file, entries, section, name);
    const ProfileKind& kind = old.kind;
    std::vector<Change> changes{
        {Change::Kind::set, {section, kind.count->text}, std::to_string(points.size())}};
    for (std::size_t index = 0; index < points.size(); ++index) {
      const int number = static_cast<int>(index + 1);
      const std::string key = with_number(kind.point->text, number);
      try {
        changes.push_back({Change::Kind::set,
                           {section, key},
                           text_of_point(*known, *kind.point, number, points[index])});
      } catch (const Failure& failure) {
        throw Failure(failure.status(), at({file, 0, with_brackets(section), key}, failure.what()));
      }
    }
    for (const Change& change : changes) {
      check_change(file, change, false);
    }
    for (const ProfilePoint& point : old.points) {
      if (static_cast<std::size_t>(point.number) > points.size()) {
        changes.push_back({Change::Kind::remove, {section, point.entry->key}, ""});
      }
    }
    return changes;
  }};
}

}  // namespace qelpro
