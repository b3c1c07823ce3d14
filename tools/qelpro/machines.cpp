#include <QELPROEngine/CQELMachineIdentification.h>

#include <memory>
#include <string>
#include <vector>

#include "commands.h"
#include "json/json_text.h"
#include "output.h"
#include "reference_text.h"
#include "system/engine_file.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {

namespace {

void list_makers(CQELMachineIdentification& machines, bool json) {
  const char** makers = nullptr;
  int count = 0;
  machines.GetAllMaker(&makers, &count);
  Json list = Json::array();
  for (int i = 0; i < count; ++i) {
    const int grades = machines.GetGradeCount(makers[i]);
    if (json) {
      list.push_back({{"maker", makers[i]}, {"grades", grades}});
    } else {
      answer() << makers[i] << '\t' << std::to_string(grades) << '\n';
    }
  }
  if (json) {
    write_json(answer(), list);
    answer() << '\n';
  }
}

void list_grades(CQELMachineIdentification& machines, const std::string& maker, bool json) {
  const char** grades = nullptr;
  int count = 0;
  machines.GetAllGrade(maker.c_str(), &grades, &count);
  if (json) {
    write_json(answer(),
               {{"maker", maker}, {"grades", std::vector<std::string>(grades, grades + count)}});
    answer() << '\n';
    return;
  }
  for (int i = 0; i < count; ++i) {
    answer() << grades[i] << '\n';
  }
}

[[noreturn]] void fail_without_machines(const std::string& bank, const BankVersion& version) {
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
  throw Failure(
      kNotFound,
      at(bank, "the bank is empty: no line of it is a machine (flag 1 and 22 fields or more)"));
}

}  // namespace

int run_machines(const MachinesArguments& arguments) {
  if (arguments.maker && arguments.maker->empty()) {
    throw Failure(kUsage,
                  "machines: maker \"\": the name is empty; qelpro machines FILE lists the makers");
  }
  const std::string contents = read_file(arguments.bank);
  const EngineFile bank(arguments.bank, contents);
  CQELMachineIdentification machines;
  machines.SetMachineUserBankPath(bank.path().c_str());
  const BankVersion version = bank_version_of(contents);
  const bool loaded = machines.LoadFileData();
  if (version.problem == BankProblem::holds_total || (loaded && machines.GetMakerCount() == 0)) {
    fail_without_machines(arguments.bank, version);
  }
  if (!loaded) {
    throw Failure(kFileError,
                  at(arguments.bank, "cannot be loaded: out of memory, or changed meanwhile"));
  }
  if (!arguments.maker) {
    list_makers(machines, arguments.json);
    return kDone;
  }
  if (machines.GetGradeCount(arguments.maker->c_str()) == 0) {
    throw Failure(kNotFound,
                  at(arguments.bank, "maker \"" + *arguments.maker +
                                         "\": not found; qelpro machines FILE lists the makers"));
  }
  list_grades(machines, *arguments.maker, arguments.json);
  return kDone;
}

}  // namespace qelpro
