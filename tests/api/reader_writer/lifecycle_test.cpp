#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <type_traits>

#include "QELPROEngine/QELPROEngine.h"
#include "support/line_break.h"
#include "support/scratch.h"

// What reader and writer share: the session of an object, and which file it stands for.

namespace qelpro_test {
namespace {

const char kFile[] = "[FileHeader]\nName = mold.pro\n[Summary]\nTotalNdivz = 6\n";

std::wstring wide(const std::string& path) { return std::filesystem::path(path).wstring(); }

struct Stream {
  Stream(const std::string& path, const char* mode) : file(std::fopen(path.c_str(), mode)) {}
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream() {
    if (file != nullptr) {
      std::fclose(file);
    }
  }
  std::FILE* file;
};

template <class Object>
class Lifecycle : public testing::Test {
 protected:
  Scratch scratch_;
};

using Objects = testing::Types<CQELPROReader_Manipulator, CQELPROWriter_Manipulator>;
TYPED_TEST_SUITE(Lifecycle, Objects);

TYPED_TEST(Lifecycle, HasNoFileAtFirst) {
  TypeParam object;
  const char untouched[] = "untouched";
  const char* path = untouched;
  EXPECT_FALSE(object.GetFilePath(path));
  EXPECT_EQ(path, untouched);
  object.CloseFile();
  EXPECT_FALSE(object.GetFilePath(path));
}

TYPED_TEST(Lifecycle, HandsBackTheCallersOwnText) {
  const std::string given = this->scratch_.file(kFile);
  TypeParam object;
  ASSERT_TRUE(object.SetFilePath(given.c_str()));
  const char* path = nullptr;
  EXPECT_TRUE(object.GetFilePath(path));
  EXPECT_EQ(path, given.c_str()) << "the pointer itself";
}

TYPED_TEST(Lifecycle, HasANullPathForAWidePath) {
  const std::string file = this->scratch_.file(kFile);
  const std::wstring given = wide(file);
  TypeParam object;
  ASSERT_TRUE(object.SetFilePath(given.c_str()));
  const char* path = "untouched";
  EXPECT_TRUE(object.GetFilePath(path));
  EXPECT_EQ(path, nullptr);
}

TYPED_TEST(Lifecycle, HasANullPathForAStream) {
  Stream lent(this->scratch_.file(kFile), "r+");
  TypeParam object;
  ASSERT_TRUE(object.SetFilePtr(lent.file));
  const char* path = "untouched";
  EXPECT_TRUE(object.GetFilePath(path));
  EXPECT_EQ(path, nullptr);
}

TYPED_TEST(Lifecycle, LeavesALentStreamToItsOwner) {
  const std::string path = this->scratch_.file(kFile);
  Stream lent(path, "r+");
  {
    TypeParam object;
    ASSERT_TRUE(object.SetFilePtr(lent.file));
  }
  std::rewind(lent.file);
  EXPECT_EQ(std::fgetc(lent.file), '[') << "the stream is still open";
}

TYPED_TEST(Lifecycle, TakesNullForAMistake) {
  TypeParam object;
  EXPECT_FALSE(object.SetFilePath(static_cast<const char*>(nullptr)));
  EXPECT_FALSE(object.SetFilePath(static_cast<const wchar_t*>(nullptr)));
  std::FILE* none = nullptr;
  EXPECT_FALSE(object.SetFilePtr(none));
}

TYPED_TEST(Lifecycle, KeepsItsSessionWhenAFileCannotBeOpened) {
  const std::string folder = this->scratch_.path("missing/file.pro");
  TypeParam object;
  EXPECT_FALSE(object.SetFilePath(folder.c_str()));
  const char* path = nullptr;
  EXPECT_TRUE(object.GetFilePath(path)) << "there is a session now";
  const std::string file = this->scratch_.file(kFile);
  EXPECT_TRUE(object.SetFilePath(file.c_str())) << "and it takes the next file";
}

TYPED_TEST(Lifecycle, CannotOpenADirectory) {
  TypeParam object;
  EXPECT_FALSE(object.SetFilePath(this->scratch_.path("").c_str()));
}

TYPED_TEST(Lifecycle, ClosingTwiceIsHarmless) {
  const std::string path = this->scratch_.file(kFile);
  TypeParam object;
  ASSERT_TRUE(object.SetFilePath(path.c_str()));
  object.CloseFile();
  object.CloseFile();
  EXPECT_TRUE(object.SetFilePath(path.c_str()));
}

TYPED_TEST(Lifecycle, CopiesShareOneSessionUntilTheLastIsGone) {
  const std::string path = this->scratch_.file(kFile);
  auto first = std::make_unique<TypeParam>();
  ASSERT_TRUE(first->SetFilePath(path.c_str()));
  auto second = std::make_unique<TypeParam>(*first);
  TypeParam third;
  third = *second;
  first.reset();
  const char* kept = nullptr;
  EXPECT_TRUE(second->GetFilePath(kept));
  EXPECT_EQ(kept, path.c_str());
  second.reset();
  EXPECT_TRUE(third.GetFilePath(kept));
  const std::string other = this->scratch_.file(kFile, "other.pro");
  EXPECT_TRUE(third.SetFilePath(other.c_str()));
}

TYPED_TEST(Lifecycle, AssignmentLeavesTheSessionThatItHadToItsOtherOwners) {
  const std::string a = this->scratch_.file(kFile, "a.pro");
  const std::string b = this->scratch_.file(kFile, "b.pro");
  TypeParam first;
  ASSERT_TRUE(first.SetFilePath(a.c_str()));
  TypeParam copy(first);
  TypeParam second;
  ASSERT_TRUE(second.SetFilePath(b.c_str()));
  first = second;
  const char* path = nullptr;
  EXPECT_TRUE(copy.GetFilePath(path));
  EXPECT_EQ(path, a.c_str());
  EXPECT_TRUE(first.GetFilePath(path));
  EXPECT_EQ(path, b.c_str());
}

TYPED_TEST(Lifecycle, AssignmentToItselfChangesNothing) {
  const std::string path = this->scratch_.file(kFile);
  TypeParam object;
  ASSERT_TRUE(object.SetFilePath(path.c_str()));
  const TypeParam& same = object;
  object = same;
  const char* kept = nullptr;
  EXPECT_TRUE(object.GetFilePath(kept));
  EXPECT_EQ(kept, path.c_str());
}

TYPED_TEST(Lifecycle, CopyOfAnObjectWithoutASessionIsHarmless) {
  TypeParam object;
  TypeParam copy(object);
  const char* path = nullptr;
  EXPECT_FALSE(copy.GetFilePath(path));
  const std::string file = this->scratch_.file(kFile);
  EXPECT_TRUE(copy.SetFilePath(file.c_str()));
  EXPECT_FALSE(object.GetFilePath(path)) << "each has a session of its own from now on";
}

TEST(Reader, AnswersEverySectionReadWithFalseWhenItsFileCannotBeOpened) {
  const Scratch scratch;
  CQELPROReader_Manipulator reader;
  EXPECT_FALSE(reader.SetFilePath(scratch.path("missing.pro").c_str()));
  int total = 7;
  EXPECT_FALSE(reader.Summary_ReadTotalLayer(total));
  EXPECT_EQ(total, 7);
  char buffer[16];
  char* value = nullptr;
  EXPECT_FALSE(reader.ReadString("[Summary]", "TotalNdivz", value, buffer, sizeof buffer));
  EXPECT_FALSE(reader.ReadValue("[Summary]", "TotalNdivz", value, buffer, sizeof buffer));
  EXPECT_FALSE(exists(scratch.path("missing.pro"))) << "reading creates nothing";
}

TEST(Reader, ReadsAFileByAWidePath) {
  const Scratch scratch;
  const std::wstring path = scratch.wide_file(kFile, L"gr\u00F6\u00DFe-\u91D1.pro");
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int total = 0;
  EXPECT_TRUE(reader.Summary_ReadTotalLayer(total));
  EXPECT_EQ(total, 6);
}

TEST(Reader, ReadsALentStreamFromItsTopEachTime) {
  const Scratch scratch;
  Stream lent(scratch.file(kFile), "r");
  std::fseek(lent.file, 0, SEEK_END);
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePtr(lent.file));
  int total = 0;
  EXPECT_TRUE(reader.Summary_ReadTotalLayer(total));
  EXPECT_TRUE(reader.Summary_ReadTotalLayer(total));
  EXPECT_EQ(total, 6);
}

TEST(Reader, AnswersFalseOnceItsFileIsClosed) {
  const Scratch scratch;
  const std::string path = scratch.file(kFile);
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  reader.CloseFile();
  int total = 7;
  EXPECT_FALSE(reader.Summary_ReadTotalLayer(total));
  EXPECT_EQ(total, 7);
}

TEST(Reader, ReadsTheSecondOfTwoFilesOfOneLayout) {
  const Scratch scratch;
  const std::string first = scratch.file(kFile, "first.pro");
  const std::string second =
      scratch.file("[FileHeader]\nName = mold.pro\n[Summary]\nTotalNdivz = 9\n", "second.pro");
  CQELPROReader_Manipulator reader;
  int total = 0;
  ASSERT_TRUE(reader.SetFilePath(first.c_str()));
  EXPECT_TRUE(reader.Summary_ReadTotalLayer(total));
  ASSERT_TRUE(reader.SetFilePath(second.c_str()));
  EXPECT_TRUE(reader.Summary_ReadTotalLayer(total));
  EXPECT_EQ(total, 9) << "at the offset that it learnt in the first";
}

TEST(Writer, CreatesAnEmptyFileByANarrowPathAlone) {
  const Scratch scratch;
  const std::string narrow = scratch.path("narrow.pro");
  const std::wstring by_wide = wide(scratch.path("wide.pro"));
  CQELPROWriter_Manipulator writer;
  EXPECT_TRUE(writer.SetFilePath(narrow.c_str()));
  EXPECT_EQ(bytes_of(narrow), "");
  EXPECT_FALSE(writer.SetFilePath(by_wide.c_str()));
  EXPECT_FALSE(exists(scratch.path("wide.pro")));
}

TEST(Writer, LeavesTheFileCompleteAfterEveryWrite) {
  const Scratch scratch;
  const std::string path = scratch.path();
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.Summary_WriteTotalLayer(6));
  EXPECT_EQ(bytes_of(path), native("\n[Summary]\nTotalNdivz           = 6\n"));
  EXPECT_TRUE(writer.Summary_WriteTotalLayer(8));
  EXPECT_EQ(bytes_of(path), native("\n[Summary]\nTotalNdivz           = 8\n"))
      << "one entry, with the second value";
}

