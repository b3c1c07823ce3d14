#include "rows.h"

#include <string>

#include "blocks/catalogue.h"
#include "functions.h"

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
    for (const qel::KeyInfo& key : section->keys) {
      to << section->name << '\t' << key.text << '\t' << key.encoding->name << '\t'
         << joined(key.readers) << '\t' << joined(key.writers) << '\t' << joined(key.details.older)
         << '\t' << joined(key.details.adapter) << '\t' << function_of(key.details.loader) << '\t'
         << key.meaning << '\t' << joined(key.details.value_reader) << '\n';
    }
  }
}
