#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "file/address.h"
#include "file/entry_filter.h"

namespace qelpro {

/// What each word asks for. A `Failure` of usage for one that is no address and no pattern.
std::vector<Request> wanted_of(const std::vector<std::string>& words);

/// Looks at the entries that one of the requests may mean. Many files have sections of the same
/// names: it knows them again. Refers to the requests.
class WantedEntries : public EntryFilter {
 public:
  explicit WantedEntries(const std::vector<Request>& requests);

  bool wants_section(std::string_view name) override;
  bool wants_key(std::string_view key) override;

 private:
  struct Pattern {
    std::string_view whole;
    std::string_view beginning;  // in front of the first special character
    std::string_view end;        // behind the last one
  };
  // What may be meant in the sections of a name.
  struct Place {
    std::string beginning;  // "SECTION."
    std::vector<std::string_view> keys;
    std::vector<Pattern> patterns;
  };

  [[nodiscard]] Place place_of(std::string_view name) const;

  const std::vector<Request>& requests_;
  std::map<std::string, Place, std::less<>> places_;
  const Place* now_ = nullptr;
  std::string address_;
};

}  // namespace qelpro
