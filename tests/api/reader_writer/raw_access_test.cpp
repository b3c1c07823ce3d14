#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/comma_locale.h"
#include "support/line_break.h"
#include "support/raw_access.h"
#include "support/scratch.h"

// Reading and writing by the names of section and key.

namespace qelpro_test {
namespace {

TEST_F(RawAccess, BothReadsGiveTheSameText) {
  const std::string path = scratch_.file(kFile);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  const struct {
    const char* section;
    const char* key;
    const char* text;
  } rows[] = {
      {"[FileHeader]", "Name", "a mold.pro"}, {"[Flow-1]", "FillTime", "1.5"},
      {"[Flow-2]", "FillTime", "2.5"},        {"[Flow-1]", "Empty", ""},
      {"[Flow-1]", "Missing", "(false)"},     {"[Flow-3]", "FillTime", "(false)"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(read_string(reader, row.section, row.key), row.text) << row.section << row.key;
    EXPECT_EQ(read_value(reader, row.section, row.key), row.text) << row.section << row.key;
  }
}

TEST_F(RawAccess, ReadValueFindsNoLineWithoutAnEqualsSign) {
  const std::string path = scratch_.file("[Unit]\nTime\nTemp = oC\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_EQ(read_string(reader, "[Unit]", "Time"), "");
  EXPECT_EQ(read_value(reader, "[Unit]", "Time"), "(false)");
}

TEST_F(RawAccess, ReadStringSeesAChangeOfTheFileAtOnce) {
  const std::string path = scratch_.file(kFile);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_EQ(read_string(reader, "[Flow-2]", "FillTime"), "2.5");
  put_bytes(path, "[Other]\nx = 1\n[Flow-2]\nFillTime = 3.5\n");
  EXPECT_EQ(read_string(reader, "[Flow-2]", "FillTime"), "3.5");
  EXPECT_EQ(read_value(reader, "[Flow-2]", "FillTime"), "3.5");
}

TEST_F(RawAccess, ReadStringWorksThroughAWidePathAndAStreamReadValueDoesNot) {
  const std::string path = scratch_.file(kFile);
  const std::wstring wide = std::filesystem::path(path).wstring();
  Reader by_wide;
  ASSERT_TRUE(by_wide.SetFilePath(wide.c_str()));
  EXPECT_EQ(read_string(by_wide, "[Flow-2]", "FillTime"), "2.5");
  EXPECT_EQ(read_value(by_wide, "[Flow-2]", "FillTime"), "(false)");
  std::FILE* stream = std::fopen(path.c_str(), "r");
  ASSERT_NE(stream, nullptr);
  {
    Reader by_stream;
    ASSERT_TRUE(by_stream.SetFilePtr(stream));
    EXPECT_EQ(read_string(by_stream, "[Flow-2]", "FillTime"), "2.5");
    EXPECT_EQ(read_value(by_stream, "[Flow-2]", "FillTime"), "(false)");
  }
  std::fclose(stream);
}

TEST_F(RawAccess, ReadsAgainByItsPathAfterTheFileIsClosed) {
  const std::string path = scratch_.file(kFile);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  reader.CloseFile();
  EXPECT_EQ(read_string(reader, "[Flow-2]", "FillTime"), "2.5");
}

TEST_F(RawAccess, TakesNullForAMistake) {
  const std::string path = scratch_.file(kFile);
  Reader reader;
  Writer writer;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  char buffer[16];
  char* value = nullptr;
  EXPECT_FALSE(reader.ReadString(nullptr, "FillTime", value, buffer, sizeof buffer));
  EXPECT_FALSE(reader.ReadString("[Flow-1]", nullptr, value, buffer, sizeof buffer));
  EXPECT_FALSE(reader.ReadValue(nullptr, "FillTime", value, buffer, sizeof buffer));
  EXPECT_FALSE(reader.ReadValue("[Flow-1]", nullptr, value, buffer, sizeof buffer));
  EXPECT_FALSE(writer.WriteString(nullptr, "FillTime", "1"));
  EXPECT_FALSE(writer.WriteString("[Flow-1]", nullptr, "1"));
  EXPECT_FALSE(writer.WriteString("[Flow-1]", "FillTime", nullptr));
  EXPECT_FALSE(writer.WriteItems("[Flow-1]", "FillTime", nullptr));
  EXPECT_EQ(bytes_of(path), kFile);
}

TEST_F(RawAccess, ReadStringNeverOverrunsTheCallersBuffer) {
  const std::string path = scratch_.file("[A]\nx = 1234567\n");
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char buffer[9];
  for (unsigned int size = 0; size <= 8; ++size) {
    std::fill(std::begin(buffer), std::end(buffer), '#');
    char* value = nullptr;
    const bool done = reader.ReadString("[A]", "x", value, buffer, size);
    EXPECT_EQ(done, size == 8) << size;
    for (std::size_t i = size; i < sizeof buffer; ++i) {
      EXPECT_EQ(buffer[i], '#') << size;
    }
  }
}

TEST_F(RawAccess, ReadsWithoutABufferUseTheLibrarysOwn) {
  const std::string path = scratch_.file(kFile);
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* value = nullptr;
  EXPECT_TRUE(reader.ReadString("[Flow-1]", "FillTime", value, nullptr, 0));
  EXPECT_STREQ(value, "1.5");
  EXPECT_TRUE(reader.ReadValue("[Flow-2]", "FillTime", value, nullptr, 0));
  EXPECT_STREQ(value, "2.5");
}

TEST_F(RawAccess, WritesAnEntryByItsNames) {
  const std::string path = scratch_.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.WriteString("[Flow-1]", "FillTime", "1.5"));
  EXPECT_TRUE(writer.WriteString("[Flow-1]", "MeltTemp", "235"));
  EXPECT_TRUE(writer.WriteString("[Flow-1]", "FillTime", "2"));
  EXPECT_EQ(bytes_of(path), native("\n[Flow-1]\nFillTime             = 2\nMeltTemp = 235\n  "));
}

TEST_F(RawAccess, WritesItemsAsTheirFormatSays) {
  const std::string path = scratch_.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.WriteItems("[A]", "Pair", "%g\t%d", 1.25, 7));
  EXPECT_TRUE(writer.WriteItems("[A]", "Text", "%s, %5.2f|%03d|%%", "two words", 3.14159, 7));
  EXPECT_EQ(bytes_of(path),
            native("\n[A]\nPair                 = 1.25\t7\nText = two words,  3.14|007|%\n"));
}

TEST_F(RawAccess, WritesItemsOfAnyLengthUpToALine) {
  const std::string path = scratch_.path();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  const std::string text(4000, 'x');
  EXPECT_TRUE(writer.WriteItems("[A]", "Long", "%s", text.c_str()));
  const std::string written = bytes_of(path);
  EXPECT_EQ(written, native("\n[A]\nLong                 = " + text + "\n"));
  EXPECT_FALSE(writer.WriteItems("[A]", "Long", "%s%s", text.c_str(), text.c_str()));
  EXPECT_EQ(bytes_of(path), written);
}

TEST_F(RawAccess, CannotWriteByAWidePath) {
  const std::string path = scratch_.file(kFile);
  const std::wstring wide = std::filesystem::path(path).wstring();
  Writer writer;
  ASSERT_TRUE(writer.SetFilePath(wide.c_str()));
  EXPECT_FALSE(writer.WriteString("[Flow-1]", "FillTime", "9"));
  EXPECT_FALSE(writer.WriteItems("[Flow-1]", "FillTime", "%d", 9));
  EXPECT_EQ(bytes_of(path), kFile);
}

TEST_F(RawAccess, WritesThroughALentStream) {
  const std::string path = scratch_.file("[A]\nx = 1\n");
  std::FILE* stream = std::fopen(path.c_str(), "r+");
  ASSERT_NE(stream, nullptr);
  {
    Writer writer;
    ASSERT_TRUE(writer.SetFilePtr(stream));
    EXPECT_TRUE(writer.WriteString("[A]", "x", "2"));
    EXPECT_TRUE(writer.WriteItems("[B]", "y", "%d %d", 3, 4));
  }
  std::fclose(stream);
  EXPECT_EQ(bytes_of(path), "[A]\nx                    = 2\n\n[B]\ny                    = 3 4\n");
}

TEST_F(RawAccess, FailsWithoutASession) {
  Reader reader;
  Writer writer;
  EXPECT_EQ(read_string(reader, "[A]", "x"), "(false)");
  EXPECT_EQ(read_value(reader, "[A]", "x"), "(false)");
  EXPECT_FALSE(writer.WriteString("[A]", "x", "1"));
  EXPECT_FALSE(writer.WriteItems("[A]", "x", "%d", 1));
}

TEST_F(RawAccess, SectionMembersWriteTheSameNumbersInAHostOfAnotherLocale) {
  const CommaLocale comma;
  if (!comma.is_set()) {
    GTEST_SKIP() << "the machine has no locale with a decimal comma";
  }
  const std::string path = scratch_.path();
  Writer writer;
  Reader reader;
  const bool opened = writer.SetFilePath(path.c_str());
  const bool written = writer.FlowX_WriteFillingTime(1.5, 1) &&
                       writer.WriteItems("[Flow-1]", "Pair", "%g %g", 0.25, 7.5);
  double time = 0;
  const bool read = reader.SetFilePath(path.c_str()) && reader.FlowX_ReadFillingTime(time, 1);
  EXPECT_TRUE(opened && written && read);
  EXPECT_EQ(time, 1.5);
  EXPECT_EQ(bytes_of(path), native("\n[Flow-1]\nFillTime             = 1.5\nPair = 0.25 7.5\n"));
}

TEST_F(RawAccess, WritesNothingPastTheBufferOfAReadValue) {
  const std::string longer(5000, 'v');
  Reader reader;
  ASSERT_TRUE(reader.SetFilePath(scratch_.file("[A]\nx = " + longer + "\ny = 12345\n").c_str()));
  std::string buffer(4097, '#');
  char* value = nullptr;
  EXPECT_FALSE(reader.ReadValue("[A]", "x", value, buffer.data(), 4096));
  EXPECT_EQ(buffer, std::string(4097, '#'));
  EXPECT_EQ(value, nullptr);
  EXPECT_FALSE(reader.ReadValue("[A]", "y", value, buffer.data(), 5));
  EXPECT_TRUE(reader.ReadValue("[A]", "y", value, buffer.data(), 6));
  EXPECT_STREQ(value, "12345");
  std::string large(5001, '#');
  EXPECT_TRUE(reader.ReadValue("[A]", "x", value, large.data(), 0))
      << "no size is looked at where it is 0";
  EXPECT_EQ(value, longer);
}

}  // namespace
}  // namespace qelpro_test
