#include "picture/report_page.h"

#include <algorithm>
#include <map>
#include <set>

#include "file/meaning.h"
#include "file/typed.h"
#include "picture/chart.h"
#include "picture/plot.h"

namespace qelpro {

namespace {

// The words that the catalogue has for a code.
std::string code_words(const TypedValue& typed) {
  const int* const code = typed.fields.size() == 1 && typed.key != nullptr && !typed.unread
                              ? std::get_if<int>(typed.fields.data())
                              : nullptr;
  if (code == nullptr) {
    return "";
  }
  const auto codes = codes_of(typed.key->meaning);
  const auto found =
      std::ranges::find_if(codes, [&](const auto& one) { return one.first == *code; });
  // Of a single code, and of yes and no, the meaning itself says it.
  return codes.size() < 2 || found == codes.end() || codes.back().second == "otherwise"
             ? ""
             : found->second;
}

// How many points a table has, and what its count says where that is something else.
std::string extent_of(const Profile& profile) {
  const std::string points =
      std::to_string(profile.points.size()) + (profile.points.size() == 1 ? " point" : " points");
  if (profile.count == nullptr) {
    return points + ", no " + profile.kind.count->text;
  }
  return profile.promised == static_cast<int>(profile.points.size())
             ? points
             : points + ", " + profile.count->key + " = " + std::string(profile.count->value);
}

// Tells, not by a colour alone, that the files differ.
void write_mark(Markup& markup) {
  markup.open("span", {{"class", "mark"}, {"title", "the files differ"}});
  markup.element("span", {{"aria-hidden", "true"}}, " \xE2\x89\xA0");
  markup.element("span", {{"class", "hidden"}}, " differs").close();
}

std::string kind_of_section(const SectionGroup& group) {
  return group.info == nullptr ? "a section that the catalogue does not know" : group.info->subject;
}

}  // namespace

std::string meaning_without_unit(std::string_view meaning) {
  const std::string end = ", in " + std::string(unit_of(meaning));
  if (end.size() > 5 && meaning.ends_with(end)) {
    meaning.remove_suffix(end.size());
  }
  return std::string(meaning);
}

std::string ReportPage::new_id() { return "p" + std::to_string(++last_id_); }

void ReportPage::heading(int level, std::string_view title, std::string_view names) {
  markup_.open("h" + std::to_string(level)).text(title);
  if (!names.empty()) {
    markup_.text(" ").element("code", names);
  }
  markup_.close();
}

void ReportPage::open_table(const std::string& caption, std::string_view style) {
  markup_.open("div",
               {{"class", "box"}, {"role", "region"}, {"aria-label", caption}, {"tabindex", "0"}});
  markup_.open("table", {{"class", std::string(style)}});
}

void ReportPage::close_table() { markup_.close().close(); }

void ReportPage::table_head(const std::vector<std::string>& names) {
  markup_.open("thead").open("tr");
  for (const std::string& name : names) {
    if (!name.empty()) {
      markup_.element("th", {{"scope", "col"}}, name);
      continue;
    }
    for (const ReportSource& source : sources_) {
      markup_.element("th", {{"scope", "col"}}, is_comparison() ? source.label : "value");
    }
  }
  markup_.close().close();
}

void ReportPage::value(std::size_t file, const FileEntry* entry) {
  if (entry == nullptr) {
    markup_.open("td", {{"class", "none"}}).element("span", {{"class", "hidden"}}, "missing");
    markup_.text("\xE2\x80\x93").close();
    return;
  }
  const TypedValue typed = typed_value(*sources_[file].entries, *entry);
  markup_.open("td", {{"class", "value"}}).element("bdi", entry->value);
  if (const std::string words = code_words(typed); !words.empty()) {
    markup_.text(" ").element("small", words);
  }
  if (typed.unread) {
    markup_.text(" ").element("small", {{"class", "warning"}}, *typed.unread);
  }
  markup_.close();
}

void ReportPage::entries(const SectionGroup& group, const std::vector<const FileEntry*>& drawn) {
  std::vector<EntryGroup> all = entries_of(sources_, group);
  std::erase_if(all, [&](const EntryGroup& entry) {
    return std::ranges::all_of(entry.of_file, [&](const FileEntry* one) {
      return one == nullptr || std::ranges::binary_search(drawn, one);
    });
  });
  if (all.empty()) {
    return;
  }
  // A long table in two halves, which stand side by side where there is room.
  constexpr std::size_t kLong = 24;
  const std::size_t middle =
      is_comparison() || all.size() <= kLong ? all.size() : (all.size() + 1) / 2;
  if (middle < all.size()) {
    markup_.open("div", {{"class", "halves"}});
  }
  const auto begin = all.begin();
  rows({begin, begin + static_cast<std::ptrdiff_t>(middle)}, "Entries of " + group.name);
  if (middle < all.size()) {
    rows({begin + static_cast<std::ptrdiff_t>(middle), all.end()},
         "Further entries of " + group.name);
    markup_.close();
  }
}

const qel::KeyInfo* ReportPage::key_of(const EntryGroup& entry) const {
  for (std::size_t file = 0; file < sources_.size(); ++file) {
    if (const FileEntry* const one = entry.of_file[file]) {
      if (const qel::KeyInfo* const key = typed_value(*sources_[file].entries, *one).key) {
        return key;
      }
    }
  }
  return nullptr;
}

void ReportPage::rows(std::span<const EntryGroup> entries, const std::string& caption) {
  std::vector<std::string_view> meanings;
  bool has_units = false;
  for (const EntryGroup& entry : entries) {
    const qel::KeyInfo* const key = key_of(entry);
    meanings.emplace_back(key != nullptr ? key->meaning : "");
    has_units = has_units || !unit_of(meanings.back()).empty();
  }
  const bool has_meanings =
      std::ranges::any_of(meanings, [](std::string_view meaning) { return !meaning.empty(); });
  open_table(caption);
  std::vector<std::string> names{"key", ""};
  if (has_units) {
    names.emplace_back("unit");
  }
  if (has_meanings) {
    names.emplace_back("meaning");
  }
  table_head(names);
  markup_.open("tbody");
  for (std::size_t at = 0; at < entries.size(); ++at) {
    const EntryGroup& entry = entries[at];
    const bool differs = is_comparison() && is_different(sources_, entry);
    if (differs) {
      markup_.open("tr", {{"class", "differs"}});
    } else {
      markup_.open("tr");
    }
    markup_.open("th", {{"scope", "row"}}).element("bdi", entry.key);
    if (differs) {
      write_mark(markup_);
    }
    markup_.close();
    for (std::size_t file = 0; file < sources_.size(); ++file) {
      value(file, entry.of_file[file]);
    }
    if (has_units) {
      markup_.element("td", unit_for_people(unit_of(meanings[at])));
    }
    if (has_meanings) {
      markup_.element("td", {{"class", "meaning"}}, meaning_without_unit(meanings[at]));
    }
    markup_.close();
  }
  markup_.close();
  close_table();
}

void ReportPage::points(const std::vector<const Profile*>& of_file, const std::string& title) {
  std::map<int, std::vector<const FileEntry*>> rows;
  std::size_t most = 0;
  for (std::size_t file = 0; file < of_file.size(); ++file) {
    if (of_file[file] == nullptr) {
      continue;
    }
    most = std::max(most, of_file[file]->points.size());
    for (const ProfilePoint& point : of_file[file]->points) {
      auto& row = rows[point.number];
      row.resize(of_file.size());
      row[file] = row[file] != nullptr ? row[file] : point.entry;
    }
  }
  constexpr std::size_t kFew = 40;
  markup_.open("details", {{"class", most <= kFew ? "few" : "many"}});
  std::string summary;
  for (std::size_t file = 0; file < of_file.size(); ++file) {
    summary += (file == 0 ? "" : " / ") +
               (of_file[file] != nullptr ? extent_of(*of_file[file]) : std::string("none"));
  }
  markup_.element("summary", summary);
  open_table("Points: " + title, "points");
  table_head({"point", ""});
  markup_.open("tbody");
  for (const auto& [number, row] : rows) {
    markup_.open("tr");
    const auto* const any = *std::ranges::find_if(row, [](const auto* one) { return one; });
    markup_.element("th", {{"scope", "row"}}, any->key);
    for (std::size_t file = 0; file < of_file.size(); ++file) {
      value(file, row[file]);
    }
    markup_.close();
  }
  markup_.close();
  close_table();
  markup_.close();
}

void ReportPage::charts(const SectionGroup& group, std::vector<const FileEntry*>& drawn) {
  // The tables of all files by name, in the first one's order.
  std::vector<std::string> names;
  std::map<std::string, std::vector<Profile>> by_name;
  std::map<std::string, std::vector<const Profile*>> of_file;
  std::vector<std::vector<Profile>> kept(sources_.size());
  for (std::size_t file = 0; file < sources_.size(); ++file) {
    if (group.of_file[file] != nullptr) {
      kept[file] = profiles_of(*sources_[file].entries, *group.of_file[file]);
    }
    for (const Profile& profile : kept[file]) {
      const std::string name = profile.kind.point->text;
      if (!profile.kind.is_curve() || profile.curve().empty()) {
        continue;
      }
      if (of_file[name].empty()) {
        of_file[name].resize(sources_.size());
        names.push_back(name);
      }
      of_file[name][file] = &profile;
    }
  }
  if (names.empty()) {
    return;
  }
  markup_.open("div", {{"class", "charts"}});
  for (const std::string& name : names) {
    const Profile& any =
        **std::ranges::find_if(of_file[name], [](const Profile* one) { return one != nullptr; });
    Chart chart = chart_of(any.kind);
    const std::string title = chart.title;
    chart.title = group.name + ": " + title;
    for (std::size_t file = 0; file < sources_.size(); ++file) {
      const Profile* const profile = of_file[name][file];
      if (profile == nullptr) {
        // A file has its own colour in all charts.
        chart.curves.push_back({sources_[file].label + " (none)", {}});
        continue;
      }
      chart.curves.push_back(
          {is_comparison() ? sources_[file].label : profile->kind.name, profile->curve()});
      for (const ProfilePoint& point : profile->points) {
        drawn.push_back(point.entry);
      }
      if (profile->count != nullptr) {
        drawn.push_back(profile->count);
      }
    }
    markup_.open("figure");
    markup_.open("figcaption").text(title + " ").element("code", any.kind.name);
    if (std::ranges::any_of(chart.curves, [&](const NamedCurve& curve) {
          return curve.points != chart.curves.front().points;
        })) {
      write_mark(markup_);
    }
    markup_.close();
    write_chart(markup_, chart, new_id());
    points(of_file[name], chart.title);
    markup_.close();
  }
  markup_.close();
  std::ranges::sort(drawn);
}

void ReportPage::section(const SectionGroup& group, int level, const std::string& title) {
  if (group.of_file.empty()) {
    return;
  }
  markup_.open("section", {{"class", "part"}});
  if (title.empty()) {
    markup_.open("h" + std::to_string(level)).element("bdi", group.name).close();
    markup_.element("p", {{"class", "subject"}}, kind_of_section(group));
  } else {
    heading(level, title, group.name);
  }
  std::vector<const FileEntry*> drawn;
  charts(group, drawn);
  entries(group, drawn);
  markup_.close();
}

void ReportPage::family(const std::vector<SectionGroup>& groups, const std::string& title) {
  constexpr std::size_t kMostColumns = 12;
  std::vector<std::string> keys;
  std::set<std::string> seen;
  for (const SectionGroup& group : groups) {
    for (const EntryGroup& entry : entries_of(sources_, group)) {
      if (seen.insert(entry.key).second) {
        keys.push_back(entry.key);
      }
    }
  }
  if (groups.size() < 2 || keys.size() > kMostColumns) {
    for (const SectionGroup& group : groups) {
      section(group, 3);
    }
    return;
  }
  markup_.open("section", {{"class", "part"}});
  markup_.element("h3", title);
  markup_.element("p", {{"class", "subject"}}, kind_of_section(groups.front()));
  open_table(title, "family");
  markup_.open("thead").open("tr").element("th", {{"scope", "col"}}, "section");
  if (is_comparison()) {
    markup_.element("th", {{"scope", "col"}}, "file");
  }
  for (const std::string& key : keys) {
    const std::string_view meaning = typed_value(groups.front().info, key, "").key != nullptr
                                         ? typed_value(groups.front().info, key, "").key->meaning
                                         : "";
    markup_.open("th", {{"scope", "col"}}).element("bdi", key);
    markup_.text(" ").element("small", meaning).close();
  }
  markup_.close().close().open("tbody");
  for (const SectionGroup& group : groups) {
    for (std::size_t file = 0; file < sources_.size(); ++file) {
      if (group.of_file[file] == nullptr) {
        continue;
      }
      markup_.open("tr").open("th", {{"scope", "row"}}).element("bdi", group.name).close();
      if (is_comparison()) {
        markup_.open("td").element("bdi", sources_[file].label).close();
      }
      for (const std::string& key : keys) {
        value(file, sources_[file].entries->find(group.name, key));
      }
      markup_.close();
    }
  }
  markup_.close();
  close_table();
  markup_.close();
}

}  // namespace qelpro
