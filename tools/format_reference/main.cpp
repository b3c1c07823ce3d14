// Prints docs/format.md, the reference of the process file, from docs/format.md.in and the
// catalogue; or, for scripts, the catalogue's rows.

#include <exception>
#include <iostream>
#include <string_view>

#include "page.h"
#include "rows.h"

int main(int count, char** arguments) {
  try {
    if (count == 1) {
      print_page(FORMAT_PARTS, std::cout);
    } else if (count == 2 && std::string_view(arguments[1]) == "--rows") {
      print_rows(std::cout);
    } else {
      std::cerr << "usage: format_reference [--rows]\n";
      return 2;
    }
  } catch (const std::exception& problem) {
    std::cerr << "format_reference: " << problem.what() << '\n';
    return 1;
  }
  return std::cout.flush() ? 0 : 1;
}
