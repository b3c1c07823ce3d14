#include <gtest/gtest.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

// A program may hold several C runtimes, and a stream of one is nothing to another.

namespace qelpro_test {
namespace {

// A runtime beside the one of this program.
class Runtime {
 public:
  explicit Runtime(const char* name) : library_(::LoadLibraryA(name)) {}
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  ~Runtime() { ::FreeLibrary(library_); }

  [[nodiscard]] bool is_there() const { return library_ != nullptr; }
  [[nodiscard]] std::FILE* open(const std::string& path, const char* mode) const {
    return function<std::FILE*(const char*, const char*)>("fopen")(path.c_str(), mode);
  }
  int close(std::FILE* stream) const { return function<int(std::FILE*)>("fclose")(stream); }

 private:
  template <class Function>
  [[nodiscard]] Function* function(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(library_, name)));
  }
  HMODULE library_;
};

class ForeignStream : public testing::TestWithParam<const char*> {};

TEST_P(ForeignStream, IsRefused) {
  const Runtime runtime(GetParam());
  ASSERT_TRUE(runtime.is_there());
  const Scratch scratch;
  const std::string contents = "[Flow-1]\r\nFillTime = 1\r\n";
  const std::string path = scratch.file(contents, "theirs.pro");
  const std::string ours = scratch.file(contents, "ours.pro");
  // A file of this program's own under each number that a foreign stream may be taken for.
  const int input = ::_dup(0);
  std::FILE* own = std::fopen(ours.c_str(), "r+");
  ::_dup2(::_fileno(own), 0);
  std::vector<std::FILE*> streams;
  for (int n = 0; n < 40; ++n) {  // more than stand in a table
    std::FILE* stream = runtime.open(path, n % 2 == 0 ? "r+" : "r");
    ASSERT_NE(stream, nullptr);
    streams.push_back(stream);
    CQELPROReader_Manipulator reader;
    CQELPROWriter_Manipulator writer;
    double time = 0;
    EXPECT_FALSE(reader.SetFilePtr(stream)) << n;
    EXPECT_FALSE(reader.FlowX_ReadFillingTime(time, 1));
    EXPECT_FALSE(writer.SetFilePtr(stream)) << n;
    EXPECT_FALSE(writer.FlowX_WriteFillingTime(7, 1));
  }
  for (std::FILE* stream : streams) {
    runtime.close(stream);
  }
  ::_dup2(input, 0);
  ::_close(input);
  std::fclose(own);
  EXPECT_EQ(bytes_of(path), contents);
  EXPECT_EQ(bytes_of(ours), contents);
}

INSTANTIATE_TEST_SUITE_P(Of, ForeignStream, testing::Values("ucrtbase.dll", "msvcr100.dll"),
                         [](const auto& row) {
                           return std::string(row.param, std::string_view(row.param).find('.'));
                         });

TEST(OwnStream, IsTakenHoweverManyThereAre) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\r\nFillTime = 1\r\n");
  std::vector<std::FILE*> streams;
  for (int n = 0; n < 40; ++n) {
    std::FILE* stream = std::fopen(path.c_str(), n % 2 == 0 ? "r+" : "rb");
    ASSERT_NE(stream, nullptr);
    if (n % 3 == 0) {
      std::setvbuf(stream, nullptr, _IONBF, 0);
    }
    streams.push_back(stream);
    CQELPROReader_Manipulator reader;
    double time = 0;
    EXPECT_TRUE(reader.SetFilePtr(stream) && reader.FlowX_ReadFillingTime(time, 1)) << n;
  }
  for (std::FILE* stream : streams) {
    std::fclose(stream);
  }
}

}  // namespace
}  // namespace qelpro_test
