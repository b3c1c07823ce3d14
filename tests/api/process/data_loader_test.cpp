#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <memory>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/comma_locale.h"
#include "support/process_dump.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using Process = std::unique_ptr<const QELG_SimulatorProcess>;

Process load_file(const std::string& path) {
  CQELProcessData_Manipulator loader;
  return Process(loader.GetProcessDataStructure(path.c_str()));
}

// The process that a file with these contents gives, as text.
std::string loaded(const std::string& contents) {
  const Scratch scratch;
  const Process process = load_file(scratch.file(contents));
  return process != nullptr ? dump(*process) : "null";
}

unsigned int inlets_of(const std::string& contents) {
  const Scratch scratch;
  const Process process = load_file(scratch.file(contents));
  return process != nullptr ? process->GetNumOfInlets() : 0;
}

std::string header_of_type(int type) {
  return "[CaeHeader]\nProjectType = " + std::to_string(type) + " 0\n";
}

enum class Of { process, inlet };

struct Row {
  const char* section;
  const char* key;
  const char* text;
  const char* expected;
  Of of;
};

std::ostream& operator<<(std::ostream& out, const Row& row) {
  return out << row.section << ' ' << row.key;
}

class LoadedItem : public testing::TestWithParam<Row> {};

TEST_P(LoadedItem, GoesToItsSetterAndToNoOther) {
  const Row& row = GetParam();
  const std::string file =
      std::string(row.section) + "\n" + row.key + " = " + row.text + "\n" + row.key + " = 9\n";
  const std::string item = std::string(row.expected) + "\n";
  EXPECT_EQ(loaded(file), row.of == Of::process ? item + "inlet 1\n" : "inlet 1\n  " + item);
}

TEST_P(LoadedItem, IsNotTakenFromAnotherSectionOrKey) {
  const Row& row = GetParam();
  const std::string file = std::string(row.section) + "\n" + row.key + "x = 9\n " + row.key +
                           " = 9\n[Other]\n" + row.key + " = 9\n";
  EXPECT_EQ(loaded(file), "inlet 1\n");
}

