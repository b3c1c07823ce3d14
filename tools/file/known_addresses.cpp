#include "file/known_addresses.h"

#include <algorithm>
#include <map>
#include <set>

#include "blocks/catalogue.h"
#include "file/meaning.h"
#include "file/near.h"
#include "file/profile.h"

namespace qelpro {
namespace {

/// Names in the order in which they come, each once.
class Names {
 public:
  void add(std::string name) {
    if (!name.empty() && seen_.insert(name).second) {
      names_.push_back(std::move(name));
    }
  }
  [[nodiscard]] bool has(const std::string& name) const { return seen_.contains(name); }
  std::vector<std::string> take() { return std::move(names_); }

 private:
  std::vector<std::string> names_;
  std::set<std::string> seen_;
};

}  // namespace

std::vector<std::string> KnownNames::sections() const {
  Names names;
  if (entries_ != nullptr) {
    for (const TextSection& section : entries_->document().sections()) {
      if (!section.repeated) {
        names.add(std::string(without_brackets(section.name)));
      }
    }
  }
  if (of_catalogue_) {
    for (const qel::SectionInfo* section : qel::Catalogue()) {
      int next = 1;
      while (names.has(std::string(without_brackets(with_number(section->name, next))))) {
        ++next;
        if (!qel::is_numbered(section->name)) {
          break;
        }
      }
      names.add(std::string(without_brackets(with_number(section->name, next))));
    }
  }
  return names.take();
}

std::vector<std::string> KnownNames::keys(const std::string& section) const {
  Names names;
  std::map<const qel::KeyInfo*, int> last;  // the largest number of a key in the file
  int number = 0;
  const qel::SectionInfo* const known = qel::find_section(with_brackets(section).c_str(), number);
  if (const TextSection* const own =
          entries_ == nullptr ? nullptr : entries_->find_section(section)) {
    for (const FileEntry& entry : entries_->of(*own)) {
      names.add(entry.key);
      if (const qel::KeyInfo* key =
              known == nullptr ? nullptr : qel::find_key(*known, entry.key.c_str(), number)) {
        last[key] = std::max(last[key], number);
      }
    }
  }
  if (of_catalogue_ && known != nullptr) {
    for (const qel::KeyInfo& key : known->keys) {
      const auto found = last.find(&key);
      names.add(with_number(key.text, found == last.end() ? 1 : found->second + 1));
    }
  }
  return names.take();
}

std::vector<std::string> KnownNames::values(const Address& address) const {
  Names names;
  if (const FileEntry* const entry = entries_ == nullptr ? nullptr : entries_->find(address)) {
    names.add(std::string(entry->value));
  }
  int number = 0;
  const qel::SectionInfo* const section =
      qel::find_section(with_brackets(address.section).c_str(), number);
  if (const qel::KeyInfo* const key =
          section == nullptr ? nullptr : qel::find_key(*section, address.key.c_str(), number)) {
    for (const auto& [code, words] : codes_of(key->meaning)) {
      names.add(std::to_string(code));
    }
  }
  return names.take();
}

std::vector<std::string> KnownNames::profiles() const {
  Names names;
  if (entries_ != nullptr) {
    for (const Profile& profile : profiles_of(*entries_)) {
      if (profile.kind.is_curve()) {
        names.add(profile.address());
      }
    }
  }
  return names.take();
}

}  // namespace qelpro
