#include "system/streams.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <initializer_list>

namespace qelpro {

void prepare_streams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) < 0 && errno == EBADF) {
      // The lowest number that is free is this one. A folder is always there, and takes and gives
      // no bytes.
      ::open("/", O_RDONLY | O_DIRECTORY);
    }
  }
  std::signal(SIGXFSZ, SIG_IGN);
}

bool is_terminal(std::FILE* stream) { return ::isatty(::fileno(stream)) == 1; }

int terminal_columns(std::FILE* stream) {
  winsize size{};
  return ::ioctl(::fileno(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

void end_without_reader() {
  // A caller that ignores the signal sees an exit status that says the same.
  constexpr int kAsIfBySignal = 128 + SIGPIPE;
  std::signal(SIGPIPE, SIG_DFL);
  std::raise(SIGPIPE);
  std::_Exit(kAsIfBySignal);
}

}  // namespace qelpro
