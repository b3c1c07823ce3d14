#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "blocks/key.h"
#include "file/entries.h"
#include "file/near.h"

namespace qelpro {

/// The keys of the catalogue by their names: which sections know one is found without going through
/// all of them.
class KnownKeys {
 public:
  KnownKeys();

  struct Owner {
    const qel::SectionInfo* section;
    const qel::KeyInfo* key;  ///< The first row of that key.
  };
  /// Those who know the key, in the order of the catalogue.
  [[nodiscard]] std::vector<Owner> owners_of(std::string_view key) const;

  /// The first row of each entry's key; null where its section does not know it.
  [[nodiscard]] std::vector<const qel::KeyInfo*> keys_of(const Entries& entries) const;

  /// The key of the section that is near to this one, with its number; or nothing.
  [[nodiscard]] std::string near(const qel::SectionInfo& section, std::string_view key) const {
    return names_.at(&section).near(key);
  }

 private:
  template <class Take>
  void visit_owners(std::string_view key, const Take& take) const;

  std::unordered_map<const qel::SectionInfo*, NearNames> names_;
  std::unordered_map<std::string_view, std::vector<Owner>> by_pattern_;
};

}  // namespace qelpro
