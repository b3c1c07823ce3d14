#include <windows.h>

#include "support/line_break.h"
#include "support/run.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

// As the C runtime of the program takes its command line apart.
std::string quoted(const std::string& text) {
  std::string result = "\"";
  std::size_t backslashes = 0;
  for (const char c : text) {
    if (c == '"') {
      result.append(backslashes + 1, '\\');
    }
    backslashes = c == '\\' ? backslashes + 1 : 0;
    result.push_back(c);
  }
  return result.append(backslashes, '\\').append("\"");
}

HANDLE inherited(const std::string& path, DWORD access, DWORD disposition) {
  SECURITY_ATTRIBUTES inherit{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  return ::CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherit,
                       disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

std::string lines_of(const std::string& path) { return without_returns(bytes_of(path)); }

}  // namespace

Outcome run(const std::string& program, const std::vector<std::string>& arguments) {
  const Scratch scratch;
  std::string command = quoted(program);
  for (const std::string& argument : arguments) {
    command.append(" ").append(quoted(argument));
  }
  STARTUPINFOA start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = inherited("NUL", GENERIC_READ, OPEN_EXISTING);
  start.hStdOutput = inherited(scratch.path("out"), GENERIC_WRITE, CREATE_ALWAYS);
  start.hStdError = inherited(scratch.path("err"), GENERIC_WRITE, CREATE_ALWAYS);
  PROCESS_INFORMATION process{};
  DWORD status = static_cast<DWORD>(-1);
  if (::CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                       &process) != 0) {
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &status);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
  }
  for (const HANDLE handle : {start.hStdInput, start.hStdOutput, start.hStdError}) {
    ::CloseHandle(handle);
  }
  return {static_cast<int>(status), lines_of(scratch.path("out")), lines_of(scratch.path("err"))};
}

}  // namespace qelpro_test
