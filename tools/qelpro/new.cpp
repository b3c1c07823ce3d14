#include "commands.h"
#include "simulation/new_file.h"
#include "system/failure.h"

namespace qelpro {

int run_new(const NewArguments& arguments) {
  make_new_file(arguments.file);
  return kDone;
}

}  // namespace qelpro