INSTANTIATE_TEST_SUITE_P(
    DataLoader, LoadedItem,
    testing::Values(
        Row{"[CaeHeader]", "ProjectType", "100 2", "ProjectType 100", Of::process},
        Row{"[CaeHeader]", "FlagUNF", "101", "FlagUNF 101", Of::process},
        Row{"[CaeHeader]", "FlagEncapsulationCM", "102", "FlagEncapsulationCM 102", Of::process},
        Row{"[Summary]", "TotalNodeEM", "103", "TotalNodeEM 103", Of::process},
        Row{"[Summary]", "TotalNodeEC", "104", "TotalNodeEC 104", Of::process},
        Row{"[Summary]", "TotalGateCTL", "105", "TotalGateCTL 105", Of::process},
        Row{"[Summary]", "TotalNodeMB", "106", "TotalNodeMB 106", Of::process},
        Row{"[Summary]", "TotalNodeBC", "107", "TotalNodeBC 107", Of::process},
        Row{"[Summary]", "TotalNodeMMM", "108", "TotalNodeMMM 108", Of::process},
        Row{"[Summary]", "SymVolRatio", "109", "SymVolRatio 109", Of::process},
        Row{"[Summary]", "TotalNodeHR", "110", "TotalNodeHR 110", Of::process},
        Row{"[Summary]", "TotalSTLNodeEC", "111", "TotalSTLNodeEC 111", Of::process},
        Row{"[Summary]", "TotalSTLNodeHR", "112", "TotalSTLNodeHR 112", Of::process},
        Row{"[Summary]", "TotalGrpCCL", "113", "TotalGrpCCL 113", Of::process},
        Row{"[Summary]", "TotalGrpCCS", "114", "TotalGrpCCS 114", Of::process},
        Row{"[Summary]", "TotalOverFlowCTL", "115", "TotalOverFlowCTL 115", Of::process},
        Row{"[Summary]", "IsTransientInletConv", "116", "IsTransientInletConv 116", Of::process},
        Row{"[FlowCTL]", "FlowCtrl", "117", "FlowCtrl 117", Of::process},
        Row{"[FlowCTL]", "VPSwitchCtrl", "118", "VPSwitchCtrl 118", Of::process},
        Row{"[FlowCTL]", "PackingCtrl", "119", "PackingCtrl 119", Of::process},
        Row{"[FlowCTL]", "MoldTemperature", "120.25", "MoldTemperature 120.25", Of::process},
        Row{"[FlowCTL]", "MeltTemperature", "121.25", "MeltTemperature 121.25", Of::process},
        Row{"[FlowCTL]", "InjectionTime", "122.25", "InjectionTime 122.25", Of::process},
        Row{"[FlowCTL]", "VolumeFilled", "123.25", "VolumeFilled 123.25", Of::process},
        Row{"[FlowCTL]", "RamPosition", "124.25", "RamPosition 124.25", Of::process},
        Row{"[FlowCTL]", "InjectionPressure", "125.25", "InjectionPressure 125.25", Of::process},
        Row{"[FlowCTL]", "CureEnterType", "126", "CureEnterType 126", Of::process},
        Row{"[FlowCTL]", "CureEnterSwch", "127.25", "CureEnterSwch 127.25", Of::process},
        Row{"[FlowCTL]", "CureEnterTime", "128.25", "CureEnterTime 128.25", Of::process},
        Row{"[MoldThermalBoundaryType]", "Type", "129", "HTC_HeatTransferType 129", Of::process},
        Row{"[MoldThermalBoundaryType]", "Flow", "130.25", "HTC_Flow 130.25", Of::process},
        Row{"[MoldThermalBoundaryType]", "Pack", "131.25", "HTC_Pack 131.25", Of::process},
        Row{"[MoldThermalBoundaryType]", "Detached_HTC", "132.25", "HTC_Detached 132.25",
            Of::process},
        Row{"[MoldThermalBoundaryType]", "HotRunner_HTC", "133.25", "HTC_HotRunner 133.25",
            Of::process},
        Row{"[MoldThermalBoundaryType]", "UserMode", "134", "HTC_UserMode 134", Of::process},
        Row{"[MoldThermalBoundaryType]", "NuNum", "135.25", "HTC_NuNum 135.25", Of::process},
        Row{"[Machine]", "Maker", "Maker of trial 36", "machine_Maker 'Maker of trial 36'",
            Of::process},
        Row{"[Machine]", "Grade", "Grade of trial 37", "machine_Grade 'Grade of trial 37'",
            Of::process},
        Row{"[Machine]", "Remark", "Remark of trial 38", "machine_Remark 'Remark of trial 38'",
            Of::process},
        Row{"[Machine]", "Diameter", "139.25", "machine_Diameter 139.25", Of::process},
        Row{"[Machine]", "MaxRamPos", "140.25", "machine_MaxRamPos 140.25", Of::process},
        Row{"[Machine]", "ShotVolume", "141.25", "machine_ShotVolume 141.25", Of::process},
        Row{"[Machine]", "Weight", "142.25", "machine_Weight 142.25", Of::process},
        Row{"[Machine]", "MaxMachinePres", "143.25", "machine_MaxMachinePres 143.25", Of::process},
        Row{"[Machine]", "FR", "144.25", "machine_MaxFlowRate 144.25", Of::process},
        Row{"[Machine]", "Size", "145.25", "machine_ClampForce 145.25", Of::process},
        Row{"[Machine]", "BarrelCompressionCtrl", "146", "machine_BarrelCompressionCtrl 146",
            Of::process},
        Row{"[Machine]", "NozzleVolume", "147.25", "machine_NozzleVolume 147.25", Of::process},
        Row{"[Machine]", "MachineEnergyType", "148", "machine_MachineEnergyType 148", Of::process},
        Row{"[Machine]", "HydraulicPressureTransferFactor", "149.25",
            "machine_HydraulicPressureTransferFactor 149.25", Of::process},
        Row{"[Machine]", "PITCHSIZE", "150.25", "machine_PITCHSIZE 150.25", Of::process},
        Row{"[Machine]", "SCREWSPEED", "151.25", "machine_SCREWSPEED 151.25", Of::process},
        Row{"[Machine]", "SCREWDIAFEED", "152.25", "machine_SCREWDIAFEED 152.25", Of::process},
        Row{"[Machine]", "SCREWDIATRANSITION", "153.25", "machine_SCREWDIATRANSITION 153.25",
            Of::process},
        Row{"[Machine]", "SCREWDIAMETERING", "154.25", "machine_SCREWDIAMETERING 154.25",
            Of::process},
        Row{"[Machine]", "CHANNELDEEPFEED", "155.25", "machine_CHANNELDEEPFEED 155.25",
            Of::process},
        Row{"[Machine]", "CHANNELDEEPMETERING", "156.25", "machine_CHANNELDEEPMETERING 156.25",
            Of::process},
        Row{"[Machine]", "SECTIONDEPFEED", "157.25", "machine_SECTIONDEPFEED 157.25", Of::process},
        Row{"[Machine]", "SECTIONDEPTRANSITION", "158.25", "machine_SECTIONDEPTRANSITION 158.25",
            Of::process},
        Row{"[Machine]", "SECTIONDEPMETERING", "159.25", "machine_SECTIONDEPMETERING 159.25",
            Of::process},
        Row{"[Machine]", "NUMBERPITCHFEED", "160.25", "machine_NUMBERPITCHFEED 160.25",
            Of::process},
        Row{"[Machine]", "NUMBERPITCHTRANSITION", "161.25", "machine_NUMBERPITCHTRANSITION 161.25",
            Of::process},
        Row{"[Machine]", "NUMBERPITCHMETERING", "162.25", "machine_NUMBERPITCHMETERING 162.25",
            Of::process},
        Row{"[Machine]", "NOZZLEDIAMETER", "163.25", "machine_NOZZLEDIAMETER 163.25", Of::process},
        Row{"[Machine]", "NOZZLELENGTH", "164.25", "machine_NOZZLELENGTH 164.25", Of::process},
        Row{"[RamPosition]", "SuckBack", "165.25", "SuckBack 165.25", Of::process},
        Row{"[Flow-1]", "FillTime", "166.25", "FillTime 166.25", Of::inlet},
        Row{"[Flow-1]", "MeltTemp", "167.25", "MeltTemp 167.25", Of::inlet},
        Row{"[Flow-1]", "MoldTemp", "168.25", "MoldTemp 168.25", Of::inlet},
        Row{"[Flow-1]", "InjectPres", "169.25", "InjectPres 169.25", Of::inlet},
        Row{"[Flow-1]", "FRDisplayType", "170", "FRDisplayType 170", Of::inlet},
        Row{"[Flow-1]", "IPDisplayType", "171", "IPDisplayType 171", Of::inlet},
        Row{"[Flow-1]", "FRProfileType", "172", "FRProfileType 172", Of::inlet},
        Row{"[Flow-1]", "IPProfileType", "173", "IPProfileType 173", Of::inlet},
        Row{"[Flow-1]", "MaxFR", "174.25", "MaxFR 174.25", Of::inlet},
        Row{"[Flow-1]", "MaxFillingTime", "175.25", "MaxFillingTime 175.25", Of::inlet},
        Row{"[Flow-1]", "FlowPackMode", "176", "FlowPackMode 176", Of::inlet},
        Row{"[Flow-1]", "HotRunnerTemperatureDiff", "177.25", "HotRunnerTemperatureDiff 177.25",
            Of::inlet},
        Row{"[Flow-1]", "Material", "Material of trial 78", "Material 'Material of trial 78'",
            Of::inlet},
        Row{"[Flow-1]", "CoreEnterType", "179", "CoreEnterType 179", Of::inlet},
        Row{"[Flow-1]", "CoreEnterSwch", "180.25", "CoreEnterSwch 180.25", Of::inlet},
        Row{"[Flow-1]", "CoreEnterTime", "181.25", "CoreEnterTime 181.25", Of::inlet},
        Row{"[Flow-1]", "FluidTemp", "182.25", "FluidTemp 182.25", Of::inlet},
        Row{"[Flow-1]", "FluidEnterType", "183", "FluidEnterType 183", Of::inlet},
        Row{"[Flow-1]", "FluidEnterSwch", "184.25", "FluidEnterSwch 184.25", Of::inlet},
        Row{"[Flow-1]", "FluidEnterTime", "185.25", "FluidEnterTime 185.25", Of::inlet},
        Row{"[Flow-1]", "FluidDelayTime", "186.25", "FluidDelayTime 186.25", Of::inlet},
        Row{"[Flow-1]", "InitConv", "187.25", "InitConv 187.25", Of::inlet},
        Row{"[Flow-1]", "TransTime", "188.25", "FillTime 188.25", Of::inlet},
        Row{"[Flow-1]", "ResnTemp", "189.25", "MeltTemp 189.25", Of::inlet},
        Row{"[Flow-1]", "TransPres", "190.25", "InjectPres 190.25", Of::inlet},
        Row{"[Flow-1]", "MaxTransferTime", "191.25", "MaxFillingTime 191.25", Of::inlet},
        Row{"[Pack-1]", "PackTime", "192.25", "PackTime 192.25", Of::inlet},
        Row{"[Pack-1]", "PackPres", "193.25", "PackPres 193.25", Of::inlet},
        Row{"[Pack-1]", "PackSwch", "194.25", "PackSwch 194.25", Of::inlet},
        Row{"[Pack-1]", "MaxEOFRatio", "195.25", "MaxEOFRatio 195.25", Of::inlet},
        Row{"[Pack-1]", "PPDisplayType", "196", "PPDisplayType 196", Of::inlet},
        Row{"[Pack-1]", "PPProfileType", "197", "PPProfileType 197", Of::inlet},
        Row{"[Pack-1]", "MaxPressSlop", "198.25", "MaxPressSlop 198.25", Of::inlet},
        Row{"[Pack-1]", "Shutoff", "199", "Shutoff 199", Of::inlet},
        Row{"[Pack-1]", "MaterialType", "200", "MaterialType 200", Of::inlet},
        Row{"[Pack-1]", "FluidPres", "201.25", "FluidPres 201.25", Of::inlet},
        Row{"[Pack-1]", "FluidMaxFR", "202.25", "FluidMaxFR 202.25", Of::inlet},
        Row{"[Pack-1]", "FluidProfileType", "203", "FluidProfileType 203", Of::inlet},
        Row{"[Cure-1]", "CureTime", "204.25", "PackTime 204.25", Of::inlet},
        Row{"[Cure-1]", "CurePres", "205.25", "PackPres 205.25", Of::inlet},
        Row{"[Cure-1]", "CureSwch", "206.25", "PackSwch 206.25", Of::inlet},
        Row{"[Cure-1]", "CPDisplayType", "207", "PPDisplayType 207", Of::inlet},
        Row{"[Cure-1]", "PPProfileType", "208", "PPProfileType 208", Of::inlet}));

