#include "simulation/process_notes.h"

#include <QELG/QELG.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "blocks/catalogue.h"
#include "blocks/flow_ctl_info.h"
#include "blocks/inlet_source.h"
#include "blocks/sections.h"
#include "file/value_check.h"
#include "system/visible.h"
#include "text/text.h"

namespace qelpro {

namespace {

constexpr int kMostInlets = QELG_SimulatorProcess::kMostInlets;

// The key of a control type, and that of the count of inlets.
constexpr const qel::KeyInfo& kControlType =
    row_to(qel::flow_ctl_info::kKeys, qel::InletItem::InletControlType);
constexpr const qel::KeyInfo& kTotalInlet = row_to(qel::flow_ctl_info::kKeys, qel::InletCount{});

// The number that a text holds as it is printed; 0 for any other text.
int printed_number(std::string_view text) {
  int number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  return parsed.ec == std::errc() && parsed.ptr == text.data() + text.size() && number >= 1 &&
                 text.front() != '0'
             ? number
             : 0;
}

// What stands after the number of a numbered name.
std::string_view after_number(std::string_view name) {
  return name.substr(name.find('d', name.find('%')) + 1);
}

// A name with that in the place of its number; one without a number as it is.
std::string name_with(std::string_view name, std::string_view number) {
  return qel::is_numbered(name)
             ? std::string(qel::prefix_of(name)).append(number).append(after_number(name))
             : std::string(name);
}

// "2", "2 to 4", "2, 5 to 7"
std::string ranges_of(const std::vector<std::pair<int, int>>& ranges) {
  constexpr std::size_t kMost = 8;
  std::string text;
  for (std::size_t index = 0; index < ranges.size(); ++index) {
    if (index == kMost) {
      return text + ", ...";
    }
    const auto& [first, last] = ranges[index];
    text += (text.empty() ? "" : ", ") + std::to_string(first) +
            (last > first ? " to " + std::to_string(last) : "");
  }
  return text;
}

/// The lines that lookups take in one section.
struct Entries {
  std::string name;
  std::map<std::string_view, TextLine> lines;

  [[nodiscard]] const TextLine* find(std::string_view key) const {
    const auto found = lines.find(key);
    return found != lines.end() ? &found->second : nullptr;
  }
};

class Diagnosis {
 public:
  Diagnosis(std::string file, const SectionedText& document)
      : file_(std::move(file)), document_(document) {}

  std::vector<ProcessNote> run() {
    for (std::size_t index = 0; index < document_.lines_before_sections(); ++index) {
      if (const TextLine line = document_.line(index); qel::kind_of(line) == LineKind::entry) {
        add({file_, line.number, "", ""}, "dropped: the line stands before the first section");
      }
    }
    for (const qel::SectionInfo* section :
         {&qel::cae_header::kInfo, &qel::summary::kInfo, &qel::flow_ctl::kInfo,
          &qel::mold_thermal_boundary_type::kInfo, &qel::machine::kInfo,
          &qel::ram_position::kInfo}) {
      Given given;
      take_section(*section, section->name, given);
    }
    inlets(project_type());
    for (const TextSection& section : document_.sections()) {
      if (section.repeated && taken_.contains(std::string(section.name))) {
        add({file_, document_.line(section.header).number, std::string(section.name), ""},
            "dropped: a section of this name came before");
      }
    }
    return std::move(notes_);
  }

 private:
  void add(const Where& where, const std::string& what) { notes_.push_back({where, what}); }
  void add(const Entries& section, const TextLine* line, std::string_view key,
           const std::string& what) {
    add({file_, line != nullptr ? line->number : 0, section.name, std::string(key)}, what);
  }

  // The section's entries; null where there is none. What nobody reads of it is told once.
  const Entries* taken(const std::string& name) {
    if (const auto known = taken_.find(name); known != taken_.end()) {
      return &known->second;
    }
    const TextSection* section = document_.find(name);
    if (section == nullptr) {
      return nullptr;
    }
    Entries& entries = taken_[name];
    entries.name = name;
    for (std::size_t index = section->header + 1; index < section->after; ++index) {
      take_line(document_.line(index), entries);
    }
    return &entries;
  }

