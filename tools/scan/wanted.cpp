#include "scan/wanted.h"

#include <algorithm>
#include <utility>

#include "system/failure.h"
#include "system/visible.h"

namespace qelpro {

Wanted::Wanted(Request request) : request_(std::move(request)) {
  if (request_.is_pattern) {
    beginning_ = request_.argument.substr(0, request_.argument.find_first_of("*?["));
  }
}

bool Wanted::may_be_in(std::string_view section) const {
  const std::string_view name = without_brackets(section);
  const bool is_named = std::ranges::any_of(request_.addresses, [&](const Address& address) {
    // The section whose lines have a position may be named by its first word.
    return name == address.section ||
           (name.starts_with(address.section) && name[address.section.size()] == ' ');
  });
  if (is_named || !request_.is_pattern) {
    return is_named;
  }
  const std::size_t common = std::min(name.size(), beginning_.size());
  return name.substr(0, common) == std::string_view(beginning_).substr(0, common) &&
         (beginning_.size() <= name.size() || beginning_[name.size()] == '.');
}

std::vector<Wanted> wanted_of(const std::vector<std::string>& words) {
  std::vector<Wanted> all;
  for (const std::string& word : words) {
    const std::vector<Request> requests = requests_of({word});
    if (requests.size() != 1) {
      refuse_usage(in_quotes(word) + " is no address: SECTION.KEY");
    }
    all.emplace_back(requests.front());
  }
  return all;
}

}  // namespace qelpro