TEST(DataLoader, NumbersConvertAsFarAsTheyParse) {
  EXPECT_EQ(
      loaded("[Summary]\nTotalNodeEM = three\nTotalNodeEC = 12abc\nTotalGateCTL = 2.9\nTotalNodeMB "
             "=\nTotalNodeBC = +7\n"),
      "TotalNodeEM 0\nTotalNodeEC 12\nTotalGateCTL 2\nTotalNodeMB 0\nTotalNodeBC 7\ninlet 1\n");
  EXPECT_EQ(loaded("[FlowCTL]\nMoldTemperature = warm\nMeltTemperature = 2.5e2 oC\nInjectionTime = "
                   "-.5\nVolumeFilled =\nRamPosition = 1,5\n"),
            "MoldTemperature 0\nMeltTemperature 250\nInjectionTime -0.5\nVolumeFilled "
            "0\nRamPosition 1\ninlet 1\n");
}

TEST(DataLoader, NegativeIntegersGoOverAsUnsigned) {
  EXPECT_EQ(loaded("[Summary]\nTotalNodeEM = -1\n"), "TotalNodeEM 4294967295\ninlet 1\n");
  EXPECT_EQ(loaded("[CaeHeader]\nProjectType = -2\n"), "ProjectType 4294967294\ninlet 1\n");
}

TEST(DataLoader, SymmetryVolumeRatioIsAnInteger) {
  EXPECT_EQ(loaded("[Summary]\nSymVolRatio = 0.5\n"), "SymVolRatio 0\ninlet 1\n");
}

TEST(DataLoader, ProjectTypeIsTheFirstOfTwoIntegers) {
  EXPECT_EQ(loaded("[CaeHeader]\nProjectType = 3\t1\n"), "ProjectType 3\ninlet 1\n");
  EXPECT_EQ(loaded("[CaeHeader]\nProjectType = 3\n"), "ProjectType 3\ninlet 1\n");
  EXPECT_EQ(loaded("[CaeHeader]\nProjectType = x 8\n"), "ProjectType 0\ninlet 1\n");
}

TEST(DataLoader, HeatTransferNotesAreLeftOut) {
  EXPECT_EQ(loaded("[MoldThermalBoundaryType]\nFlow = 1500\t(W/m^2.K)\n"),
            "HTC_Flow 1500\ninlet 1\n");
}

TEST(DataLoader, TextsKeepTheirBlanks) {
  EXPECT_EQ(loaded("[Machine]\nMaker =   Two  words = one name \t\nGrade =\n"),
            "machine_Maker 'Two  words = one name'\nmachine_Grade ''\ninlet 1\n");
}

TEST(DataLoader, TransferMoldingSpellingsWinOverTheOthers) {
  const std::string transfer =
      "TransTime = 9\nResnTemp = 90\nTransPres = 8\nMaxTransferTime = 30\n";
  const std::string filling =
      "FillTime = 1\nMeltTemp = 230\nInjectPres = 140\nMaxFillingTime = 5\n";
  const std::string expected =
      "inlet 1\n  FillTime 9\n  MeltTemp 90\n  InjectPres 8\n  MaxFillingTime 30\n";
  EXPECT_EQ(loaded("[Flow-1]\n" + filling + transfer), expected);
  EXPECT_EQ(loaded("[Flow-1]\n" + transfer + filling), expected)
      << "whatever their order in the file";
}

TEST(DataLoader, FillingProfilesHoldTheirPointsInOrder) {
  EXPECT_EQ(loaded("[Flow-1]\nFRSet = 2\nFR-1 = 0\t30\nFR-2 = 100 42.5\nIPSet = 1\nIP-1 = 0 140\n"),
            "inlet 1\n  FlowRateProfile (0 30) (100 42.5)\n  InjectionPressureProfile (0 140)\n");
  EXPECT_EQ(loaded("[Flow-1]\nFR-2 = 2 2\nFR-10 = 10 10\nFR-1 = 1 1\nFR-9 = 9 9\nFRSet = 10\n"),
            "inlet 1\n  FlowRateProfile (1 1) (2 2) (9 9) (10 10)\n")
      << "by number, not by place in the file";
}

