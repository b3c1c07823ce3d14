#include <CLI/CLI.hpp>
#include <memory>

#include "arguments/add.h"
#include "arguments/words.h"
#include "commands.h"

namespace qelpro {

void add_explain(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<ExplainArguments>();
  CLI::App* command = app.add_subcommand(
      name, "Tell what the library knows of a section or a key: meaning, unit, members");
  add_words(*command, "SECTION.KEY", arguments->words,
            "A section or a key of one, as it stands in a file (Flow-2.FR-3) or as a pattern "
            "(Flow-%ld.FR-%d); without it all sections",
            0);
  command->add_flag("--json", arguments->json,
                    "Print JSON; without SECTION.KEY the whole catalogue");
  command->footer("Example: qelpro explain Flow-1.FR-2");
  command->callback([arguments, &status] { status = run_explain(*arguments); });
}

}  // namespace qelpro