  void take_line(const TextLine& line, Entries& entries) {
    const std::string_view key = qel::text::first_token(line.text);
    switch (qel::kind_of(line)) {
      case LineKind::blank:
      case LineKind::comment:
        return;
      case LineKind::indented:
        add(entries, &line, "",
            key.empty() ? "dropped: the line begins with a blank"
                        : "dropped: a carriage return stands in its key");
        return;
      case LineKind::without_equals:
        add(entries, &line, key, "read without a value: the line has no \"=\"");
        break;
      case LineKind::entry:
        break;
    }
    if (const std::string limit = limit_of(line); !limit.empty()) {
      add(entries, &line, key, limit);
    }
    if (!entries.lines.emplace(key, line).second) {
      add(entries, &line, key, "dropped: the key came before in this section");
    }
  }

  // What the catalogue's encoding of the key passes over; of a key that it does not know, what the
  // conversion does.
  static std::optional<std::string> unread(const std::string& section, std::string_view key,
                                           std::string_view value, qel::Kind kind) {
    int number = 0;
    const Reading reading = reading_of(qel::find_section(section.c_str(), number), key, value);
    if (reading.unread || (reading.key != nullptr &&
                           std::string_view(reading.key->encoding->name) != qel::Real::kName)) {
      return reading.unread;
    }
    switch (kind) {
      case qel::Kind::integer:
        return unread_part_of_integer(value);
      case qel::Kind::real:
        return unread_part_of_real(value);
      default:
        return {};
    }
  }

  static std::string read_as(const std::string& value, qel::Kind kind) {
    switch (kind) {
      case qel::Kind::integer:
        return std::to_string(static_cast<unsigned int>(qel::platform::to_int(value.c_str())));
      case qel::Kind::real:
        return qel::platform::print_real(qel::platform::to_real(value.c_str()));
      default:
        return {};
    }
  }

  void check_value(const Entries& section, const TextLine& line, const std::string& key,
                   qel::Kind kind) {
    const std::string value(qel::text::entry_value(line.text));
    if (const auto what = unread(section.name, key, value, kind)) {
      add(section, &line, key,
          in_quotes(value) + " is read as " + read_as(value, kind) + ": " + *what);
    } else if (kind == qel::Kind::integer && qel::platform::to_int(value.c_str()) < 0) {
      add(section, &line, key,
          in_quotes(value) + " is read as " + read_as(value, kind) + ": it is not negative there");
    }
  }

  // The load takes one number of a pair; of what stands after that, nothing is told.
  void check_pair(const Entries& section, const TextLine& line, const std::string& key,
                  bool takes_second) {
    const std::string value(qel::text::entry_value(line.text));
    const char* at = value.c_str();
    int number = 0;
    if (!qel::platform::scan_int(at, number) ||
        (takes_second && !qel::platform::scan_int(at, number))) {
      add(section, &line, key,
          in_quotes(value) + " is read as 0: " +
              (takes_second ? "two whole numbers are expected" : "a whole number is missing"));
    }
  }

  // Which entry an item or a list was given last.
  struct Giver {
    std::string section;
    std::string key;
    const TextLine* line;
  };
  using Given = std::map<qel::Destination, Giver>;

  // What a load takes of the section of that name, in the order of the rows. `number` is that of
  // numbered keys which are no points of a list.
  void take_section(const qel::SectionInfo& info, const std::string& name, Given& given,
                    int number = 0) {
    const Entries* section = taken(name);
    if (section == nullptr) {
      return;
    }
    const qel::KeyInfo* count = nullptr;
    for (const qel::KeyInfo& row : info.keys) {
      const auto take_item = [&](auto item) {
        take_item_of(*section, row, name_with(row.text, std::to_string(number)), kind_of_item(item),
                     given);
      };
      const auto take_list = [&] {
        if (!qel::is_numbered(row.text)) {
          count = &row;
        } else if (const qel::KeyInfo* counting = std::exchange(count, nullptr)) {
          take_counted(*section, *counting, row, given);
        } else {
          take_open_list(*section, qel::prefix_of(row.text));
        }
      };
      if (const auto* of_process = std::get_if<qel::ProcessItem>(&row.details.loader)) {
        take_item(*of_process);
      } else if (const auto* of_inlet = std::get_if<qel::InletItem>(&row.details.loader)) {
        take_item(*of_inlet);
      } else if (std::holds_alternative<qel::ProcessList>(row.details.loader) ||
                 std::holds_alternative<qel::InletList>(row.details.loader)) {
        take_list();
      }
    }
  }

