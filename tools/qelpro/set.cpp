#include "commands.h"
#include "file/change.h"
#include "file/names.h"
#include "system/failure.h"

namespace qelpro {

int run_set(const SetArguments& arguments) {
  const Change change{
      Change::Kind::set,
      {std::string(without_brackets(section_name(arguments.section))), arguments.key},
      arguments.value.substr(0, arguments.value.find_last_not_of("\r\n") + 1)};
  check_change(arguments.file, change, arguments.force);
  change_file(arguments.file, [&](const SectionedText&) { return std::vector{change}; });
  return kDone;
}

}  // namespace qelpro
