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

// UTF-8, or else the code page.
std::wstring widened(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  int length =
      ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), size);
  if (length == 0) {
    length = ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size);
  }
  wide.resize(static_cast<std::size_t>(length));
  return wide;
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
  std::wstring wide = widened(command);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = inherited("NUL", GENERIC_READ, OPEN_EXISTING);
  start.hStdOutput = inherited(scratch.path("out"), GENERIC_WRITE, CREATE_ALWAYS);
  start.hStdError = inherited(scratch.path("err"), GENERIC_WRITE, CREATE_ALWAYS);
  PROCESS_INFORMATION process{};
  DWORD status = static_cast<DWORD>(-1);
  if (::CreateProcessW(nullptr, wide.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
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