TEST(DataLoader, TransferPressureFollowsInjectionPressureInOneProfile) {
  EXPECT_EQ(loaded("[Flow-1]\nTPSet = 2\nTP-1 = 0 5\nTP-2 = 50 7\nIPSet = 1\nIP-1 = 0 140\n"),
            "inlet 1\n  InjectionPressureProfile (0 140) (0 5) (50 7)\n");
}

TEST(DataLoader, PackingProfilesHoldTheirPointsInOrder) {
  EXPECT_EQ(loaded("[Pack-1]\nPPSet = 2\nPP-1 = 0 80\nPP-2 = 5 40\nFluidSet = 1\nFluid-1 = 0 12\n"),
            "inlet 1\n  PackingPressureProfile (0 80) (5 40)\n  FluidPressureProfile (0 12)\n");
}

TEST(DataLoader, MissingPointsAreSkipped) {
  EXPECT_EQ(loaded("[Flow-1]\nFRSet = 3\nFR-1 = 1 10\nFR-3 = 3 30\n"),
            "inlet 1\n  FlowRateProfile (1 10) (3 30)\n");
}

TEST(DataLoader, PointsBeyondTheCountAreLeftOut) {
  EXPECT_EQ(loaded("[Flow-1]\nFRSet = 1\nFR-0 = 0 0\nFR-1 = 1 10\nFR-2 = 2 20\nFR--1 = 3 30\nFR-01 "
                   "= 4 40\n"),
            "inlet 1\n  FlowRateProfile (1 10)\n");
}

TEST(DataLoader, ProfilesWithoutAPositiveCountAreEmpty) {
  for (const char* count : {"FRSet = 0\n", "FRSet = -3\n", "FRSet = none\n", ""}) {
    EXPECT_EQ(loaded(std::string("[Flow-1]\n") + count + "FR-1 = 1 10\n"), "inlet 1\n") << count;
  }
}

TEST(DataLoader, HalfParsedPointsKeepZero) {
  EXPECT_EQ(loaded("[Flow-1]\nFRSet = 4\nFR-1 = 5\nFR-2 = 6 x\nFR-3 = x 7\nFR-4 =\n"),
            "inlet 1\n  FlowRateProfile (5 0) (6 0) (0 0) (0 0)\n");
}

TEST(DataLoader, RepeatedKeysCountOnce) {
  EXPECT_EQ(loaded("[Flow-1]\nFRSet = 2\nFRSet = 1\nFR-1 = 1 1\nFR-2 = 2 2\nFR-1 = 9 "
                   "9\n[Flow-1]\nFillTime = 3\n"),
            "inlet 1\n  FlowRateProfile (1 1) (2 2)\n");
}

TEST(DataLoader, KeysThatStandTwiceInARowCountOnce) {
  EXPECT_EQ(loaded("[Flow-1]\nFRSet = 2\nFR-1 = 1 1\nFR-1 = 9 9\nFR-2 = 2 2\n"
                   "TimeConstFR-1 = 1\nTimeConstFR-1 = 9\nTimeConstFR-2 = 2\n"),
            "inlet 1\n  FlowRateProfile (1 1) (2 2)\n  FlowRateTimeConstants 1 2\n");
}

TEST(DataLoader, RamPositionListsHoldTheFirstNumberOfEachItem) {
  EXPECT_EQ(loaded("[RamPosition]\nRP_FRSet = 3\nRP_FR-1 = 100\t0\nRP_FR-3 = 20\nRP_IPSet = "
                   "2\nRP_IP-1 = far\nRP_IP-2 = 7.5\n"),
            "FlowRateRamPosition 100 20\nInjectionPressureRamPosition 0 7.5\ninlet 1\n");
}

TEST(DataLoader, TimeConstantsEndAtTheFirstMissingNumber) {
  EXPECT_EQ(loaded("[Flow-1]\nTimeConstFR-1 = 1\nTimeConstFR-2 = 2\nTimeConstFR-4 = 4\n"),
            "inlet 1\n  FlowRateTimeConstants 1 2\n");
  EXPECT_EQ(loaded("[Flow-1]\nTimeConstIP-2 = 2\n"), "inlet 1\n");
  EXPECT_EQ(
      loaded("[Flow-1]\nTimeConstPP-3 = 3\nTimeConstPP-1 = 1\nTimeConstPP-2 = x\nTimeConstIP-1 = "
             "0.5\n"),
      "inlet 1\n  InjectionPressureTimeConstants 0.5\n  PackingPressureTimeConstants 1 0 3\n");
}

TEST(DataLoader, CuringOverwritesPackingAndAppendsItsPoints) {
  EXPECT_EQ(loaded("[Cure-1]\nCureTime = 90\nCPDisplayType = 2\nCPSet = 1\nCP-1 = 0 6\n"
                   "[Pack-1]\nPackTime = 20\nPackPres = 7\nPPDisplayType = 1\nPPProfileType = "
                   "1\nPPSet = 1\nPP-1 = 0 7\n"),
            "inlet 1\n  PackTime 90\n  PackPres 7\n  PPDisplayType 2\n  PPProfileType 1\n  "
            "PackingPressureProfile (0 7) (0 6)\n");
}

TEST(DataLoader, CuringProfileTypeStandsUnderTheKeyOfPacking) {
  EXPECT_EQ(loaded("[Cure-1]\nCPProfileType = 3\nPPProfileType = 4\n"),
            "inlet 1\n  PPProfileType 4\n");
}

TEST(DataLoader, InletControlTypeIsTheSecondNumberUnderTheKeyWithABracket) {
  EXPECT_EQ(loaded("[FlowCTLInfo]\nFlowCTL-1] = 3 4\n"), "inlet 1\n  InletControlType 4\n");
  EXPECT_EQ(loaded("[FlowCTLInfo]\nFlowCTL-1 = 3 4\n"), "inlet 1\n");
  EXPECT_EQ(loaded("[FlowCTLInfo]\nFlowCTL-1] = 3\n"), "inlet 1\n  InletControlType 0\n");
  EXPECT_EQ(loaded("[FlowCTLInfo]\nTotalInlet = 2\nFlowCTL-1] = 3 4\nFlowCTL-2] = 5 6\n"),
            "inlet 1\n  InletControlType 4\ninlet 2\n  InletControlType 6\n");
}

TEST(DataLoader, OneInletIsLoadedWithoutATotal) {
  EXPECT_EQ(loaded(header_of_type(1) + "[Flow-1]\nFillTime = 1\n[Pack-1]\nPackTime = "
                                       "2\n[Flow-2]\nFillTime = 3\n[Cure-1]\nCurePres = 4\n"),
            "ProjectType 1\ninlet 1\n  FillTime 1\n  PackTime 2\n  PackPres 4\n");
}

