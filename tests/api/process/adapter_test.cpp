#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/line_break.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using Adapter = CQEL_ProcessAdapter;

char kWater[] = "Water";

std::string padded(const std::string& key, const std::string& value) {
  return key + std::string(20 - key.size(), ' ') + " = " + value + "\n";
}

// A member that writes, and what it writes into a new file.
struct Row {
  const char* member;
  std::string contents;
  bool true_whatever_happened;
  std::function<bool(Adapter&)> call;
};

std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.member; }

class AdapterMember : public testing::TestWithParam<Row> {
 protected:
  Scratch scratch_;
};

TEST_P(AdapterMember, WritesItsEntries) {
  const std::string path = scratch_.path();
  Adapter adapter;
  ASSERT_TRUE(adapter.SetProcessPath(path.c_str()));
  EXPECT_TRUE(GetParam().call(adapter));
  EXPECT_EQ(bytes_of(path), native(GetParam().contents));
}

TEST_P(AdapterMember, YieldsFalseBeforeAFileIsSet) {
  Adapter adapter;
  EXPECT_FALSE(GetParam().call(adapter));
}

TEST_P(AdapterMember, TellsAFailedWriteOrYieldsTrueWhateverHappened) {
  const std::string path = scratch_.path();
  Adapter adapter;
  ASSERT_TRUE(adapter.SetProcessPath(path.c_str()));
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  EXPECT_EQ(GetParam().call(adapter), GetParam().true_whatever_happened);
}

INSTANTIATE_TEST_SUITE_P(
    All, AdapterMember,
    testing::Values(
        Row{"SetGateCount", "\n[Summary]\n" + padded("TotalGateCTL", "3"), true,
            [](Adapter& a) { return a.SetGateCount(3); }},
        Row{"SetGateCTL_Time", "\n[GateCTL]\n" + padded("ST-2", "0.5") + "ET-2 = 1.5\n", true,
            [](Adapter& a) { return a.SetGateCTL_Time(0.5, 1.5, 2); }},
        Row{"SetGateValveX_ControlPoint", "\n[GateValve-2]\n" + padded("GCSet", "4"), true,
            [](Adapter& a) { return a.SetGateValveX_ControlPoint(4, 2); }},
        Row{"SetGateValveX_GateSettingOfFive", "\n[GateValve-3]\nGC-1 = 5.5\t1\t7\n", true,
            [](Adapter& a) { return a.SetGateValveX_GateSetting(5.5, true, 7, 1, 3); }},
        Row{"SetGateValveX_GateSettingOfSix", "\n[GateValve-3]\nGC-1 = 5.5\t0\t2\t118\n", false,
            [](Adapter& a) { return a.SetGateValveX_GateSetting(5.5, false, 2, 118, 1, 3); }},
        Row{"SetGateValveX_GateSettingOfFiveWithoutTheFlag", "\n[GateValve-3]\nGC-1 = 5.5\t0\t7\n",
            true, [](Adapter& a) { return a.SetGateValveX_GateSetting(5.5, false, 7, 1, 3); }},
        Row{"SetGateValveX_GateSettingOfSixWithTheFlag", "\n[GateValve-3]\nGC-1 = 5.5\t1\t2\t118\n",
            false, [](Adapter& a) { return a.SetGateValveX_GateSetting(5.5, true, 2, 118, 1, 3); }},
        Row{"SetCoolCTL_WriteCoolantTemperature", "\n[CoolCTL]\n" + padded("T-1", "60.5"), false,
            [](Adapter& a) { return a.SetCoolCTL_WriteCoolantTemperature(60.5, 1); }},
        Row{"SetCoolCTL_WriteCoolantFlowRate", "\n[CoolCTL]\n" + padded("F-2", "8.5"), false,
            [](Adapter& a) { return a.SetCoolCTL_WriteCoolantFlowRate(8.5, 2); }},
        Row{"SetCoolCTL_WriteCoolantSystem", "\n[CoolCTL]\n" + padded("M-3", "2"), false,
            [](Adapter& a) { return a.SetCoolCTL_WriteCoolantSystem(2, 3); }},
        Row{"SetCoolCTL_WroteCoolantPressure", "\n[CoolCTL]\n" + padded("P-1", "3"), false,
            [](Adapter& a) { return a.SetCoolCTL_WroteCoolantPressure(3, 1); }},
        Row{"SetCoolant_WriteCoolant",
            "\n[Coolant]\n" + padded("4", "1\t2\t3\t4.5\t5\tWater\t0.01\t2"), false,
            [](Adapter& a) {
              return a.SetCoolant_WriteCoolant(1, 2, 3, 4.5, 5, kWater, 0.01, 2, 4);
            }},
        Row{"SetCoolChannelX_WriteDiameter", "\n[CoolChannel-2]\n" + padded("Diameter", "0.8"),
            false, [](Adapter& a) { return a.SetCoolChannelX_WriteDiameter(0.8, 2); }},
        Row{"SetCoolChannelX_WriteGroupID", "\n[CoolChannel-2]\n" + padded("GroupID", "6"), false,
            [](Adapter& a) { return a.SetCoolChannelX_WriteGroupID(6, 2); }},
        Row{"SetCoolChannelX_WriteTimeSection", "\n[CoolChannel-2]\n" + padded("TimeSet", "5"),
            false, [](Adapter& a) { return a.SetCoolChannelX_WriteTimeSection(5, 2); }},
        Row{"SetCoolChannelX_WriteControlPointSetting",
            "\n[CoolChannel-2]\n" + padded("TCP-3", "0.5\t2\t60\t8.5\t1"), false,
            [](Adapter& a) {
              return a.SetCoolChannelX_WriteControlPointSetting(0.5, 2, 60, 8.5, 1, 3, 2);
            }},
        Row{"SetCoolChannelX_WritePressureControlPointSetting",
            "\n[CoolChannel-2]\n" + padded("TCPP-3", "0.5\t2\t60\t8.5\t1"), false,
            [](Adapter& a) {
              return a.SetCoolChannelX_WritePressureControlPointSetting(0.5, 2, 60, 8.5, 1, 3, 2);
            }},
        Row{"SetCoolingChannelDataByFlow",
            "\n[CoolCTL]\n" + padded("T-2", "60") + "F-2 = 8.5\nM-2 = 4\n\n[Coolant]\n" +
                padded("2", "1\t2\t3\t4.5\t4\tWater\t0.8\t6") + "\n[CoolChannel-2]\n" +
                padded("Diameter", "0.8") +
                "GroupID = 6\nTimeSet = 1\nTCP-1 = 0.5\t4\t60\t8.5\t9\n",
            true,
            [](Adapter& a) {
              return a.SetCoolingChannelData(2, 6, 0.8, 1, 60, 8.5, 4, 7.5, 0.5, 9, 1, 2, 3, 4.5,
                                             kWater, 0);
            }},
        Row{"SetCoolingChannelDataByPressure",
            "\n[CoolCTL]\n" + padded("T-2", "60") + "F-2 = 8.5\nM-2 = 4\n\n[Coolant]\n" +
                padded("2", "1\t2\t3\t4.5\t4\tWater\t0.8\t6") + "\n[CoolChannel-2]\n" +
                padded("Diameter", "0.8") +
                "GroupID = 6\nTimeSet = 1\nTCPP-1 = 0.5\t4\t60\t7.5\t9\n",
            true,
            [](Adapter& a) {
              return a.SetCoolingChannelData(2, 6, 0.8, 1, 60, 8.5, 4, 7.5, 0.5, 9, 1, 2, 3, 4.5,
                                             kWater, -1);
            }}),
    [](const auto& row) { return std::string(row.param.member); });

