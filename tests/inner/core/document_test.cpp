#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "inner/core/document_fixture.h"
#include "support/line_break.h"

namespace qelpro_test {
namespace {
// Without a file

TEST_F(Document, HasNoFileAtFirst) {
  EXPECT_EQ(look(document, "[A]", "x"), "-1");
  EXPECT_EQ(look_once(document, "[A]", "x"), "-1");
  EXPECT_EQ(document.SetValue("[A]", "x", "1", kByKey), kNoFile);
  EXPECT_EQ(document.WriteOnce("[A]", "x", "1"), kNoFile);
  EXPECT_EQ(document.ReplaceValue("[A]", "x", "1"), kNoOpen);
  EXPECT_EQ(document.VisitLines(
                "[A]", 1, [] {}, [](std::string_view) {}),
            kNoFile);
  EXPECT_FALSE(document.GetFilePtr(stream));
  EXPECT_EQ(document.narrow_path(), nullptr);
  document.CloseFile();
}

TEST_F(Document, TakesNullForAMistake) {
  EXPECT_FALSE(document.SetFilePath(static_cast<const char*>(nullptr), CQELPROIO::kReading));
  EXPECT_FALSE(document.SetFilePath(static_cast<const wchar_t*>(nullptr), CQELPROIO::kWriting));
  EXPECT_FALSE(document.SetFilePtr(stream));
  write("[A]\nx = 1\n");
  EXPECT_EQ(document.InsertValue(nullptr, "[A]", "x", "1"), kNoOpen);
  EXPECT_EQ(scan(document, nullptr, "[A]", "x"), "(nothing)");
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
}

TEST_F(Document, FindsAndStoresNothingWithoutAName) {
  write("[A]\nx = 1\n");
  char* value = nullptr;
  EXPECT_EQ(document.GetValue("", "x", value, kByKey), kAbsent);
  EXPECT_EQ(document.GetValue("[A]", "", value, kByKey), kAbsent);
  EXPECT_EQ(document.GetValue("[A]", "", value, 1), kDone);
  EXPECT_EQ(document.SetValue("", "x", "1", kByKey), kNoOpen);
  EXPECT_EQ(document.SetValue("[A]", "", "1", kByKey), kNoOpen);
  EXPECT_EQ(document.ReplaceValue("[A]", "", "1"), kNoOpen);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
}

// Opening

TEST_F(Document, CannotBeOpenedForReadingWhereThereIsNoFile) {
  EXPECT_FALSE(document.SetFilePath(path.c_str(), CQELPROIO::kReading));
  EXPECT_FALSE(document.SetFilePath(widened(path).c_str(), CQELPROIO::kReading));
  EXPECT_FALSE(exists(path));
}

TEST_F(Document, ReadsInEveryModeButOne) {
  make("[A]\nx = 1\n");
  for (const int mode : {0, 2, -1}) {
    CQELPROIO other;
    ASSERT_TRUE(other.SetFilePath(path.c_str(), mode));
    EXPECT_TRUE(other.GetFilePtr(stream)) << "a reading document holds its file";
    EXPECT_EQ(look(other, "[A]", "x"), "1");
  }
}

TEST_F(Document, CreatesAnEmptyFileForWritingByANarrowPath) {
  EXPECT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kWriting));
  EXPECT_TRUE(exists(path));
  EXPECT_EQ(bytes_of(path), "");
}

TEST_F(Document, NeverCreatesAFileByAWidePath) {
  EXPECT_FALSE(document.SetFilePath(widened(path).c_str(), CQELPROIO::kWriting));
  EXPECT_FALSE(exists(path));
  make(
      "[A]\n"
      "x = 1\n");
  const std::wstring wide = widened(path);
  EXPECT_TRUE(document.SetFilePath(wide.c_str(), CQELPROIO::kWriting));
  std::filesystem::remove(path);
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kNoOpen);
  EXPECT_FALSE(exists(path));
}

TEST_F(Document, LeavesAFileAsItIsWhenItIsOpenedForWriting) {
  write("[A]\nx = 1\n");
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
  EXPECT_FALSE(document.GetFilePtr(stream)) << "a writing document holds no file";
}

