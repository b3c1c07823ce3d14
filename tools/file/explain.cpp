#include "file/explain.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "blocks/catalogue.h"
#include "file/address.h"
#include "file/meaning.h"
#include "file/near.h"
#include "file/profile.h"
#include "system/failure.h"
#include "text/sectioned_text.h"

namespace qelpro {
namespace {

using Rows = std::vector<const qel::KeyInfo*>;

const char* word_of(qel::Kind kind) {
  return kind == qel::Kind::integer ? "integer" : kind == qel::Kind::real ? "real" : "text";
}

Json json_of(const qel::Argument& argument) {
  return {{"name", argument.name}, {"meaning", argument.words}};
}

Json json_of(std::span<const qel::FieldArgument> fields) {
  Json list = Json::array();
  for (const qel::FieldArgument& field : fields) {
    list.push_back({{"name", field.name}, {"kind", word_of(field.kind)}, {"meaning", field.words}});
  }
  return list;
}

Json codes_json(std::string_view meaning) {
  Json list = Json::array();
  for (const auto& [code, words] : codes_of(meaning)) {
    list.push_back({{"code", code}, {"meaning", words}});
  }
  return list;
}

// The keys of the points that a key counts.
Json counted_by(const qel::SectionInfo& section, std::string_view count) {
  Json list = Json::array();
  for (const ProfileKind& profile : profiles_of(section)) {
    if (profile.count != nullptr && profile.count->text == count) {
      list.push_back(profile.point->text);
    }
  }
  return list;
}

Json notes_of(const qel::KeyInfo& key) {
  Json list = Json::array();
  for (const std::string_view note :
       {std::string_view(key.encoding->reading), std::string_view(key.encoding->writing),
        std::string_view(key.details.reading), std::string_view(key.details.writing)}) {
    if (!note.empty()) {
      list.push_back(note);
    }
  }
  return list;
}

bool has_same_names(std::span<const qel::FieldArgument> a, std::span<const qel::FieldArgument> b) {
  return std::ranges::equal(a, b, {}, &qel::FieldArgument::kind, &qel::FieldArgument::kind);
}

Json key_json(const qel::SectionInfo& section, const qel::KeyInfo& key) {
  Json json = {{"key", key.text}, {"meaning", key.meaning}};
  const auto add = [&json](const char* name, Json list) {
    if (!list.empty()) {
      json[name] = std::move(list);
    }
  };
  if (const std::string_view unit = unit_of(key.meaning); !unit.empty()) {
    json["unit"] = unit;
  }
  if (qel::is_numbered(key.text)) {
    json["number"] = json_of(key.details.number);
  }
  json["encoding"] = key.encoding->name;
  json["fields"] = json_of(key.encoding->read);
  if (!has_same_names(key.encoding->read, key.encoding->written)) {
    add("written", json_of(key.encoding->written));
  }
  add("codes", codes_json(key.meaning));
  if (key.details.counted_by != nullptr) {
    json["counted_by"] = key.details.counted_by;
  }
  add("counts", counted_by(section, key.text));
  add("notes", notes_of(key));
  json["members"] = members_of(key);
  return json;
}

Json section_json(const qel::SectionInfo& section, const Rows& keys) {
  Json json = {{"section", without_brackets(section.name)}, {"subject", section.subject}};
  if (qel::is_numbered(section.name)) {
    json["number"] = section.number.name != nullptr
                         ? json_of(section.number)
                         : Json({{"name", "number"}, {"meaning", "the number"}});
  }
  json["keys"] = Json::array();
  for (const qel::KeyInfo* key : keys) {
    json["keys"].push_back(key_json(section, *key));
  }
  return json;
}

Rows all_keys(const qel::SectionInfo& section) {
  Rows rows;
  for (const qel::KeyInfo& key : section.keys) {
    rows.push_back(&key);
  }
  return rows;
}

// A pattern of the catalogue however its number is spelled in it: "%d" or "%ld".
std::string pattern(std::string_view name) {
  std::string text(name);
  if (const std::size_t at = text.find("%ld"); at != std::string::npos) {
    text.erase(at + 1, 1);
  }
  return text;
}

const qel::SectionInfo* section_of(std::string_view word) {
  const std::string name = with_brackets(word);
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    const std::string_view own = without_brackets(section->name);
    if (pattern(section->name) == pattern(name) ||
        (qel::is_positional(section->name) &&
         without_brackets(word) == own.substr(0, own.find(' ')))) {
      return section;
    }
  }
  int number = 0;
  return qel::find_section(name.c_str(), number);
}

// The rows of a key, of which several encodings have one each; or of a profile.
Rows keys_of(const qel::SectionInfo& section, const std::string& key) {
  if (qel::is_positional(section.name) && position_of(key) != 0) {
    return all_keys(section);
  }
  int number = 0;
  const qel::KeyInfo* const found = qel::find_key(section, key.c_str(), number);
  Rows rows;
  for (const qel::KeyInfo& row : section.keys) {
    if (pattern(row.text) == pattern(key) ||
        (found != nullptr && row.text == std::string_view(found->text))) {
      rows.push_back(&row);
    }
  }
  if (!rows.empty()) {
    return rows;
  }
  for (const ProfileKind& profile : profiles_of(section)) {
    if (profile.name == key) {
      for (const qel::KeyInfo& row : section.keys) {
        const bool is_of_it = row.text == std::string_view(profile.count->text) ||
                              row.text == std::string_view(profile.point->text);
        if (is_of_it && std::ranges::find(rows, &row) == rows.end()) {
          rows.push_back(&row);
        }
      }
    }
  }
  return rows;
}

std::string did_you_mean(const std::string& name) {
  return name.empty() ? std::string() : "; did you mean \"" + name + "\"?";
}

[[noreturn]] void refuse_section(const std::string& word, const std::string& behind) {
  std::string holders;
  NearNames names;
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    const std::string_view name = without_brackets(section->name);
    names.add(name);
    if (behind.empty() && !keys_of(*section, word).empty()) {
      holders += (holders.empty() ? "" : ", ") + std::string(name);
    }
  }
  std::string what = "\"" + word + "\" is no section that is known";
  if (!holders.empty()) {
    what += "; it is a key of " + holders;
  }
  if (const std::string near = names.near(word); !near.empty()) {
    what += did_you_mean(near + behind);
  } else if (holders.empty()) {
    what += "; qelpro explain lists them";
  }
  throw Failure(kNotFound, what);
}

