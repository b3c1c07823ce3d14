#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <type_traits>

#include "QELG/QELG.h"

namespace {

TEST(SimulatorProcess, BeginsWithoutInlets) {
  QELG_SimulatorProcess process;
  EXPECT_EQ(process.GetNumOfInlets(), 0U);
  EXPECT_EQ(process.GetFlowPackOfInlet_mod(0), nullptr);
  EXPECT_EQ(process.GetFlowPackOfInlet(0), nullptr);
}

TEST(SimulatorProcess, AppendsInletsAfterTheLast) {
  QELG_SimulatorProcess process;
  QELG_SimulatorFlowPackProcess* first = process.AppendFlowPackProcess();
  QELG_SimulatorFlowPackProcess* second = process.AppendFlowPackProcess();
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  EXPECT_EQ(process.GetNumOfInlets(), 2U);
  EXPECT_EQ(process.GetFlowPackOfInlet_mod(0), first);
  EXPECT_EQ(process.GetFlowPackOfInlet_mod(1), second);
  EXPECT_EQ(process.GetFlowPackOfInlet(0), first);
  EXPECT_EQ(process.GetFlowPackOfInlet(1), second);
}

TEST(SimulatorProcess, GivesNullForAnInletOutOfRange) {
  QELG_SimulatorProcess process;
  process.AppendFlowPackProcess();
  EXPECT_EQ(process.GetFlowPackOfInlet_mod(1), nullptr);
  EXPECT_EQ(process.GetFlowPackOfInlet(1), nullptr);
  EXPECT_EQ(process.GetFlowPackOfInlet_mod(0xFFFFFFFFU), nullptr);
  EXPECT_EQ(process.GetFlowPackOfInlet(0xFFFFFFFFU), nullptr);
}

TEST(SimulatorProcess, HoldsNoMoreThan4096Inlets) {
  QELG_SimulatorProcess process;
  std::set<QELG_SimulatorFlowPackProcess*> inlets;
  for (int i = 0; i < 4096; ++i) {
    inlets.insert(process.AppendFlowPackProcess());
  }
  EXPECT_EQ(inlets.size(), 4096U);
  EXPECT_EQ(inlets.count(nullptr), 0U);
  EXPECT_EQ(process.AppendFlowPackProcess(), nullptr);
  EXPECT_EQ(process.AppendFlowPackProcess(), nullptr);
  EXPECT_EQ(process.GetNumOfInlets(), 4096U);
  EXPECT_NE(process.GetFlowPackOfInlet(4095), nullptr);
  EXPECT_EQ(process.GetFlowPackOfInlet(4096), nullptr);
}

TEST(SimulatorProcess, InletsStayWhereTheyAreWhileOthersAreAppended) {
  QELG_SimulatorProcess process;
  QELG_SimulatorFlowPackProcess* first = process.AppendFlowPackProcess();
  set_process_FillTime(*first, 1.5);
  for (int i = 0; i < 100; ++i) {
    process.AppendFlowPackProcess();
  }
  EXPECT_EQ(process.GetFlowPackOfInlet_mod(0), first);
  double time = 0;
  EXPECT_TRUE(get_process_FillTime(*first, time));
  EXPECT_EQ(time, 1.5);
}

TEST(SimulatorProcess, InletsHoldTheirOwnItems) {
  QELG_SimulatorProcess process;
  QELG_SimulatorFlowPackProcess& first = *process.AppendFlowPackProcess();
  QELG_SimulatorFlowPackProcess& second = *process.AppendFlowPackProcess();
  set_process_FillTime(first, 1);
  double time = 5;
  EXPECT_FALSE(get_process_FillTime(second, time));
  EXPECT_EQ(time, 5);
}

TEST(SimulatorProcess, IsDeletedThroughItsBase) {
  static_assert(std::has_virtual_destructor_v<QELG_SimulatorProcess>);
  static_assert(std::has_virtual_destructor_v<QELG_SimulatorFlowPackProcess>);
  static_assert(!std::is_copy_constructible_v<QELG_SimulatorProcess>);
  struct Counting : QELG_SimulatorProcess {
    explicit Counting(int& deleted) : deleted_(deleted) {}
    ~Counting() override { ++deleted_; }
    int& deleted_;
  };
  int deleted = 0;
  std::unique_ptr<const QELG_SimulatorProcess>(new Counting(deleted)).reset();
  EXPECT_EQ(deleted, 1);
}

TEST(SimulatorProcess, RamPositionsAreReadBack) {
  QELG_SimulatorProcess process;
  const QELG_SimulatorProcess& read = process;
  EXPECT_EQ(process.GetFlowRateRamPosition_mod(), read.GetFlowRateRamPosition());
  EXPECT_EQ(process.GetInjectionPressureRamPosition_mod(), read.GetInjectionPressureRamPosition());
  EXPECT_NE(read.GetFlowRateRamPosition(), read.GetInjectionPressureRamPosition());
}

TEST(SimulatorInlet, ListsAreReadBackAndApart) {
  QELG_SimulatorFlowPackProcess inlet;
  const QELG_SimulatorFlowPackProcess& read = inlet;
  EXPECT_EQ(inlet.GetFlowRateProfile_mod(), read.GetFlowRateProfile());
  EXPECT_EQ(inlet.GetInjectionPressureProfile_mod(), read.GetInjectionPressureProfile());
  EXPECT_EQ(inlet.GetPackingPressureProfile_mod(), read.GetPackingPressureProfile());
  EXPECT_EQ(inlet.GetFluidPressureProfile_mod(), read.GetFluidPressureProfile());
  EXPECT_EQ(inlet.GetFlowRateTimeConstants_mod(), read.GetFlowRateTimeConstants());
  EXPECT_EQ(inlet.GetInjectionPressureTimeConstants_mod(),
            read.GetInjectionPressureTimeConstants());
  EXPECT_EQ(inlet.GetPackingPressureTimeConstants_mod(), read.GetPackingPressureTimeConstants());
  const std::set<const void*> lists = {read.GetFlowRateProfile(),
                                       read.GetInjectionPressureProfile(),
                                       read.GetPackingPressureProfile(),
                                       read.GetFluidPressureProfile(),
                                       read.GetFlowRateTimeConstants(),
                                       read.GetInjectionPressureTimeConstants(),
                                       read.GetPackingPressureTimeConstants()};
  EXPECT_EQ(lists.size(), 7U);
}

TEST(Point, IsTheOriginByDefault) {
  const QELG_2dPoint origin;
  EXPECT_EQ(origin.x, 0);
  EXPECT_EQ(origin.y, 0);
  const QELG_2dPoint point(1.5, -2);
  EXPECT_EQ(point.x, 1.5);
  EXPECT_EQ(point.y, -2);
}

TEST(Profile, HoldsPointsInTheOrderOfAppending) {
  QELG_Profile profile;
  EXPECT_EQ(profile.GetNumOfDataPoints(), 0U);
  EXPECT_TRUE(profile.AppendDataPoint({5, 50}));
  EXPECT_TRUE(profile.AppendDataPoint({1, 10}));
  EXPECT_TRUE(profile.AppendDataPoint({1, 10}));
  ASSERT_EQ(profile.GetNumOfDataPoints(), 3U);
  QELG_2dPoint point;
  EXPECT_TRUE(profile.GetDataPoint(0, point));
  EXPECT_EQ(point.x, 5);
  EXPECT_EQ(point.y, 50);
  EXPECT_TRUE(profile.GetDataPoint(2, point));
  EXPECT_EQ(point.x, 1);
  EXPECT_EQ(point.y, 10);
}

TEST(Profile, GivesNoPointOutOfRange) {
  QELG_Profile profile;
  QELG_2dPoint point(3, 4);
  EXPECT_FALSE(profile.GetDataPoint(0, point));
  profile.AppendDataPoint({1, 2});
  EXPECT_FALSE(profile.GetDataPoint(1, point));
  EXPECT_FALSE(profile.GetDataPoint(0xFFFFFFFFU, point));
  EXPECT_EQ(point.x, 3);
  EXPECT_EQ(point.y, 4);
}

TEST(Array, HoldsValuesInTheOrderOfAppending) {
  QELG_Array<double> array;
  EXPECT_EQ(array.GetNumOfDataPoints(), 0U);
  for (int i = 0; i < 1000; ++i) {
    ASSERT_TRUE(array.AppendDataPoint(i * 0.5));
  }
  ASSERT_EQ(array.GetNumOfDataPoints(), 1000U);
  double value = 0;
  EXPECT_TRUE(array.GetDataPoint(0, value));
  EXPECT_EQ(value, 0);
  EXPECT_TRUE(array.GetDataPoint(999, value));
  EXPECT_EQ(value, 499.5);
}

TEST(Array, GivesNoValueOutOfRange) {
  QELG_Array<double> array;
  double value = 7;
  EXPECT_FALSE(array.GetDataPoint(0, value));
  array.AppendDataPoint(1);
  EXPECT_FALSE(array.GetDataPoint(1, value));
  EXPECT_FALSE(array.GetDataPoint(0xFFFFFFFFU, value));
  EXPECT_EQ(value, 7);
}

}  // namespace
