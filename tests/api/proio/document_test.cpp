#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/support.h"
#include "support/line_break.h"

// The object's life, its default document, the date stamp, the version gate, and what the head has
// beside single values.

namespace qelpro_test {
namespace {

using Object = CPROIO_Manipulator;

class Life : public ProcessObject {};

TEST_F(Life, BeginsWithoutAFile) {
  const char* path = "untouched";
  EXPECT_FALSE(object_.GetFilePath(path));
  EXPECT_EQ(path, nullptr);
  EXPECT_TRUE(object_.Test());
  int version = 7;
  EXPECT_FALSE(object_.GetFileVersion(version));
  EXPECT_EQ(version, 7);
}

TEST_F(Life, HoldsTheCallersPathAndNothingElse) {
  over("");
  const char* path = nullptr;
  EXPECT_TRUE(object_.GetFilePath(path));
  EXPECT_EQ(path, path_.data());
  EXPECT_EQ(sizeof(Object), 2 * sizeof(void*)) << "table of virtuals, path";
  static_assert(std::has_virtual_destructor_v<Object>);
}

TEST_F(Life, TakesAnyPathAsATextThatMayBeChanged) {
  std::string missing = scratch_.path("missing.pro");
  object_.SetFilePath(missing.data());
  const char* path = nullptr;
  EXPECT_TRUE(object_.GetFilePath(path));
  EXPECT_EQ(path, missing.data());
  EXPECT_FALSE(exists(missing)) << "the file is not looked at";
}

TEST_F(Life, NeedsAnExistingFileForAConstantText) {
  const std::string file = scratch_.file("x");
  const std::string missing = scratch_.path("missing.pro");
  EXPECT_TRUE(object_.SetFilePath(file.c_str()));
  EXPECT_FALSE(object_.SetFilePath(missing.c_str()));
  EXPECT_FALSE(object_.SetFilePath(scratch_.path("").c_str())) << "a directory";
  EXPECT_FALSE(object_.SetFilePath(static_cast<const char*>(nullptr)));
  const char* path = nullptr;
  EXPECT_TRUE(object_.GetFilePath(path));
  EXPECT_EQ(path, file.c_str()) << "the path before stays in force";
}

TEST_F(Life, CopiesShareTheCallersPath) {
  over("[Summary]\nTotalNdivz = 6\n");
  Object copy(object_);
  Object assigned;
  assigned = copy;
  int layers = 0;
  EXPECT_TRUE(assigned.GetMeshLayer(layers));
  EXPECT_EQ(layers, 6);
}

class DefaultDocument : public ProcessObject {};

TEST_F(DefaultDocument, IsExactlyTheDescribedFile) {
  EXPECT_TRUE(over_missing_file().SetDefault());
  EXPECT_EQ(masked_bytes(), native(bytes_of(data_path("proio_default.pro"))));
  const std::string first = masked_bytes();
  EXPECT_TRUE(object_.SetDefault());
  EXPECT_EQ(masked_bytes(), first) << "once more changes nothing";
}

TEST_F(DefaultDocument, BeginsWithAnEmptyLine) {
  over_missing_file().SetDefault();
  EXPECT_EQ(bytes().find(native("\n[FileHeader]\n")), 0U);
}

TEST_F(DefaultDocument, KeepsEverythingElseOfAFile) {
  over(
      "[Machine]\nMaker = Any Works\n[CaeHeader]\nParent = other.pro\nNote = keep "
      "me\n[Flow-1]\nFillTime = 9\nFRSet = 7\nFR-9 = 1 2\n");
  EXPECT_TRUE(object_.SetDefault());
  const std::string after = masked_bytes();
  EXPECT_EQ(after.find("[Machine]\nMaker = Any Works\n[CaeHeader]\n" + entry("Parent", "") +
                       "Note = keep me\n[Flow-1]\n" + entry("FillTime", "1") + entry("FRSet", "2") +
                       "FR-9 = 1 2\n"),
            0U)
      << after;
  double x = 0;
  double y = 0;
  EXPECT_TRUE(object_.GetFRProfile(2, x, y, 1));
  EXPECT_EQ(x, 100);
  EXPECT_EQ(y, 50);
}

TEST_F(DefaultDocument, HoldsAVersionBelowTheGate) {
  over_missing_file().SetDefault();
  int version = 0;
  EXPECT_TRUE(object_.GetFileVersion(version));
  EXPECT_EQ(version, 1008);
  EXPECT_TRUE(object_.SetMoldClampingForce(500));
  double force = 7;
  EXPECT_FALSE(object_.GetMoldClampingForce(force));
  EXPECT_EQ(force, 0);
}

TEST_F(DefaultDocument, HandsItsNameOutWithTheLineFeed) {
  over_missing_file().SetDefault();
  char* name = nullptr;
  EXPECT_TRUE(object_.GetFileName(name));
  EXPECT_STREQ(name, "Default.pro\n");
}

class DateStamp : public ProcessObject {};

TEST_F(DateStamp, IsTheLocalTime) {
  const std::time_t before = std::time(nullptr);
  EXPECT_TRUE(over("").SetFileDate());
  char* text = nullptr;
  EXPECT_TRUE(object_.GetFileDate(text));
  std::tm stamp{};
  ASSERT_EQ(std::sscanf(text, "%d/%d/%d %d:%d:%d\n", &stamp.tm_year, &stamp.tm_mon, &stamp.tm_mday,
                        &stamp.tm_hour, &stamp.tm_min, &stamp.tm_sec),
            6);
  stamp.tm_year -= 1900;
  stamp.tm_mon -= 1;
  stamp.tm_isdst = -1;
  const std::time_t stamped = std::mktime(&stamp);
  EXPECT_GE(stamped, before);
  EXPECT_LE(stamped, std::time(nullptr));
  EXPECT_EQ(masked_bytes(), native("\n[FileHeader]\n" + kMaskedDate));
}

TEST_F(DateStamp, IsLeftByEverySetterButTheCoefficients) {
  const std::string old_date = "[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00");
  char text[] = "text";
  char* const t = text;
  int number = 3;
  const QELPRO_MMM_MECHANICAL record{{1, 2, 3}, {4, 5, 6}, "P20"};
  const struct {
    const char* name;
    std::function<bool(Object&)> set;
    bool stamped;
  } rows[] = {
      {"text", [t](Object& o) { return o.SetRemark(t); }, true},
      {"integer", [](Object& o) { return o.SetMeshLayer(6); }, true},
      {"real", [](Object& o) { return o.SetFillTime(1.5, 1); }, true},
      {"flag", [](Object& o) { return o.SetVPSwitch(true); }, true},
      {"transient flag", [](Object& o) { return o.SetIsTransientInletConv(true); }, true},
      {"point", [](Object& o) { return o.SetFRProfile(1, 2, 3, 1); }, true},
      {"direction", [](Object& o) { return o.SetMoldOpenDirection(1, 0, 0); }, true},
      {"unit", [](Object& o) { return o.SetUnitTime(); }, true},
      {"valve gate", [](Object& o) { return o.SetValveGateTimeSwitch(1, 2, 3); }, true},
      {"coolant", [t](Object& o) { return o.SetCoolant(1, 1, 2, 3, 4, 5, t, 6, 7); }, true},
      {"control point", [](Object& o) { return o.SetcoolChannelControlPoint(1, 1, 1, 2, 3, 4, 5); },
       true},
      {"by reference", [&number](Object& o) { return o.SetCoolChannelGroupID(1, number); }, true},
      {"mold row", [t](Object& o) { return o.SetMoldbase(1, 2, 3, 4, t); }, true},
      {"mold record", [&record](Object& o) { return o.SetMoldMetalMaterial(1, record); }, true},
      {"boundary condition", [t](Object& o) { return o.SetBCCountName(1, 2, t); }, true},
      {"boundary condition point", [](Object& o) { return o.SetBCProfile(1, 1, 2, 3); }, true},
      {"flow coefficient", [](Object& o) { return o.SetFlowHeatTransferCoefficient(25); }, false},
      {"pack coefficient", [](Object& o) { return o.SetPackHeatTransferCoefficient(25); }, false},
  };
  for (const auto& row : rows) {
    EXPECT_TRUE(row.set(over(old_date))) << row.name;
    EXPECT_EQ(bytes().find("2001/01/01 00:00:00") == std::string::npos, row.stamped) << row.name;
  }
}

class VersionGate : public ProcessObject {
 protected:
  static constexpr const char* kValues =
      "[AdvancedSetting]\nClampForce = 5\nOpenDirection = 1 2 "
      "3\n[TransientInletConv]\nInitPelletConv = 5\nPelletDiameter = 5\nPelletHeight = 5\n"
      "PreHeatTime = 5\n[Summary]\nIsTransientInletConv = 1\n[Moldbase]\n1 = 1 2 3 P20 4 5 "
      "6\n[MoldMetalMaterial]\n1 = 1 2 3 P20 4 5 6\n";

