#include "file/forms.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "blocks/catalogue.h"
#include "file/json_value.h"
#include "file/names.h"
#include "file/typed.h"
#include "platform/line_break.h"
#include "system/failure.h"
#include "system/visible.h"
#include "text/text.h"

namespace qelpro {
namespace {

constexpr const char* kExact = "exact";

// Lines up to the last one that says something: those behind it are spacing.
Json lines_of(const SectionedText& document, const TextSection& section,
              std::span<const FileEntry> entries) {
  Json lines = Json::array();
  const std::size_t last = entries.empty() ? section.header : entries.back().line;
  for (std::size_t at = section.header + 1; at <= last; ++at) {
    const std::string_view line = document.line(at).whole;
    const std::string_view value = qel::text::index_value(line);
    // Without the blanks in front some read as a header.
    lines.push_back(std::string(qel::text::is_header(value) ? line : value));
  }
  return lines;
}

// A section is named without its brackets, but for one whose name would stand in brackets then.
std::string name_in_form(std::string_view header) {
  const std::string_view name = without_brackets(header);
  return std::string(with_brackets(name) == header ? name : header);
}

[[noreturn]] void refuse(const std::string& name, const std::string& what) {
  throw Failure(kFileError, at(name, what));
}

Change change_of(const std::string& name, const Address& address, const Json& value) {
  try {
    return {Change::Kind::set, address,
            text_of_json(known_section(address.section), address.key, value)};
  } catch (const Failure& failure) {
    throw Failure(failure.status(),
                  at({name, 0, with_brackets(address.section), address.key}, failure.what()));
  }
}

void add_changes(const std::string& name, const std::string& section, const Json& keys,
                 std::vector<Change>& changes) {
  if (!keys.is_object()) {
    refuse(name, "\"" + section + "\" is no object from key to value");
  }
  for (const auto& [key, value] : keys.items()) {
    if (!qel::is_positional(with_brackets(section))) {
      changes.push_back(change_of(name, {section, key}, value));
      continue;
    }
    if (key != kLines || !value.is_array()) {
      refuse(name, "\"" + section +
                       "\" holds lines that have a position: a list of texts under "
                       "\"lines\"");
    }
    int position = 0;
    for (const Json& line : value) {
      changes.push_back(change_of(name, {section, "#" + std::to_string(++position)}, line));
    }
  }
}

void check_object(const std::string& name, const Json& form) {
  if (!form.is_object()) {
    refuse(name, "no object: a process file is an object from section to its keys");
  }
}

std::string exact_contents(const std::string& name, const Json& lines) {
  std::string contents;
  for (const Json& line : lines) {
    if (!line.is_string()) {
      refuse(name, "\"exact\" is a list of texts");
    }
    contents += line.get_ref<const std::string&>();
  }
  return contents;
}

bool is_exact(const Json& form) {
  return form.size() == 1 && form.contains(kExact) && form[kExact].is_array();
}

// Everything that was given has to be found in the file again, and nothing else: the end of a line
// that is too long may read as another entry.
void check_made(const std::string& name, const std::string& contents,
                const std::vector<Change>& changes) {
  const SectionedText document(contents);
  const Entries entries(document);
  std::size_t by_key = 0;
  for (const Change& change : changes) {
    by_key += position_of(change.address.key) == 0 ? 1U : 0U;
    const FileEntry* const entry = entries.find(change.address);
    const std::string_view wanted = qel::text::index_value(change.value);
    const bool is_empty_line = wanted.empty() && position_of(change.address.key) != 0;
    if (entry != nullptr ? entry->value != wanted : !is_empty_line) {
      throw Failure(kUsage, at({name, 0, with_brackets(change.address.section), change.address.key},
                               "could not be read back from a file: the name or the value has a "
                               "line break, a blank or a \"=\" in the wrong place, or a second "
                               "entry is taken for the same"));
    }
  }
  const auto made = static_cast<std::size_t>(std::ranges::count_if(
      entries.all(), [](const FileEntry& entry) { return position_of(entry.key) == 0; }));
  if (made != by_key) {
    throw Failure(kUsage, at(name, "a line is too long: behind its first " +
                                       std::to_string(qel::text::kLongestLine) +
                                       " characters the engine would read another entry"));
  }
}

}  // namespace

Json plain_form(const Entries& entries) {
  const SectionedText& document = entries.document();
  Json form = Json::object();
  TypedValue typed;
  for (const TextSection& section : document.sections()) {
    if (section.repeated) {
      continue;
    }
    Json keys = Json::object();
    if (qel::is_positional(section.name)) {
      append_member(keys, kLines, lines_of(document, section, entries.of(section)));
    } else {
      for (const FileEntry& entry : entries.of(section)) {
        read_typed(entries, entry, typed);
        append_member(keys, entry.key, json_of(typed, entry.value));
      }
    }
    append_member(form, name_in_form(section.name), std::move(keys));
  }
  return form;
}

Json exact_form(std::string_view contents) {
  Json lines = Json::array();
  while (!contents.empty()) {
    const std::size_t end = std::min(contents.find('\n'), contents.size() - 1) + 1;
    lines.push_back(std::string(contents.substr(0, end)));
    contents.remove_prefix(end);
  }
  return {{kExact, std::move(lines)}};
}

std::string contents_of(const std::string& name, const Json& form) {
  check_object(name, form);
  if (is_exact(form)) {
    return exact_contents(name, form[kExact]);
  }
  const std::string line_break(qel::platform::kLineBreak);
  std::string contents;
  std::vector<Change> all;
  for (const auto& [section, keys] : form.items()) {
    std::vector<Change> changes;
    add_changes(name, section, keys, changes);
    const std::string header = with_brackets(section);
    contents.append(contents.empty() ? "" : line_break).append(header).append(line_break);
    for (const Change& change : changes) {
      const std::string line = qel::is_positional(header)
                                   ? change.value
                                   : qel::text::padded_entry(change.address.key, change.value);
      contents += line + line_break;
    }
    std::ranges::move(changes, std::back_inserter(all));
  }
  check_made(name, contents, all);
  return contents;
}

std::vector<Change> changes_of_form(const std::string& name, const Json& form) {
  check_object(name, form);
  if (is_exact(form)) {
    throw Failure(kUsage, at(name, "the exact form is a whole file: give -o FILE"));
  }
  std::vector<Change> changes;
  for (const auto& [section, keys] : form.items()) {
    add_changes(name, section, keys, changes);
  }
  return changes;
}

std::vector<Change> changes_of_addresses(const std::string& name, const Json& object,
                                         const Entries& entries) {
  if (!object.is_object()) {
    refuse(name, "no object from address to value");
  }
  std::vector<Change> changes;
  for (const auto& [word, value] : object.items()) {
    if (word.find('.') == std::string::npos || word.starts_with('[')) {
      refuse(name, in_quotes(word) + " is no address: SECTION.KEY");
    }
    const std::vector<Request> requests = requests_of({word});
    const std::vector<Address> targets = entries.targets_of(requests.front());
    if (targets.empty()) {
      throw Failure(kNotFound, at(name, "\"" + word + "\" matches no entry"));
    }
    for (const Address& address : targets) {
      changes.push_back(change_of(name, address, value));
    }
  }
  return changes;
}

}  // namespace qelpro