  // A second entry that goes to an item replaces the first.
  void take_item_of(const Entries& section, const qel::KeyInfo& row, const std::string& key,
                    qel::Kind kind, Given& given) {
    const TextLine* line = section.find(key);
    if (line == nullptr) {
      return;
    }
    const std::string_view encoding = row.encoding->name;
    if (encoding == qel::IntegerPair::kName || encoding == qel::FirstOfIntegerPair::kName) {
      check_pair(section, *line, key, row.details.loads_second);
    } else {
      check_value(section, *line, key, kind);
    }
    const auto [place, first] =
        given.try_emplace(row.details.loader, Giver{section.name, key, line});
    if (!first) {
      const Giver& before = place->second;
      add(section, line, key,
          "replaces " + in_quotes(before.key) + " of " + before.section + " (line " +
              std::to_string(before.line->number) + ")");
      place->second = {section.name, key, line};
    }
  }

  // The points of a second list that go to one profile come after those of the first.
  void take_counted(const Entries& section, const qel::KeyInfo& count, const qel::KeyInfo& points,
                    Given& given) {
    if (counted(section, count.text, qel::prefix_of(points.text)) == 0) {
      return;
    }
    const TextLine* line = section.find(count.text);
    const auto [place, first] =
        given.try_emplace(points.details.loader, Giver{section.name, count.text, line});
    if (!first) {
      const Giver& before = place->second;
      add(section, line, count.text,
          "its points are appended to those of " + in_quotes(before.key) +
              (before.section != section.name ? " of " + before.section : ""));
    }
  }

  int project_type() {
    constexpr const qel::KeyInfo& kProjectType =
        row_to(qel::cae_header::kKeys, qel::ProcessItem::ProjectType);
    const Entries* header = taken(qel::cae_header::kSection);
    const TextLine* line = header != nullptr ? header->find(kProjectType.text) : nullptr;
    return line != nullptr
               ? qel::platform::to_int(std::string(qel::text::entry_value(line->text)).c_str())
               : 0;
  }

  static std::map<int, const TextLine*> points_of(const Entries& section, std::string_view prefix) {
    std::map<int, const TextLine*> points;
    for (auto at = section.lines.lower_bound(prefix);
         at != section.lines.end() && at->first.substr(0, prefix.size()) == prefix; ++at) {
      if (const int number = printed_number(at->first.substr(prefix.size())); number != 0) {
        points.emplace(number, &at->second);
      }
    }
    return points;
  }

  // A counted list: how many of its points are there.
  int counted(const Entries& section, std::string_view count_key, std::string_view prefix) {
    const TextLine* line = section.find(count_key);
    const std::map<int, const TextLine*> points = points_of(section, prefix);
    int count = 0;
    if (line != nullptr) {
      const std::string value(qel::text::entry_value(line->text));
      count = qel::platform::to_int(value.c_str());
      if (const auto what = unread_part_of_integer(value)) {
        add(section, line, count_key,
            in_quotes(value) + " is read as " + std::to_string(count) + ": " + *what);
      } else if (count < 0) {
        add(section, line, count_key, "a negative count is read as 0");
      }
    }
    const auto beyond = points.upper_bound(std::max(count, 0));
    missing_points(section, line, count_key, prefix, count, points);
    for (auto at = points.begin(); at != beyond; ++at) {
      point(section, *at->second, std::string(prefix) + std::to_string(at->first));
    }
    if (beyond != points.end()) {
      const auto last = std::prev(points.end());
      const std::string which =
          std::string(prefix) + std::to_string(beyond->first) +
          (beyond == last ? "" : " to " + std::string(prefix) + std::to_string(last->first));
      add(section, beyond->second, std::string(prefix) + std::to_string(beyond->first),
          "dropped: " + which +
              (line == nullptr ? ": \"" + std::string(count_key) + "\" is missing"
                               : " beyond \"" + std::string(count_key) + "\""));
    }
    return static_cast<int>(std::distance(points.begin(), beyond));
  }

