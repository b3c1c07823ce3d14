#include "system/streams.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdlib>

namespace qelpro {

// A stream that the caller closed has no descriptor here, and a write to it fails.
void prepare_streams() { ::_setmode(::_fileno(stdin), _O_BINARY); }

bool is_terminal(std::FILE* stream) { return ::_isatty(::_fileno(stream)) != 0; }

int terminal_columns(std::FILE* stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  auto* const handle = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
  return ::GetConsoleScreenBufferInfo(handle, &info) != 0
             ? info.srWindow.Right - info.srWindow.Left + 1
             : 0;
}

void end_without_reader() { std::_Exit(0); }

}  // namespace qelpro