TEST(Adapter, ServesOneFileInItsLife) {
  const Scratch scratch;
  const std::string first = scratch.path("first.pro");
  const std::string second = scratch.path("second.pro");
  Adapter adapter;
  ASSERT_TRUE(adapter.SetProcessPath(first.c_str()));
  EXPECT_FALSE(adapter.SetProcessPath(second.c_str()));
  EXPECT_FALSE(adapter.SetProcessPath(first.c_str()));
  EXPECT_FALSE(exists(second));
  adapter.EndFile();
  EXPECT_FALSE(adapter.SetProcessPath(second.c_str()));
}

TEST(Adapter, RefusesASecondPathAlsoAfterTheFirstFailed) {
  const Scratch scratch;
  Adapter adapter;
  EXPECT_FALSE(adapter.SetProcessPath(scratch.path("missing/file.pro").c_str()));
  EXPECT_FALSE(adapter.SetProcessPath(scratch.path().c_str()));
  EXPECT_TRUE(adapter.SetGateCount(1)) << "it has a writer now, whatever becomes of the writing";
  EXPECT_FALSE(adapter.SetCoolChannelX_WriteGroupID(1, 1));
}

TEST(Adapter, EndsNoFileWhereThereIsNone) {
  Adapter adapter;
  adapter.EndFile();
  EXPECT_FALSE(adapter.SetGateCount(1));
}

TEST(Adapter, TakesANullPathForAFailure) {
  Adapter adapter;
  EXPECT_FALSE(adapter.SetProcessPath(nullptr));
  adapter.EndFile();
}

