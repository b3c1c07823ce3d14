#include "blocks/encoding.h"

#include "platform/number.h"

namespace qel {

using platform::print_int;
using platform::print_real;
using platform::scan_int;
using platform::scan_real;

void Integer::scan(const char* text, int& value) { scan_int(text, value); }

std::string Integer::print(int value) { return print_int(value); }

void Real::scan(const char* text, double& value) { scan_real(text, value); }

std::string Real::print(double value) { return print_real(value); }

void IntegerPair::scan(const char* text, int& first, int& second) {
  first = second = 0;
  if (scan_int(text, first)) {
    scan_int(text, second);
  }
}

void FirstOfIntegerPair::scan(const char* text, int& first) {
  int dropped = 0;
  IntegerPair::scan(text, first, dropped);
}

void RealPair::scan(const char* text, double& x, double& y) {
  if (scan_real(text, x)) {
    scan_real(text, y);
  }
}

std::string RealPair::print(double x, double y) { return print_real(x) + '\t' + print_real(y); }

void RealTriple::scan(const char* text, double& x, double& y, double& z) {
  if (scan_real(text, x) && scan_real(text, y)) {
    scan_real(text, z);
  }
}

std::string RealTriple::print(double x, double y, double z) { return RealPair::print(x, y) + '\t' + print_real(z); }

}  // namespace qel
