#include <filesystem>

#include "inner/core/document_fixture.h"

namespace qelpro_test {
namespace {

// A file that is open can be replaced under its name.
TEST_F(Document, ReadsTheFileThatStandsUnderThePathNowWhereItIsOpenedAgain) {
  read("[Project]\nMaterial = abc\n[Flow-1]\nFillTime = 1\n");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1");
  put_bytes(scratch.path("next.pro"), "[Flow-1]\nMeltTemp = 5\nFillTime = 3\n");
  std::filesystem::rename(scratch.path("next.pro"), path);
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1")
      << "the session holds the file that it opened";
  ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "3");
  EXPECT_EQ(look(document, "[Flow-1]", "MeltTemp"), "5");
}

// What was learnt of a file says nothing of the one that took its place, although the same line
// stands at the same offset: another one comes before it.
TEST_F(Document, LooksFromTheTopInAFileThatTookThePlaceOfTheOneItRead) {
  constexpr char kBefore[] = "\n# 45678\n[A]\nx = 1\n";
  constexpr char kAfter[] = "\n[A]\nx=0\n[A]\nx = 1\n";
  static_assert(sizeof kBefore == sizeof kAfter);
  for (const bool wide : {false, true}) {
    CQELPROIO reading;
    const std::string file = scratch.file(kBefore);
    const auto opens = [&] {
      return wide ? reading.SetFilePath(widened(file).c_str(), CQELPROIO::kReading)
                  : reading.SetFilePath(file.c_str(), CQELPROIO::kReading);
    };
    ASSERT_TRUE(opens());
    EXPECT_EQ(look(reading, "[A]", "x"), "1");
    put_bytes(scratch.path("next.pro"), kAfter);
    std::filesystem::rename(scratch.path("next.pro"), file);
    ASSERT_TRUE(opens());
    EXPECT_EQ(look(reading, "[A]", "x"), "0") << (wide ? "wide" : "narrow");
  }
}

}  // namespace
}  // namespace qelpro_test
