#include <memory>
#include <string>
#include <vector>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "members/every_member.h"
#include "support.h"

// Any file: every reader member answers and leaves its outputs alone where it says no; the loader
// builds a process or none; reading changes no byte.

using qelpro_fuzz::fail;
using qelpro_test::ReaderMember;
using qelpro_test::Value;

namespace {

void ask_every_member(CQELPROReader_Manipulator& reader, int number) {
  for (const ReaderMember& member : qelpro_test::reader_members()) {
    const std::vector<Value> before = qelpro_test::values_for(member, {number, 1}, "Group-1");
    std::vector<Value> values = before;
    if (!member.read(reader, values) && values != before) {
      fail(member.name + " said no and changed its outputs");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string contents(qelpro_fuzz::text_of(data, size));
  const char* path = qelpro_fuzz::file_with(contents);
  {
    CQELPROReader_Manipulator reader;
    if (!reader.SetFilePath(path)) {
      fail("a readable file was not opened");
    }
    ask_every_member(reader, 1);
    char buffer[4096];
    char* value = nullptr;
    reader.ReadString("[Flow-1]", "FillTime", value, buffer, sizeof buffer);
    reader.ReadValue("[Flow-1]", "FillTime", value, buffer, sizeof buffer);
  }
  if (std::FILE* stream = std::fopen(path, "r")) {
    {
      CQELPROReader_Manipulator reader;
      reader.SetFilePtr(stream);
      ask_every_member(reader, 2);
    }
    std::fclose(stream);
  }
  CQELProcessData_Manipulator loader;
  const std::unique_ptr<const QELG_SimulatorProcess> process(loader.GetProcessDataStructure(path));
  if (process == nullptr) {
    fail("a readable file gave no process");
  }
  if (qelpro_fuzz::bytes_of_file() != contents) {
    fail("reading changed the file");
  }
  return 0;
}
