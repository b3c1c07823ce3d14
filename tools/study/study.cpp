#include "study/study.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <set>
#include <utility>

#include "file/json_value.h"
#include "system/failure.h"
#include "system/own_path.h"
#include "text/text.h"

namespace qelpro {
namespace {

constexpr std::string_view kEnding = ".pro";

Plan plan_of(const StudyRequest& request) {
  std::vector<Range> ranges;
  for (const Setting& setting : request.settings) {
    try {
      ranges.push_back(setting.values.empty() ? Range(setting.text) : Range(setting.values));
    } catch (const Failure& failure) {
      throw Failure(failure.status(), "--set " + setting.address + ": " + failure.what());
    }
  }
  if (ranges.empty()) {
    throw Failure(kUsage, "--set ADDRESS=VALUES is missing: nothing varies");
  }
  return request.samples ? Plan(std::move(ranges), *request.samples, request.seed)
                         : Plan(std::move(ranges));
}

int digits_for(std::uint64_t count) {
  constexpr int kFewest = 4;
  return std::max(kFewest, static_cast<int>(std::to_string(count).size()));
}

}  // namespace

// No name of the file format holds a "=".
Setting setting_of(const std::string& text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string::npos || equals == 0) {
    throw Failure(kUsage, "--set \"" + text + "\": it is ADDRESS=VALUES, as in " +
                              "Flow-1.FillTime=0.5:1.5:0.25");
  }
  return {text.substr(0, equals), text.substr(equals + 1), {}};
}

Setting setting_of(const Entries& entries, const std::string& address, const Json& values) {
  if (values.is_string()) {
    return {address, values.get<std::string>(), {}};
  }
  Setting setting{address, "", {}};
  const std::vector<Address> targets = entries.targets_of(requests_of({address}).front());
  for (const Json& value : values) {
    const std::string text = targets.empty() ? plain_text(value)
                                             : text_of_json(known_section(targets.front().section),
                                                            targets.front().key, value);
    // The list of them is for who reads the plan later.
    setting.text += (setting.values.empty() ? "" : ",") + text;
    setting.values.push_back(text);
  }
  return setting;
}

Study::Study(std::string file, std::string contents, StudyRequest request)
    : file_(file == "-" ? "process" : std::move(file)),
      stem_(text_of(own_path(file_).stem())),
      request_(std::move(request)),
      document_(document_text(file_, std::move(contents))),
      plan_(plan_of(request_)),
      digits_(digits_for(plan_.size())) {
  find_targets();
  check_values();
  check_reading();
}

void Study::find_targets() {
  const Entries entries(document_);
  std::set<std::pair<std::string, std::string>> seen;
  for (const Setting& setting : request_.settings) {
    Target& target = targets_.emplace_back();
    const Request request = requests_of({setting.address}).front();
    target.addresses = entries.targets_of(request);
    if (target.addresses.empty()) {
      throw Failure(kNotFound, at(file_, "\"" + request.argument +
                                             "\" matches no entry; qelpro list tells which there "
                                             "are"));
    }
    for (const Address& address : target.addresses) {
      if (!seen.emplace(address.section, address.key).second) {
        throw Failure(
            kUsage, "--set " + text_of(address) + ": set twice; a file has one value of an entry");
      }
    }
  }
}

void Study::check_values() const {
  for (std::size_t range = 0; range < targets_.size(); ++range) {
    for (std::uint64_t index = 0; index < plan_.value_count(range); ++index) {
      const std::string value = plan_.any_value(range, index);
      for (const Address& address : targets_[range].addresses) {
        check_change(file_, {Change::Kind::set, address, value}, request_.force);
      }
    }
  }
}

// That lookups take the lines that were set. Which ones they take is the same in every file.
void Study::check_reading() const {
  const SectionedText first(contents(0));
  const Entries entries(first);
  for (const Change& change : changes(0)) {
    const FileEntry* const entry = entries.find(change.address);
    if (entry == nullptr || entry->value != qel::text::index_value(change.value)) {
      throw Failure(kFileError,
                    at({file_, 0, with_brackets(change.address.section), change.address.key},
                       "cannot be set: another line of the file would be read in its place; "
                       "qelpro check tells which lines are passed over"));
    }
  }
}

std::string Study::file_name(std::uint64_t index) const {
  const std::string number = std::to_string(index + 1);
  return stem_ + "-" + std::string(static_cast<std::size_t>(digits_) - number.size(), '0') +
         number + std::string(kEnding);
}

std::optional<std::uint64_t> Study::index_of(std::string_view name) const {
  const std::size_t front = stem_.size() + 1;
  if (name.size() != front + static_cast<std::size_t>(digits_) + kEnding.size()) {
    return std::nullopt;
  }
  std::uint64_t number = 0;
  std::from_chars(name.data() + front, name.data() + front + digits_, number);
  return number >= 1 && number <= size() && file_name(number - 1) == name
             ? std::optional(number - 1)
             : std::nullopt;
}

std::vector<Change> Study::changes(std::uint64_t index) const {
  std::vector<Change> changes;
  for (std::size_t range = 0; range < targets_.size(); ++range) {
    const std::string value = plan_.value(index, range);
    for (const Address& address : targets_[range].addresses) {
      changes.push_back({Change::Kind::set, address, value});
    }
  }
  return changes;
}

std::string Study::contents(std::uint64_t index) const {
  return with_changes(document_, changes(index));
}

}  // namespace qelpro
