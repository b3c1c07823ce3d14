#include <string>
#include <vector>

#include "change_command.h"
#include "commands.h"
#include "file/change.h"
#include "file/entries.h"
#include "system/failure.h"
#include "system/visible.h"

namespace qelpro {

namespace {

// The sections that "SECTION.*" names, a pattern or not.
std::vector<Change> sections_matched(const SectionedText& document, const std::string& argument) {
  constexpr std::string_view kAll = ".*";
  std::vector<Change> changes;
  if (!argument.ends_with(kAll)) {
    return changes;
  }
  const std::string pattern = argument.substr(0, argument.size() - kAll.size());
  for (const TextSection& section : document.sections()) {
    const std::string name(without_brackets(section.name));
    if (!section.repeated && (name == pattern || matches_pattern(pattern, name))) {
      changes.push_back({Change::Kind::remove_section, {name, ""}, ""});
    }
  }
  if (const Entries entries(document);
      changes.empty() && entries.find_section(pattern) != nullptr) {
    changes.push_back({Change::Kind::remove_section, {pattern, ""}, ""});
  }
  return changes;
}

}  // namespace

int run_unset(const UnsetArguments& arguments) {
  const std::vector<Request> requests = requests_of(arguments.words);
  int status = kDone;
  make_changes(arguments.file, arguments.dry_run, [&](const SectionedText& document) {
    const Entries entries(document);
    std::vector<Change> changes;
    for (const Request& request : requests) {
      std::vector<Change> of_request;
      if (!request.is_pair) {
        of_request = sections_matched(document, request.argument);
      }
      for (const FileEntry* entry :
           of_request.empty() ? entries.find(request) : std::vector<const FileEntry*>()) {
        of_request.push_back({Change::Kind::remove, entries.address_of(*entry), ""});
      }
      if (of_request.empty()) {
        complain(at(arguments.file,
                    in_quotes(request.argument) + ": not found; qelpro list prints the addresses"));
        status = kNotFound;
      }
      changes.insert(changes.end(), of_request.begin(), of_request.end());
    }
    return changes;
  });
  return status;
}

}  // namespace qelpro
