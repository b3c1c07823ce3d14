#include "faults/late/members.h"

#include <cstring>
#include <iterator>
#include <memory>
#include <string>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"

// Members of the exported classes, as a thread's first use of the library.

namespace {

struct Objects {
  char* path;
  CQELPROReader_Manipulator reader;
  CQELPROReader_Manipulator names;
  CQELPROWriter_Manipulator writer;
  CPROIO_Manipulator older;
  CQELProcessData_Manipulator loader;
};
std::unique_ptr<Objects> objects;

int judge(bool done, bool right) { return !done ? 0 : right ? 1 : -1; }

int read_number() {
  double value = 0;
  const bool done = objects->reader.FlowX_ReadFillingTime(value, 1);
  return judge(done, value == 1.5);
}

int read_name() {
  double number = 0;
  char* name = nullptr;
  const bool done = objects->names.MoldMetalMaterial_ReadMaterial(number, number, number, name,
                                                                  number, number, number, 1);
  return judge(done, done && std::strcmp(name, "Tool steel") == 0);
}

int read_text() {
  char* text = nullptr;
  const bool done = objects->reader.ReadString("[FileHeader]", "Name", text, nullptr, 0);
  return judge(done, done && std::strcmp(text, "a file") == 0);
}

int scan_text() {
  char* text = nullptr;
  const bool done = objects->reader.ReadValue("[FileHeader]", "Name", text, nullptr, 0);
  return judge(done, done && std::strcmp(text, "a file") == 0);
}

int open_file() {
  CQELPROReader_Manipulator reader;
  double value = 0;
  const bool done = reader.SetFilePath(objects->path) && reader.FlowX_ReadFillingTime(value, 1);
  return judge(done, value == 1.5);
}

int store_number() { return objects->writer.FlowX_WriteFillingTime(1.5, 1) ? 1 : 0; }

int read_older() {
  double value = 0;
  const bool done = objects->older.GetFillTime(value, 1);
  return judge(done, value == 1.5);
}

int store_older() { return objects->older.SetFillTime(1.5, 1) ? 1 : 0; }

int load() {
  const std::unique_ptr<const QELG_SimulatorProcess> process(
      objects->loader.GetProcessDataStructure(objects->path));
  double value = 0;
  return judge(process != nullptr,
               process != nullptr && process->GetNumOfInlets() == 1 &&
                   get_process_FillTime(*process->GetFlowPackOfInlet(0), value) && value == 1.5);
}

int list_machines() {
  CQELMachineIdentification machines;
  machines.SetMachineUserBankPath(objects->path);  // a file that lists none
  return machines.LoadFileData() && machines.GetMakerCount() == 0 ? 1 : 0;
}

struct Use {
  const char* name;
  int (*run)();
};
constexpr Use kUses[] = {
    {"read a number", read_number}, {"read a name", read_name},
    {"read a text", read_text},     {"scan for a text", scan_text},
    {"open a file", open_file},     {"store a number", store_number},
    {"read as ever", read_older},   {"store as ever", store_older},
    {"load a process", load},       {"list machines", list_machines},
};

}  // namespace

int prepare_members(char* path) {
  objects = std::make_unique<Objects>();
  objects->path = path;
  objects->older.SetFilePath(path);
  return objects->reader.SetFilePath(path) && objects->names.SetFilePath(path) &&
                 objects->writer.SetFilePath(static_cast<const char*>(path))
             ? 1
             : 0;
}

void drop_members() { objects.reset(); }

int kinds_of_use() { return static_cast<int>(std::size(kUses)); }

const char* name_of_use(int kind) { return kUses[kind].name; }

int use_members(int kind) {
  try {
    return kUses[kind].run();
  } catch (...) {
    return -1;
  }
}