TEST(DataLoader, AnyNumberOfInletsIsLoadedFromTheirOwnSections) {
  EXPECT_EQ(loaded("[Flow-2]\nFillTime = 2\n[Pack-3]\nPackTime = 3\n[Flow-1]\nFillTime = "
                   "1\n[FlowCTLInfo]\nTotalInlet = 3\n[Cure-2]\nCureTime = 4\n"),
            "inlet 1\n  FillTime 1\ninlet 2\n  FillTime 2\n  PackTime 4\ninlet 3\n  PackTime 3\n");
}

TEST(DataLoader, NoInletIsLoadedForATotalOfZero) {
  for (const char* total : {"0", "none", ""}) {
    EXPECT_EQ(loaded(header_of_type(1) + "[FlowCTLInfo]\nTotalInlet = " + total +
                     "\n[Flow-1]\nFillTime = 1\n"),
              "ProjectType 1\n")
        << total;
  }
}

TEST(DataLoader, BothInletsOfTypeEightComeFromTheSkinSectionsNumberedOne) {
  const std::string file = header_of_type(8) +
                           "[Flow-1-Skin]\nFillTime = 1\nFRSet = 1\nFR-1 = 0 "
                           "30\n[Pack-1-Skin]\nPackTime = 2\n[Flow-2-Skin]\nFillTime = 3\n"
                           "[Pack-2-Skin]\nPackTime = 4\n[Flow-1]\nFillTime = "
                           "5\n[Cure-1]\nCureTime = 6\n[FlowCTLInfo]\nFlowCTL-1] = 1 2\n";
  const std::string stage = "  FillTime 1\n  PackTime 2\n  FlowRateProfile (0 30)\n";
  EXPECT_EQ(loaded(file), "ProjectType 8\ninlet 1\n" + stage + "inlet 2\n" + stage);
}

TEST(DataLoader, TheInletsOfTypeElevenComeFromTheMeltEntranceSections) {
  const std::string file = header_of_type(11) +
                           "[Flow-EM1]\nFillTime = 1\n[Pack-EM1]\nPackTime = "
                           "2\n[Flow-EM2]\nFillTime = 3\n[Pack-EM2]\nPackTime = 4\n"
                           "[Flow-1]\nFillTime = 5\n[Cure-1]\nCureTime = 6\n[Cure-EM1]\nCureTime = "
                           "7\n[FlowCTLInfo]\nFlowCTL-1] = 1 2\n";
  EXPECT_EQ(
      loaded(file),
      "ProjectType 11\ninlet 1\n  FillTime 1\n  PackTime 2\ninlet 2\n  FillTime 3\n  PackTime 4\n");
}

TEST(DataLoader, TypesEightAndElevenSkipInletsThatDoNotExist) {
  const std::string skin =
      header_of_type(8) + "[Flow-1-Skin]\nFillTime = 1\n[FlowCTLInfo]\nTotalInlet = ";
  EXPECT_EQ(loaded(skin + "0\n"), "ProjectType 8\n");
  EXPECT_EQ(loaded(skin + "1\n"), "ProjectType 8\ninlet 1\n  FillTime 1\n");
  EXPECT_EQ(loaded(skin + "3\n"),
            "ProjectType 8\ninlet 1\n  FillTime 1\ninlet 2\n  FillTime 1\ninlet 3\n");
  const std::string entrances =
      header_of_type(11) +
      "[Flow-EM1]\nFillTime = 1\n[Flow-EM2]\nFillTime = 2\n[FlowCTLInfo]\nTotalInlet = ";
  EXPECT_EQ(loaded(entrances + "0\n"), "ProjectType 11\n");
  EXPECT_EQ(loaded(entrances + "1\n"), "ProjectType 11\ninlet 1\n  FillTime 1\n");
}

TEST(DataLoader, HugeTotalsEndAtTheMostInletsOfAProcess) {
  constexpr unsigned int kMost = 4096;
  for (const char* total : {"4096", "4097", "-1", "2147483647", "-2147483648"}) {
    for (const int type : {1, 8, 11}) {
      EXPECT_EQ(inlets_of(header_of_type(type) + "[FlowCTLInfo]\nTotalInlet = " + total + "\n"),
                kMost)
          << total << " of type " << type;
    }
  }
}

TEST(DataLoader, TheLastOfTheMostInletsIsLoaded) {
  const Scratch scratch;
  const Process process =
      load_file(scratch.file("[FlowCTLInfo]\nTotalInlet = -1\nFlowCTL-4096] = 1 2\nFlowCTL-4097] = "
                             "1 3\n[Flow-4096]\nFillTime = 5\n"));
  ASSERT_NE(process, nullptr);
  ASSERT_EQ(process->GetNumOfInlets(), 4096U);
  EXPECT_EQ(dump(*process->GetFlowPackOfInlet(4094)), "");
  EXPECT_EQ(dump(*process->GetFlowPackOfInlet(4095)), "  InletControlType 2\n  FillTime 5\n");
}

TEST(DataLoader, ManyInletsInALongSectionCostNoMoreThanTheFile) {
  std::string file = "[FlowCTLInfo]\nTotalInlet = -1\n";
  for (int i = 1; i <= 100000; ++i) {
    file += "FlowCTL-" + std::to_string(i) + " = 1 2\n";
  }
  file += "FlowCTL-4096] = 1 3\n";
  for (int i = 1; i <= 4096; ++i) {
    file += "[Flow-" + std::to_string(i) + "]\nFillTime = " + std::to_string(i) + "\n";
  }
  const Scratch scratch;
  const Process process = load_file(scratch.file(file));
  ASSERT_NE(process, nullptr);
  ASSERT_EQ(process->GetNumOfInlets(), 4096U);
  EXPECT_EQ(dump(*process->GetFlowPackOfInlet(0)), "  FillTime 1\n");
  EXPECT_EQ(dump(*process->GetFlowPackOfInlet(4095)), "  InletControlType 3\n  FillTime 4096\n");
}

