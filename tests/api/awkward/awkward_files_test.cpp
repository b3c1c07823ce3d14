#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

// Files as editors, other programs and people leave them, one for each awkwardness. All hold the
// filling time 1.5 and the packing time 8 somewhere; 7 is what must not be taken for either.

namespace qelpro_test {
namespace {

using Value = std::optional<double>;

struct AwkwardFile {
  const char* name;
  Value fill;  ///< What the reader finds.
  Value pack;
  Value older_fill;  ///< What the older object finds.
  Value older_pack;
};

void PrintTo(const AwkwardFile& file, std::ostream* to) { *to << file.name; }

constexpr Value kNone;

const AwkwardFile kFiles[] = {
    {"crlf", 1.5, 8, 1.5, 8},
    {"mixed_breaks", 1.5, 8, 1.5, 8},
    {"no_last_break", 1.5, 8, 1.5, 8},
    {"byte_order_mark", 1.5, 8, 1.5, 8},
    {"nul_in_a_line", 1.5, 8, 1.5, 8},
    {"long_line", 1.5, 8, 1.5, 8},
    {"end_mark", 1.5, 8, 1.5, 8},
    {"words_after_headers", 1.5, 8, 1.5, 8},
    {"key_without_equals", 0, 8, 0, 8},
    {"indented", 1.5, 8, 1.5, 8},
    {"indented_header", 1.5, kNone, 1.5, kNone},
    {"repeated_section", 1.5, 8, 1.5, 8},
    {"repeated_key", 1.5, 8, 1.5, 8},
    {"before_sections", 1.5, 8, 1.5, 8},
    {"comments", 1.5, 8, 1.5, 8},
    {"padding", 1.5, 8, 1.5, 8},
    {"lone_carriage_return", 1.5, 8, 1.5, 8},
    {"latin_1", 1.5, 8, 1.5, 8},
    {"no_blanks", 1.5, 8, 1.5, 8},
    {"tabs", 1.5, 8, 1.5, 8},
    {"prefix_of_a_key", 1.5, 8, 1.5, 8},
    {"prefix_of_a_section", 1.5, 8, 1.5, 8},
    {"other_case", 1.5, 8, 1.5, 8},
    {"equals_in_a_value", 1.5, 8, 1.5, 8},
    {"only_headers", kNone, kNone, kNone, kNone},
    {"only_line_breaks", kNone, kNone, kNone, kNone},
    {"empty", kNone, kNone, kNone, kNone},
};

std::vector<std::string> lines_of(const std::string& contents) {
  std::vector<std::string> lines(1);
  for (const char c : contents.substr(0, contents.find_last_not_of(" \x1A") + 1)) {
    if (c == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  if (lines.back().empty()) {
    lines.pop_back();
  }
  return lines;
}

// Whether the lines stand among the others, in their order. A line break at a line's end may have
// come with the store.
bool are_among(const std::vector<std::string>& lines, const std::vector<std::string>& others) {
  std::size_t found = 0;
  for (const std::string& line : others) {
    if (found < lines.size() && (line == lines[found] || line == lines[found] + "\r")) {
      ++found;
    }
  }
  return found == lines.size();
}

class AwkwardFiles : public testing::TestWithParam<AwkwardFile> {
 protected:
  std::string bytes() const {
    return bytes_of(data_path("awkward/" + std::string(GetParam().name) + ".pro"));
  }
  Scratch scratch_;
};

TEST_P(AwkwardFiles, AreReadByTheReader) {
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(scratch_.file(bytes()).c_str()));
  double fill = 0;
  double pack = 0;
  EXPECT_EQ(reader.FlowX_ReadFillingTime(fill, 1) ? Value(fill) : kNone, GetParam().fill);
  EXPECT_EQ(reader.PackX_ReadPackTime(pack, 1) ? Value(pack) : kNone, GetParam().pack);
}

TEST_P(AwkwardFiles, AreReadByTheOlderObject) {
  CPROIO_Manipulator object;
  std::string path = scratch_.file(bytes());
  object.SetFilePath(path.data());
  double fill = 0;
  double pack = 0;
  EXPECT_EQ(object.GetFillTime(fill, 1) ? Value(fill) : kNone, GetParam().older_fill);
  EXPECT_EQ(object.GetPackTime(pack, 1) ? Value(pack) : kNone, GetParam().older_pack);
}

TEST_P(AwkwardFiles, AreLoaded) {
  CQELProcessData_Manipulator loader;
  const std::unique_ptr<const QELG_SimulatorProcess> process(
      loader.GetProcessDataStructure(scratch_.file(bytes()).c_str()));
  ASSERT_NE(process, nullptr);
  ASSERT_EQ(process->GetNumOfInlets(), 1U);
  double fill = 0;
  EXPECT_EQ(get_process_FillTime(*process->GetFlowPackOfInlet(0), fill) ? Value(fill) : kNone,
            GetParam().fill);
}

TEST_P(AwkwardFiles, LoseNoLineToAStoreOfTheWriter) {
  const std::string path = scratch_.file(bytes());
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.FlowX_WriteMeltTemperature(231.5, 1));
  EXPECT_TRUE(are_among(lines_of(bytes()), lines_of(bytes_of(path)))) << bytes_of(path);
  CQELPROReader_Manipulator reader;
  double melt = 0;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  EXPECT_TRUE(reader.FlowX_ReadMeltTemperature(melt, 1));
  EXPECT_EQ(melt, 231.5);
}

TEST_P(AwkwardFiles, LoseNoLineToAStoreOfTheOlderObject) {
  std::string path = scratch_.file(bytes());
  CPROIO_Manipulator object;
  object.SetFilePath(path.data());
  ASSERT_TRUE(object.SetMeltTemperature(231.5, 1));
  EXPECT_TRUE(are_among(lines_of(bytes()), lines_of(bytes_of(path)))) << bytes_of(path);
  double melt = 0;
  EXPECT_TRUE(object.GetMeltTemperature(melt, 1));
  EXPECT_EQ(melt, 231.5);
}

INSTANTIATE_TEST_SUITE_P(Each, AwkwardFiles, testing::ValuesIn(kFiles),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace qelpro_test
