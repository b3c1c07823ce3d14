#include "simulation/new_file.h"

#include <QELPROEngine/CPROIO_Manipulator.h>

#include "system/failure.h"
#include "system/files.h"

namespace qelpro {

namespace {

// Somewhat more than a default document has.
constexpr std::size_t kExpectedSize = std::size_t{16} * 1024;

}  // namespace

void make_new_file(const std::string& path) {
  NewFile file(path, kExpectedSize);
  CPROIO_Manipulator document;
  document.SetFilePath(file.temporary_path().data());
  // It tells of missing memory alone; where the file did not take an entry, the last one is not
  // there.
  double x = 0;
  double y = 0;
  if (!document.SetDefault() || !document.GetFRProfile(2, x, y, 1)) {
    throw Failure(kFileError, at(path, "cannot be written: no room for the default values"));
  }
  file.publish();
}

}  // namespace qelpro