  void missing_points(const Entries& section, const TextLine* line, std::string_view count_key,
                      std::string_view prefix, int count,
                      const std::map<int, const TextLine*>& points) {
    std::vector<std::pair<int, int>> missing;
    int expected = 1;
    for (auto at = points.begin(); at != points.end() && at->first <= count; ++at) {
      if (at->first > expected) {
        missing.emplace_back(expected, at->first - 1);
      }
      expected = at->first + 1;
    }
    if (count >= expected && count > 0) {
      missing.emplace_back(expected, count);
    }
    if (!missing.empty()) {
      add(section, line, count_key,
          "says " + std::to_string(count) + " points, of which " + std::string(prefix) +
              ranges_of(missing) + " missing");
    }
  }

  void point(const Entries& section, const TextLine& line, const std::string& key) {
    const std::string value(qel::text::entry_value(line.text));
    if (const auto what = unread(section.name, key, value, qel::Kind::real)) {
      add(section, &line, key, in_quotes(value) + " is not read whole: " + *what);
    }
  }

  // A list without a count ends before the first number that is missing.
  void take_open_list(const Entries& section, std::string_view prefix) {
    const std::map<int, const TextLine*> points = points_of(section, prefix);
    int expected = 1;
    for (const auto& [number, line] : points) {
      const std::string key = std::string(prefix) + std::to_string(number);
      if (number != expected) {
        add(section, line, key,
            "dropped, with what follows it: " + std::string(prefix) + std::to_string(expected) +
                " is missing");
        return;
      }
      point(section, *line, key);
      ++expected;
    }
  }

  std::int64_t inlet_count(int type, const qel::InletSource& source) {
    const Entries* info = taken(qel::flow_ctl_info::kSection);
    const char* const key = kTotalInlet.text;
    const TextLine* line = info != nullptr ? info->find(key) : nullptr;
    if (line == nullptr) {
      return source.count;
    }
    const std::string value(qel::text::entry_value(line->text));
    const int said = qel::platform::to_int(value.c_str());
    const std::int64_t count = said < 0 || said > kMostInlets ? kMostInlets : said;
    if (const auto what = unread_part_of_integer(value)) {
      add(*info, line, key,
          in_quotes(value) + " is read as " + std::to_string(count) + ": " + *what);
    } else if (count != said) {
      add(*info, line, key,
          in_quotes(value) + " is out of range: the process has " + std::to_string(count) +
              " inlets");
    } else if (source.fixed && count != source.count) {
      add(*info, line, key,
          in_quotes(value) + " is not " + std::to_string(source.count) + ": of project type " +
              std::to_string(type) +
              (count > source.count ? " two inlets are loaded"
               : count == 1         ? " one inlet is loaded"
                                    : " no inlet is loaded"));
    } else if (count == 0) {
      add(*info, line, key, "no inlet is loaded");
    }
    return count;
  }

  void inlets(int type) {
    const qel::InletSource& source = qel::inlet_source(static_cast<unsigned int>(type));
    const std::int64_t count = inlet_count(type, source);
    std::vector<std::pair<int, int>> without_section;
    for (int inlet = 1;
         inlet <= (source.fixed ? std::min<std::int64_t>(count, source.count) : count); ++inlet) {
      const std::string number = std::to_string(source.section_of(inlet));
      if (inlet == 1 || !source.shared) {
        take_inlet(source, inlet, number);
      }
      if (taken(name_with(source.flow->name, number)) == nullptr) {
        if (!without_section.empty() && without_section.back().second == inlet - 1) {
          without_section.back().second = inlet;
        } else {
          without_section.emplace_back(inlet, inlet);
        }
      }
    }
    if (!without_section.empty() &&
        (source.fixed || document_.find(qel::flow_ctl_info::kSection) != nullptr)) {
      add({file_, 0, source.fixed ? "" : qel::flow_ctl_info::kSection,
           source.fixed ? "" : kTotalInlet.text},
          "inlets without a section " + name_with(source.flow->name, source.shared ? "1" : "...") +
              ": " + ranges_of(without_section));
    }
    control_types_not_taken(type, source);
    sections_not_taken(type, source, count);
  }

