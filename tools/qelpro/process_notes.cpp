#include "process_notes.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "blocks/catalogue.h"
#include "process/items.h"
#include "text/text.h"
#include "value_check.h"

namespace {

using qel::loading::Item;

constexpr int kMostInlets = 4096;
constexpr int kCoInjection = 8;
constexpr int kTwoMeltEntrances = 11;

std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

// The number that a text holds as it is printed; 0 for any other text.
int printed_number(std::string_view text) {
  int number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  return parsed.ec == std::errc() && parsed.ptr == text.data() + text.size() && number >= 1 &&
                 text.front() != '0'
             ? number
             : 0;
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
    const int type = project_type();
    items("[CaeHeader]", qel::loading::kCaeHeader);
    items("[Summary]", qel::loading::kSummary);
    items("[FlowCTL]", qel::loading::kFlowCTL);
    items("[MoldThermalBoundaryType]", qel::loading::kMoldThermalBoundaryType);
    items("[Machine]", qel::loading::kMachine);
    items("[RamPosition]", qel::loading::kRamPosition);
    if (const Entries* ram = taken("[RamPosition]")) {
      counted(*ram, "RP_FRSet", "RP_FR-");
      counted(*ram, "RP_IPSet", "RP_IP-");
    }
    inlets(type);
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
    for (std::size_t index = section->header + 1; index < section->behind; ++index) {
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
        add(entries, &line, "", "dropped: the line begins with a blank");
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
  template <class Setter>
  std::optional<std::string> unread(const std::string& section, std::string_view key,
                                    std::string_view value) {
    int number = 0;
    const Reading reading = reading_of(qel::find_section(section.c_str(), number), key, value);
    if (reading.unread || (reading.key != nullptr &&
                           std::string_view(reading.key->encoding->name) != qel::Real::kName)) {
      return reading.unread;
    }
    if constexpr (std::is_same_v<Setter, unsigned int>) {
      return unread_part_of_integer(value);
    } else if constexpr (std::is_same_v<Setter, double>) {
      return unread_part_of_real(value);
    } else {
      return {};
    }
  }

  template <class Target, class Value>
  void check(const Entries& section, const TextLine& line, std::string_view key,
             void (* /*set*/)(Target&, Value)) {
    const std::string value(qel::text::entry_value(line.text));
    if (const auto what = unread<Value>(section.name, key, value)) {
      std::string read_as;
      if constexpr (std::is_same_v<Value, unsigned int>) {
        read_as = std::to_string(static_cast<unsigned int>(qel::platform::to_int(value.c_str())));
      } else if constexpr (std::is_same_v<Value, double>) {
        read_as = qel::platform::print_real(qel::platform::to_real(value.c_str()));
      }
      add(section, &line, key, quoted(value) + " is read as " + read_as + ": " + *what);
    } else if constexpr (std::is_same_v<Value, unsigned int>) {
      if (const int number = qel::platform::to_int(value.c_str()); number < 0) {
        add(section, &line, key,
            quoted(value) + " is read as " + std::to_string(static_cast<unsigned int>(number)) +
                ": it is not negative there");
      }
    }
  }

  // Which entry a setter was given last: a second one replaces the first.
  struct Given {
    std::string section;
    std::string_view key;
    const TextLine* line;
  };
  using Setters = std::map<std::uintptr_t, Given>;

  template <class Target, std::size_t count>
  void items(const std::string& name, const Item<Target> (&rows)[count], Setters& given) {
    const Entries* section = taken(name);
    if (section == nullptr) {
      return;
    }
    for (const Item<Target>& item : rows) {
      const TextLine* line = section->find(item.key);
      if (line == nullptr) {
        continue;
      }
      std::visit([&](auto set) { check(*section, *line, item.key, set); }, item.set);
      const std::uintptr_t setter =
          std::visit([](auto set) { return reinterpret_cast<std::uintptr_t>(set); }, item.set);
      const auto [place, first] = given.try_emplace(setter, Given{name, item.key, line});
      if (!first) {
        const Given& before = place->second;
        add(*section, line, item.key,
            "replaces \"" + std::string(before.key) + "\" of " + before.section + " (line " +
                std::to_string(before.line->number) + ")");
        place->second = {name, item.key, line};
      }
    }
  }
  template <class Target, std::size_t count>
  void items(const std::string& name, const Item<Target> (&rows)[count]) {
    Setters given;
    items(name, rows, given);
  }

  // The first and the second whole number of a pair are both expected.
  int project_type() {
    const Entries* header = taken("[CaeHeader]");
    const TextLine* line = header != nullptr ? header->find("ProjectType") : nullptr;
    if (line == nullptr) {
      return 0;
    }
    const std::string value(qel::text::entry_value(line->text));
    const int type = qel::platform::to_int(value.c_str());
    const char* at = value.c_str();
    int first = 0;
    // The loader takes the first number alone.
    if (!qel::platform::scan_int(at, first)) {
      add(*header, line, "ProjectType", quoted(value) + " is read as 0: a whole number is missing");
    }
    return type;
  }

  // A counted list: how many of its points are there.
  int counted(const Entries& section, std::string_view count_key, std::string_view prefix) {
    const TextLine* line = section.find(count_key);
    std::map<int, const TextLine*> points;
    for (auto at = section.lines.lower_bound(prefix);
         at != section.lines.end() && at->first.substr(0, prefix.size()) == prefix; ++at) {
      if (const int number = printed_number(at->first.substr(prefix.size())); number != 0) {
        points.emplace(number, &at->second);
      }
    }
    int count = 0;
    if (line != nullptr) {
      const std::string value(qel::text::entry_value(line->text));
      count = qel::platform::to_int(value.c_str());
      if (const auto what = unread_part_of_integer(value)) {
        add(section, line, count_key,
            quoted(value) + " is read as " + std::to_string(count) + ": " + *what);
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
    if (const auto what = unread<double>(section.name, key, value)) {
      add(section, &line, key, quoted(value) + " is not read whole: " + *what);
    }
  }

  // A list without a count ends before the first number that is missing.
  void open_list(const Entries& section, std::string_view prefix) {
    std::map<int, const TextLine*> points;
    for (auto at = section.lines.lower_bound(prefix);
         at != section.lines.end() && at->first.substr(0, prefix.size()) == prefix; ++at) {
      if (const int number = printed_number(at->first.substr(prefix.size())); number != 0) {
        points.emplace(number, &at->second);
      }
    }
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

  struct Stage {
    int number = 0;
    std::string flow;
    std::string pack;
    std::string cure;
  };

  void stage(const Stage& stage) {
    Setters given;
    items(stage.flow, qel::loading::kFlow, given);
    if (const Entries* flow = taken(stage.flow)) {
      counted(*flow, "FRSet", "FR-");
      const int injection_points = counted(*flow, "IPSet", "IP-");
      if (counted(*flow, "TPSet", "TP-") > 0 && injection_points > 0) {
        add(*flow, flow->find("TPSet"), "TPSet", "its points are appended to those of \"IPSet\"");
      }
      open_list(*flow, "TimeConstFR-");
      open_list(*flow, "TimeConstIP-");
      open_list(*flow, "TimeConstPP-");
    }
    items(stage.pack, qel::loading::kPack, given);
    int packing_points = 0;
    if (const Entries* pack = taken(stage.pack)) {
      packing_points = counted(*pack, "PPSet", "PP-");
      counted(*pack, "FluidSet", "Fluid-");
    }
    if (stage.cure.empty()) {
      return;
    }
    items(stage.cure, qel::loading::kCure, given);
    if (const Entries* cure = taken(stage.cure)) {
      if (counted(*cure, "CPSet", "CP-") > 0 && packing_points > 0) {
        add(*cure, cure->find("CPSet"), "CPSet",
            "its points are appended to those of \"PPSet\" of " + stage.pack);
      }
    }
  }

  std::int64_t inlet_count(int type) {
    const bool has_two = type == kCoInjection || type == kTwoMeltEntrances;
    const Entries* info = taken("[FlowCTLInfo]");
    const TextLine* line = info != nullptr ? info->find("TotalInlet") : nullptr;
    if (line == nullptr) {
      return has_two ? 2 : 1;
    }
    const std::string value(qel::text::entry_value(line->text));
    const int said = qel::platform::to_int(value.c_str());
    const std::int64_t count = said < 0 || said > kMostInlets ? kMostInlets : said;
    if (const auto what = unread_part_of_integer(value)) {
      add(*info, line, "TotalInlet",
          quoted(value) + " is read as " + std::to_string(count) + ": " + *what);
    } else if (count != said) {
      add(*info, line, "TotalInlet",
          quoted(value) + " is out of range: the process has " + std::to_string(count) + " inlets");
    } else if (has_two && count != 2) {
      add(*info, line, "TotalInlet",
          quoted(value) + " is not 2: of project type " + std::to_string(type) +
              (count > 2    ? " two inlets are loaded"
               : count == 1 ? " one inlet is loaded"
                            : " no inlet is loaded"));
    } else if (count == 0) {
      add(*info, line, "TotalInlet", "no inlet is loaded");
    }
    return count;
  }

  void inlets(int type) {
    const std::int64_t count = inlet_count(type);
    std::vector<std::pair<int, int>> without_section;
    std::string flow = "[Flow-...]";
    const auto load = [&](const Stage& names) {
      stage(names);
      if (taken(names.flow) == nullptr) {
        if (!without_section.empty() && without_section.back().second == names.number - 1) {
          without_section.back().second = names.number;
        } else {
          without_section.emplace_back(names.number, names.number);
        }
      }
    };
    if (type == kCoInjection) {
      // Both inlets come from the sections numbered 1.
      flow = "[Flow-1-Skin]";
      if (count > 0) {
        load({1, flow, "[Pack-1-Skin]", ""});
      }
      if (!without_section.empty() && count > 1) {
        without_section.back().second = 2;
      }
    } else if (type == kTwoMeltEntrances) {
      flow = "[Flow-EM...]";
      for (int number = 1; number <= std::min<std::int64_t>(count, 2); ++number) {
        const std::string bracket = std::to_string(number) + "]";
        load({number, "[Flow-EM" + bracket, "[Pack-EM" + bracket, ""});
      }
    } else {
      for (int number = 1; number <= count; ++number) {
        const std::string bracket = std::to_string(number) + "]";
        control_type(number);
        load({number, "[Flow-" + bracket, "[Pack-" + bracket, "[Cure-" + bracket});
      }
    }
    const bool has_two = type == kCoInjection || type == kTwoMeltEntrances;
    if (!without_section.empty() && (has_two || document_.find("[FlowCTLInfo]") != nullptr)) {
      add({file_, 0, has_two ? "" : "[FlowCTLInfo]", has_two ? "" : "TotalInlet"},
          "inlets without a section " + flow + ": " + ranges_of(without_section));
    }
    control_types_not_taken(type, has_two);
    sections_not_taken(type, has_two ? 0 : count);
  }

  // Of the two spellings of a control type's key the loader takes the one with a bracket, and of
  // two project types none.
  void control_types_not_taken(int type, bool has_two) {
    constexpr std::string_view kPrefix = "FlowCTL-";
    const Entries* info = taken("[FlowCTLInfo]");
    if (info == nullptr) {
      return;
    }
    for (auto at = info->lines.lower_bound(kPrefix);
         at != info->lines.end() && at->first.substr(0, kPrefix.size()) == kPrefix; ++at) {
      const std::string key(at->first);
      if (has_two) {
        add(*info, &at->second, key,
            "dropped: of project type " + std::to_string(type) + " no control type is loaded");
      } else if (printed_number(at->first.substr(kPrefix.size())) != 0 &&
                 info->find(key + "]") == nullptr) {
        add(*info, &at->second, key,
            "dropped: the process takes the control type from " + quoted(key + "]"));
      }
    }
  }

  // The loader's key has a closing bracket.
  void control_type(int number) {
    const Entries* info = taken("[FlowCTLInfo]");
    const std::string key = "FlowCTL-" + std::to_string(number) + "]";
    const TextLine* line = info != nullptr ? info->find(key) : nullptr;
    if (line == nullptr) {
      return;
    }
    const std::string value(qel::text::entry_value(line->text));
    const char* at = value.c_str();
    int first = 0;
    int second = 0;
    if (!qel::platform::scan_int(at, first) || !qel::platform::scan_int(at, second)) {
      add(*info, line, key, quoted(value) + " is read as 0: two whole numbers are expected");
    }
  }

  // Stages of inlets that the process does not have, or that are none of its project type. `count`
  // is that of inlets with a number alone.
  void sections_not_taken(int type, std::int64_t count) {
    for (const TextSection& section : document_.sections()) {
      for (const std::string_view prefix : {"[Flow-", "[Pack-", "[Cure-"}) {
        const std::string name(section.name);
        int row_number = 0;
        if (section.name.substr(0, prefix.size()) != prefix || section.repeated ||
            taken_.contains(name) || qel::find_section(name.c_str(), row_number) == nullptr) {
          continue;
        }
        const int number = printed_number(
            section.name.substr(prefix.size(), section.name.size() - prefix.size() - 1));
        add({file_, document_.line(section.header).number, name, ""},
            count > 0 && number > count
                ? "dropped: the process has " + std::to_string(count) +
                      (count == 1 ? " inlet" : " inlets")
                : "dropped: of project type " + std::to_string(type) + " it is not loaded");
      }
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
