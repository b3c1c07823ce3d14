#include <filesystem>
#include <string>

#include "api/proio/lines_fixture.h"
#include "support/child.h"

namespace qelpro_test {
namespace {

TEST_F(Lines, ReadOnlyFileIsReadAndKept) {
  const std::string contents = "[Flow-1]\nFillTime = 1\n";
  over(contents);
  using std::filesystem::perms;
  std::filesystem::permissions(std::filesystem::path(path_).parent_path(), perms::all);
  std::filesystem::permissions(path_, perms::owner_read | perms::group_read | perms::others_read);
  EXPECT_TRUE(in_child({.unprivileged = true}, [this] {
    double time = 0;
    return object_.SetFillTime(2, 1) && object_.GetFillTime(time, 1) && time == 1;
  }));
  EXPECT_EQ(bytes(), contents);
}

TEST_F(Lines, FileThatMayGrowNoFurtherIsKept) {
  const std::string contents =
      "[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00") + "[Flow-1]\nFillTime = 1\n";
  over(contents);
  char longer[] = "0123456789012345678901234567890123456789";
  EXPECT_TRUE(in_child({.longest_file = contents.size() + 5}, [&] {
    return object_.SetMachineRemark(longer) && object_.SetProject(longer) &&
           object_.SetBCCountName(1, 2, longer) && object_.SetBCProfile(1, 1, 2, 3);
  }));
  EXPECT_EQ(bytes(), contents) << "a store that was not done leaves no stamp";
}

}  // namespace
}  // namespace qelpro_test