  void take_inlet(const qel::InletSource& source, int inlet, const std::string& number) {
    Given given;
    if (!source.fixed) {
      take_section(qel::flow_ctl_info::kInfo, qel::flow_ctl_info::kSection, given, inlet);
    }
    for (const qel::SectionInfo* stage : source.stages()) {
      if (stage != nullptr) {
        take_section(*stage, name_with(stage->name, number), given);
      }
    }
  }

  // Of the two spellings of a control type's key the loader takes the one with a bracket, and of
  // two project types none.
  void control_types_not_taken(int type, const qel::InletSource& source) {
    const std::string_view prefix = qel::prefix_of(kControlType.text);
    const std::string_view suffix = after_number(kControlType.text);
    const Entries* info = taken(qel::flow_ctl_info::kSection);
    if (info == nullptr) {
      return;
    }
    for (auto at = info->lines.lower_bound(prefix);
         at != info->lines.end() && at->first.substr(0, prefix.size()) == prefix; ++at) {
      const std::string key(at->first);
      const std::string taken_key = key + std::string(suffix);
      if (source.fixed) {
        add(*info, &at->second, key,
            "dropped: of project type " + std::to_string(type) + " no control type is loaded");
      } else if (printed_number(at->first.substr(prefix.size())) != 0 &&
                 info->find(taken_key) == nullptr) {
        add(*info, &at->second, key,
            "dropped: the process takes the control type from " + in_quotes(taken_key));
      }
    }
  }

  static bool is_stage_of(const qel::InletSource& source, const qel::SectionInfo* section) {
    const auto stages = source.stages();
    return std::find(stages.begin(), stages.end(), section) != stages.end();
  }

  // Whether the name begins as that of an inlet's stage does.
  static bool is_named_as_stage(std::string_view name) {
    const auto stages = qel::kInlets.stages();
    return std::any_of(stages.begin(), stages.end(), [name](const qel::SectionInfo* stage) {
      return name.starts_with(qel::prefix_of(stage->name));
    });
  }

  // Stages of inlets that the process does not have, or that are none of its project type.
  void sections_not_taken(int type, const qel::InletSource& source, std::int64_t count) {
    for (const TextSection& section : document_.sections()) {
      const std::string name(section.name);
      int number = 0;
      const qel::SectionInfo* info = qel::find_section(name.c_str(), number);
      if (info == nullptr || !is_named_as_stage(name) || section.repeated ||
          taken_.contains(name)) {
        continue;
      }
      const bool beyond = !source.fixed && count > 0 && is_stage_of(source, info) && number > count;
      add({file_, document_.line(section.header).number, name, ""},
          beyond ? "dropped: the process has " + std::to_string(count) +
                       (count == 1 ? " inlet" : " inlets")
                 : "dropped: of project type " + std::to_string(type) + " it is not loaded");
    }
  }

  std::string file_;
  const SectionedText& document_;
  std::vector<ProcessNote> notes_;
  std::map<std::string, Entries> taken_;
};

}  // namespace

std::vector<ProcessNote> process_notes(const std::string& file, const SectionedText& document) {
  return Diagnosis(file, document).run();
}

Json json_of(const std::vector<ProcessNote>& notes) {
  Json list = Json::array();
  for (const ProcessNote& note : notes) {
    Json entry = Json::object();
    if (note.where.line != 0) {
      entry["line"] = note.where.line;
    }
    entry["section"] = note.where.section;
    entry["key"] = note.where.key;
    entry["message"] = note.what;
    list.push_back(std::move(entry));
  }
  return list;
}

}  // namespace qelpro
