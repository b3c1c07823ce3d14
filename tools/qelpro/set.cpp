#include <string>
#include <vector>

#include "change_command.h"
#include "commands.h"
#include "file/change.h"
#include "file/entries.h"
#include "file/forms.h"
#include "json/json_input.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {

namespace {

/// What is to be set: an address or a pattern, and the value.
struct Assignment {
  Request request;
  std::string value;
};

// Line breaks at a value's very end are no part of it.
std::string without_line_breaks_after(const std::string& value) {
  return value.substr(0, value.find_last_not_of("\r\n") + 1);
}

// "Flow-1.FillTime=1.5" is one word; a section that begins with "[" or has no dot before a "=" is
// followed by its key and the value.
std::vector<Assignment> assignments_of(const std::vector<std::string>& words) {
  std::vector<Assignment> assignments;
  for (std::size_t at = 0; at < words.size();) {
    const std::string& word = words[at];
    const std::size_t equals = word.find('=');
    const bool is_whole = equals != std::string::npos && !word.starts_with('[') &&
                          word.substr(0, equals).find_first_of(".*?") != std::string::npos;
    if (is_whole) {
      assignments.push_back({requests_of({word.substr(0, equals)}).front(),
                             without_line_breaks_after(word.substr(equals + 1))});
      ++at;
      continue;
    }
    if (at + 2 >= words.size()) {
      throw Failure(kUsage, "\"" + word + "\": " + (at + 1 == words.size() ? "KEY" : "VALUE") +
                                " is missing; give SECTION.KEY=VALUE, or section, key and value "
                                "in three words");
    }
    assignments.push_back(
        {request_of(word, words[at + 1]), without_line_breaks_after(words[at + 2])});
    at += 3;
  }
  return assignments;
}

std::vector<Assignment> assignments_of(const SetArguments& arguments) {
  if (arguments.words.empty() && !arguments.from) {
    throw Failure(kUsage, "ADDRESS=VALUE is missing");
  }
  return assignments_of(arguments.words);
}

}  // namespace

int run_set(const SetArguments& arguments) {
  const std::vector<Assignment> assignments = [&arguments] {
    try {
      return assignments_of(arguments);
    } catch (const Failure& failure) {
      throw Failure(failure.status(), at(arguments.file, failure.what()));
    }
  }();
  const Json object =
      arguments.from ? parse_json(*arguments.from, read_file(*arguments.from)) : Json::object();
  // What no file could take is told before the file is opened.
  const auto check = [&](const std::vector<Change>& changes) {
    for (const Change& change : changes) {
      check_change(arguments.file, change, arguments.force);
    }
  };
  for (const Assignment& assignment : assignments) {
    if (!assignment.request.is_pattern) {
      check({{Change::Kind::set, assignment.request.addresses.front(), assignment.value}});
    }
  }
  make_changes(arguments.file, arguments.dry_run, [&](const SectionedText& document) {
    const Entries entries(document);
    std::vector<Change> changes =
        changes_of_addresses(arguments.from.value_or(""), object, entries);
    for (const Assignment& assignment : assignments) {
      const std::vector<Address> targets = entries.targets_of(assignment.request);
      if (targets.empty()) {
        throw Failure(kNotFound, at(arguments.file,
                                    "\"" + assignment.request.argument + "\" matches no entry"));
      }
      for (const Address& target : targets) {
        changes.push_back({Change::Kind::set, target, assignment.value});
      }
    }
    check(changes);
    return changes;
  });
  return kDone;
}

}  // namespace qelpro
