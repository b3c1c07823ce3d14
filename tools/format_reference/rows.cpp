#include "rows.h"

#include <string>

#include "blocks/catalogue.h"

namespace {

std::string joined(const qel::Members& members) {
  std::string names;
  for (const char* name : members) {
    if (name != nullptr) {
      names += (names.empty() ? "" : " ") + std::string(name);
    }
  }
  return names;
}

}  // namespace

void print_rows(std::ostream& to) {
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    for (std::size_t index = 0; index < section->key_count; ++index) {
      const qel::KeyInfo& key = *section->keys[index];
      to << section->name << '\t' << key.text << '\t' << key.encoding << '\t' << joined(key.readers)
         << '\t' << joined(key.writers) << '\t' << joined(key.elsewhere.older) << '\t'
         << joined(key.elsewhere.adapter) << '\t'
         << (key.elsewhere.loader != nullptr ? key.elsewhere.loader : "") << '\t' << key.meaning
         << '\t' << joined(key.elsewhere.value_reader) << '\n';
    }
  }
}
