#include "engine/snapshot.h"

#include "system/failure.h"
#include "system/files.h"

namespace qelpro::python {

SnapshotPointer load(const std::string& path, const std::string& name,
                     const SnapshotPointer& before) {
  std::string contents = under_name(name, [&] { return read_file(path); });
  return before != nullptr && before->document().contents() == contents
             ? before
             : std::make_shared<Snapshot>(name, std::move(contents));
}

SnapshotPointer edited(const SnapshotPointer& before, const std::string& name,
                       const std::vector<Edit>& edits) {
  const SectionedText& document = before->document();
  return std::make_shared<Snapshot>(name,
                                    with_changes(document, changes_of(name, document, edits)));
}

void store(const std::string& path, const std::string& name, const std::vector<Edit>& edits) {
  under_name(name, [&] {
    change_file(path,
                [&](const SectionedText& document) { return changes_of(name, document, edits); });
  });
}

}  // namespace qelpro::python