TEST(DataLoader, HugeCountsCostNoMoreThanTheFile) {
  EXPECT_EQ(loaded("[Flow-1]\nFRSet = 2147483647\nFR-2147483647 = 7 8\nFR-1 = 1 2\nFR-2147483648 = "
                   "9 9\nTPSet = 2147483647\nIPSet = 2147483647\n"
                   "[Pack-1]\nPPSet = 2147483647\nPP-2147483646 = 5 6\nFluidSet = "
                   "2147483647\n[Cure-1]\nCPSet = 2147483647\nCP-2147483647 = 3 4\n"),
            "inlet 1\n  FlowRateProfile (1 2) (7 8)\n  PackingPressureProfile (5 6) (3 4)\n");
  EXPECT_EQ(loaded("[RamPosition]\nRP_FRSet = 2147483647\nRP_FR-2147483647 = 5\nRP_IPSet = "
                   "2000000000\nRP_IP-2147483647 = 6\n"),
            "FlowRateRamPosition 5\ninlet 1\n");
  EXPECT_EQ(loaded("[FlowCTLInfo]\nTotalInlet = 2\n[Flow-1]\nFRSet = 2147483647\n[Flow-2]\nFRSet = "
                   "2147483647\nFR-2147483647 = 1 1\n"),
            "inlet 1\ninlet 2\n  FlowRateProfile (1 1)\n");
}

TEST(DataLoader, LongProfilesAreLoadedInFull) {
  constexpr int kPoints = 20000;
  std::string file = "[Flow-1]\nFRSet = " + std::to_string(kPoints) + "\n";
  for (int i = kPoints; i >= 1; --i) {
    file +=
        "FR-" + std::to_string(i) + " = " + std::to_string(i) + "\t" + std::to_string(2 * i) + "\n";
  }
  const Scratch scratch;
  const Process process = load_file(scratch.file(file));
  ASSERT_NE(process, nullptr);
  const QELG_Profile& profile = *process->GetFlowPackOfInlet(0)->GetFlowRateProfile();
  ASSERT_EQ(profile.GetNumOfDataPoints(), static_cast<unsigned int>(kPoints));
  for (unsigned int i = 0; i < kPoints; ++i) {
    QELG_2dPoint point;
    ASSERT_TRUE(profile.GetDataPoint(i, point));
    ASSERT_EQ(point.x, i + 1);
    ASSERT_EQ(point.y, 2 * (i + 1));
  }
}

TEST(DataLoader, SectionsStandInAnyOrderWithAnyLineBreak) {
  const std::string file =
      "[Pack-1]\r\nPackTime=2\r\nPPSet=1\r\nPP-1=0\t80\r\n\r\n[Flow-1]  \r\nMaterial=RESIN "
      "A\r\n[CaeHeader]\r\nProjectType=1 0";
  EXPECT_EQ(loaded(file),
            "ProjectType 1\ninlet 1\n  Material 'RESIN A'\n  PackTime 2\n  PackingPressureProfile "
            "(0 80)\n");
}

TEST(DataLoader, ByteOrderMarkIsSkipped) {
  EXPECT_EQ(loaded("\xEF\xBB\xBF[CaeHeader]\nProjectType = 4\n"), "ProjectType 4\ninlet 1\n");
}

TEST(DataLoader, EmptyFileGivesOneEmptyInlet) {
  EXPECT_EQ(loaded(""), "inlet 1\n");
  EXPECT_EQ(loaded("no section at all\nFillTime = 1\n"), "inlet 1\n");
}

TEST(DataLoader, UnreadablePathsGiveNull) {
  const Scratch scratch;
  CQELProcessData_Manipulator loader;
  EXPECT_EQ(loader.GetProcessDataStructure(scratch.path("missing.pro").c_str()), nullptr);
  EXPECT_EQ(loader.GetProcessDataStructure(""), nullptr);
  EXPECT_EQ(loader.GetProcessDataStructure(nullptr), nullptr);
  EXPECT_FALSE(exists(scratch.path("missing.pro"))) << "nothing is created";
  std::filesystem::create_directory(scratch.path("folder.pro"));
  EXPECT_EQ(loader.GetProcessDataStructure(scratch.path("folder.pro").c_str()), nullptr);
}

TEST(DataLoader, LoadingLeavesTheFileAsItWas) {
  const Scratch scratch;
  const std::string contents = "[Flow-1]\nFRSet = 9\nFR-1 = 1 2\n[FlowCTLInfo]\nTotalInlet = 3   ";
  const std::string path = scratch.file(contents);
  const auto written = std::filesystem::last_write_time(path);
  ASSERT_NE(load_file(path), nullptr);
  EXPECT_EQ(bytes_of(path), contents);
  EXPECT_EQ(std::filesystem::last_write_time(path), written);
}

TEST(DataLoader, ReadOnlyFilesAreLoaded) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFillTime = 2\n");
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  const Process process = load_file(path);
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(dump(*process), "inlet 1\n  FillTime 2\n");
}

TEST(DataLoader, EveryCallGivesAProcessOfItsOwn) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFillTime = 1\n");
  CQELProcessData_Manipulator loader;
  const Process first(loader.GetProcessDataStructure(path.c_str()));
  put_bytes(path, "[Flow-1]\nFillTime = 2\n");
  const Process second(loader.GetProcessDataStructure(path.c_str()));
  EXPECT_EQ(loader.GetProcessDataStructure(scratch.path("missing.pro").c_str()), nullptr)
      << "and one that fails changes neither";
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(dump(*first), "inlet 1\n  FillTime 1\n");
  EXPECT_EQ(dump(*second), "inlet 1\n  FillTime 2\n");
}

TEST(DataLoader, ProcessOutlivesTheLoader) {
  const Scratch scratch;
  Process process;
  {
    CQELProcessData_Manipulator loader;
    process.reset(loader.GetProcessDataStructure(
        scratch.file("[Machine]\nMaker = A\n[Flow-1]\nMaterial = B\n").c_str()));
    loader.Dispose();
  }
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(dump(*process), "machine_Maker 'A'\ninlet 1\n  Material 'B'\n");
}

TEST(DataLoader, CopiesAssignmentAndDisposeAreSafe) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFillTime = 1\n");
  CQELProcessData_Manipulator first;
  const Process before(first.GetProcessDataStructure(path.c_str()));
  CQELProcessData_Manipulator copy(first);
  CQELProcessData_Manipulator assigned;
  EXPECT_EQ(&(assigned = copy), &assigned);
  const CQELProcessData_Manipulator& self = assigned;
  assigned = self;
  first.Dispose();
  first.Dispose();
  for (CQELProcessData_Manipulator* loader : {&first, &copy, &assigned}) {
    const Process process(loader->GetProcessDataStructure(path.c_str()));
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(dump(*process), "inlet 1\n  FillTime 1\n");
  }
}

