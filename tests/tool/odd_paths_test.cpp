#include "support/odd_paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>

#include "support/run.h"
#include "support/scratch.h"

// The tool on files in folders of any alphabet, and at paths longer than what the systems of old
// took. Its arguments are UTF-8 on every platform.

namespace qelpro_test {
namespace {

namespace fs = std::filesystem;

struct Name {
  const char* what;
  std::u8string folder;
};
std::ostream& operator<<(std::ostream& out, const Name& name) { return out << name.what; }

std::u8string repeated(const std::u8string& part, int times) {
  std::u8string result;
  for (int n = 0; n < times; ++n) {
    result += part;
  }
  return result;
}

class ToolOnOddPaths : public testing::TestWithParam<Name> {
 protected:
  ToolOnOddPaths() {
    fs::create_directories(own_path(fs::path(scratch_.path("")) / fs::path(GetParam().folder)));
  }
  ~ToolOnOddPaths() override {
    std::error_code ignored;
    fs::remove_all(own_path(scratch_.path("")), ignored);
  }
  std::string in_folder(const std::string& name) {
    const std::u8string& folder = GetParam().folder;
    return scratch_.path("") + std::string(folder.begin(), folder.end()) + "/" + name;
  }
  Outcome tool(const std::vector<std::string>& arguments) {
    return run(QELPRO_TOOL_PATH, arguments);
  }
  Scratch scratch_;
};

TEST_P(ToolOnOddPaths, MakesReadsChangesAndChecksFiles) {
  const std::string file = in_folder("file.pro");
  Outcome made = tool({"new", file});
  ASSERT_EQ(made.status, 0) << made.err;
  const Outcome set = tool({"set", file, "Flow-1", "FillTime", "2.5"});
  EXPECT_EQ(set.status, 0) << set.err;
  const Outcome got = tool({"get", file, "Flow-1", "FillTime"});
  EXPECT_EQ(got.out, "2.5\n") << got.err;
  const Outcome checked = tool({"check", "--json", file});
  EXPECT_EQ(checked.status, 0) << checked.out;
  EXPECT_EQ(checked.err, "");
  const Outcome listed = tool({"list", file});
  EXPECT_NE(listed.out.find("FillTime"), std::string::npos) << listed.err;
  const Outcome exported = tool({"export", file, "-o", in_folder("file.json")});
  EXPECT_EQ(exported.status, 0) << exported.err;
  const Outcome swept =
      tool({"sweep", file, "--set", "Flow-1.FillTime=1,2", "-o", in_folder("study")});
  EXPECT_EQ(swept.status, 0) << swept.err;
  EXPECT_TRUE(fs::exists(own_path(fs::path(scratch_.path("")) / fs::path(GetParam().folder) /
                                  "study" / "manifest.json")));
  if (in_folder("").size() > 250) {
    return;  // not every standard library lists what stands in a folder so deep
  }
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(
           own_path(fs::path(scratch_.path("")) / fs::path(GetParam().folder)))) {
    names.push_back(entry.path().filename().string());
  }
  EXPECT_EQ(names.size(), 3U) << "a temporary file was left behind";
}

INSTANTIATE_TEST_SUITE_P(
    In, ToolOnOddPaths,
    testing::Values(
        Name{"Plain", u8"a folder"}, Name{"Accents", u8"F\u00FCllung \u00E9t\u00E9"},
        Name{"Chinese", u8"\u5C04\u51FA\u6210\u5F62"}, Name{"Emoji", u8"\U0001F600\U0001F1E9"},
        Name{"Long", repeated(u8"a-folder-with-a-name-of-fifty-characters-in-all-12345/", 6)},
        Name{"LongChinese",
             repeated(
                 u8"\u5C04\u51FA\u6210\u5F62-\u5C04\u51FA\u6210\u5F62-\u5C04\u51FA\u6210\u5F62/",
                 20)}),
    [](const auto& row) { return row.param.what; });

}  // namespace
}  // namespace qelpro_test
