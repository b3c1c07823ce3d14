#include <string>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/accessors.h"
#include "support.h"

// Any file: every getter of the self-contained object answers; a setter is read back, and never
// shortens the file.

using qelpro_fuzz::fail;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string contents(qelpro_fuzz::text_of(data, size));
  CPROIO_Manipulator object;
  if (!object.SetFilePath(qelpro_fuzz::file_with(contents))) {
    fail("a readable file was not opened");
  }
  for (const auto& row : qelpro_test::integer_accessors()) {
    int value = 777;
    if (row.get && !row.get(object, value) && value != 777) {
      fail(std::string(row.name) + " said no and changed its output");
    }
  }
  for (const auto& row : qelpro_test::real_accessors()) {
    double value = 777;
    if (row.get) {
      row.get(object, value);
    }
  }
  for (const auto& row : qelpro_test::text_accessors()) {
    char* text = nullptr;
    if (row.get && row.get(object, text) && std::string(text).size() > 127) {
      fail(std::string(row.name) + " handed out a text that is too long");
    }
  }
  for (const auto& row : qelpro_test::point_accessors()) {
    double x = 777;
    double y = 777;
    if (row.get && !row.get(object, x, y) && (x != 777 || y != 777)) {
      fail(std::string(row.name) + " said no and changed its outputs");
    }
  }
  double a = 0;
  double b = 0;
  double c = 0;
  double d = 0;
  int i = 0;
  int j = 0;
  char* name = nullptr;
  QELPRO_MMM_MECHANICAL record{};
  object.GetCoolant(1, a, b, c, d, i, name, a, j);
  object.GetPartInsertSetting(1, i, name, a);
  object.GetMoldbase(1, record);
  object.GetMoldMetalMaterial(1, record);
  object.GetMoldbase(1, a, b, c, name);
  object.GetBCSetting(1, i, name, j);
  object.GetBCProfile(2, 1, a, b);
  if (qelpro_fuzz::bytes_of_file() != contents) {
    fail("reading changed the file");
  }
  double time = 0;
  if (!object.SetFillTime(12.5, 2) || !object.GetFillTime(time, 2) || time != 12.5) {
    fail("a store was not read back");
  }
  object.SetBCProfile(1, 1, 2, 3);
  if (qelpro_fuzz::bytes_of_file().size() < contents.size()) {
    fail("a store made the file shorter");
  }
  return 0;
}
