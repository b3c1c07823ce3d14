#include "commands.h"
#include "file/forms.h"
#include "output.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {

int run_export(const ExportArguments& arguments) {
  const std::string contents = read_file(arguments.file);
  Json form;
  if (arguments.exact) {
    form = exact_form(contents);
  } else {
    const SectionedText document = document_text(arguments.file, contents);
    form = plain_form(Entries(document));
  }
  write_answer(arguments.out, {arguments.file}, [&form](Sink& sink) {
    write_json(sink, form);
    sink << '\n';
  });
  return kDone;
}

}  // namespace qelpro