TEST(DataLoader, NumbersDoNotDependOnTheLocale) {
  const std::string path = data_path("injection_two_inlets.pro");
  const Process plain = load_file(path);
  const CommaLocale comma;
  if (!comma.is_set()) {
    GTEST_SKIP() << "the machine has no locale with a decimal comma";
  }
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  const Process process = load_file(path);
  ASSERT_NE(plain, nullptr);
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(dump(*process), dump(*plain));
  EXPECT_EQ(loaded("[Flow-1]\nFillTime = 1.5\nFRSet = 1\nFR-1 = 0.5\t1,5\n"),
            "inlet 1\n  FillTime 1.5\n  FlowRateProfile (0.5 1)\n");
}

struct DataFile {
  const char* name;
  const char* line_break;
  const char* begins;
  const char* expected;
};

std::ostream& operator<<(std::ostream& out, const DataFile& file) { return out << file.name; }

class LoadedDataFile : public testing::TestWithParam<DataFile> {};

TEST_P(LoadedDataFile, GivesEveryValueAndNoOther) {
  const DataFile& file = GetParam();
  const std::string path = data_path(file.name);
  const std::string before = bytes_of(path);
  const Process process = load_file(path);
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(dump(*process), file.expected);
  EXPECT_EQ(bytes_of(path), before);
}

TEST_P(LoadedDataFile, HasTheLayoutThatItStandsFor) {
  const DataFile& file = GetParam();
  const std::string contents = bytes_of(data_path(file.name));
  EXPECT_EQ(contents.substr(0, std::string(file.begins).size()), file.begins);
  const std::string line_break = file.line_break;
  for (std::size_t at = contents.find('\n'); at != std::string::npos;
       at = contents.find('\n', at + 1)) {
    ASSERT_GE(at + 1, line_break.size());
    ASSERT_EQ(contents[at] == '\n' && at > 0 && contents[at - 1] == '\r', line_break == "\r\n")
        << "at byte " << at;
  }
}

constexpr char kInjectionTwoInlets[] = R"(ProjectType 1
FlagUNF 0
FlagEncapsulationCM 1
TotalNodeEM 2
TotalNodeEC 2
TotalGateCTL 2
TotalNodeMB 2
TotalNodeBC 2
TotalNodeMMM 2
SymVolRatio 2
TotalNodeHR 4
TotalSTLNodeEC 6
TotalSTLNodeHR 8
TotalGrpCCL 2
TotalGrpCCS 3
TotalOverFlowCTL 1
IsTransientInletConv 0
FlowCtrl 1
VPSwitchCtrl 0
PackingCtrl 2
MoldTemperature 60
MeltTemperature 235
InjectionTime 1.2
VolumeFilled 98.5
RamPosition 12.25
InjectionPressure 118
CureEnterType 0
CureEnterSwch 95
CureEnterTime 14.5
HTC_HeatTransferType 2
HTC_Flow 5000
HTC_Pack 2500
HTC_Detached 1250.5
HTC_HotRunner 20000
HTC_UserMode 1
HTC_NuNum 3.66
machine_Maker 'Tarnwell Machinery'
machine_Grade 'TW-180H / 25 mm'
machine_Remark 'Hall 2, cell 7'
machine_Diameter 25
machine_MaxRamPos 125
machine_ShotVolume 61.4
machine_Weight 55.8
machine_MaxMachinePres 245
machine_MaxFlowRate 147.3
machine_ClampForce 180
machine_BarrelCompressionCtrl 1
machine_NozzleVolume 2.75
machine_MachineEnergyType 2
machine_HydraulicPressureTransferFactor 10.4
machine_PITCHSIZE 25
machine_SCREWSPEED 120
machine_SCREWDIAFEED 17.5
machine_SCREWDIATRANSITION 19
machine_SCREWDIAMETERING 21.2
machine_CHANNELDEEPFEED 3.75
machine_CHANNELDEEPMETERING 1.9
machine_SECTIONDEPFEED 250
machine_SECTIONDEPTRANSITION 125
machine_SECTIONDEPMETERING 126
machine_NUMBERPITCHFEED 10
machine_NUMBERPITCHTRANSITION 5
machine_NUMBERPITCHMETERING 5.5
machine_NOZZLEDIAMETER 3
machine_NOZZLELENGTH 60
SuckBack 3.5
FlowRateRamPosition 100 75.5 20
InjectionPressureRamPosition 100 35.25
inlet 1
  InletControlType 2
  FillTime 1.2
  MeltTemp 235
  MoldTemp 60
  InjectPres 140
  FRDisplayType 1
  IPDisplayType 2
  FRProfileType 1
  IPProfileType 1
  MaxFR 147.3
  MaxFillingTime 6
  FlowPackMode 1
  HotRunnerTemperatureDiff 5
  Material 'RESIN_A_30.mtr'
  InitConv 0
  PackTime 5
  PackPres 80
  PackSwch 98
  MaxEOFRatio 0.9
  PPDisplayType 1
  PPProfileType 2
  MaxPressSlop 1000
  Shutoff 0
  MaterialType 1
  FlowRateProfile (0 30) (20 55.5) (80 60) (100 42.25)
  InjectionPressureProfile (0 140) (60 140) (100 120.5)
  PackingPressureProfile (0 80) (2.5 70) (5 40)
  FlowRateTimeConstants 0.05 0.075
  InjectionPressureTimeConstants 0.02
  PackingPressureTimeConstants 0.1 0.12 0.15
inlet 2
  InletControlType 3
  FillTime 0.85
  MeltTemp 235
  MoldTemp 62.5
  InjectPres 120
  FRDisplayType 1
  IPDisplayType 2
  FRProfileType 0
  IPProfileType 1
  MaxFR 147.3
  MaxFillingTime 4.25
  FlowPackMode 1
  HotRunnerTemperatureDiff -2.5
  Material 'RESIN_B_10.mtr'
  InitConv 0
  PackTime 3.5
  PackPres 72.5
  PackSwch 97
  MaxEOFRatio 0.75
  PPDisplayType 1
  PPProfileType 1
  MaxPressSlop 1000
  Shutoff 1
  MaterialType 1
  FlowRateProfile (0 18) (100 22.5)
  InjectionPressureProfile (0 120) (0 5) (50 7.5)
  PackingPressureProfile (0 72.5) (3.5 30)
)";

