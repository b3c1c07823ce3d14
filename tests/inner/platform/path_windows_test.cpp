#include "platform/path_windows.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace qelpro_test {
namespace {

using qel::platform::system_path;

const std::wstring kLongName(250, L'n');

TEST(SystemPath, LeavesAShortPathAlone) {
  for (const wchar_t* path : {L"", L"file.pro", L"C:\\folder\\file.pro", L"a/b/../c", L"NUL",
                              L"\\\\server\\share\\file", L"\\\\?\\C:\\file", L"trailing. "}) {
    EXPECT_EQ(system_path(path), path);
  }
  EXPECT_EQ(system_path("C:/folder/file.pro"), L"C:/folder/file.pro");
}

TEST(SystemPath, OfALongPathIsWholeAndLiteral) {
  EXPECT_EQ(system_path((L"C:/folder/./x/../" + kLongName).c_str()),
            L"\\\\?\\C:\\folder\\" + kLongName);
  EXPECT_EQ(system_path((L"\\\\server/share/" + kLongName).c_str()),
            L"\\\\?\\UNC\\server\\share\\" + kLongName);
  EXPECT_EQ(system_path((L"\\\\?\\C:\\" + kLongName).c_str()), L"\\\\?\\C:\\" + kLongName);
  EXPECT_EQ(system_path(("C:/" + std::string(250, 'n')).c_str()), L"\\\\?\\C:\\" + kLongName);
  wchar_t folder[MAX_PATH] = {};
  ::GetCurrentDirectoryW(MAX_PATH, folder);
  std::wstring whole = folder;
  whole += whole.back() == L'\\' ? L"" : L"\\";
  EXPECT_EQ(system_path(kLongName.c_str()), L"\\\\?\\" + whole + kLongName);
}

TEST(NarrowPath, IsOfTheCodePageOrNone) {
  EXPECT_EQ(qel::platform::narrow_path(L"C:\\folder"), "C:\\folder");
  if (::GetACP() == 1252) {
    EXPECT_EQ(qel::platform::narrow_path(L"\u00E9"), "\xE9");
    EXPECT_EQ(qel::platform::narrow_path(L"C:\\no such folder \u5C04"), "");
  }
}

}  // namespace
}  // namespace qelpro_test