  static std::vector<bool (Object::*)(double&)> reals() {
    return {&Object::GetMoldClampingForce, &Object::GetInitPelletConv, &Object::GetPelletDiameter,
            &Object::GetPelletHeight, &Object::GetPreHeatTime};
  }
};

TEST_F(VersionGate, OpensAt1010) {
  for (const char* version : {"1010", "1011", "99999"}) {
    over("[CaeHeader]\nFileVersion = " + std::string(version) + "\n" + kValues);
    for (const auto get : reals()) {
      double value = 777;
      EXPECT_TRUE((object_.*get)(value));
      EXPECT_EQ(value, 5);
    }
    double x = 777;
    double y = 777;
    double z = 777;
    EXPECT_TRUE(object_.GetMoldOpenDirection(x, y, z));
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(z, 3);
    bool flag = false;
    EXPECT_TRUE(object_.GetIsTransientInletConv(flag));
    EXPECT_TRUE(flag);
    QELPRO_MMM_MECHANICAL record{};
    EXPECT_TRUE(object_.GetMoldbase(1, record));
    EXPECT_EQ(record.mechanical[0], 4);
    EXPECT_TRUE(object_.GetMoldMetalMaterial(1, record));
    EXPECT_EQ(record.mechanical[2], 6);
  }
}

TEST_F(VersionGate, GivesFallbacksToOlderFilesAndThoseWithoutAVersion) {
  for (const char* version :
       {"[CaeHeader]\nFileVersion = 1009\n", "[CaeHeader]\nFileVersion = 1008\n",
        "[CaeHeader]\nFileVersion = new\n", ""}) {
    over(version + std::string(kValues));
    for (const auto get : reals()) {
      double value = 777;
      EXPECT_FALSE((object_.*get)(value)) << version;
      EXPECT_EQ(value, 0);
    }
    double x = 777;
    double y = 777;
    double z = 777;
    EXPECT_FALSE(object_.GetMoldOpenDirection(x, y, z));
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
    EXPECT_EQ(z, 0);
    bool flag = true;
    EXPECT_FALSE(object_.GetIsTransientInletConv(flag));
    EXPECT_FALSE(flag);
    const char name[] = "untouched";
    QELPRO_MMM_MECHANICAL record{{7, 7, 7}, {7, 7, 7}, name};
    EXPECT_FALSE(object_.GetMoldbase(1, record));
    EXPECT_EQ(record.name, name);
    EXPECT_EQ(record.thermal[0], 7);
    EXPECT_FALSE(object_.GetMoldMetalMaterial(1, record)) << "the row is read all the same";
    EXPECT_EQ(record.thermal[0], 1);
    EXPECT_EQ(record.thermal[2], 3);
    EXPECT_STREQ(record.name, "P20");
    EXPECT_EQ(record.mechanical[0], 2e12);
    EXPECT_EQ(record.mechanical[1], 0.3);
    EXPECT_EQ(record.mechanical[2], 0.00012);
  }
}

TEST_F(VersionGate, DoesNotHoldSettersBack) {
  over("");
  EXPECT_TRUE(object_.SetMoldClampingForce(5));
  EXPECT_TRUE(object_.SetMoldOpenDirection(1, 2.5, -3));
  EXPECT_TRUE(object_.SetIsTransientInletConv(true));
  EXPECT_NE(bytes().find(native(entry("ClampForce", "5"))), std::string::npos);
  EXPECT_NE(bytes().find(native(entry("OpenDirection", "1\t2.5\t-3"))), std::string::npos);
  EXPECT_NE(bytes().find(native(entry("IsTransientInletConv", "1"))), std::string::npos);
}

TEST_F(VersionGate, LeavesTheFlagToTheReadOnceItIsOpen) {
  const std::string version = "[CaeHeader]\nFileVersion = 1010\n";
  bool flag = true;
  EXPECT_TRUE(
      over(version + "[Summary]\nIsTransientInletConv = 0\n").GetIsTransientInletConv(flag));
  EXPECT_FALSE(flag);
  EXPECT_TRUE(
      over(version + "[Summary]\nIsTransientInletConv = 2\n").GetIsTransientInletConv(flag));
  EXPECT_FALSE(flag);
  flag = true;
  EXPECT_FALSE(over(version + "[Summary]\n").GetIsTransientInletConv(flag));
}

class Flags : public ProcessObject {};

TEST_F(Flags, YieldTheFlagAndNotWhetherItWasFound) {
  const struct {
    const char* section;
    const char* key;
    bool (Object::*get)(bool&);
    bool (Object::*set)(bool);
  } rows[] = {
      {"[Summary]", "PEOFasPPack", &Object::GetPpackAsPeof, &Object::SetPpackAsPeof},
      {"[Cool]", "AutoSetCoolTime", &Object::GetAutoSetCoolTime, &Object::SetAutoSetCoolTime},
      {"[RamPosition]", "IsVPswitch", &Object::GetVPSwitch, &Object::SetVPSwitch}};
  for (const auto& row : rows) {
    const std::string key = std::string(row.section) + "\n" + row.key + " = ";
    for (const char* no : {"0", "2", "-1", "x"}) {
      bool flag = true;
      EXPECT_FALSE((over(key + no + "\n").*row.get)(flag)) << row.key << no;
      EXPECT_FALSE(flag);
    }
    bool flag = true;
    EXPECT_FALSE((over(row.section + std::string("\n")).*row.get)(flag)) << row.key;
    EXPECT_FALSE(flag);
    EXPECT_TRUE((over(key + "1\n").*row.get)(flag)) << row.key;
    EXPECT_TRUE(flag);
    for (const bool value : {true, false}) {
      EXPECT_TRUE((over_missing_file().*row.set)(value));
      EXPECT_EQ(masked_bytes(),
                native("\n" + std::string(row.section) + "\n" + entry(row.key, value ? "1" : "0") +
                       "\n[FileHeader]\n" + kMaskedDate));
      std::filesystem::remove(path_);
    }
  }
}

class Units : public ProcessObject {};

TEST_F(Units, AreWrittenAsTheyStand) {
  const struct {
    bool (Object::*set)();
    const char* key;
    const char* text;
  } rows[] = {{&Object::SetUnitTime, "Time", "sec       Time"},
              {&Object::SetUnitTemperature, "Temp", "oC        Temperature"},
              {&Object::SetUnitPressure, "Pres", "MPa       Pressure"},
              {&Object::SetUnitFlowRate, "FR", "cc/sec    FlowRate"},
              {&Object::SetUnitInjectPressure, "IP", "MPa       InjectPressure"},
              {&Object::SetUnitPackPressure, "PP", "MPa       PackPressure"},
              {&Object::SetUnitVolume, "Volum", "cc        Volume"}};
  for (const auto& row : rows) {
    EXPECT_TRUE((over("[FileHeader]\nDate = x\n").*row.set)());
    EXPECT_EQ(masked_bytes(),
              "[FileHeader]\n" + kMaskedDate + "\n[Unit]\n" + entry(row.key, row.text));
  }
}

class Coefficients : public ProcessObject {};

TEST_F(Coefficients, CarryTheirUnit) {
  EXPECT_TRUE(over("").SetFlowHeatTransferCoefficient(25));
  EXPECT_TRUE(object_.SetPackHeatTransferCoefficient(1500.5));
  EXPECT_EQ(bytes(), native("\n[MoldThermalBoundaryType]\n" + entry("Flow", "25        (W/m^2.K)") +
                            entry("Pack", "1500.5        (W/m^2.K)")));
  double value = 0;
  EXPECT_TRUE(object_.GetFlowHeatTransferCoefficient(value));
  EXPECT_EQ(value, 25);
  EXPECT_TRUE(object_.GetPackHeatTransferCoefficient(value));
  EXPECT_EQ(value, 1500.5);
  EXPECT_FALSE(over("").GetPackHeatTransferCoefficient(value));
  EXPECT_EQ(value, 1500.5);
}

}  // namespace
}  // namespace qelpro_test
