#include "support/odd_paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>
#include <string>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

// Files in folders of any alphabet, and at paths that are longer than what the systems of old took.

namespace qelpro_test {
namespace {

namespace fs = std::filesystem;

struct Folder {
  const char* name;
  std::u32string path;
};
std::ostream& operator<<(std::ostream& out, const Folder& folder) { return out << folder.name; }

std::u32string repeated(const std::u32string& part, int times) {
  std::u32string result = part;
  for (int n = 1; n < times; ++n) {
    result += U"/" + part;
  }
  return result;
}

std::string bytes_at(const fs::path& path) {
  std::ifstream stream(own_path(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

class OddPath : public testing::TestWithParam<Folder> {
 protected:
  OddPath() : folder_(fs::path(scratch_.path("")) / fs::path(GetParam().path)) {
    fs::create_directories(own_path(folder_));
  }
  ~OddPath() override {
    std::error_code ignored;
    fs::remove_all(own_path(scratch_.path("")), ignored);
  }
  fs::path file(const char* name, const std::string& contents) {
    const fs::path path = folder_ / name;
    std::ofstream(own_path(path), std::ios::binary) << contents;
    return path;
  }
  Scratch scratch_;
  fs::path folder_;
};

constexpr const char* kBank =
    "[Header]\nVersion,7007\n[Machine Database]\n1,Maker,Grade,4,5,6,7,8,9,10,11,12,13,14,15,16,"
    "17,18,19,20,21,22\n";
constexpr const char* kCoolants =
    "[Coolant-1]\nName = Water\nDataCount = 2\nData-1 = 10 1 2 3 4\nData-2 = 20 3 6 -3 4\n";

TEST_P(OddPath, IsWrittenAndReadAsNarrowText) {
  const std::optional<std::string> narrow = narrow_of(folder_ / "file.pro");
  if (!narrow) {
    GTEST_SKIP() << "the code page lacks characters of the path";
  }
  std::string path = *narrow;
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(1.5, 1));
  EXPECT_TRUE(writer.WriteString("[Flow-1]", "Note", "text"));
  EXPECT_NE(bytes_at(folder_ / "file.pro").find("= 1.5"), std::string::npos);
  CQELPROReader_Manipulator reader;
  double time = 0;
  char* text = nullptr;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(time, 1.5);
  EXPECT_TRUE(reader.ReadString("[Flow-1]", "Note", text, nullptr, 0));
  EXPECT_TRUE(reader.ReadValue("[Flow-1]", "Note", text, nullptr, 0));
  CPROIO_Manipulator object;
  object.SetFilePath(path.data());
  EXPECT_TRUE(object.SetFillTime(2.5, 1));
  EXPECT_TRUE(object.GetFillTime(time, 1));
  EXPECT_EQ(time, 2.5);
  CQELProcessData_Manipulator loader;
  const std::unique_ptr<const QELG_SimulatorProcess> process(
      loader.GetProcessDataStructure(path.c_str()));
  EXPECT_NE(process, nullptr);
  CQEL_ProcessAdapter adapter;
  EXPECT_TRUE(adapter.SetProcessPath(path.c_str()));
  EXPECT_TRUE(adapter.SetCoolCTL_WriteCoolantTemperature(25, 1));
}

TEST_P(OddPath, IsStoredIntoAndReadAsWideText) {
  const fs::path path = file("file.pro", "[Flow-1]\nFillTime = 1.5\n");
  const std::wstring wide = wide_of(path);
  CQELPROReader_Manipulator reader;
  double time = 0;
  ASSERT_TRUE(reader.SetFilePath(wide.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(time, 1.5);
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(wide.c_str()));
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(22.5, 1));
  EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, 1));
  EXPECT_EQ(time, 22.5);
  EXPECT_FALSE(writer.SetFilePath(wide_of(folder_ / "missing.pro").c_str()));
}

TEST_P(OddPath, LeadsToReferenceData) {
  const fs::path bank = file("machines.bank", kBank);
  const fs::path coolants = file("coolants.pcs", kCoolants);
  const char** makers = nullptr;
  int count = 0;
  CQELMachineIdentification machines;
  machines.SetMachineUserBankPath(wide_of(bank).c_str());
  machines.LoadFileData();
  EXPECT_TRUE(machines.GetAllMaker(&makers, &count) && count == 1);
  if (const std::optional<std::string> narrow = narrow_of(bank)) {
    CQELMachineIdentification others;
    others.SetMachineUserBankPath(narrow->c_str());
    others.LoadFileData();
    EXPECT_TRUE(others.GetAllMaker(&makers, &count) && count == 1);
  }
  if (const std::optional<std::string> narrow = narrow_of(coolants)) {
    CQELPCSInterpolator interpolator;
    double p[4] = {};
    EXPECT_TRUE(interpolator.LoadDataFromFile(narrow->c_str()));
    EXPECT_TRUE(interpolator.InterpolateCoolantProperties(1, 15, p[0], p[1], p[2], p[3]));
  }
}

// From the folder above, with what a path may have besides names.
TEST_P(OddPath, MayBeRelative) {
  file("file.pro", "[Flow-1]\nFillTime = 1.5\n");
  const fs::path before = fs::current_path();
  fs::current_path(scratch_.path(""));
  const fs::path relative = fs::path(U"./" + GetParam().path) / "." / "missing" / ".." / "file.pro";
  fs::create_directories(own_path(folder_ / "missing"));
  CQELPROReader_Manipulator reader;
  double time = 0;
  EXPECT_TRUE(reader.SetFilePath(wide_of(relative).c_str()) &&
              reader.FlowX_ReadFillingTime(time, 1));
  if (const std::optional<std::string> narrow = narrow_of(relative)) {
    CQELPROReader_Manipulator other;
    EXPECT_TRUE(other.SetFilePath(narrow->c_str()) && other.FlowX_ReadFillingTime(time, 1));
  }
  fs::current_path(before);
}

INSTANTIATE_TEST_SUITE_P(
    Folder, OddPath,
    testing::Values(Folder{"Plain", U"a folder"}, Folder{"Accents", U"F\u00FCllung \u00E9t\u00E9"},
                    Folder{"Chinese", U"\u5C04\u51FA\u6210\u5F62"},
                    Folder{"Korean", U"\uC0AC\uCD9C"}, Folder{"Emoji", U"\U0001F600\U0001F1E9"},
                    Folder{"Of259", repeated(std::u32string(39, U'n'), 6)},
                    Folder{"Long", repeated(std::u32string(80, U'l'), 5)},
                    Folder{"VeryLong", repeated(std::u32string(200, U'v'), 15)},
                    Folder{"LongAccents", repeated(std::u32string(50, U'\u00E9'), 8)},
                    Folder{"LongChinese", repeated(std::u32string(60, U'\u5C04'), 8)},
                    Folder{"LongEmoji", repeated(std::u32string(40, U'\U0001F600'), 8)}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace qelpro_test
