#include <algorithm>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "blocks/catalogue.h"
#include "blocks/destination.h"
#include "check/checked.h"
#include "check/numbers.h"
#include "check/older_object.h"
#include "check/values.h"
#include "file/near.h"
#include "file/profile.h"
#include "file/typed.h"

namespace qelpro {
namespace {

// No section holds more points: no profile of a process has as many.
constexpr int kMostPoints = 4095;

/// The tables of one count. A point is there where one of them has it.
using Tables = std::span<const Profile>;

std::vector<int> numbers_of(Tables tables) {
  std::vector<int> numbers;
  for (const Profile& table : tables) {
    for (const ProfilePoint& point : table.points) {
      numbers.push_back(point.number);
    }
  }
  std::ranges::sort(numbers);
  return numbers;
}

std::string things(int count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

class SectionProfiles {
 public:
  SectionProfiles(const Checked& file, const TextSection& section,
                  const std::vector<const FileEntry*>& astray)
      : file_(file),
        section_(section.name),
        known_(*file.entries.known_section(section)),
        astray_(astray) {}

  void check(Tables tables) {
    const FileEntry* const count = tables.front().count;
    const std::optional<int> promised =
        count != nullptr ? whole_number(*tables.front().kind.count, count->value) : std::nullopt;
    int most = kMostPoints;
    if (promised && (*promised < 0 || *promised > kMostPoints)) {
      check_size(*count, *promised);
    } else if (promised) {
      most = *promised;
      check_missing(tables, *count, most);
      check_beyond(tables, *count, most);
    }
    for (const Profile& table : tables) {
      check_falling(table, most);
    }
  }

 private:
  [[nodiscard]] Place value_of(const FileEntry& entry) const {
    return at_value(file_.document.line(entry.line), section_, entry.key);
  }

  void check_size(const FileEntry& count, int promised) {
    file_.findings.add(rule("P303"), value_of(count),
                       "the count \"" + count.key + "\" is " +
                           (promised < 0 ? "negative"
                                         : "more than the " + std::to_string(kMostPoints) +
                                               " that a section can hold"));
  }

  void check_missing(Tables tables, const FileEntry& count, int promised) {
    // What an inlet lacks of its own beside its sections is no point.
    if (std::holds_alternative<qel::InletCount>(tables.front().kind.count->details.loader)) {
      return;
    }
    std::vector<int> numbers = numbers_of(tables);
    add_astray(tables.front(), numbers);
    const std::vector<Run> missing = missing_of(numbers, promised);
    if (missing.empty()) {
      return;
    }
    const char* const pattern = tables.front().kind.point->text;
    file_.findings.add(
        rule("P301"), value_of(count),
        "\"" + count.key + "\" promises " + things(promised, "point") + ", of which " +
            std::to_string(count_of(missing)) + (count_of(missing) == 1 ? " is" : " are") +
            " missing: " +
            listed(missing, [pattern](int number) { return with_number(pattern, number); }));
  }

  // The older object puts a new point behind the file's last line, whatever section that is of, and
  // finds it there.
  void add_astray(const Profile& table, std::vector<int>& numbers) const {
    for (const FileEntry* entry : astray_) {
      int number = 0;
      if (qel::find_key(known_, entry->key.c_str(), number) == table.kind.point &&
          has_setter(*table.kind.point)) {
        numbers.push_back(number);
      }
    }
    std::ranges::sort(numbers);
  }

  void check_beyond(Tables tables, const FileEntry& count, int promised) {
    for (const Profile& table : tables) {
      for (const ProfilePoint& point : table.points) {
        if (point.number > promised) {
          file_.findings.add(
              rule("P302"),
              at_line(file_.document.line(point.entry->line), section_, point.entry->key),
              "\"" + point.entry->key + "\" is beyond the count \"" + count.key + "\", which is " +
                  std::to_string(promised));
        }
      }
    }
  }

  // Over the stroke of a ram the positions fall.
  [[nodiscard]] bool is_over_stroke(const Profile& table) const {
    if (words_of(table.kind).x.find("ram position") != std::string::npos) {
      return true;
    }
    const FileEntry* const mode = file_.entries.find(section_, table.kind.name + "StrokeMode");
    return mode != nullptr && mode->value != "0";
  }

  void check_falling(const Profile& table, int most) {
    if (!table.kind.is_curve() || is_over_stroke(table)) {
      return;
    }
    constexpr double kNone = -std::numeric_limits<double>::infinity();
    double last = kNone;
    std::string last_key;
    for (const ProfilePoint& point : table.points) {
      const TypedValue typed = table.typed_value_of(point);
      if (typed.unread || point.number > most) {
        last = kNone;
        continue;
      }
      const double x = std::get<double>(typed.fields.front());
      if (x < last) {
        file_.findings.add(rule("P304"), value_of(*point.entry),
                           "\"" + point.entry->key + "\" falls back to " + shortest(x) +
                               ", behind the " + shortest(last) + " of \"" + last_key + "\"");
      }
      last = x;
      last_key = point.entry->key;
    }
  }

  const Checked& file_;
  std::string_view section_;
  const qel::SectionInfo& known_;
  const std::vector<const FileEntry*>& astray_;
};

bool may_have_profiles(const Checked& file, const TextSection& section) {
  return std::ranges::any_of(file.entries.of(section), [&](const FileEntry& entry) {
    const qel::KeyInfo* const key = file.key_of(entry);
    return key != nullptr && (key->details.counted_by != nullptr || is_whole_number(*key));
  });
}

}  // namespace

void check_profiles(const Checked& file) {
  std::vector<const FileEntry*> astray;
  for (const FileEntry& entry : file.entries.all()) {
    if (file.key_of(entry) == nullptr &&
        is_in_layout_of_older_object(file.document.line(entry.line), entry.key)) {
      astray.push_back(&entry);
    }
  }
  for (const TextSection& section : file.document.sections()) {
    if (!may_have_profiles(file, section)) {
      continue;
    }
    const std::vector<Profile> profiles = profiles_of(file.entries, section);
    SectionProfiles checked(file, section, astray);
    for (std::size_t begin = 0; begin < profiles.size();) {
      std::size_t end = begin + 1;
      while (end < profiles.size() && profiles[end].kind.count == profiles[begin].kind.count) {
        ++end;
      }
      checked.check(std::span(profiles).subspan(begin, end - begin));
      begin = end;
    }
  }
}

}  // namespace qelpro
