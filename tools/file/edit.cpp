#include "file/edit.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <variant>

#include "blocks/catalogue.h"
#include "file/forms.h"
#include "file/json_value.h"
#include "file/names.h"
#include "file/typed.h"
#include "system/failure.h"
#include "system/visible.h"
#include "text/text.h"

namespace qelpro {
namespace {

void check_finite(const Change& change) {
  for (const qel::Field& field :
       typed_value(known_section(change.address.section), change.address.key, change.value)
           .fields) {
    const auto* const real = std::get_if<double>(&field);
    if (real != nullptr && !std::isfinite(*real)) {
      refuse_usage(in_quotes(change.value) + " is not finite");
    }
  }
}

Change change_to(const std::string& file, const Address& address, const Json& value) {
  try {
    Change change{Change::Kind::set, address,
                  text_of_json(known_section(address.section), address.key, value)};
    check_finite(change);
    if (qel::text::index_value(change.value) != change.value) {
      refuse_usage(in_quotes(change.value) +
                   ": blanks at the beginning and the end of a value are not read");
    }
    return change;
  } catch (const Failure& failure) {
    throw Failure(failure.status(),
                  at({file, 0, with_brackets(address.section), address.key}, failure.what()));
  }
}

bool is_positional(const std::string& section) { return qel::is_positional(header_of(section)); }

[[noreturn]] void fail_to_find(const std::string& file, const Address& address, const char* what) {
  throw Failure(kNotFound, at({file, 0, with_brackets(address.section), address.key}, what));
}

// Those that are there already as they are to be stay, of which some may say nothing.
std::vector<Change> changes_to_lines(const std::string& file, const Entries& entries,
                                     const std::string& section, const Json& keys) {
  if (!keys.is_object() || keys.size() > 1 ||
      (!keys.empty() && (!keys.contains(kLines) || !keys[kLines].is_array()))) {
    throw Failure(kUsage, at({file, 0, with_brackets(section), ""},
                             "holds lines that have a position: a list of texts, \"lines\""));
  }
  const TextSection* const there = entries.find_section(section);
  const std::size_t count = there == nullptr ? 0 : entries.of(*there).size();
  const Json lines = keys.value(kLines, Json::array());
  std::vector<Change> changes{{Change::Kind::add_section, {section, ""}, ""}};
  for (std::size_t number = count; number > lines.size(); --number) {
    changes.push_back({Change::Kind::remove, {section, "#" + std::to_string(number)}, ""});
  }
  for (std::size_t index = 0; index < lines.size(); ++index) {
    const Address address{section, "#" + std::to_string(index + 1)};
    if (!lines[index].is_string()) {
      throw Failure(kUsage, at({file, 0, with_brackets(section), address.key}, "is a text"));
    }
    const auto& line = lines[index].get_ref<const std::string&>();
    const FileEntry* const entry = entries.find(address);
    if (entry == nullptr || entry->value != qel::text::index_value(line)) {
      changes.push_back({Change::Kind::set, address, line});
      check_change(file, changes.back(), false);
    }
  }
  return changes;
}

}  // namespace

Edit set_entry(Address address, Json value) {
  if (is_positional(address.section) && address.key == kLines) {
    return set_section(std::move(address.section), {{kLines, std::move(value)}});
  }
  return {[address = std::move(address), value = std::move(value)](const std::string& file,
                                                                   const Entries& /*entries*/) {
            std::vector<Change> changes{change_to(file, address, value)};
            check_change(file, changes.back(), false);
            return changes;
          },
          false};
}

Edit remove_entry(Address address) {
  return {[address = std::move(address)](const std::string& file, const Entries& entries) {
    if (is_positional(address.section) && address.key == kLines) {
      return changes_to_lines(file, entries, address.section, {{kLines, Json::array()}});
    }
    if (entries.find(address) == nullptr) {
      fail_to_find(file, address, "not found");
    }
    return std::vector<Change>{{Change::Kind::remove, address, ""}};
  }};
}

Edit set_section(std::string section, Json keys) {
  return {[section = std::move(section), keys = std::move(keys)](const std::string& file,
                                                                 const Entries& entries) {
    if (is_positional(section)) {
      return changes_to_lines(file, entries, section, keys);
    }
    if (!keys.is_object()) {
      throw Failure(kUsage, at({file, 0, with_brackets(section), ""},
                               "holds values by their keys: give an object"));
    }
    std::vector<Change> changes{{Change::Kind::add_section, {section, ""}, ""}};
    const TextSection* const there = entries.find_section(section);
    if (there != nullptr) {
      std::unordered_set<std::string_view> kept;
      for (const auto& [key, value] : keys.items()) {
        kept.insert(key);
      }
      for (const FileEntry& entry : entries.of(*there)) {
        if (!kept.contains(entry.key)) {
          changes.push_back({Change::Kind::remove, {section, entry.key}, ""});
        }
      }
    } else {
      // The name is one that can be found again.
      check_change(file, {Change::Kind::set, {section, "key"}, ""}, true);
    }
    for (const auto& [key, value] : keys.items()) {
      changes.push_back(change_to(file, {section, key}, value));
      check_change(file, changes.back(), false);
    }
    return changes;
  }};
}

Edit remove_section(std::string section) {
  return {[section = std::move(section)](const std::string& file, const Entries& entries) {
    if (entries.find_section(section) == nullptr) {
      fail_to_find(file, {section, ""}, "not found");
    }
    return std::vector<Change>{{Change::Kind::remove_section, {section, ""}, ""}};
  }};
}

void check_edit(const std::string& file, const Edit& edit) {
  if (!edit.needs_entries) {
    const SectionedText nothing{""};
    edit(file, Entries(nothing));
  }
}

std::vector<Change> changes_of(const std::string& file, const SectionedText& document,
                               const std::vector<Edit>& edits) {
  std::vector<Change> all;
  std::vector<Change> not_made;
  std::string contents = document.contents();
  for (const Edit& edit : edits) {
    if (edit.needs_entries && !not_made.empty()) {
      contents = with_changes(SectionedText(std::move(contents)), not_made);
      not_made.clear();
    }
    const SectionedText now(edit.needs_entries ? contents : "");
    std::vector<Change> changes = edit(file, Entries(now));
    std::ranges::copy(changes, std::back_inserter(all));
    std::ranges::move(changes, std::back_inserter(not_made));
  }
  return all;
}

}  // namespace qelpro
