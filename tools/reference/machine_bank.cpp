#include "reference/machine_bank.h"

#include <QELPROEngine/CQELMachineIdentification.h>

#include "reference/reference_text.h"
#include "system/engine_file.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {
namespace {

void check_version(const std::string& bank, const BankVersion& version) {
  const Where where{bank, version.line, "", ""};
  switch (version.problem) {
    case BankProblem::holds_total:
      throw Failure(
          kFileError,
          at(where, R"(not a machine bank of version 7007: its header holds a "TotalNo" line)"));
    case BankProblem::no_version_line:
      throw Failure(kFileError,
                    at(where, R"(not a machine bank: no "Version" line behind a "[Header]" line)"));
    case BankProblem::unreadable_version:
      throw Failure(kFileError, at(where, "no version can be read from \"" + version.text +
                                              R"(": write "Version,7007")"));
    case BankProblem::other_version:
      throw Failure(kNotFound, at(where, "no machine: \"" + version.text +
                                             "\" is not version 7007, the one that is read"));
    case BankProblem::none:
      break;
  }
}

}  // namespace

MachineBank::MachineBank(const std::string& file) : file_(file) {
  const std::string contents = read_file(file);
  const EngineFile bank(file, contents);
  CQELMachineIdentification machines;
  machines.SetMachineUserBankPath(bank.path().c_str());
  const BankVersion version = bank_version_of(contents);
  const bool loaded = machines.LoadFileData();
  if (version.problem == BankProblem::holds_total || (loaded && machines.GetMakerCount() == 0)) {
    check_version(file, version);
  }
  if (!loaded) {
    throw Failure(kFileError, at(file, "cannot be loaded: out of memory, or changed meanwhile"));
  }
  const char** names = nullptr;
  int count = 0;
  if (machines.GetAllMaker(&names, &count)) {
    makers_.assign(names, names + count);
  }
  for (const std::string& maker : makers_) {
    if (machines.GetAllGrade(maker.c_str(), &names, &count)) {
      grades_[maker].assign(names, names + count);
    }
  }
}

const std::vector<std::string>& MachineBank::grades(const std::string& maker) const {
  const auto found = grades_.find(maker);
  if (found == grades_.end()) {
    throw Failure(kNotFound, at(file_, "maker \"" + maker +
                                           "\": not found; qelpro machines FILE lists the makers"));
  }
  return found->second;
}

}  // namespace qelpro
