#include <QELPROEngine/CQELMachineIdentification.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "commands.h"
#include "status.h"

namespace {

using Json = nlohmann::ordered_json;

struct Arguments {
  std::string bank;
  std::string maker;
  bool json = false;
};

int list_makers(CQELMachineIdentification& machines, bool json) {
  const char** makers = nullptr;
  int count = 0;
  machines.GetAllMaker(&makers, &count);
  Json list = Json::array();
  for (int i = 0; i < count; ++i) {
    const int grades = machines.GetGradeCount(makers[i]);
    if (json) {
      list.push_back({{"maker", makers[i]}, {"grades", grades}});
    } else {
      std::cout << makers[i] << '\t' << grades << '\n';
    }
  }
  if (json) {
    std::cout << list.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  }
  return kDone;
}

int list_grades(CQELMachineIdentification& machines, const std::string& maker, bool json) {
  const char** grades = nullptr;
  int count = 0;
  machines.GetAllGrade(maker.c_str(), &grades, &count);
  if (json) {
    std::cout << Json{{"maker", maker}, {"grades", std::vector<std::string>(grades, grades + count)}}.dump(2, ' ', false,
                                                                                                           Json::error_handler_t::replace)
              << '\n';
    return kDone;
  }
  for (int i = 0; i < count; ++i) {
    std::cout << grades[i] << '\n';
  }
  return kDone;
}

int machines(const Arguments& arguments) {
  if (const std::string why = why_unreadable(arguments.bank); !why.empty()) {
    return fail(kFileError, arguments.bank + ": " + why);
  }
  CQELMachineIdentification machines;
  machines.SetMachineUserBankPath(arguments.bank.c_str());
  if (!machines.LoadFileData()) {
    return fail(kFileError, arguments.bank + ": not a machine bank of this version (it holds a \"TotalNo\" line)");
  }
  if (machines.GetMakerCount() == 0) {
    return fail(kNotFound, arguments.bank + ": no machine (of a bank of version 7007)");
  }
  if (arguments.maker.empty()) {
    return list_makers(machines, arguments.json);
  }
  if (machines.GetGradeCount(arguments.maker.c_str()) == 0) {
    return fail(kNotFound, arguments.bank + ": maker \"" + arguments.maker + "\": not found");
  }
  return list_grades(machines, arguments.maker, arguments.json);
}

}  // namespace

void add_machines(CLI::App& app, int& status) {
  auto arguments = std::make_shared<Arguments>();
  CLI::App* command = app.add_subcommand("machines", "List the makers of a machine bank with their numbers of grades, or the grades of one maker");
  command->add_option("FILE", arguments->bank, "The machine bank")->required();
  command->add_option("MAKER", arguments->maker, "The maker whose grades are listed");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->callback([arguments, &status] { status = machines(*arguments); });
}
