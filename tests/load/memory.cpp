#include "load/memory.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>
#include <locale>

namespace qelpro_test {

std::size_t resident_bytes() {
  std::size_t all = 0;
  std::size_t resident = 0;
  std::ifstream statm("/proc/self/statm");
  statm.imbue(std::locale::classic());  // in which a blank never goes on a number
  statm >> all >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

std::size_t most_resident_bytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

}  // namespace qelpro_test
