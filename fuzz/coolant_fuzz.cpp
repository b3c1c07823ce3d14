#include <cmath>

#include "QELPROEngine/CQELPCSInterpolator.h"
#include "support.h"

// Any file: coolant tables load, and answer or refuse every identifier and argument.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CQELPCSInterpolator tables;
  if (!tables.LoadDataFromFile(qelpro_fuzz::file_with(qelpro_fuzz::text_of(data, size)))) {
    qelpro_fuzz::fail("a readable file was not loaded");
  }
  for (int coolant = -2; coolant < 10; ++coolant) {
    for (const double argument : {-1e9, 0.0, 12.5, 20.0, 1e9, std::nan("")}) {
      double p1 = 7;
      double p2 = 7;
      double p3 = 7;
      double p4 = 7;
      const bool found = tables.InterpolateCoolantProperties(coolant, argument, p1, p2, p3, p4);
      if (!found && (p1 != 7 || p2 != 7 || p3 != 7 || p4 != 7)) {
        qelpro_fuzz::fail("a refused question changed its outputs");
      }
      if (found && coolant >= 3 && coolant < 6) {
        qelpro_fuzz::fail("an identifier without a coolant was answered");
      }
    }
  }
  return 0;
}
