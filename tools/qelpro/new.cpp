#include <QELPROEngine/CQELPROWriter_Manipulator.h>

#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>
#include <string>

#include "commands.h"
#include "status.h"

namespace {

struct Entry {
  const char* section;
  const char* key;
  const char* value;
};

constexpr Entry kHeaders[] = {
    {"[FileHeader]", "Name", "Default.pro"}, {"[FileHeader]", "Type", "PRO"},
    {"[FileHeader]", "CreateBy", "qelpro"},  {"[FileHeader]", "Remark", "Default process condition setting"},
    {"[CaeHeader]", "Version", "Vantor"},    {"[CaeHeader]", "Release", ""},
    {"[CaeHeader]", "Project", ""},          {"[CaeHeader]", "Engineer", ""},
    {"[CaeHeader]", "Parent", ""},           {"[CaeHeader]", "Type", "Injection"},
    {"[CaeHeader]", "FileVersion", "1008"},  {"[CaeHeader]", "FileType", "0"},
    {"[Summary]", "TotalNdivz", "6"},        {"[Summary]", "TotalNodeEM", "1"},
    {"[Summary]", "TotalNodeEC", "0"},
};

constexpr Entry kStages[] = {
    {"[FlowCTL]", "FlowCtrl", "0"},
    {"[FlowCTL]", "VPSwitchCtrl", "0"},
    {"[FlowCTL]", "PackingCtrl", "0"},
    {"[FlowCTL]", "MoldTemperature", "70"},
    {"[FlowCTL]", "MeltTemperature", "230"},
    {"[FlowCTL]", "InjectionTime", "1"},
    {"[FlowCTL]", "VolumeFilled", "98"},
    {"[FlowCTLInfo]", "TotalInlet", "1"},
    {"[Flow-1]", "FillTime", "1"},
    {"[Flow-1]", "MeltTemp", "230"},
    {"[Flow-1]", "MoldTemp", "70"},
    {"[Flow-1]", "InjectPres", "150"},
    {"[Flow-1]", "PreFill", "100"},
    {"[Flow-1]", "FRSet", "2"},
    {"[Flow-1]", "FR-1", "0\t50"},
    {"[Flow-1]", "FR-2", "100\t50"},
    {"[Pack-1]", "PackTime", "5"},
    {"[Pack-1]", "PackPres", "150"},
    {"[Pack-1]", "PPSet", "2"},
    {"[Pack-1]", "PP-1", "0\t80"},
    {"[Pack-1]", "PP-2", "5\t80"},
};

template <std::size_t count>
bool write(CQELPROWriter_Manipulator& writer, const Entry (&entries)[count]) {
  for (const Entry& entry : entries) {
    if (!writer.WriteString(entry.section, entry.key, entry.value)) {
      return false;
    }
  }
  return true;
}

int make(const std::string& file) {
  if (std::filesystem::exists(file)) {
    return fail(kFileError, file + ": exists already");
  }
  CQELPROWriter_Manipulator writer;
  if (!writer.SetFilePath(file.c_str())) {
    return fail(kFileError, file + ": cannot be created");
  }
  if (!write(writer, kHeaders) || !writer.FileHeader_WriteDate()) {
    return fail(kFileError, file + ": cannot be written");
  }
  writer.WriteUnitBlock();
  return write(writer, kStages) ? kDone : fail(kFileError, file + ": cannot be written");
}

}  // namespace

void add_new(CLI::App& app, int& status) {
  auto file = std::make_shared<std::string>();
  CLI::App* command = app.add_subcommand("new", "Make a process file with default values");
  command->add_option("FILE", *file, "The process file; one that exists is left alone")->required();
  command->callback([file, &status] { status = make(*file); });
}
