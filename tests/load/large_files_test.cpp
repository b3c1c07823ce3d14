#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <locale>
#include <memory>
#include <string>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "load/memory.h"
#include "load/scale.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using Process = std::unique_ptr<const QELG_SimulatorProcess>;

// A stretch of a file that holds nothing but filler up to a size.
void fill_up(std::ofstream& file, std::size_t size) {
  for (int number = 0; static_cast<std::size_t>(file.tellp()) < size; ++number) {
    file << "filler-" << number << " = 0123456789 0123456789 0123456789 0123456789\n";
  }
}

TEST(Load, OfALargeFileIsReadWithoutHoldingItAndStoredIntoWithoutLosingAByte) {
  const std::size_t size = load(std::size_t{8}, std::size_t{100}) * kMiB;
  const Scratch scratch;
  const std::string path = scratch.path();
  {
    std::ofstream file(path, std::ios::binary);
    file.imbue(std::locale::classic());  // 1000, not 1.000
    file << "[Flow-1]\nFillTime = 1.5\n[Filler]\n";
    fill_up(file, size / 2);
    file << "[Flow-2]\nFillTime = 2.5\n[Filler]\n";
    fill_up(file, size);
    file << "[Flow-3]\nFillTime = 3.5\n";
  }
  const std::size_t before = most_resident_bytes();
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  for (int inlet = 1; inlet <= 3; ++inlet) {
    double time = 0;
    EXPECT_TRUE(reader.FlowX_ReadFillingTime(time, inlet));
    EXPECT_EQ(time, inlet + 0.5);
  }
  char* value = nullptr;
  EXPECT_TRUE(reader.ReadString("[Flow-3]", "FillTime", value, nullptr, 0));
  EXPECT_STREQ(value, "3.5");
  EXPECT_LT(most_resident_bytes(), before + 2 * kMiB)
      << "a read holds a piece of the file at a time";

  const std::string copy = scratch.path("copy.pro");
  std::filesystem::copy(path, copy);
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  ASSERT_TRUE(writer.FlowX_WriteFillingTime(2.03125, 2));
  const std::size_t after = most_resident_bytes();
  EXPECT_LT(after, before + std::filesystem::file_size(path) + 2 * kMiB)
      << "a store holds the file once";
  std::string contents = bytes_of(copy);
  const std::string old_line = "[Flow-2]\nFillTime = 2.5\n";
  contents.replace(contents.find(old_line), old_line.size(),
                   "[Flow-2]\nFillTime             = 2.03125\n");
  EXPECT_TRUE(bytes_of(path) == contents);
  std::cout << "[ measured ] " << contents.size() / kMiB << " MiB; " << before / kMiB
            << " MiB held before, " << after / kMiB << " MiB at most\n";
}

TEST(Load, OfASectionOfVeryManyLinesIsReadInFull) {
  constexpr int kPoints = 200000;
  const Scratch scratch;
  const std::string path = scratch.path();
  {
    std::ofstream file(path, std::ios::binary);
    file.imbue(std::locale::classic());  // 1000, not 1.000
    file << "[CaeHeader]\nProjectType = 1 0\n[Flow-1]\nFRSet = " << kPoints << "\n";
    for (int point = 1; point <= kPoints; ++point) {
      file << "FR-" << point << " = " << point << "\t0.5\n";
    }
  }
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  int wrong = 0;
  for (int point = 1; point <= kPoints; ++point) {
    double x = 0;
    double y = 0;
    wrong += reader.FlowX_ReadFRProfile(x, y, point, 1) && x == point && y == 0.5 ? 0 : 1;
  }
  EXPECT_EQ(wrong, 0);
  CQELProcessData_Manipulator loader;
  const Process process(loader.GetProcessDataStructure(path.c_str()));
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(process->GetFlowPackOfInlet(0)->GetFlowRateProfile()->GetNumOfDataPoints(),
            static_cast<unsigned int>(kPoints));
  CPROIO_Manipulator object;
  ASSERT_TRUE(object.SetFilePath(path.c_str()));
  double x = 0;
  double y = 0;
  EXPECT_TRUE(object.GetFRProfile(kPoints, x, y, 1));
  EXPECT_EQ(x, kPoints);
}

TEST(Load, OfFourThousandInletsIsLoadedInFull) {
  constexpr int kInlets = 4096;
  const Scratch scratch;
  const std::string path = scratch.path();
  {
    std::ofstream file(path, std::ios::binary);
    file.imbue(std::locale::classic());  // 1000, not 1.000
    file << "[CaeHeader]\nProjectType = 1 0\n[Summary]\nTotalNodeEM = " << kInlets
         << "\n[FlowCTLInfo]\nTotalInlet = " << kInlets << "\n";
    for (int inlet = 1; inlet <= kInlets; ++inlet) {
      file << "FlowCTL-" << inlet << " = 0 0\n";
    }
    for (int inlet = 1; inlet <= kInlets; ++inlet) {
      file << "[Flow-" << inlet << "]\nFillTime = " << inlet
           << ".5\nFRSet = 2\nFR-1 = 0 50\nFR-2 = 100 " << inlet << "\n[Pack-" << inlet
           << "]\nPackTime = " << inlet << "\nPPSet = 1\nPP-1 = 1 2\n";
    }
  }
  const std::size_t before = resident_bytes();
  CQELProcessData_Manipulator loader;
  const Process process(loader.GetProcessDataStructure(path.c_str()));
  ASSERT_NE(process, nullptr);
  ASSERT_EQ(process->GetNumOfInlets(), static_cast<unsigned int>(kInlets));
  int wrong = 0;
  for (unsigned int inlet = 0; inlet < kInlets; ++inlet) {
    const QELG_SimulatorFlowPackProcess& stages = *process->GetFlowPackOfInlet(inlet);
    double fill = 0;
    double pack = 0;
    QELG_2dPoint point{};
    wrong += get_process_FillTime(stages, fill) && fill == inlet + 1.5 &&
                     get_process_PackTime(stages, pack) && pack == inlet + 1 &&
                     stages.GetFlowRateProfile()->GetDataPoint(1, point) && point.y == inlet + 1
                 ? 0
                 : 1;
  }
  EXPECT_EQ(wrong, 0);
  std::cout << "[ measured ] " << std::filesystem::file_size(path) << " bytes; the process holds "
            << (resident_bytes() - before) / kMiB << " MiB\n";
}

}  // namespace
}  // namespace qelpro_test