TEST(Adapter, ControlPointsOfAValveGrowItsCount) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Adapter adapter;
  ASSERT_TRUE(adapter.SetProcessPath(path.c_str()));
  EXPECT_TRUE(adapter.SetGateValveX_GateSetting(1.5, true, 2, 3, 1));
  EXPECT_EQ(bytes_of(path), native("\n[GateValve-1]\nGC-3 = 1.5\t1\t2\nGCSet = 3\n"));
}

TEST(Adapter, KnowsThePropertiesOfItsCoolants) {
  Adapter adapter;
  double p1 = -1;
  double p2 = -1;
  double p3 = -1;
  double p4 = -1;
  for (const int water : {0, 2}) {
    p1 = p2 = p3 = p4 = -1;
    adapter.GetMaterialDefaultValue(water, p1, p2, p3, p4);
    EXPECT_EQ(p1, 1.0);
    EXPECT_EQ(p2, 4.183e7);
    EXPECT_EQ(p3, 59800.0);
    EXPECT_EQ(p4, 0.01006);
  }
  adapter.GetMaterialDefaultValue(1, p1, p2, p3, p4);
  EXPECT_EQ(p1, 0.836);
  EXPECT_EQ(p2, 2.25e7);
  EXPECT_EQ(p3, 13800.0);
  EXPECT_EQ(p4, 0.0243);
}

TEST(Adapter, LeavesTheConductivityOfAnUnknownCoolantAlone) {
  Adapter adapter;
  for (const int kind : {5, 3, -1}) {
    double p1 = -1;
    double p2 = -1;
    double p3 = -1;
    double p4 = -1;
    adapter.GetMaterialDefaultValue(kind, p1, p2, p3, p4);
    EXPECT_EQ(p1, 0);
    EXPECT_EQ(p2, 0);
    EXPECT_EQ(p3, -1);
    EXPECT_EQ(p4, 0);
  }
}

TEST(Adapter, ReadsTheTemperaturesThatItsFileHolds) {
  const Scratch scratch;
  const std::string path =
      scratch.file("[FlowCTL]\nMeltTemperature = 235\nMoldTemperature = 62.5\n");
  Adapter adapter;
  ASSERT_TRUE(adapter.SetProcessPath(path.c_str()));
  double mold = -1;
  double melt = -1;
  adapter.GetMaterialTemperature(mold, melt);
  EXPECT_EQ(mold, 62.5);
  EXPECT_EQ(melt, 235);
  put_bytes(path, "[FlowCTL]\nMeltTemperature = 240\n");
  adapter.GetMaterialTemperature(mold, melt);
  EXPECT_EQ(mold, 62.5) << "kept: the file has none now";
  EXPECT_EQ(melt, 240);
}

TEST(Adapter, KeepsTheTemperaturesThatItsFileLacks) {
  const Scratch scratch;
  const std::string path = scratch.file("[Other]\nMeltTemperature = 235\nMoldTemperature = 62.5\n");
  double mold = -1;
  double melt = -2;
  Adapter none;
  none.GetMaterialTemperature(mold, melt);
  Adapter adapter;
  ASSERT_TRUE(adapter.SetProcessPath(path.c_str()));
  adapter.GetMaterialTemperature(mold, melt);
  std::filesystem::remove(path);
  adapter.GetMaterialTemperature(mold, melt);
  EXPECT_EQ(mold, -1);
  EXPECT_EQ(melt, -2);
}

TEST(Adapter, OpensItsOwnCopyOfThePath) {
  const Scratch scratch;
  Adapter adapter;
  {
    std::string path = scratch.file("[FlowCTL]\nMeltTemperature = 235\n");
    ASSERT_TRUE(adapter.SetProcessPath(path.c_str()));
    path.assign(path.size(), '?');
  }
  EXPECT_TRUE(adapter.SetCoolChannelX_WriteGroupID(1, 1));
  double mold = -1;
  double melt = -1;
  adapter.GetMaterialTemperature(mold, melt);
  EXPECT_EQ(melt, 235);
}

TEST(Adapter, CopiesShareOneWriter) {
  const Scratch scratch;
  const std::string path = scratch.path();
  auto first = std::make_unique<Adapter>();
  ASSERT_TRUE(first->SetProcessPath(path.c_str()));
  Adapter second(*first);
  Adapter third;
  third = second;
  const Adapter& same = third;
  third = same;
  first.reset();
  EXPECT_TRUE(second.SetCoolChannelX_WriteGroupID(1, 1));
  EXPECT_TRUE(third.SetCoolChannelX_WriteGroupID(2, 1));
  EXPECT_FALSE(third.SetProcessPath(path.c_str()));
  EXPECT_EQ(bytes_of(path), native("\n[CoolChannel-1]\n" + padded("GroupID", "2")));
}

TEST(Adapter, KeepsItsSize) { EXPECT_EQ(sizeof(Adapter), 2 * sizeof(void*)); }

}  // namespace
}  // namespace qelpro_test
