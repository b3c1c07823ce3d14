#include <utility>
#include <vector>

#include "change_command.h"
#include "commands.h"
#include "file/forms.h"
#include "json/json_input.h"
#include "output.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {

int run_import(const ImportArguments& arguments) {
  if (arguments.out.has_value() == arguments.onto.has_value()) {
    throw Failure(kUsage,
                  "import: give -o FILE for a new file, or --onto FILE for one that is there");
  }
  if (arguments.out && (arguments.dry_run || arguments.force)) {
    throw Failure(kUsage, std::string("import: ") + (arguments.dry_run ? "--dry-run" : "--force") +
                              " goes with --onto: -o writes the whole file");
  }
  const std::string name = arguments.form == "-" ? "standard input" : arguments.form;
  const Json form = parse_json(name, read_file(arguments.form));
  if (arguments.out) {
    const std::string contents = contents_of(name, form);
    write_answer(arguments.out, {arguments.form}, [&contents](Sink& sink) { sink << contents; });
    return kDone;
  }
  std::vector<Change> changes = changes_of_form(name, form);
  for (const Change& change : changes) {
    check_change(*arguments.onto, change, arguments.force);
  }
  make_changes(*arguments.onto, arguments.dry_run,
               [&changes](const SectionedText&) { return std::move(changes); });
  return kDone;
}

}  // namespace qelpro
