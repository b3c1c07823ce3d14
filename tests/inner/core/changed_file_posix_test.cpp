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

}  // namespace
}  // namespace qelpro_test
