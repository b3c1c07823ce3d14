#include <cstring>

#include "QELPROEngine/CQELMachineIdentification.h"
#include "support.h"

// Any file: a machine bank loads or not, and what it lists is what it counts.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CQELMachineIdentification machines;
  machines.SetMachineUserBankPath(qelpro_fuzz::file_with(qelpro_fuzz::text_of(data, size)));
  machines.LoadFileData();
  const char** makers = nullptr;
  int count = 0;
  if (machines.GetAllMaker(&makers, &count) != (machines.GetMakerCount() > 0) ||
      count != machines.GetMakerCount()) {
    qelpro_fuzz::fail("makers were miscounted");
  }
  for (int i = 0; i < count; ++i) {
    char maker[2048] = {};
    if (!machines.GetMaker(i, maker, sizeof maker)) {
      qelpro_fuzz::fail("a maker was not handed out");
    }
    char grade[8];
    const int grades = machines.GetGradeCount(maker);
    if (grades < 1 || !machines.GetGrade(maker, grades - 1, grade, sizeof grade) ||
        machines.GetGrade(maker, grades, grade, sizeof grade)) {
      qelpro_fuzz::fail("grades were miscounted");
    }
  }
  return 0;
}
