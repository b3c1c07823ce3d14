#pragma once

#include <memory>
#include <string>
#include <vector>

#include "file/edit.h"
#include "file/entries.h"

namespace qelpro::python {

/// What a file holds at one moment.
class Snapshot {
 public:
  /// A `Failure` for contents that are no text of the format.
  Snapshot(const std::string& file, std::string contents)
      : document_(document_text(file, std::move(contents))), entries_(document_) {}
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;
  ~Snapshot() = default;

  [[nodiscard]] const SectionedText& document() const { return document_; }
  [[nodiscard]] const Entries& entries() const { return entries_; }

 private:
  SectionedText document_;
  Entries entries_;
};

using SnapshotPointer = std::shared_ptr<Snapshot>;

/// The file as it is now, which is `before` where nothing has changed. `path` is where it is,
/// `name` what messages call it.
SnapshotPointer load(const std::string& path, const std::string& name,
                     const SnapshotPointer& before);

/// After the edits.
SnapshotPointer edited(const SnapshotPointer& before, const std::string& name,
                       const std::vector<Edit>& edits);

/// Makes the edits in the file, all or none.
void store(const std::string& path, const std::string& name, const std::vector<Edit>& edits);

}  // namespace qelpro::python
