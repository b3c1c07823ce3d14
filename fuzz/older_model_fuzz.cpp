#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <string>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/model_steps.h"
#include "support.h"

// Any file, and a sequence of the older object's stores and lookups: after each the results and
// the bytes of the file are those of its naive model.

using qelpro_fuzz::fail;
using qelpro_test::with_plain_dates;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kLongestFile = 3000;
  FuzzedDataProvider input(data, size);
  std::string contents = input.ConsumeRandomLengthString(kLongestFile);
  // The model knows one line break, and no end of a line before it.
  std::ranges::replace(contents, '\r', ' ');
  std::ranges::replace(contents, '\0', '0');
  qelpro_test::NaiveOlderObject model(contents);
  const char* const path = qelpro_fuzz::file_with(contents);
  CPROIO_Manipulator object;
  if (!object.SetFilePath(path)) {
    fail("a file was not opened");
  }
  const auto pick = [&input](int below) { return input.ConsumeIntegralInRange(0, below - 1); };
  int found = 0;
  constexpr int kMostSteps = 16;
  for (int step = 0; step < kMostSteps && (step < 2 || input.remaining_bytes() > 0); ++step) {
    const std::string before = model.text();
    if (const std::string member = qelpro_test::step_beside(model, object, pick, found);
        !member.empty()) {
      fail({member, " differs in\n", before});
    }
    if (const std::string after = with_plain_dates(qelpro_fuzz::bytes_of_file());
        after != with_plain_dates(model.text())) {
      fail({"the file is\n", after, "\nand not\n", with_plain_dates(model.text()), "\nand was\n",
            before});
    }
  }
  return 0;
}
