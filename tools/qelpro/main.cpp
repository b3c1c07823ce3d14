#include <exception>
#include <new>

#include "command_line.h"
#include "output.h"
#include "system/failure.h"
#include "system/streams.h"

using namespace qelpro;

int main(int count, char** arguments) try {
  prepare_streams();
  return run_command_line(count, arguments);
} catch (const Failure& failure) {
  complain(failure.what());
  return failure.status();
} catch (const std::bad_alloc&) {
  complain("out of memory");
  return kFileError;
} catch (const std::exception& error) {
  complain(error.what());
  return kFileError;
}
