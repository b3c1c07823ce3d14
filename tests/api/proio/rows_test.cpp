#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/accessors.h"
#include "api/proio/support.h"

// Entries of several items: gates, coolants, control points, parting surface, ejection, inserts,
// mold rows.

namespace qelpro_test {
namespace {

class Rows : public ProcessObject {
 protected:
  // Over a file of one entry; the stamp of a setter falls into a head that stands already.
  Object& over_entry(const std::string& section, const std::string& line) {
    return over(kHead + section + "\n" + line + "\n");
  }
  Object& over_head() { return over(kHead); }
  [[nodiscard]] static std::string written(const std::string& section, const std::string& key,
                                           const std::string& text) {
    return "[FileHeader]\n" + kMaskedDate + "\n" + section + "\n" + entry(key, text);
  }
  const std::string kHead = "[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00");
};

TEST_F(Rows, ValveGateTimeSwitchStandsUnderTheGatesNumber) {
  EXPECT_TRUE(over_head().SetValveGateTimeSwitch(2, 1.5, 1));
  EXPECT_EQ(masked_bytes(), written("[GateValve-2]", "GC-2", "1.5\t1"));
  double time = 0;
  int flag = 0;
  EXPECT_TRUE(object_.GetValveGateTimeSwitch(2, time, flag));
  EXPECT_EQ(time, 1.5);
  EXPECT_EQ(flag, 1);
  EXPECT_TRUE(over_entry("[OFGateValve-3]", "GC-3 = 2.5 4").GetOverFlowTimeSwitch(3, time, flag));
  EXPECT_EQ(time, 2.5);
  EXPECT_EQ(flag, 4);
  EXPECT_FALSE(over_entry("[OFGateValve-3]", "GC-2 = 2.5 4").GetOverFlowTimeSwitch(3, time, flag));
  EXPECT_EQ(time, 2.5);
}

TEST_F(Rows, ValveGateControlDataHasAFourthItemForModesTwoAndThree) {
  const struct {
    int mode;
    const char* text;
  } rows[] = {{0, "5.5\t1\t0"},      {1, "5.5\t1\t1"}, {2, "5.5\t1\t2\t118"},
              {3, "5.5\t1\t3\t118"}, {4, "5.5\t1\t4"}, {-1, "5.5\t1\t-1"}};
  for (const auto& row : rows) {
    EXPECT_TRUE(over_head().SetValveGateControlData(2, 7, 5.5, 1, row.mode, 118));
    EXPECT_EQ(masked_bytes(), written("[GateValve-2]", "GC-7", row.text));
  }
}

TEST_F(Rows, ControlDataKeepsTheCallersValuesForItemsThatAreMissing) {
  double value = 77;
  int second = 77;
  int mode = 77;
  int fourth = 77;
  EXPECT_TRUE(over_entry("[GateValve-2]", "GC-7 = 5.5 1 4")
                  .GetValveGateControlData(2, 7, value, second, mode, fourth));
  EXPECT_EQ(value, 5.5);
  EXPECT_EQ(second, 1);
  EXPECT_EQ(mode, 4);
  EXPECT_EQ(fourth, 77);
  EXPECT_TRUE(over_entry("[OFGateValve-2]", "GC-7 = 6.5 2 3 9")
                  .GetOverFlowControlData(2, 7, value, second, mode, fourth));
  EXPECT_EQ(value, 6.5);
  EXPECT_EQ(second, 2);
  EXPECT_EQ(mode, 3);
  EXPECT_EQ(fourth, 9);
  EXPECT_FALSE(over_head().GetOverFlowControlData(2, 7, value, second, mode, fourth));
  EXPECT_EQ(value, 6.5);
}

TEST_F(Rows, CoolantsStandInTwoTables) {
  char water[] = "Water";
  EXPECT_TRUE(over_head().SetCoolant(4, 1, 2.5, 3, 4, 5, water, 0.01, 2));
  EXPECT_EQ(masked_bytes(), written("[Coolant]", "4", "1\t2.5\t3\t4\t5\tWater\t0.01\t2"));
  double a = 0;
  double b = 0;
  double c = 0;
  double d = 0;
  double f = 0;
  int e = 0;
  int g = 0;
  char* name = nullptr;
  EXPECT_TRUE(object_.GetCoolant(4, a, b, c, d, e, name, f, g));
  EXPECT_EQ(a, 1);
  EXPECT_EQ(b, 2.5);
  EXPECT_EQ(c, 3);
  EXPECT_EQ(d, 4);
  EXPECT_EQ(e, 5);
  EXPECT_STREQ(name, "Water");
  EXPECT_EQ(f, 0.01);
  EXPECT_EQ(g, 2);
  EXPECT_TRUE(over_head().SetCoolant(4, 1, 2.5, 3, 4, 5));
  EXPECT_EQ(masked_bytes(), written("[VarCoolCTL]", "Coolant-4", "1\t2.5\t3\t4\t5"));
  a = b = c = d = 0;
  e = 0;
  EXPECT_TRUE(object_.GetCoolant(4, a, b, c, d, e));
  EXPECT_EQ(b, 2.5);
  EXPECT_EQ(e, 5);
}

TEST_F(Rows, CoolantItemsThatAreMissingAreZero) {
  double a = 77;
  double b = 77;
  double c = 77;
  double d = 77;
  double f = 77;
  int e = 77;
  int g = 77;
  char before[] = "before";
  char* name = before;
  EXPECT_FALSE(over_head().GetCoolant(4, a, b, c, d, e, name, f, g));
  EXPECT_EQ(name, before);
  EXPECT_EQ(a, 77);
  EXPECT_TRUE(over_entry("[Coolant]", "4 = 1 2").GetCoolant(4, a, b, c, d, e, name, f, g));
  EXPECT_EQ(a, 1);
  EXPECT_EQ(b, 2);
  EXPECT_EQ(c, 0);
  EXPECT_EQ(e, 0);
  EXPECT_EQ(name, nullptr);
  EXPECT_EQ(f, 0);
  EXPECT_EQ(g, 0);
  a = b = c = d = 77;
  e = 77;
  EXPECT_TRUE(over_entry("[VarCoolCTL]", "Coolant-4 = 1").GetCoolant(4, a, b, c, d, e));
  EXPECT_EQ(a, 1);
  EXPECT_EQ(b, 0);
  EXPECT_EQ(e, 0);
}

TEST_F(Rows, ControlPointIsWrittenUnderTheChannelsNumberWithTheLowBitsOfItsLastItem) {
  const struct {
    double last;
    const char* text;
  } rows[] = {{0.1, "-1717986918"},           {0.0, "0"},        {1.0, "0"}, {0.5, "0"},
              {4.9406564584124654e-324, "1"}, {0.3, "858993459"}};
  for (const auto& row : rows) {
    EXPECT_TRUE(over_head().SetcoolChannelControlPoint(2, 5, 1.5, 3, 2.0, 4.0, row.last));
    EXPECT_EQ(masked_bytes(),
              written("[CoolChannel-2]", "TCP-2", std::string("1.5\t3\t2\t4\t") + row.text));
    EXPECT_TRUE(over_head().SetMPreheatCoolChannelControlPoint(3, 5, 1.5, 3, 2.0, 4.0, row.last));
    EXPECT_EQ(masked_bytes(), written("[MPreheat_CoolChannel-3]", "TCP-3",
                                      std::string("1.5\t3\t2\t4\t") + row.text));
  }
}

TEST_F(Rows, ControlPointIsReadUnderThePointsNumber) {
  for (const bool preheat : {false, true}) {
    const auto get =
        preheat ? &Object::GetMPreheatCoolChannelControlPoint : &Object::GetCoolChannelControlPoint;
    const char* section = preheat ? "[MPreheat_CoolChannel-2]" : "[CoolChannel-2]";
    double a = 77;
    int b = 77;
    double c = 77;
    double d = 77;
    double e = 77;
    EXPECT_TRUE((over_entry(section, "TCP-5 = 1.5 3 2 4 0.25").*get)(2, 5, a, b, c, d, e));
    EXPECT_EQ(a, 1.5);
    EXPECT_EQ(b, 3);
    EXPECT_EQ(c, 2);
    EXPECT_EQ(d, 4);
    EXPECT_EQ(e, 0.25);
    EXPECT_TRUE((over_entry(section, "TCP-5 = 1.5").*get)(2, 5, a, b, c, d, e));
    EXPECT_EQ(b, 0);
    EXPECT_EQ(e, 0);
    a = 77;
    EXPECT_FALSE((over_entry(section, "TCP-2 = 1.5").*get)(2, 5, a, b, c, d, e));
    EXPECT_EQ(a, 77);
  }
}

TEST_F(Rows, PartingSurfaceSidesSpellMoldBaseWithACapitalB) {
  const struct {
    const char* key;
    bool (Object::*get)(int&, double&, double&, double&);
  } rows[] = {{"CavityPart", &Object::GetPSCavityPart},
              {"CavityMoldBase", &Object::GetPSCavityMoldBase},
              {"CorePart", &Object::GetPSCorePart},
              {"CoreMoldBase", &Object::GetPSCoreMoldBase}};
  for (const auto& row : rows) {
    int side = 77;
    double x = 77;
    double y = 77;
    double z = 77;
    EXPECT_TRUE((over_entry("[PartingSurface]", row.key + std::string(" = 2 0.5 1")).*row.get)(
        side, x, y, z))
        << row.key;
    EXPECT_EQ(side, 2);
    EXPECT_EQ(x, 0.5);
    EXPECT_EQ(y, 1);
    EXPECT_EQ(z, 77) << "what is missing keeps the caller's";
    EXPECT_FALSE((over_head().*row.get)(side, x, y, z));
  }
}

TEST_F(Rows, EjectionNodesAreANumberAndAValue) {
  for (const bool sensor : {true, false}) {
    const auto get = sensor ? &Object::GetSensorNodeSetting : &Object::GetCriteriaNodeSetting;
    const std::string key = sensor ? "SensorNode-3" : "CriteriaNode-3";
    int node = 77;
    double value = 77;
    EXPECT_TRUE((over_entry("[EjectCriteria]", key + " = 120\t85.5").*get)(3, node, value));
    EXPECT_EQ(node, 120);
    EXPECT_EQ(value, 85.5);
    EXPECT_TRUE((over_entry("[EjectCriteria]", key + " = 121").*get)(3, node, value));
    EXPECT_EQ(node, 121);
    EXPECT_EQ(value, 85.5);
    EXPECT_FALSE((over_head().*get)(3, node, value));
  }
}

TEST_F(Rows, PartInsertHasANameOfOneWord) {
  int id = 77;
  char* name = nullptr;
  double temperature = 77;
  EXPECT_TRUE(over_entry("[PartInsertInitialTemperature]", "PartInsert-2 = 3\tPin\t80.5")
                  .GetPartInsertSetting(2, id, name, temperature));
  EXPECT_EQ(id, 3);
  EXPECT_STREQ(name, "Pin");
  EXPECT_EQ(temperature, 80.5);
  temperature = 77;
  EXPECT_TRUE(over_entry("[PartInsertInitialTemperature]", "PartInsert-2 = 4 Core Pin 80")
                  .GetPartInsertSetting(2, id, name, temperature));
  EXPECT_STREQ(name, "Core");
  EXPECT_EQ(temperature, 77) << "the second word is no number";
  EXPECT_FALSE(over_head().GetPartInsertSetting(2, id, name, temperature));
  EXPECT_EQ(id, 4);
}

TEST_F(Rows, PartInsertWithoutANameHasAnEmptyOne) {
  char before[] = "before";
  const struct {
    const char* text;
    const char* name;
    double temperature;
  } rows[] = {{"3\t\t80.5", "", 80.5},
              {"3\t\t80.5\t2", "", 80.5},
              {"3", "", 77},
              {"3\t\tPin\t80.5", "Pin", 80.5}};
  for (const auto& row : rows) {
    int id = 77;
    char* name = before;
    double temperature = 77;
    EXPECT_TRUE(
        over_entry("[PartInsertInitialTemperature]", std::string("PartInsert-2 = ") + row.text)
            .GetPartInsertSetting(2, id, name, temperature));
    EXPECT_EQ(id, 3) << row.text;
    EXPECT_STREQ(name, row.name) << row.text;
    EXPECT_EQ(temperature, row.temperature) << row.text;
  }
  int id = 77;
  char* name = before;
  double temperature = 77;
  EXPECT_TRUE(over_entry("[PartInsertInitialTemperature]", "PartInsert-2 = Pin")
                  .GetPartInsertSetting(2, id, name, temperature));
  EXPECT_EQ(id, 77);
  EXPECT_STREQ(name, "") << "a row that does not begin with a number";
  name = before;
  EXPECT_FALSE(over_head().GetPartInsertSetting(2, id, name, temperature));
  EXPECT_EQ(name, before);
}

TEST_F(Rows, PartInsertWithoutANamePointsToTheEmptiedBuffer) {
  int id = 77;
  char* name = nullptr;
  double temperature = 77;
  EXPECT_TRUE(over_entry("[PartInsertInitialTemperature]", "PartInsert-2 = 3\tPin\t80.5")
                  .GetPartInsertSetting(2, id, name, temperature));
  const char* const buffer = name;
  for (const char* text :
       {"PartInsert-2 = 5", "PartInsert-2 =", "PartInsert-2", "PartInsert-2 = none"}) {
    char untouched[] = "untouched";
    name = untouched;
    temperature = 77;
    EXPECT_TRUE(over_entry("[PartInsertInitialTemperature]", text)
                    .GetPartInsertSetting(2, id, name, temperature))
        << text;
    EXPECT_EQ(name, buffer) << text;
    EXPECT_STREQ(name, "") << text;
    EXPECT_EQ(temperature, 77);
  }
}

// Both tables of mold rows.
struct Table {
  const char* section;
  bool (Object::*get)(int, double&, double&, double&, char*&);
  bool (Object::*set)(int, double, double, double, char*);
  bool (Object::*get_record)(int, QELPRO_MMM_MECHANICAL&);
  bool (Object::*set_record)(int, const QELPRO_MMM_MECHANICAL&);
};
const Table kTables[] = {
    {"[Moldbase]", &Object::GetMoldbase, &Object::SetMoldbase, &Object::GetMoldbase,
     &Object::SetMoldbase},
    {"[MoldMetalMaterial]", &Object::GetMoldMetalMaterial, &Object::SetMoldMetalMaterial,
     &Object::GetMoldMetalMaterial, &Object::SetMoldMetalMaterial}};

TEST_F(Rows, MoldRowInItsShortForm) {
  for (const Table& table : kTables) {
    char name[] = "Tool Steel";
    EXPECT_TRUE((over_head().*table.set)(3, 7.8, 0.46, 29, name));
    EXPECT_EQ(masked_bytes(), written(table.section, "3", "7.8\t0.46\t29\tTool Steel"));
    double a = 0;
    double b = 0;
    double c = 0;
    char* read = nullptr;
    EXPECT_TRUE((object_.*table.get)(3, a, b, c, read));
    EXPECT_EQ(a, 7.8);
    EXPECT_EQ(b, 0.46);
    EXPECT_EQ(c, 29);
    EXPECT_STREQ(read, "Tool") << "a row of less than eight words has a name of one";
    EXPECT_FALSE((object_.*table.get)(4, a, b, c, read));
    EXPECT_EQ(a, 7.8);
  }
}

TEST_F(Rows, MoldRecordIsWrittenWithItsSecondMechanicalValueTwice) {
  const QELPRO_MMM_MECHANICAL record{{1, 2, 3}, {4, 5, 6}, "P20"};
  for (const Table& table : kTables) {
    EXPECT_TRUE((over_head().*table.set_record)(1, record));
    EXPECT_EQ(masked_bytes(), written(table.section, "1", "1\t2\t5\tP20\t4\t5\t6"));
  }
}

TEST_F(Rows, MoldRecordIsReadWithANameOfSeveralWords) {
  for (const Table& table : kTables) {
    const std::string version =
        "[CaeHeader]\nFileVersion = 1010\n" + std::string(table.section) + "\n";
    QELPRO_MMM_MECHANICAL record{};
    EXPECT_TRUE(
        (over(version + "1 = 7.8 0.46 29 Tool  Steel\tP20 4 5 6\n").*table.get_record)(1, record));
    EXPECT_STREQ(record.name, "Tool  Steel\tP20");
    EXPECT_EQ(record.thermal[0], 7.8);
    EXPECT_EQ(record.thermal[1], 0.46);
    EXPECT_EQ(record.thermal[2], 29);
    EXPECT_EQ(record.mechanical[0], 4);
    EXPECT_EQ(record.mechanical[1], 5);
    EXPECT_EQ(record.mechanical[2], 6);
    EXPECT_TRUE((over(version + "1 = 7.8 0.46 29 P20 4 5 6\n").*table.get_record)(1, record));
    EXPECT_STREQ(record.name, "P20");
    EXPECT_FALSE((over(version + "2 = 7.8 0.46 29 P20 4 5 6\n").*table.get_record)(1, record));
  }
}

TEST_F(Rows, MoldRowsGiveBackTheNameThatTheirFormCanHold) {
  const struct {
    const char* given;
    const char* short_form;
    const char* record;
  } rows[] = {{"", "", "4"},
              {"P20", "P20", "P20"},
              {" P20 ", "P20", "P20"},
              {"Tool Steel", "Tool", "Tool Steel"},
              {"a b c d", "a", "a b c d"},
              {"a  b c d e", "a  b", "a  b c d e"}};
  for (const Table& table : kTables) {
    for (const auto& row : rows) {
      std::string name = row.given;
      double number = 0;
      char* read = nullptr;
      EXPECT_TRUE((over_head().*table.set)(1, 1, 2, 3, name.data()));
      EXPECT_TRUE((object_.*table.get)(1, number, number, number, read));
      EXPECT_STREQ(read, row.short_form) << row.given;
      QELPRO_MMM_MECHANICAL record{{1, 2, 3}, {4, 5, 6}, name.data()};
      EXPECT_TRUE((over("[CaeHeader]\nFileVersion = 1010\n").*table.set_record)(1, record));
      EXPECT_TRUE((object_.*table.get_record)(1, record));
      EXPECT_STREQ(record.name, row.record) << row.given;
    }
  }
}

TEST_F(Rows, MoldRowsRefuseAnEndMarkInTheirName) {
  for (const Table& table : kTables) {
    char name[] = "Tool\x1A";
    EXPECT_FALSE((over_head().*table.set)(1, 1, 2, 3, name));
    EXPECT_FALSE((object_.*table.set_record)(1, {{1, 2, 3}, {4, 5, 6}, name}));
  }
}

TEST_F(Rows, MoldRecordOfAFewItemsKeepsTheOthers) {
  QELPRO_MMM_MECHANICAL record{{1, 2, 3}, {4, 5, 6}, nullptr};
  EXPECT_TRUE(
      over("[CaeHeader]\nFileVersion = 1010\n[Moldbase]\n1 = 9 8\n").GetMoldbase(1, record));
  EXPECT_EQ(record.thermal[0], 9);
  EXPECT_EQ(record.thermal[2], 3);
  EXPECT_EQ(record.mechanical[2], 6);
  EXPECT_STREQ(record.name, "");
}

TEST_F(Rows, NameOfAMoldRowStaysUntilTheNextMoldRowIsRead) {
  over("[Moldbase]\n1 = 1 2 3 One\n[Coolant]\n1 = 1 2 3 4 5 Oil 6 7\n");
  double a = 0;
  double b = 0;
  double c = 0;
  char* name = nullptr;
  EXPECT_TRUE(object_.GetMoldbase(1, a, b, c, name));
  int number = 0;
  char* coolant = nullptr;
  EXPECT_TRUE(object_.GetCoolant(1, a, b, c, a, number, coolant, b, number));
  EXPECT_STREQ(name, "One");
  EXPECT_STREQ(coolant, "Oil");
}

TEST_F(Rows, NullTextsAreRefusedAndTheFileIsKept) {
  const QELPRO_MMM_MECHANICAL record{{1, 2, 3}, {4, 5, 6}, nullptr};
  struct Row {
    std::string name;
    std::function<bool(Object&)> set;
  };
  std::vector<Row> rows = {
      {"SetCoolant", [](Object& o) { return o.SetCoolant(1, 1, 2, 3, 4, 5, nullptr, 6, 7); }},
      {"SetMoldbase", [](Object& o) { return o.SetMoldbase(1, 1, 2, 3, nullptr); }},
      {"SetMoldMetalMaterial",
       [](Object& o) { return o.SetMoldMetalMaterial(1, 1, 2, 3, nullptr); }},
      {"SetMoldbase of a record", [&record](Object& o) { return o.SetMoldbase(1, record); }},
      {"SetMoldMetalMaterial of a record",
       [&record](Object& o) { return o.SetMoldMetalMaterial(1, record); }},
      {"SetBCCountName", [](Object& o) { return o.SetBCCountName(1, 2, nullptr); }},
      {"SetFilePath", [](Object& o) { return o.SetFilePath(static_cast<const char*>(nullptr)); }},
  };
  for (const auto& accessor : text_accessors()) {
    if (accessor.set) {
      rows.push_back({accessor.name, [&accessor](Object& o) { return accessor.set(o, nullptr); }});
    }
  }
  EXPECT_EQ(rows.size(), 22U) << "every member that takes a text";
  for (const Row& row : rows) {
    EXPECT_FALSE(row.set(over_head())) << row.name;
    EXPECT_EQ(bytes(), kHead) << row.name;
    EXPECT_FALSE(row.set(over_missing_file())) << row.name;
    EXPECT_FALSE(exists(path_)) << row.name;
  }
  over_head().SetFilePath(static_cast<char*>(nullptr));
  EXPECT_FALSE(object_.SetMeshLayer(6)) << "an object without a path";
}

TEST_F(Rows, WithoutAFileNothingIsWritten) {
  EXPECT_FALSE(object_.SetBCProfile(1, 1, 2, 3));
  EXPECT_FALSE(object_.SetDefault());
}

TEST_F(Rows, GasPointTakesItsStageFromItsNumber) {
  over("[GasF-1]\nGR-2 = 1 1\nGP-2 = 2 2\n[GasF-2]\nGR-1 = 3 3\nGR-2 = 4 5\nGP-2 = 6 7\n");
  double x = 0;
  double y = 0;
  EXPECT_TRUE(object_.GetGasFRProfile(2, x, y));
  EXPECT_EQ(x, 4);
  EXPECT_EQ(y, 5);
  EXPECT_TRUE(object_.GetGasGPProfile(2, x, y));
  EXPECT_EQ(x, 6);
  EXPECT_EQ(y, 7);
}

class Conditions : public ProcessObject {
 protected:
  static constexpr const char* kBlock = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n";
  static std::string block() {
    return "[FileHeader]\nDate = 2001/01/01 00:00:00\n[Summary]\nTotalNodeBC = 3\n" +
           std::string(kBlock) +
           "4\tTop\n2\tSide B\n1\tCore\n1 = 1\t10\n2 = 2\t20\n3 = 3\t30\n4 = 4\t40\n1 = 5\t50\n2 = "
           "6\t60\n1 = 7\t70\n";
  }
};

TEST_F(Conditions, PointStandsAfterTheNamesAndThePointsBefore) {
  over(block());
  const struct {
    int condition;
    int point;
    double x;
  } rows[] = {{1, 1, 1}, {1, 4, 4}, {2, 1, 5}, {2, 2, 6}, {3, 1, 7}};
  for (const auto& row : rows) {
    double x = 77;
    double y = 77;
    EXPECT_TRUE(object_.GetBCProfile(row.condition, row.point, x, y)) << row.condition << row.point;
    EXPECT_EQ(x, row.x);
    EXPECT_EQ(y, row.x * 10);
  }
}

TEST_F(Conditions, PointIsNotFoundWhereALineIsMissing) {
  double x = 77;
  double y = 77;
  EXPECT_FALSE(over(block()).GetBCProfile(3, 2, x, y)) << "behind the last line";
  EXPECT_FALSE(over("[Summary]\nTotalNodeBC = 3\n").GetBCProfile(1, 1, x, y)) << "no block";
  EXPECT_FALSE(over("[Summary]\nTotalNodeBC = 1\n" + std::string(kBlock) + "1\tTop\n")
                   .GetBCProfile(5, 1, x, y))
      << "no name line";
  EXPECT_EQ(x, 77);
  EXPECT_EQ(y, 77);
}

TEST_F(Conditions, PointOfAFewItemsIsZeroForTheRest) {
  double x = 77;
  double y = 77;
  EXPECT_TRUE(over("[Summary]\nTotalNodeBC = 1\n" + std::string(kBlock) + "1\tTop\n1\n")
                  .GetBCProfile(1, 1, x, y));
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 0);
  EXPECT_TRUE(over("[Summary]\nTotalNodeBC = 1\n" + std::string(kBlock) + "1\tTop\n1 : 5\n")
                  .GetBCProfile(1, 1, x, y));
  EXPECT_EQ(x, 5);
  EXPECT_EQ(y, 0);
}

