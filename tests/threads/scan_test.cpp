#include "scan/scan.h"

#include <gtest/gtest.h>

#include "support/scratch.h"

// The threads of a scan share what is asked, and put their parts of the table together.

namespace qelpro_test {
namespace {

TEST(Threads, OfAScanReadEveryFileOnce) {
  const Scratch scratch;
  const std::string good = scratch.file("[Flow-1]\nFillTime = 1.5\n[Flow-2]\nFRSet = 3\n", "good");
  const std::string bad = scratch.file("[Flow-1]\nFillTime = 1,5\n", "bad");
  constexpr std::size_t kFiles = 3000;
  std::vector<qelpro::ScannedFile> files;
  for (std::size_t row = 0; row < kFiles; ++row) {
    files.push_back({row % 3 == 0 ? bad : good, std::to_string(row)});
  }
  std::size_t looks = 0;
  const qelpro::ScannedTable table =
      qelpro::scan_files(files, {"Flow-1.FillTime", "*.FRSet"}, 4, [&looks] {
        ++looks;
        return true;
      });
  ASSERT_EQ(table.columns.size(), 2U);
  for (const qelpro::ScannedColumn& column : table.columns) {
    ASSERT_EQ(column.rows.size(), kFiles / 3 * 2);
    for (std::size_t index = 0; index < column.rows.size(); ++index) {
      EXPECT_EQ(column.rows[index], index / 2 * 3 + index % 2 + 1);
    }
  }
  ASSERT_EQ(table.errors.size(), kFiles / 3);
  for (std::size_t index = 0; index < table.errors.size(); ++index) {
    EXPECT_EQ(table.errors[index].row, 3 * index);
  }
}

}  // namespace
}  // namespace qelpro_test
