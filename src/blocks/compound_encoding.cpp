#include "blocks/compound_encoding.h"

#include <cstring>

namespace qel {

void ZoneCount::scan(const char* text, int& value) {
  if (std::strchr(text, '+') == nullptr) {
    fields::scan(text, value);
    return;
  }
  int first = 0;
  int second = 0;
  char separator = 0;
  fields::scan(text, first, separator, second);
  value = static_cast<int>(static_cast<unsigned int>(first) + static_cast<unsigned int>(second));
}

void GatePoint::scan(const char* text, double& value, int& number, int& mode, int& last) {
  fields::clear(value, number, mode, last);
  fields::scan(text, value, number, mode, last);
  if (mode == 1 || mode == 4) {
    last = -1;
  }
}

std::string GatePoint::print(double value, int number, int mode, int last) {
  switch (mode) {
    case 1:
    case 4:
      return fields::print("\t", value, number, mode);
    case 2:
    case 3:
      return fields::print("\t", value, number, mode, last);
    default:
      return {};
  }
}

}  // namespace qel
