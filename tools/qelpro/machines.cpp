#include <string>

#include "commands.h"
#include "json/json_text.h"
#include "output.h"
#include "reference/machine_bank.h"
#include "system/failure.h"

namespace qelpro {

namespace {

void list_makers(const MachineBank& bank, bool json) {
  Json list = Json::array();
  for (const std::string& maker : bank.makers()) {
    const std::size_t grades = bank.grades(maker).size();
    if (json) {
      list.push_back({{"maker", maker}, {"grades", grades}});
    } else {
      answer() << maker << '\t' << std::to_string(grades) << '\n';
    }
  }
  if (json) {
    write_json(answer(), list);
    answer() << '\n';
  }
}

void list_grades(const MachineBank& bank, const std::string& maker, bool json) {
  if (json) {
    write_json(answer(), {{"maker", maker}, {"grades", bank.grades(maker)}});
    answer() << '\n';
    return;
  }
  for (const std::string& grade : bank.grades(maker)) {
    answer() << grade << '\n';
  }
}

}  // namespace

int run_machines(const MachinesArguments& arguments) {
  if (arguments.maker && arguments.maker->empty()) {
    throw Failure(kUsage,
                  "machines: maker \"\": the name is empty; qelpro machines FILE lists the makers");
  }
  const MachineBank bank(arguments.bank);
  if (bank.makers().empty()) {
    throw Failure(kNotFound,
                  at(arguments.bank,
                     "the bank is empty: no line of it is a machine (flag 1 and 22 fields or "
                     "more)"));
  }
  if (arguments.maker) {
    list_grades(bank, *arguments.maker, arguments.json);
  } else {
    list_makers(bank, arguments.json);
  }
  return kDone;
}

}  // namespace qelpro
