#include "proio/items.h"

#include <cstring>

#include "platform/number.h"

namespace qel::proio {
namespace {

constexpr const char* kSpace = " \t\n\v\f\r";

}  // namespace

bool scan_item(const char*& at, int& item) { return platform::scan_int(at, item); }

bool scan_item(const char*& at, double& item) { return platform::scan_real(at, item); }

bool scan_item(const char*& at, const Word& item) {
  const char* begin = at + std::strspn(at, kSpace);
  const std::size_t length = std::strcspn(begin, kSpace);
  if (length == 0) {
    return false;
  }
  item.text = item.buffer.assign({begin, length}).text();
  at = begin + length;
  return true;
}

bool scan_item(const char*& at, const Symbol& item) {
  const char* next = at + std::strspn(at, kSpace);
  if (!platform::scan_char(next, item.character)) {
    return false;
  }
  at = next;
  return true;
}

std::string print_item(int item) { return platform::print_int(item); }

std::string print_item(double item) { return platform::print_real(item); }

std::string print_item(const char* item) { return item; }

}  // namespace qel::proio
