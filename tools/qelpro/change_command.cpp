#include "change_command.h"

#include "print_differences.h"
#include "system/files.h"

namespace qelpro {

void make_changes(const std::string& file, bool dry_run,
                  const std::function<std::vector<Change>(const SectionedText&)>& make) {
  if (!dry_run) {
    change_file(file, make);
    return;
  }
  const SectionedText before = load_document(file);
  const SectionedText after(with_changes(before, make(before)));
  print_differences(differences(before, after), Painter("auto"));
}

}  // namespace qelpro
