#include "file/wanted.h"

#include <algorithm>
#include <utility>

#include "system/failure.h"
#include "system/visible.h"

namespace qelpro {
namespace {

constexpr std::string_view kSpecial = "*?[]";

// Whether a section of that name, without its brackets, may be meant. That whose lines have a
// position may be named by its first word.
bool is_named(std::string_view name, const std::string& section) {
  return name == section || (name.starts_with(section) && name[section.size()] == ' ');
}

// Whether one of two texts begins with the other.
bool begin_alike(std::string_view one, std::string_view other) {
  return one.size() < other.size() ? other.starts_with(one) : one.starts_with(other);
}

}  // namespace

std::vector<Request> wanted_of(const std::vector<std::string>& words) {
  std::vector<Request> all;
  for (const std::string& word : words) {
    std::vector<Request> requests = requests_of({word});
    if (requests.size() != 1) {
      refuse_usage(in_quotes(word) + " is no address: SECTION.KEY");
    }
    all.push_back(std::move(requests.front()));
  }
  return all;
}

WantedEntries::WantedEntries(const std::vector<Request>& requests) : requests_(requests) {}

WantedEntries::Place WantedEntries::place_of(std::string_view name) const {
  Place place{std::string(without_brackets(name)) + ".", {}, {}};
  for (const Request& request : requests_) {
    for (const Address& address : request.addresses) {
      if (is_named(without_brackets(name), address.section)) {
        place.keys.emplace_back(address.key);
      }
    }
    if (request.is_pattern) {
      const std::string_view whole = request.argument;
      const Pattern pattern{whole, whole.substr(0, whole.find_first_of(kSpecial)),
                            whole.substr(whole.find_last_of(kSpecial) + 1)};
      if (begin_alike(place.beginning, pattern.beginning)) {
        place.patterns.push_back(pattern);
      }
    }
  }
  return place;
}

bool WantedEntries::wants_section(std::string_view name) {
  constexpr std::size_t kMostNames = 4096;  // files may have any number of them
  auto known = places_.find(name);
  if (known == places_.end()) {
    if (places_.size() == kMostNames) {
      places_.clear();
    }
    known = places_.emplace(std::string(name), place_of(name)).first;
  }
  now_ = &known->second;
  return !now_->keys.empty() || !now_->patterns.empty();
}

bool WantedEntries::wants_key(std::string_view key) {
  if (std::ranges::find(now_->keys, key) != now_->keys.end()) {
    return true;
  }
  return std::ranges::any_of(now_->patterns, [this, key](const Pattern& pattern) {
    const std::size_t common = std::min(key.size(), pattern.end.size());
    if (key.substr(key.size() - common) != pattern.end.substr(pattern.end.size() - common)) {
      return false;
    }
    address_.assign(now_->beginning).append(key);
    return matches_pattern(pattern.whole, address_);
  });
}

}  // namespace qelpro
