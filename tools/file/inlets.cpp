#include "file/inlets.h"

#include <set>
#include <string>

#include "blocks/catalogue.h"
#include "blocks/flow_x.h"

namespace qelpro {

std::vector<int> inlets_of(const SectionedText& document) {
  std::set<int> inlets;
  for (const TextSection& section : document.sections()) {
    int number = 0;
    if (qel::find_section(std::string(section.name).c_str(), number) == &qel::flow_x::kInfo &&
        number >= 1) {
      inlets.insert(number);
    }
  }
  return {inlets.begin(), inlets.end()};
}

}  // namespace qelpro