[[noreturn]] void refuse_key(const qel::SectionInfo& section, const std::string& word,
                             const std::string& key) {
  NearNames names;
  for (const qel::KeyInfo& row : section.keys) {
    names.add(row.text);
  }
  const std::string near = names.near(key);
  const std::string hint =
      near.empty() ? "; qelpro explain " + word + " lists those that are" : did_you_mean(near);
  throw Failure(kNotFound,
                with_brackets(word) + ": \"" + key + "\" is no key that is known" + hint);
}

Json explain_key(const std::string& word, const std::string& key) {
  const qel::SectionInfo* const section = section_of(word);
  if (section == nullptr) {
    refuse_section(std::string(without_brackets(word)), "." + key);
  }
  const Rows rows = keys_of(*section, key);
  if (rows.empty()) {
    refuse_key(*section, std::string(without_brackets(word)), key);
  }
  return Json::array({section_json(*section, rows)});
}

}  // namespace

bool asks_for_section(const std::vector<std::string>& words) {
  return words.size() == 1 && section_of(words.front()) != nullptr;
}

Json catalogue_json() {
  Json sections = Json::array();
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    sections.push_back(section_json(*section, all_keys(*section)));
  }
  return sections;
}

Json explain(const std::vector<std::string>& words) {
  if (words.empty()) {
    return catalogue_json();
  }
  if (words.size() > 2) {
    throw Failure(kUsage, "explain: \"" + words[2] + "\" is one word too many");
  }
  const std::string& word = words.front();
  if (words.size() == 2) {
    return explain_key(word, words.back());
  }
  if (const qel::SectionInfo* const section = section_of(word); section != nullptr) {
    return Json::array({section_json(*section, all_keys(*section))});
  }
  // No section that is known has a dot in its name.
  if (const std::size_t dot = word.find('.'); dot != std::string::npos && !word.starts_with('[')) {
    return explain_key(word.substr(0, dot), word.substr(dot + 1));
  }
  refuse_section(std::string(without_brackets(word)), "");
}

}  // namespace qelpro