TEST(Writer, OpensACopyOfAPathThatItsCallerReleased) {
  const Scratch scratch;
  CQELPROWriter_Manipulator writer;
  {
    std::string path = scratch.path();
    ASSERT_TRUE(writer.SetFilePath(path.c_str()));
    path.assign(path.size(), '?');
  }
  EXPECT_TRUE(writer.Summary_WriteTotalLayer(6));
  EXPECT_TRUE(writer.WriteString("[Summary]", "SkinRatio", "0.5"));
  EXPECT_EQ(bytes_of(scratch.path()),
            native("\n[Summary]\nTotalNdivz           = 6\nSkinRatio = 0.5\n"));
}

TEST(ReservedObjects, AreMadeCopiedAndAssigned) {
  CQELPRORSVReader_Manipulator reader;
  CQELPRORSVReader_Manipulator reader_copy(reader);
  reader = reader_copy;
  CQELPRORSVWriter_Manipulator writer;
  CQELPRORSVWriter_Manipulator writer_copy(writer);
  writer = writer_copy;
  static_assert(std::has_virtual_destructor_v<CQELPRORSVReader_Manipulator>);
  static_assert(std::has_virtual_destructor_v<CQELPRORSVWriter_Manipulator>);
  static_assert(sizeof(CQELPRORSVReader_Manipulator) == sizeof(void*), "no fields");
  static_assert(sizeof(CQELPRORSVWriter_Manipulator) == sizeof(void*), "no fields");
}

