#include "platform/path_windows.h"

#include <windows.h>

#include <cstddef>
#include <string_view>

namespace qel::platform {
namespace {

// A folder is to have room for a file of eight and three characters in it.
constexpr std::size_t kLongestAsItStands = MAX_PATH - 12 - 1;

UINT code_page() { return ::AreFileApisANSI() != 0 ? CP_ACP : CP_OEMCP; }

std::wstring widened(std::string_view text) {
  const int size = static_cast<int>(text.size());
  const int length = ::MultiByteToWideChar(code_page(), 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(code_page(), 0, text.data(), size, wide.data(), length);
  return wide;
}

// False where a character of it is not in the code page.
bool narrowed(const std::wstring& text, std::string& narrow) {
  CPINFO info{};
  const bool has_all =
      ::GetACP() == CP_UTF8 || (::GetCPInfo(code_page(), &info) != 0 && info.MaxCharSize > 2);
  const DWORD exact = has_all ? 0 : WC_NO_BEST_FIT_CHARS;
  BOOL lacks = FALSE;
  const int size = static_cast<int>(text.size());
  const int length =
      ::WideCharToMultiByte(code_page(), exact, text.data(), size, nullptr, 0, nullptr, nullptr);
  narrow.assign(static_cast<std::size_t>(length), '\0');
  ::WideCharToMultiByte(code_page(), exact, text.data(), size, narrow.data(), length, nullptr,
                        has_all ? nullptr : &lacks);
  return length > 0 && lacks == FALSE;
}

// What a function of the system's puts into a buffer whose size it tells.
template <class Get>
std::wstring text_of(Get get) {
  std::wstring text;
  for (DWORD size = get(nullptr, 0); size > text.size();) {
    text.resize(size);
    size = get(text.data(), size);
    if (size < text.size()) {
      text.resize(size);
      return text;
    }
  }
  return {};
}

// "\\?\" in front lets a path be as long as it is, but for the system to take the rest literally:
// it has to be whole, with neither "/" nor "..".
std::wstring of_any_length(const wchar_t* path) {
  const std::wstring_view given = path;
  const std::wstring whole = text_of(
      [path](wchar_t* to, DWORD size) { return ::GetFullPathNameW(path, size, to, nullptr); });
  if (whole.size() <= kLongestAsItStands && given.size() <= kLongestAsItStands) {
    return std::wstring(given);
  }
  if (whole.empty() || whole.starts_with(L"\\\\?\\") || whole.starts_with(L"\\\\.\\")) {
    return std::wstring(given);
  }
  return whole.starts_with(L"\\\\") ? L"\\\\?\\UNC\\" + whole.substr(2) : L"\\\\?\\" + whole;
}

}  // namespace

std::wstring system_path(const char* path) { return of_any_length(widened(path).c_str()); }

std::wstring system_path(const wchar_t* path) { return of_any_length(path); }

std::string narrow_path(const std::wstring& path) {
  std::string narrow;
  if (narrowed(path, narrow)) {
    return narrow;
  }
  const std::wstring in_short = text_of(
      [&path](wchar_t* to, DWORD size) { return ::GetShortPathNameW(path.c_str(), to, size); });
  return narrowed(in_short, narrow) ? narrow : std::string();
}

}  // namespace qel::platform
