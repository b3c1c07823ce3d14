#include <string>

#include "commands.h"
#include "file/entries.h"
#include "json/json_text.h"
#include "output.h"
#include "system/failure.h"

namespace qelpro {

namespace {

Json sections_of(const SectionedText& document, const std::optional<std::string>& pattern) {
  Json names = Json::array();
  for (const TextSection& section : document.sections()) {
    const std::string name(without_brackets(section.name));
    if (!section.repeated &&
        (!pattern || matches_pattern(without_brackets(*pattern), name) || *pattern == name)) {
      names.push_back(name);
    }
  }
  return names;
}

// A name without a dot and without pattern characters is that of a section.
Json addresses_of(const Entries& entries, const std::optional<std::string>& pattern) {
  Json addresses = Json::array();
  const TextSection* const section = pattern ? entries.find_section(*pattern) : nullptr;
  for (const FileEntry& entry : section != nullptr ? entries.of(*section) : entries.all()) {
    std::string address = text_of(entries.address_of(entry));
    if (!pattern || section != nullptr || address == *pattern ||
        matches_pattern(*pattern, address)) {
      addresses.push_back(std::move(address));
    }
  }
  return addresses;
}

}  // namespace

int run_list(const ListArguments& arguments) {
  const SectionedText document = load_document(arguments.file);
  const Json names = arguments.sections ? sections_of(document, arguments.pattern)
                                        : addresses_of(Entries(document), arguments.pattern);
  if (arguments.json) {
    write_json(answer(), names);
    answer() << '\n';
  } else {
    for (const Json& name : names) {
      answer() << name.get_ref<const std::string&>() << '\n';
    }
  }
  if (names.empty() && arguments.pattern) {
    complain(at(arguments.file, "\"" + *arguments.pattern + "\" matches nothing"));
    return kNotFound;
  }
  return kDone;
}

}  // namespace qelpro
