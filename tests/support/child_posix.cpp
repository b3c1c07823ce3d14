#include "support/child.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace qelpro_test {
namespace {

bool apply(const Limits& limits) {
  if (limits.longest_file != 0) {
    const rlimit limit{limits.longest_file, limits.longest_file};
    if (std::signal(SIGXFSZ, limits.survives_long_file ? SIG_IGN : SIG_DFL) == SIG_ERR ||
        ::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
      return false;
    }
  }
  constexpr uid_t kNobody = 65534;
  return !limits.unprivileged || ::geteuid() != 0 || ::seteuid(kNobody) == 0;
}

}  // namespace

bool in_child(const Limits& limits, const std::function<bool()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::_exit(apply(limits) && work() ? 0 : 1);
  }
  int status = -1;
  return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) &&
         WEXITSTATUS(status) == 0;
}

}  // namespace qelpro_test
