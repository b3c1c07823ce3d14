#include <memory>
#include <optional>
#include <string>
#include <unordered_set>

#include "commands.h"
#include "file/entries.h"
#include "file/near.h"
#include "file/typed.h"
#include "file/wanted.h"
#include "output.h"
#include "system/failure.h"
#include "system/visible.h"
#include "text/text.h"

namespace qelpro {

namespace {

// What a line that begins with a blank says is not found, though it stands there.
std::string why_not_found(const Entries& entries, const Address& address) {
  const SectionedText& document = entries.document();
  const TextSection* const section = entries.find_section(address.section);
  if (section == nullptr) {
    return "not found: the file has no such section; qelpro list --sections prints those it has";
  }
  if (qel::is_positional(section->name)) {
    return position_of(address.key) != 0
               ? "not found: the section has no such line"
               : "not found: its lines have a position and no key: #1, #2, ...";
  }
  for (std::size_t index = section->header + 1; index < section->after; ++index) {
    const TextLine candidate = document.line(index);
    std::string_view line = candidate.text;
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (qel::text::first_token_is(line, address.key) &&
        qel::kind_of(candidate) == LineKind::indented) {
      return "not found: line " + std::to_string(candidate.number) +
             " begins with a blank and is never read";
    }
  }
  NearNames names;
  for (const FileEntry& entry : entries.of(*section)) {
    names.add(entry.key);
  }
  const std::string near = names.near(address.key);
  return "not found: the section has no such key" +
         (near.empty() ? "; qelpro list prints those that it has"
                       : "; did you mean " + in_quotes(near) + "?");
}

void tell_not_found(const std::string& file, const Entries& entries, const Request& request) {
  if (request.is_pattern) {
    complain(at(file, "\"" + request.argument + "\" matches no entry; qelpro list prints them"));
    return;
  }
  const Address address = entries.targets_of(request).front();
  complain(
      at({file, 0, with_brackets(address.section), address.key}, why_not_found(entries, address)));
}

/// Tells what the engine does not read of an entry as it stands.
void tell_limit(const std::string& file, const Entries& entries, const FileEntry& entry) {
  const TextLine line = entries.document().line(entry.line);
  if (const std::string limit = limit_of(line); !limit.empty()) {
    complain(at({file, line.number, std::string(entries.section_of(entry)), entry.key}, limit));
  }
}

std::string typed_text(const std::string& file, const Entries& entries, const FileEntry& entry) {
  const TypedValue typed = typed_value(entries, entry);
  if (typed.key == nullptr) {
    return std::string(entry.value);
  }
  if (typed.unread) {
    complain(
        at({file, entries.line_number(entry), std::string(entries.section_of(entry)), entry.key},
           *typed.unread));
  }
  std::string text;
  for (const qel::Field& field : typed.fields) {
    text += (&field == typed.fields.data() ? "" : "\t") + text_of(field);
  }
  return text;
}

}  // namespace

int run_get(const GetArguments& arguments) {
  const std::vector<Request> requests = requests_of(arguments.words);
  const SectionedText document = load_document(arguments.file);
  WantedEntries wanted(requests);
  const Entries entries(document, wanted);
  std::optional<Entries> all;  // what is not found is told beside what is there
  const bool is_alone = requests.size() == 1 && !arguments.json &&
                        (!requests.front().is_pattern ||
                         entries.find(requests.front().addresses.empty()
                                          ? Address()
                                          : requests.front().addresses.front()) != nullptr);
  Json object = Json::object();
  std::unordered_set<std::string> told;
  int status = kDone;
  const auto put = [&](const std::string& address, const std::string& value, const Json& typed) {
    if (!arguments.json) {
      answer() << (is_alone ? "" : address + " = ") << value << '\n';
    } else if (told.insert(address).second) {
      append_member(object, address, typed);
    }
  };
  for (const Request& request : requests) {
    const std::vector<const FileEntry*> found = entries.find(request);
    for (const FileEntry* entry : found) {
      tell_limit(arguments.file, entries, *entry);
      put(text_of(entries.address_of(*entry)),
          arguments.typed ? typed_text(arguments.file, entries, *entry) : std::string(entry->value),
          arguments.json ? json_of(entries, *entry) : Json());
    }
    if (found.empty() && !all) {
      all.emplace(document);
    }
    if (found.empty() && !arguments.otherwise) {
      tell_not_found(arguments.file, *all, request);
      status = kNotFound;
    } else if (found.empty() && !request.is_pattern) {
      put(text_of(all->targets_of(request).front()), *arguments.otherwise, *arguments.otherwise);
    }
  }
  if (arguments.json) {
    write_json(answer(), object);
    answer() << '\n';
  }
  return status;
}

}  // namespace qelpro
