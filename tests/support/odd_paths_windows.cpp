#include <windows.h>

#include "support/odd_paths.h"

namespace qelpro_test {

std::optional<std::string> narrow_of(const std::filesystem::path& path) {
  const std::wstring& wide = path.native();
  std::string narrow(4 * wide.size(), '\0');
  BOOL lacks = FALSE;
  const int length = ::WideCharToMultiByte(CP_ACP, ::GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS,
                                           wide.data(), static_cast<int>(wide.size()),
                                           narrow.data(), static_cast<int>(narrow.size()), nullptr,
                                           ::GetACP() == CP_UTF8 ? nullptr : &lacks);
  narrow.resize(static_cast<std::size_t>(length));
  return lacks == FALSE ? std::optional(narrow) : std::nullopt;
}

std::wstring wide_of(const std::filesystem::path& path) { return path.native(); }

std::filesystem::path own_path(const std::filesystem::path& path) {
  return L"\\\\?\\" + std::filesystem::absolute(path).make_preferred().native();
}

}  // namespace qelpro_test