TEST_F(Conditions, PointIsWrittenWithItsNumber) {
  over(block());
  EXPECT_TRUE(object_.SetBCProfile(2, 1, 55, 56.5));
  std::string expected = block();
  expected.replace(expected.find("2001/01/01 00:00:00"), 19, "<date>");
  expected.replace(expected.find("Date = "), 7, "Date           = ");
  expected.replace(expected.find("1 = 5\t50"), 8, "1 = 55\t56.5");
  EXPECT_EQ(masked_bytes(), expected);
}

TEST_F(Conditions, PointAfterTheBlockIsAppended) {
  over("[FileHeader]\nDate = x\n[Summary]\nTotalNodeBC = 1\n" + std::string(kBlock) + "1\tTop\n");
  EXPECT_TRUE(object_.SetBCProfile(1, 1, 2, 3));
  EXPECT_TRUE(object_.SetBCProfile(1, 9, 4, 5));
  EXPECT_EQ(masked_bytes(), "[FileHeader]\n" + kMaskedDate + "[Summary]\nTotalNodeBC = 1\n" +
                                kBlock + "1\tTop\n1 = 2\t3\n9 = 4\t5\n");
}

TEST_F(Conditions, MissingNameLineCountsNothing) {
  over("[FileHeader]\nDate = x\n[Summary]\nTotalNodeBC = 1\n");
  EXPECT_TRUE(object_.SetBCProfile(3, 1, 2, 3));
  EXPECT_EQ(masked_bytes(), "[FileHeader]\n" + kMaskedDate + "[Summary]\nTotalNodeBC = 1\n\n" +
                                kBlock + "1 = 2\t3\n");
}

