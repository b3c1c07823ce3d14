#include <windows.h>

#include <filesystem>
#include <string>

#include "inner/core/document_fixture.h"

namespace qelpro_test {
namespace {

TEST_F(Document, CannotOpenWhatIsNoRegularFile) {
  for (const std::string& odd :
       {scratch.path(""), std::string("NUL"), std::string("CON"), std::string("")}) {
    for (const int mode : {CQELPROIO::kReading, CQELPROIO::kWriting}) {
      EXPECT_FALSE(document.SetFilePath(odd.c_str(), mode)) << odd;
      EXPECT_FALSE(document.SetFilePath(widened(odd).c_str(), mode)) << odd;
    }
    EXPECT_EQ(document.InsertValue(odd.c_str(), "[A]", "x", "1"), kNoOpen) << odd;
    EXPECT_EQ(scan(document, odd.c_str(), "[A]", "x"), "(nothing)") << odd;
  }
}

TEST_F(Document, StoresUnderAWidePathOfAnyAlphabet) {
  const std::wstring wide = scratch.wide_file("[A]\r\nx = 1\r\n", L"F\u00FCllung-\u5C04.pro");
  ASSERT_TRUE(document.SetFilePath(wide.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
  EXPECT_EQ(look(document, "[A]", "x"), "2");
}

TEST_F(Document, LeavesAFileThatAnotherProgramHoldsAlone) {
  make("[A]\nx = 1\n");
  const HANDLE other = ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  EXPECT_FALSE(document.SetFilePath(path.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(document.InsertValue(path.c_str(), "[A]", "y", "1"), kNoOpen);
  EXPECT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  ::CloseHandle(other);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
}

TEST_F(Document, IsReadAndWrittenAsBytesThroughALentStreamInEitherMode) {
  for (const char* mode : {"r+", "rt+", "rb+", "a+"}) {
    make("[A]\r\nx = 1\r\nz = 3\r\n");
    stream = std::fopen(path.c_str(), mode);
    CQELPROIO lent;
    ASSERT_TRUE(lent.SetFilePtr(stream));
    EXPECT_EQ(look(lent, "[A]", "x"), "1") << mode;
    EXPECT_EQ(lent.SetValue("[A]", "x", "a longer value", kByKey), kDone) << mode;
    EXPECT_EQ(look(lent, "[A]", "x"), "a longer value") << mode;
    EXPECT_EQ(look(lent, "[A]", "z"), "3") << mode;
    EXPECT_EQ(std::fclose(stream), 0);
    EXPECT_EQ(bytes_of(path), "[A]\r\nx                    = a longer value\r\nz = 3\r\n") << mode;
  }
}

TEST_F(Document, SeesWhatIsAfterAnEndOfFileCharacter) {
  read("[A]\r\nx = 1\r\n\x1A\r\ny = 2\r\n");
  EXPECT_EQ(look(document, "[A]", "y"), "2");
}

TEST_F(Document, OfTheOtherPlatformKeepsItsLineBreaks) {
  write("[A]\nx = 1\n");
  EXPECT_EQ(document.SetValue("[A]", "y", "2", kByKey), kDone);
  EXPECT_EQ(document.SetValue("[B]", "z", "3", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\ny = 2\n\n[B]\nz                    = 3\n");
}

TEST_F(Document, HandsOutAStreamWithAPositionOfItsOwn) {
  read("[A]\r\nx = 1\r\n");
  ASSERT_TRUE(document.GetFilePtr(stream));
  char line[16] = "";
  EXPECT_STREQ(std::fgets(line, sizeof line, stream), "[A]\n") << "in text mode";
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  EXPECT_STREQ(std::fgets(line, sizeof line, stream), "x = 1\n");
}

}  // namespace
}  // namespace qelpro_test
