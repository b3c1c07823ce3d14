#include "system/interruption.h"

#include <windows.h>

#include <atomic>

namespace qelpro {
namespace {

std::atomic<bool> asked = false;

BOOL WINAPI keep(DWORD event) {
  asked = true;
  return event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT ? TRUE : FALSE;
}

}  // namespace

struct Interruption::Before {};

Interruption::Interruption() {
  asked = false;
  ::SetConsoleCtrlHandler(&keep, TRUE);
}

Interruption::~Interruption() {
  constexpr UINT kEndedByControlC = 0xC000013A;
  ::SetConsoleCtrlHandler(&keep, FALSE);
  if (asked) {
    ::ExitProcess(kEndedByControlC);
  }
}

bool Interruption::is_asked_for() const { return asked; }

}  // namespace qelpro