constexpr char kTransferMoldingCuring[] = R"(ProjectType 5
TotalNodeEM 1
TotalNodeEC 0
TotalGateCTL 0
TotalNodeMB 1
TotalNodeBC 0
TotalNodeMMM 1
SymVolRatio 1
TotalNodeHR 6
TotalSTLNodeEC 0
TotalSTLNodeHR 12
TotalGrpCCL 0
TotalGrpCCS 0
TotalOverFlowCTL 0
IsTransientInletConv 1
FlowCtrl 0
VPSwitchCtrl 2
PackingCtrl 0
MoldTemperature 175
MeltTemperature 90
InjectionTime 9.5
VolumeFilled 99
RamPosition 0
InjectionPressure 7.5
CureEnterType 2
CureEnterSwch 99.5
CureEnterTime 10.25
HTC_HeatTransferType 1
HTC_Flow 25000
HTC_Pack 25000
HTC_Detached 25000
HTC_HotRunner 25000
machine_Maker 'Tarnwell Machinery'
machine_Grade 'TW-T60'
machine_Remark 'auxiliary ram'
machine_Diameter 40
machine_MaxRamPos 80
machine_ShotVolume 100.5
machine_Weight 180
machine_MaxMachinePres 20
machine_MaxFlowRate 5
machine_ClampForce 60
inlet 1
  InletControlType 4
  FillTime 9.5
  MeltTemp 90
  MoldTemp 175
  InjectPres 7.5
  FRDisplayType 0
  IPDisplayType 0
  FRProfileType 0
  IPProfileType 0
  MaxFillingTime 30
  InitConv 0.03
  PackTime 90
  PackPres 6.5
  PackSwch 99.5
  MaxEOFRatio 0.95
  PPDisplayType 2
  PPProfileType 3
  FlowRateProfile (0 0.25) (9.5 0.4)
  InjectionPressureProfile (0 2.5) (4 6) (9.5 7.5)
  PackingPressureProfile (0 7) (20 6.5) (0 6.5) (45 5) (90 0)
)";

constexpr char kCoInjectionType8[] = R"(ProjectType 8
FlagUNF 1
FlagEncapsulationCM 0
TotalNodeEM 2
TotalNodeEC 2
TotalGateCTL 0
TotalNodeMB 2
TotalNodeBC 2
TotalNodeMMM 2
SymVolRatio 2
TotalNodeHR 4
TotalSTLNodeEC 6
TotalSTLNodeHR 8
TotalGrpCCL 1
TotalGrpCCS 3
TotalOverFlowCTL 0
IsTransientInletConv 0
FlowCtrl 0
VPSwitchCtrl 1
PackingCtrl 1
MoldTemperature 70
MeltTemperature 240
InjectionTime 2.4
VolumeFilled 97
RamPosition 15.75
InjectionPressure 100
HTC_HeatTransferType 1
HTC_Flow 10000
HTC_Pack 5000
machine_Maker 'Tarnwell Machinery'
machine_Grade 'TW-2K 320'
machine_Remark 'barrels at right angles'
machine_Diameter 45
machine_MaxRamPos 220
machine_ShotVolume 350
machine_MaxMachinePres 190
machine_MaxFlowRate 210.5
machine_ClampForce 320
SuckBack 0
InjectionPressureRamPosition 90
inlet 1
  FillTime 1.6
  MeltTemp 240
  MoldTemp 70
  InjectPres 130
  FRDisplayType 0
  IPDisplayType 1
  FRProfileType 1
  IPProfileType 0
  MaxFR 95
  MaxFillingTime 8
  FlowPackMode 0
  HotRunnerTemperatureDiff 0
  Material 'RESIN_C_00.mtr'
  CoreEnterType 1
  CoreEnterSwch 70
  CoreEnterTime 1.15
  FluidTemp 25
  FluidEnterType 0
  FluidEnterSwch 95
  FluidEnterTime 2.1
  FluidDelayTime 0.25
  PackTime 6.5
  PackPres 75
  PackSwch 97
  MaxEOFRatio 0.8
  PPDisplayType 1
  PPProfileType 1
  MaxPressSlop 500
  Shutoff 1
  MaterialType 2
  FluidPres 12.5
  FluidMaxFR 30
  FluidProfileType 1
  FlowRateProfile (0 40) (70 52.5) (100 52.5)
  InjectionPressureProfile (0 130) (100 110)
  PackingPressureProfile (0 75) (6.5 45)
  FluidPressureProfile (0 12.5) (3 10) (6.5 2.5)
  FlowRateTimeConstants 0.04
  InjectionPressureTimeConstants 0.03 0.035
inlet 2
  FillTime 1.6
  MeltTemp 240
  MoldTemp 70
  InjectPres 130
  FRDisplayType 0
  IPDisplayType 1
  FRProfileType 1
  IPProfileType 0
  MaxFR 95
  MaxFillingTime 8
  FlowPackMode 0
  HotRunnerTemperatureDiff 0
  Material 'RESIN_C_00.mtr'
  CoreEnterType 1
  CoreEnterSwch 70
  CoreEnterTime 1.15
  FluidTemp 25
  FluidEnterType 0
  FluidEnterSwch 95
  FluidEnterTime 2.1
  FluidDelayTime 0.25
  PackTime 6.5
  PackPres 75
  PackSwch 97
  MaxEOFRatio 0.8
  PPDisplayType 1
  PPProfileType 1
  MaxPressSlop 500
  Shutoff 1
  MaterialType 2
  FluidPres 12.5
  FluidMaxFR 30
  FluidProfileType 1
  FlowRateProfile (0 40) (70 52.5) (100 52.5)
  InjectionPressureProfile (0 130) (100 110)
  PackingPressureProfile (0 75) (6.5 45)
  FluidPressureProfile (0 12.5) (3 10) (6.5 2.5)
  FlowRateTimeConstants 0.04
  InjectionPressureTimeConstants 0.03 0.035
)";

INSTANTIATE_TEST_SUITE_P(DataLoader, LoadedDataFile,
                         testing::Values(DataFile{"injection_two_inlets.pro", "\n",
                                                  "\n[FileHeader]\n", kInjectionTwoInlets},
                                         DataFile{"transfer_molding_curing.pro", "\r\n",
                                                  "\r\n[FileHeader]\r\n", kTransferMoldingCuring},
                                         DataFile{"co_injection_type_8.pro", "\n", "[FileHeader]\n",
                                                  kCoInjectionType8}));

}  // namespace
}  // namespace qelpro_test