TEST(Objects, KeepTheirSize) {
  EXPECT_EQ(sizeof(CQELPROReader_Manipulator), 3 * sizeof(void*))
      << "table of virtuals, session, flag";
  EXPECT_EQ(sizeof(CQELPROWriter_Manipulator), 2 * sizeof(void*) + sizeof(std::string))
      << "table of virtuals, session, path";
}

TEST(Version, IsTheLibrarysNumber) { EXPECT_EQ(GetPRODLLVersion(), 9103); }

TEST(Writer, StoresByThePathAloneOnceItWasGivenOneAfterAStream) {
  const Scratch scratch;
  const Stream lent(scratch.file("[Flow-1]\nFillTime = 1\n", "lent.pro"), "r+");
  const std::string path = scratch.file("[Flow-1]\nFillTime = 1\n");
  CQELPROWriter_Manipulator writer;
  std::FILE* stream = lent.file;
  ASSERT_TRUE(writer.SetFilePtr(stream));
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(2, 1));
  EXPECT_TRUE(writer.FlowX_WriteMeltTemperature(3, 1));
  EXPECT_EQ(bytes_of(scratch.path("lent.pro")), "[Flow-1]\nFillTime = 1\n");
  EXPECT_EQ(bytes_of(path), "[Flow-1]\nFillTime             = 2\nMeltTemp = 3\n");
}

TYPED_TEST(Lifecycle, LeavesALentStreamToItsCallerWhenItIsGivenAPath) {
  std::FILE* stream = std::fopen(this->scratch_.file(kFile, "lent.pro").c_str(), "r+");
  {
    const std::string path = this->scratch_.file(kFile);
    TypeParam object;
    ASSERT_TRUE(object.SetFilePtr(stream));
    ASSERT_TRUE(object.SetFilePath(path.c_str()));
    EXPECT_EQ(std::fgetc(stream), '[');
    object.CloseFile();
    EXPECT_EQ(std::fgetc(stream), 'F') << "it is no file of the object's any more";
  }
  EXPECT_EQ(std::fclose(stream), 0);
}

TEST(Writer, GoesOnWithItsFileWhereAnotherCannotBeOpened) {
  const Scratch scratch;
  const std::string path =
      scratch.file("[Summary]\nTotalGateCTL = 1\n[GateValve-1]\nGCId = 7\nGCSet = 5\n");
  // A gate writer counts in the file at the writer's path and stores through its document: both are
  // the file that is open.
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_FALSE(writer.SetFilePath(scratch.path("no/such/folder.pro").c_str()));
  EXPECT_TRUE(writer.GateValveX_WriteGateSettingByValveGateID(1.5, 1, 2, 3, 7));
  CQELPROReader_Manipulator reader;
  int points = 0;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  ASSERT_TRUE(reader.GateValveX_ReadControlPoint(points, 1));
  EXPECT_EQ(points, 5) << "counted in this file";
  char* text = nullptr;
  EXPECT_TRUE(reader.ReadString("[GateValve-1]", "GC-3", text, nullptr, 0)) << "and stored into it";
}

}  // namespace
}  // namespace qelpro_test