TEST_F(Conditions, NameLinesAreWrittenAndRead) {
  char top[] = "Top Side A";
  EXPECT_TRUE(over("[FileHeader]\nDate = x\n").SetBCCountName(1, 4, top));
  EXPECT_EQ(masked_bytes(), "[FileHeader]\n" + kMaskedDate + "\n" + kBlock + "4\tTop Side A\n");
  int count = 77;
  char* name = nullptr;
  EXPECT_FALSE(object_.GetBCCountName(2, count, name));
  EXPECT_EQ(count, 77);
}

TEST_F(Conditions, NameLineIsReadWithItsType) {
  const struct {
    const char* line;
    int count;
    const char* name;
    int type;
  } rows[] = {{"5\tCavity  Surface A\t1", 5, "Cavity  Surface A", 1},
              {"5 Core 1", 5, "Core", 1},
              {"5 Core", 5, "Core", 77},
              {"5", 5, "", 77}};
  for (const auto& row : rows) {
    int count = 77;
    int type = 77;
    char* name = nullptr;
    EXPECT_TRUE(over(kBlock + std::string(row.line) + "\n").GetBCSetting(1, count, name, type))
        << row.line;
    EXPECT_EQ(count, row.count) << row.line;
    EXPECT_STREQ(name, row.name) << row.line;
    EXPECT_EQ(type, row.type) << row.line;
    count = 77;
    EXPECT_TRUE(object_.GetBCCountName(1, count, name)) << row.line;
    EXPECT_EQ(count, row.count);
    EXPECT_STREQ(name, row.name);
  }
}

TEST_F(Conditions, HugeNumbersEndSoon) {
  over("[Summary]\nTotalNodeBC = 2147483647\n" + std::string(kBlock) +
       "2147483647\tTop\n2147483647\tSide\n");
  double x = 77;
  double y = 77;
  EXPECT_FALSE(object_.GetBCProfile(2147483647, 2147483647, x, y));
  EXPECT_FALSE(object_.GetBCProfile(3, 1, x, y));
  object_.SetBCProfile(3, 2147483647, x, y);
  object_.SetBCProfile(-5, -5, x, y);
  EXPECT_LT(bytes().size(), 400U);
}

}  // namespace
}  // namespace qelpro_test