TEST_F(Document, HandsTheCallersOwnPathPointerBack) {
  make("");
  const std::wstring wide = widened(path);
  const char* given = path.c_str();
  ASSERT_TRUE(document.SetFilePath(given, CQELPROIO::kReading));
  EXPECT_EQ(document.narrow_path(), given);
  ASSERT_TRUE(document.SetFilePath(wide.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(document.narrow_path(), nullptr);
  ASSERT_TRUE(document.SetFilePath(given, CQELPROIO::kWriting));
  EXPECT_EQ(document.narrow_path(), given);
}

TEST_F(Document, OpensItsOwnCopyOfThePath) {
  make("");
  std::string callers = path;
  ASSERT_TRUE(document.SetFilePath(callers.c_str(), CQELPROIO::kWriting));
  callers.assign(callers.size(), '?');
  EXPECT_EQ(document.SetValue("[A]", "x", "1", kByKey), kDone);
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  EXPECT_EQ(bytes_of(path), native("\n[A]\nx                    = 1\n"));
}

TEST_F(Document, KeepsItsPathWhenAnOpenFails) {
  write("[A]\nx = 1\n");
  EXPECT_FALSE(document.SetFilePath(scratch.path("missing/file.pro").c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(document.narrow_path(), path.c_str());
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
}

TEST_F(Document, ClosesItsFileEvenWhenTheNextOneCannotBeOpened) {
  read("[A]\nx = 1\n");
  EXPECT_FALSE(document.SetFilePath(scratch.path("missing.pro").c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[A]", "x"), "-1");
  EXPECT_EQ(document.narrow_path(), path.c_str());
}

TEST_F(Document, ReadsAPathWithCharactersOfAnyAlphabet) {
  const std::wstring wide = scratch.wide_file("[A]\nx = 1\n", L"F\u00FCllung-\u5C04.pro");
  ASSERT_TRUE(document.SetFilePath(wide.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[A]", "x"), "1");
}

// What is no file

TEST_F(Document, ReportsAStoreIntoWhatBecameADirectory) {
  write("[A]\nx = 1\n");
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kNoOpen);
  EXPECT_EQ(document.ReplaceValue("[A]", "x", "2"), kNoOpen);
  EXPECT_EQ(look(document, "[A]", "x"), "0");
}

TEST_F(Document, ReportsAMissingFolder) {
  EXPECT_FALSE(document.SetFilePath(scratch.path("missing/file.pro").c_str(), CQELPROIO::kWriting));
  EXPECT_FALSE(exists(scratch.path("missing")));
}

// Looking up

TEST_F(Document, FindsValuesOfASectionOnTheFirstByte) {
  read("[FileHeader]\nName = a\nType = b\n[Unit]\nTime = sec\n");
  EXPECT_EQ(look(document, "[Unit]", "Time"), "sec");
  EXPECT_EQ(look(document, "[FileHeader]", "Type"), "b");
  EXPECT_EQ(look(document, "[FileHeader]", "Name"), "a");
}

TEST_F(Document, TellsAKeyMissingFromItsSectionByTheIndexedScanAlone) {
  read("\n[A]\nx = 1\n[B]\ny = 2\n");
  EXPECT_EQ(look(document, "[A]", "y"), "-2");
  CQELPROIO writing;
  ASSERT_TRUE(writing.SetFilePath(path.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(look(writing, "[A]", "y"), "2");
}

TEST_F(Document, AnswersASecondLookupByIndexWithTheFirstLine) {
  read("\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\nfirst\nsecond\n");
  EXPECT_EQ(look(document, "[SURFACE", "", 2), "second");
  EXPECT_EQ(look(document, "[SURFACE", "", 1), "second");
}

TEST_F(Document, CountsTheHeaderAsLineOneWhenItResumesThere) {
  read("\n[A]\nx = 1\nsecond\n");
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  EXPECT_EQ(look(document, "[A]", "", 1), "[A]");
}

TEST_F(Document, TakesALineOnTheFirstByteForNotFound) {
  read("[A]\nx = 1\nsecond\n");
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  EXPECT_EQ(look(document, "[A]", "", 1), "-2") << "the header itself, at offset 0";
  EXPECT_EQ(look(document, "[A]", "k", 3), "second");
}

TEST_F(Document, ReadsLinesByIndexThroughAStreamAsTheyStand) {
  lend("\n[A]\n  first = 1  \nsecond\n[B]\nfourth\n", "r");
  EXPECT_EQ(look(document, "[A]", "", 1), "first = 1");
  EXPECT_EQ(look(document, "[A]", "", 2), "second");
  EXPECT_EQ(look(document, "[A]", "", 4), "fourth");
  EXPECT_EQ(look(document, "[A]", "", 5), "-2");
  EXPECT_EQ(look(document, "[A]", "", 1), "first = 1");
  std::fclose(stream);
}

TEST_F(Document, KeepsTheOffsetsOfOneFileForTheNext) {
  read("\n[A]\nx = first\n");
  EXPECT_EQ(look(document, "[A]", "x"), "first");
  const std::string second = scratch.file("\n[B]\ny = other\n[A]\nx = second\n", "second.pro");
  ASSERT_TRUE(document.SetFilePath(second.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[A]", "x"), "other") << "the line at the old offset";
  CQELPROIO fresh;
  ASSERT_TRUE(fresh.SetFilePath(second.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(fresh, "[A]", "x"), "second");
}

TEST_F(Document, AnswersFromItsIndexWhenTheFileGrewShorter) {
  read("\n[A]\nx = 1\ny = 2\n");
  EXPECT_EQ(look(document, "[A]", "y"), "2");
  put_bytes(path, "\n[A]\nx = 5\n");
  EXPECT_EQ(look(document, "[A]", "y"), "-2");
  EXPECT_EQ(look(document, "[A]", "x"), "5");
  put_bytes(path, "");
  EXPECT_EQ(look(document, "[A]", "x"), "-2");
}

TEST_F(Document, LooksUpPlainlyOnceItHasTurnedFromReadingToWriting) {
  read("[A]\nx = 1\n[B]\ny = 2\n");
  EXPECT_EQ(look(document, "[A]", "y"), "-2") << "a reading session stays in the section";
  document.CloseFile();
  ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(look(document, "[A]", "y"), "2");
}

TEST_F(Document, LooksUpPlainlyInThePathThatItWritesTo) {
  lend("[A]\nx = 1\n", "r");
  ASSERT_TRUE(document.SetFilePath(scratch.file("[A]\nx = 1\n[B]\ny = 2\n", "other.pro").c_str(),
                                   CQELPROIO::kWriting));
  EXPECT_EQ(look(document, "[A]", "y"), "2");
  std::fclose(stream);
}

TEST_F(Document, VisitsLinesAfterAHeaderOnTheFirstByte) {
  read("[A]\n first \nsecond\n");
  std::string visited;
  EXPECT_EQ(document.VisitLines(
                "[A]", 2, [&visited] { visited.clear(); },
                [&visited](std::string_view line) { visited.append(line).append("|"); }),
            kDone);
  EXPECT_EQ(visited, "first|second|");
  EXPECT_EQ(document.VisitLines(
                "[A]", 3, [] {}, [](std::string_view) {}),
            kAbsent);
  EXPECT_EQ(document.VisitLines(
                "[B]", 1, [] {}, [](std::string_view) {}),
            kAbsent);
}

TEST_F(Document, ReplacesNothingInAFileThatItLeft) {
  write("[A]\nx = 1\n");
  stream = std::fopen(scratch.file("[A]\nx = 2\n", "lent.pro").c_str(), "r+");
  ASSERT_TRUE(document.SetFilePtr(stream));
  EXPECT_EQ(document.ReplaceValue("[A]", "x", "3"), kNoOpen);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
  std::fclose(stream);
}

TEST_F(Document, WritesNothingWhereAFolderHasTakenItsFilesPlace) {
  write("[A]\nx = 1\n");
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  EXPECT_EQ(document.WriteOnce("[A]", "x", "2"), kNoOpen);
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kNoOpen);
  EXPECT_EQ(document.VisitLines(
                "[A]", 1, [] {}, [](std::string_view) {}),
            kNoOpen);
  EXPECT_EQ(look(document, "[A]", "x"), "0");
}

TEST_F(Document, ReadsInAFileThatIsStillEmpty) {
  read("");
  EXPECT_EQ(look(document, "[A]", "x"), "-2");
  put_bytes(path, "[A]\nx = 1\n");
  EXPECT_EQ(look(document, "[A]", "x"), "1");
}

TEST_F(Document, GoesBackToTheHeaderWhereNoLineBeginsAnyMoreAfterWhatItPassed) {
  read("[A]\nx = 1\ny = 2\n");
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  put_bytes(path, "[A]\ny = 1234567\ny = 2\n");
  EXPECT_EQ(look(document, "[A]", "y"), "1234567");
}

TEST_F(Document, GivesAKeyLineWithoutAnEqualsSignAnEmptyValue) {
  read("[A]\nx\ny\n");
  EXPECT_EQ(look(document, "[A]", "y"), "");
}

TEST_F(Document, CopiesIntoTheCallersBuffer) {
  read("[A]\nx = value\n");
  char buffer[6] = {};
  EXPECT_EQ(document.LookUp({"[A]", "x"}, {buffer, sizeof buffer}), kDone);
  EXPECT_STREQ(buffer, "value");
}

TEST_F(Document, DoesNotOverrunACallersBuffer) {
  read("[A]\nx = value\n");
  char buffer[6] = "keep!";
  EXPECT_EQ(document.LookUp({"[A]", "x"}, {buffer, 5}), kNoOpen);
  EXPECT_EQ(document.LookUp({"[A]", "x"}, {buffer, 0}), kNoOpen);
  EXPECT_STREQ(buffer, "keep!");
}

TEST_F(Document, SharesOneValueBufferAmongAllDocuments) {
  read("[A]\nx = 1\ny = 2\n");
  CQELPROIO other;
  ASSERT_TRUE(other.SetFilePath(path.c_str(), CQELPROIO::kReading));
  char* first = nullptr;
  char* second = nullptr;
  ASSERT_EQ(document.GetValue("[A]", "x", first, kByKey), kDone);
  ASSERT_EQ(other.GetValue("[A]", "y", second, kByKey), kDone);
  EXPECT_EQ(first, second);
}

TEST_F(Document, KeepsTheBufferOfTheWholeTextScanApart) {
  read("[A]\nx = 1\ny = 2\n");
  char* looked_up = nullptr;
  const auto scanned = qel::ValueBuffer::of_thread_for_scans();
  ASSERT_EQ(document.GetValue("[A]", "x", looked_up, kByKey), kDone);
  ASSERT_TRUE(document.ScanValue(path.c_str(), "[A]", "y", scanned));
  EXPECT_STREQ(looked_up, "1");
  EXPECT_STREQ(scanned.text, "2");
}

TEST_F(Document, ReadsTheLongestLineWhole) {
  const std::string value(4094 - 4, 'v');
  read("[A]\nx = " + value + "\n");
  EXPECT_EQ(look(document, "[A]", "x"), value);
}

TEST_F(Document, ReadsTheFirstPartOfALongerLine) {
  const std::string value(10000, 'v');
  read("[A]\nx = " + value + "\ny = 1\n");
  EXPECT_EQ(look(document, "[A]", "x"), value.substr(0, 4095 - 4));
  EXPECT_EQ(look(document, "[A]", "y"), "1");
}

TEST_F(Document, ScansNoValueThatItsBufferCannotHold) {
  make("[A]\nx = " + std::string(4096, 'v') + "\ny = " + std::string(4095, 'v') + "\n");
  EXPECT_EQ(scan(document, path.c_str(), "[A]", "x"), "(nothing)");
  EXPECT_EQ(scan(document, path.c_str(), "[A]", "y"), std::string(4095, 'v'));
}

TEST_F(Document, ReadsOnceWithoutLearningAnything) {
  read("\n[A]\nfirst\nx = 1\n");
  EXPECT_EQ(look_once(document, "[A]", "x"), "1");
  EXPECT_EQ(look(document, "[A]", "", 1), "first")
      << "nothing was learnt, so the header is not line 1";
}

// Streams

TEST_F(Document, TakesALentStreamFromTheTopEachTime) {
  lend("[A]\nx = 1\n[B]\ny = 2\n", "r");
  EXPECT_EQ(look(document, "[B]", "y"), "2");
  EXPECT_EQ(look(document, "[A]", "y"), "2");
  EXPECT_EQ(look_once(document, "[A]", "y"), "2");
  put_bytes(path, "[B]\ny = 3\n");
  EXPECT_EQ(look(document, "[B]", "y"), "3");
  std::fclose(stream);
}

TEST_F(Document, ForgetsItsPathsWhenItIsLentAStream) {
  read("[A]\nx = 1\n");
  const std::string lent = scratch.file("[A]\nx = lent\n", "lent.pro");
  stream = std::fopen(lent.c_str(), "r");
  ASSERT_TRUE(document.SetFilePtr(stream));
  EXPECT_EQ(document.narrow_path(), nullptr);
  EXPECT_EQ(look(document, "[A]", "x"), "lent");
  std::fclose(stream);
}

TEST_F(Document, LeavesALentStreamOpenWhenItIsDestroyed) {
  make("[A]\nx = 1\n");
  stream = std::fopen(path.c_str(), "r");
  {
    CQELPROIO short_lived;
    ASSERT_TRUE(short_lived.SetFilePtr(stream));
    EXPECT_EQ(look(short_lived, "[A]", "x"), "1");
  }
  EXPECT_EQ(std::fseek(stream, 0, SEEK_SET), 0);
  EXPECT_EQ(std::fgetc(stream), '[');
  std::fclose(stream);
}

TEST_F(Document, ClosesALentStreamWhenItIsToldTo) {
  lend("[A]\nx = 1\n", "r");
  const int descriptor = ::fileno(stream);
  document.CloseFile();
  EXPECT_EQ(::lseek(descriptor, 0, SEEK_CUR), -1);
  EXPECT_FALSE(document.GetFilePtr(stream));
  EXPECT_EQ(look(document, "[A]", "x"), "-1");
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kNoFile);
}

TEST_F(Document, LeavesALentStreamOpenWhenAFileIsOpenedForReading) {
  lend("[A]\nx = 1\n");
  const std::string next = scratch.file("[A]\nx = 2\n", "next.pro");
  ASSERT_TRUE(document.SetFilePath(next.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[A]", "x"), "2");
  EXPECT_EQ(std::fgetc(stream), '[');
  EXPECT_EQ(std::fclose(stream), 0);
}

TEST_F(Document, HandsTheLentStreamOut) {
  lend("", "r");
  std::FILE* out = nullptr;
  EXPECT_TRUE(document.GetFilePtr(out));
  EXPECT_EQ(out, stream);
  std::fclose(stream);
}

TEST_F(Document, HandsAStreamOverItsOwnFileOutAndClosesItItself) {
  read("[A]\nx = 1\n");
  ASSERT_TRUE(document.GetFilePtr(stream));
  std::FILE* again = nullptr;
  ASSERT_TRUE(document.GetFilePtr(again));
  EXPECT_EQ(again, stream);
  EXPECT_EQ(std::fgetc(stream), '[');
  EXPECT_EQ(look(document, "[A]", "x"), "1") << "its position is its own";
  EXPECT_EQ(std::fgetc(stream), 'A');
  const int descriptor = ::fileno(stream);
  document.CloseFile();
  EXPECT_EQ(::lseek(descriptor, 0, SEEK_CUR), -1);
}

TEST_F(Document, AnswersNoFileOnceItsOwnIsClosed) {
  read("[A]\nx = 1\n");
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  document.CloseFile();
  EXPECT_EQ(look(document, "[A]", "x"), "-1");
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kNoFile);
  document.CloseFile();
  ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[A]", "x"), "1");
}

TEST_F(Document, StoresByANewPathOnceALentStreamIsClosed) {
  lend("[A]\nx = 1\n");
  document.CloseFile();
  const std::string next = scratch.file("[A]\nx = 1\n", "next.pro");
  ASSERT_TRUE(document.SetFilePath(next.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
  EXPECT_EQ(look(document, "[A]", "x"), "2");
  EXPECT_EQ(bytes_of(next), "[A]\nx                    = 2\n");
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
}

TEST_F(Document, ForgetsALentStreamWhenItIsGivenAPath) {
  lend("[A]\nx = 1\n");
  const std::string next = scratch.file("[A]\nx = 1\n", "next.pro");
  ASSERT_TRUE(document.SetFilePath(next.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
  EXPECT_EQ(document.SetValue("[A]", "y", "3", kByKey), kDone);
  EXPECT_EQ(bytes_of(next), "[A]\nx                    = 2\ny = 3\n");
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
  document.CloseFile();
  EXPECT_EQ(std::fgetc(stream), '[') << "it is the caller's, and still open";
  EXPECT_EQ(std::fclose(stream), 0);
}

TEST_F(Document, StoresIntoALentStreamWhereAPathCannotBeOpened) {
  lend("[A]\nx = 1\n");
  EXPECT_FALSE(
      document.SetFilePath(scratch.path("no/such/folder.pro").c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
  std::fclose(stream);
  EXPECT_EQ(bytes_of(path), "[A]\nx                    = 2\n");
}

TEST_F(Document, StoresThroughALentStream) {
  lend("[A]\nx = 1\ny = 2\n");
  EXPECT_EQ(document.SetValue("[A]", "x", "5", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx                    = 5\ny = 2\n") << "flushed at once";
  EXPECT_EQ(document.SetValue("[B]", "z", "6", kByKey), kDone);
  EXPECT_EQ(document.WriteOnce("[B]", "z", "7"), kDone);
  EXPECT_EQ(look(document, "[B]", "z"), "7");
  std::fclose(stream);
  EXPECT_EQ(bytes_of(path),
            "[A]\nx                    = 5\ny = 2\n\n[B]\nz                    = 7\n");
}

TEST_F(Document, CannotAddAKeyToASectionThroughALentStream) {
  const std::string contents = "[A]\nx = 1\n";
  lend(contents);
  EXPECT_EQ(document.SetValue("[A]", "y", "2", kByKey), kNoOpen);
  EXPECT_EQ(document.WriteOnce("[A]", "y", "2"), kNoOpen);
  std::fclose(stream);
  EXPECT_EQ(bytes_of(path), contents);
}

TEST_F(Document, CannotStoreThroughAStreamThatOnlyReadsOrAppends) {
  for (const char* mode : {"r", "a"}) {
    CQELPROIO other;
    lend("[A]\nx = 1\n", "r");
    std::fclose(stream);
    stream = std::fopen(path.c_str(), mode);
    ASSERT_TRUE(other.SetFilePtr(stream));
    const std::string before = bytes_of(path);
    EXPECT_EQ(other.SetValue("[A]", "x", "2", kByKey), kNoOpen) << mode;
    EXPECT_EQ(other.SetValue("[B]", "x", "2", kByKey), kNoOpen) << mode;
    std::fclose(stream);
    EXPECT_EQ(bytes_of(path), before) << mode;
  }
}

// Beyond 2 GiB

TEST_F(Document, ReadsAFileBeyondTwoGiBAndStoresNothingIntoIt) {
  constexpr std::uintmax_t kFar = (std::uintmax_t{2} << 30U) + 12345;
  make("[A]\nx = 1\n");
  std::filesystem::resize_file(path, kFar);
  std::ofstream(path, std::ios::binary | std::ios::app) << "\n[B]\ny = 2\n";
  const auto size = std::filesystem::file_size(path);
  ASSERT_GT(size, kFar);
  CQELPROIO writing;
  ASSERT_TRUE(writing.SetFilePath(path.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(writing.SetValue("[A]", "x", "2", kByKey), kNoOpen);
  EXPECT_EQ(writing.SetValue("[C]", "z", "3", kByKey), kNoOpen);
  EXPECT_EQ(writing.InsertValue(path.c_str(), "[A]", "x", "2"), kNoOpen);
  EXPECT_EQ(writing.ReplaceValue("[A]", "x", "2"), kNoOpen);
  EXPECT_EQ(scan(writing, path.c_str(), "[A]", "x"), "(nothing)");
  ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[B]", "y"), "2") << "an offset that 32 bits with a sign do not hold";
  EXPECT_EQ(look(document, "[B]", "y"), "2") << "once more, from the index";
  EXPECT_EQ(look(document, "[A]", "x"), "1");
  EXPECT_EQ(std::filesystem::file_size(path), size);
}

// Storing

TEST_F(Document, CreatesSectionAndKeyInANewFile) {
  ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(document.SetValue("[Flow-1]", "FillTime", "1.5", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), native("\n[Flow-1]\nFillTime             = 1.5\n"));
  EXPECT_EQ(document.SetValue("[Flow-1]", "FRSet", "3", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), native("\n[Flow-1]\nFillTime             = 1.5\nFRSet = 3\n"));
  EXPECT_EQ(document.SetValue("[Flow-1]", "FRSet", "4", kByKey), kDone);
  EXPECT_EQ(bytes_of(path),
            native("\n[Flow-1]\nFillTime             = 1.5\nFRSet                = 4\n"));
}

TEST_F(Document, FindsEveryKeyRightAfterItsStore) {
  ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kWriting));
  for (int i = 0; i < 60; ++i) {
    const std::string section = "[S" + std::to_string(i % 7) + "]";
    const std::string key = "k" + std::to_string(i % 11);
    const std::string value =
        std::string(static_cast<std::size_t>(i * 13 % 40), 'v') + std::to_string(i);
    ASSERT_EQ(document.SetValue(section.c_str(), key.c_str(), value.c_str(), kByKey), kDone);
    EXPECT_EQ(look(document, section.c_str(), key.c_str()), value);
  }
}

TEST_F(Document, ReplacesByAWidePathButCannotAddAKeyToASection) {
  make("[A]\nx = 1\n");
  const std::wstring wide = widened(path);
  ASSERT_TRUE(document.SetFilePath(wide.c_str(), CQELPROIO::kWriting));
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
  EXPECT_EQ(document.SetValue("[B]", "y", "3", kByKey), kDone);
  const std::string before = bytes_of(path);
  EXPECT_EQ(document.SetValue("[A]", "z", "4", kByKey), kNoOpen);
  EXPECT_EQ(document.ReplaceValue("[A]", "x", "4"), kNoOpen);
  EXPECT_EQ(document.WriteOnce("[A]", "x", "4"), kNoFile);
  EXPECT_EQ(bytes_of(path), before);
  EXPECT_EQ(look(document, "[B]", "y"), "3");
}

TEST_F(Document, CreatesAFileThatWasDeletedBetweenTwoStores) {
  write("[A]\nx = 1\n");
  std::filesystem::remove(path);
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), native("\n[A]\nx                    = 2\n"));
  std::filesystem::remove(path);
  EXPECT_EQ(document.WriteOnce("[A]", "x", "3"), kDone);
  EXPECT_EQ(bytes_of(path), native("\n[A]\nx                    = 3\n"));
  std::filesystem::remove(path);
  EXPECT_EQ(document.ReplaceValue("[A]", "x", "4"), kNoOpen);
  EXPECT_EQ(document.InsertValue(path.c_str(), "[A]", "x", "4"), kNoOpen);
  EXPECT_FALSE(exists(path));
}

TEST_F(Document, CannotStoreIntoTheFileThatItHoldsForReading) {
  read("[A]\nx = 1\n");
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kNoOpen);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\n");
}

TEST_F(Document, RefusesAStoreBeforeItTouchesTheFile) {
  write("[A]\nx = 1\n");
  std::filesystem::remove(path);
  EXPECT_EQ(document.SetValue("[A]", "x", "1\n2", kByKey), kNoOpen);
  EXPECT_EQ(document.WriteOnce("[A]", "x y", "1"), kNoOpen);
  EXPECT_FALSE(exists(path));
}

TEST_F(Document, InsertsAndReplacesByPath) {
  write("[A]\nx = 1\n[B]\n");
  EXPECT_EQ(document.InsertValue(path.c_str(), "[A]", "x", "2"), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 2\nx = 1\n[B]\n");
  EXPECT_EQ(document.ReplaceValue("[A]", "GC-1", "3"), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 2\nx = 1\nGC-1 = 3\n\n[B]\n");
}

// What a store leaves alone

TEST_F(Document, NeverShortensAFileByAStore) {
  write("[A]\nx                    = 0123456789\ny = 2\n");
  const auto size = std::filesystem::file_size(path);
  ASSERT_EQ(document.SetValue("[A]", "x", "", kByKey), kDone);
  EXPECT_EQ(std::filesystem::file_size(path), size);
  EXPECT_EQ(bytes_of(path), "[A]\nx                    = \ny = 2\n          ");
}

}  // namespace
}  // namespace qelpro_test
