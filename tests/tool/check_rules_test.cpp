#include <gmock/gmock.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "check/check.h"

// Each code: what has it, where and in which words, and what looks alike without it.

namespace qelpro {

std::ostream& operator<<(std::ostream& out, const Finding& finding) {
  return out << finding.line << ":" << finding.column << ": " << name_of(finding.severity) << ": "
             << finding.message << " [" << finding.code << "]";
}

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

std::vector<Finding> findings_in(const std::string& contents) {
  return check_document("a.pro", SectionedText(contents));
}

std::vector<std::string> codes_in(const std::string& contents) {
  std::vector<std::string> codes;
  for (const Finding& finding : findings_in(contents)) {
    codes.push_back(finding.code);
  }
  return codes;
}

struct Faulty {
  const char* code;
  std::string contents;
  std::size_t line;
  std::size_t column;
  std::string message;  // or a part of it
  std::string hint = {};
};

std::string long_line(std::size_t length) {
  const std::string begin = "[Machine]\nRemark = ";
  return begin + std::string(length - 9, 'x') + "\n";
}

std::vector<Faulty> faulty() {
  using namespace std::string_literals;
  return {
      {"P001", long_line(4096), 2, 4096, "the line has 4096 characters"},
      {"P002", "FillTime = 1\n[Flow-1]\n", 1, 1, "\"FillTime\" stands before the first section"},
      {"P003", "[Flow-1]\n FillTime = 1\n", 2, 1, "\"FillTime\" is never found"},
      {"P003", "[Flow-1]\n\tFillTime = 1\n", 2, 1, "\"FillTime\" is never found"},
      {"P004", "[Flow-1]\n\n[Pack-1]\n[Flow-1]\nFillTime = 1\n", 4, 1, "the one on line 1"},
      {"P004", "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n[SURFACE X]\n", 2, 1, "line 1"},
      {"P005", "[Flow-1]\nFillTime = 1\nMoldTemp = 2\nFillTime = 1\n", 4, 1, "the one on line 2"},
      {"P006", "[Flow-1]\nsome words\n", 2, 1, "has no \"=\""},
      {"P006", "[Flow-1]\n= 5\n", 2, 1, "no entry"},
      {"P006", "[Flow-1]\nFill\rTime = 5\n", 2, 1, "no entry"},
      {"P006", "[Flow-1]\n [Pack-1]\n", 2, 1, "no section begins here"},
      {"P007", "[Flow-1] the first\n", 1, 1, "words stand behind the header [Flow-1]"},
      {"P007", "[Flow-1]\t; the first\n", 1, 1, "words stand behind the header [Flow-1]"},
      {"P008", "[Flow-1]\nFillTime = 1", 2, 1, "no line break"},
      {"P009", "[Flow-1]\nFillTime = 1\nMoldTemp = 1\r\nMeltTemp = 1\n", 3, 1, "\"\\r\\n\""},
      {"P009", "[Flow-1]\r\nFillTime = 1\n", 2, 1, "\"\\n\""},
      {"P010", "[Machine]\nRemark = a\0b\n"s, 2, 11, "a NUL byte"},
      {"P101", "[Flwo-1]\n", 1, 1, "; did you mean \"[Flow-1]\"?", "[Flow-1]"},
      {"P101", "[Flow-3-Skni]\n", 1, 1, "; did you mean \"[Flow-3-Skin]\"?", "[Flow-3-Skin]"},
      {"P101", "[Something Else]\nx = 1\n", 1, 1, "[Something Else] is no section"},
      {"P102", "[Flow-1]\nFRSet = 1\nFR-1 = 0 1\nFR-0 = 0 1\n", 4, 1, "numbered from 1", "FR-1"},
      {"P102", "[Flow-1]\nFilTime = 1\n", 2, 1, "; did you mean \"FillTime\"?", "FillTime"},
      {"P102", "[Flow-1]\nFlilTime = 1\n", 2, 1, "; did you mean \"FillTime\"?", "FillTime"},
      {"P102", "[Flow-1]\nFR_3 = 1\n", 2, 1, "; did you mean \"FR-3\"?", "FR-3"},
      {"P102", "[Flow-1]\nFR-03 = 1\n", 2, 1, "; did you mean \"FR-3\"?", "FR-3"},
      {"P102", "[Flow-1]\nfilltime = 1\n", 2, 1, "; did you mean \"FillTime\"?", "FillTime"},
      {"P102", "[Flow-1]\nAltogetherOther = 1\n", 2, 1, "no key \"AltogetherOther\""},
      {"P103", "[Flow-1]\nPackTime = 1\n", 2, 1, "a key of [Pack-1]", "[Pack-1]"},
      {"P103", "[Summary]\nTotalInlet = 1\n", 2, 1, "a key of [FlowCTLInfo]", "[FlowCTLInfo]"},
      {"P103", "[Pack-2]\nFR-7 = 1 2\n", 2, 1, "a key of [Flow-2]", "[Flow-2]"},
      {"P104", "[Flow-0]\n", 1, 1, "[Flow-0] has no section number", "[Flow-1]"},
      {"P104", "[Flow-01]\n", 1, 1, "[Flow-01] has no section number", "[Flow-1]"},
      {"P104", "[Flow-x]\n", 1, 1, "[Flow-x] has no section number", "[Flow-1]"},
      {"P104", "[Flow--2]\n", 1, 1, "[Flow--2] has no section number", "[Flow-2]"},
      {"P104", "[Flow-99999999999]\n", 1, 1, "has no section number"},
      {"P104", "[Flow-0-Skin]\n", 1, 1, "has no section number", "[Flow-1-Skin]"},
      {"P201", "[Flow-1]\nFillTime = abc\n", 2, 12, "\"FillTime\": field 1, a number"},
      {"P201", "[Flow-1]\nFillTime =\n", 2, 11, "a number is missing"},
      {"P201", "[Flow-1]\nFRDisplayType = 1.5\n", 2, 17, "\".5\" is not read"},
      {"P201", "[Flow-1]\nFRDisplayType = 1e3\n", 2, 17, "\"e3\" is not read"},
      {"P201", "[Flow-1]\nFRDisplayType = 1,5\n", 2, 17, "\",5\" is not read"},
      {"P201", "[Flow-1]\nFRDisplayType = 5000000000\n", 2, 17, "beyond 32 bits"},
      {"P201", "[Flow-1]\nFR-1 = 0 x\n", 2, 8, "field 2, a number, does not begin with \"x\""},
      {"P201", "[Moldbase]\n1 = 1\t2\t31\t1 Steel X\t4\t5\t6\n", 2, 5, "\"1 Steel X\""},
      {"P201", "[PartInsertInitialTemperature]\nTotalPartInsert = 1\nPartInsert-1 = 3\tPin 7\t1\n",
       3, 16, "is read as the fourth field"},
      {"P201", "[MoldbaseInfo]\nMB-1 = 1 \"" + std::string(256, 'n') + "\"\n", 2, 8, "255"},
      {"P201", "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\nx A 1\n", 2, 1, "header line"},
      {"P202", "[Flow-1]\nFillTime = 1.5abc\n", 2, 12, "\"abc\" is not read"},
      {"P202", "[Flow-1]\nFillTime =\t 1.5 s\n", 2, 13, "\"s\" is not read"},
      {"P202", "[Flow-1]\nFRDisplayType = 2.0\n", 2, 17, "\".0\" is not read"},
      {"P202", "[Flow-1]\nFRDisplayType = 2e0\n", 2, 17, "\"e0\" is not read"},
      {"P202", "[GateValve-1]\nGC-1 = 0 1 1 7\n", 2, 8, "\"7\" is not read"},
      {"P203", "[Flow-1]\nFR-1 = 0\n", 2, 8, "field 2, a number, is missing"},
      {"P203", "[GateValve-1]\nGC-1 = 0 1 2\n", 2, 8, "field 4, a whole number, is missing"},
      {"P203", "[Machine]\nPlatenSize(HxV) = 500\n", 2, 19, "the separator is missing"},
      {"P204", "[Flow-1]\nFillTime = 1,5\n", 2, 12, "the decimal point is \".\"", "write a point"},
      {"P204", "[Flow-1]\nFR-1 = 0,5 7\n", 2, 8, "the decimal point is \".\"", "write a point"},
      {"P205", "[Flow-1]\nFillTime = nan\n", 2, 12, "no finite number"},
      {"P205", "[Flow-1]\nFillTime = -inf\n", 2, 12, "no finite number"},
      {"P205", "[Flow-1]\nFillTime = 1e999\n", 2, 12, "too large"},
      {"P205", "[Flow-1]\nFR-1 = 0 inf\n", 2, 8, "no finite number"},
      {"P205", "[Flow-1]\nFillTime = infx\n", 2, 12, "\"x\" is not read"},
      {"P205", "[Flow-1]\nFillTime = nan # none\n", 2, 12, "is not read"},
      {"P301", "[Flow-1]\nFRSet = 3\nFR-2 = 1 1\n", 2, 9,
       "promises 3 points, of which 2 are missing: FR-1, FR-3"},
      {"P301", "[Flow-1]\nFRSet = 9\nFR-2 = 1 1\n", 2, 9, "FR-1, FR-3 to FR-9"},
      {"P301", "[CoolChannel-1]\nTimeSet = 1\n", 2, 11, "1 is missing: TCP-1"},
      {"P301", "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n2 A 1\n1 = 2 3\n", 2, 1,
       "promises 2 settings"},
      {"P302", "[Flow-1]\nFRSet = 1\nFR-1 = 1 1\nFR-2 = 2 2\n", 4, 1, "beyond the count \"FRSet\""},
      {"P302", "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1 A 1\n1 = 2 3\n1 = 2 3\n", 4, 1,
       "beyond those"},
      {"P303", "[Flow-1]\nFRSet = -1\n", 2, 9, "negative"},
      {"P303", "[Flow-1]\nFRSet = 4096\n", 2, 9, "4095"},
      {"P303", "[Summary]\nTotalNodeMB = -1\n", 2, 15, "negative"},
      {"P303", "[Summary]\nTotalNodeEM = -1\n", 2, 15, "negative"},
      {"P303", "[FlowCTLInfo]\nTotalInlet = -1\n", 2, 14, "negative"},
      {"P304", "[Flow-1]\nFRSet = 3\nFR-1 = 0 1\nFR-3 = 4 1\nFR-2 = 5 1\n", 4, 8,
       "\"FR-3\" falls back to 4, behind the 5 of \"FR-2\""},
      {"P305", "[FlowCTLInfo]\nTotalInlet = 2\n[Flow-1]\n", 2, 14, "no section [Flow-2]"},
      {"P305", "[Summary]\nTotalNodeEM = 3\n[Flow-2]\n", 2, 15, "[Flow-1], [Flow-3]"},
      {"P305", "[Summary]\nTotalNodeEM = 2\n[CaeHeader]\nProjectType = 11\n[Flow-EM1]\n", 2, 15,
       "[Flow-EM2]"},
      {"P305", "[Summary]\nTotalNodeEM = 2\n[CaeHeader]\nProjectType = 8\n", 2, 15,
       "[Flow-1-Skin]"},
      {"P305", "[Summary]\nTotalGateCTL = 1\n", 2, 16, "[GateValve-1]"},
      {"P305", "[Summary]\nTotalGrpCCL = 1\n", 2, 15, "[CoolChannel-1]"},
      {"P305", "[Summary]\nTotalNodeEC = 2000000000\n", 2, 15, "to [CoolChannel-2000000000]"},
      {"P306", "[FlowCTLInfo]\nTotalInlet = 1\n[Flow-1]\n[Flow-2]\n", 4, 1, "beyond the count"},
      {"P306", "[Summary]\nTotalNodeEM = 1\n[Flow-1]\n[Flow-2]\n", 4, 1, "\"TotalNodeEM\""},
      {"P306", "[Summary]\nTotalGateCTL = 0\n[GateValve-1]\n", 3, 1, "\"TotalGateCTL\""},
      {"P306", "[Summary]\nTotalNodeEC = 0\n[CoolChannel-1]\n", 3, 1, "\"TotalNodeEC\""},
      {"P306", "[Summary]\nTotalNodeEC = 2\nTotalGrpCCL = 1\n[CoolChannel-1]\n[CoolChannel-2]\n", 5,
       1, "\"TotalGrpCCL\""},
      {"P401", "[FlowCTL]\nVPSwitchCtrl = 0\n", 2, 16, "by \"VolumeFilled\"",
       "add \"VolumeFilled\""},
      {"P401", "[FlowCTL]\nVPSwitchCtrl = 1\nVolumeFilled = 98\n", 2, 16, "by \"RamPosition\"",
       "add \"RamPosition\""},
      {"P401", "[FlowCTL]\nVPSwitchCtrl = 2\n", 2, 16, "by \"InjectionPressure\"",
       "add \"InjectionPressure\""},
      {"P401", "[FlowCTL]\nVPSwitchCtrl = 3\n", 2, 16, "by \"VolumeFilled\"",
       "add \"VolumeFilled\""},
  };
}

TEST(CheckRules, FindEachCodeWhereItIs) {
  for (const Faulty& row : faulty()) {
    const std::vector<Finding> findings = findings_in(row.contents);
    ASSERT_EQ(findings.size(), 1U) << row.contents << testing::PrintToString(findings);
    const Finding& finding = findings.front();
    EXPECT_EQ(finding.code, row.code) << row.contents;
    EXPECT_EQ(finding.line, row.line) << row.contents;
    EXPECT_EQ(finding.column, row.column) << row.contents;
    EXPECT_THAT(finding.message, HasSubstr(row.message)) << row.contents;
    EXPECT_EQ(finding.file, "a.pro");
    if (!row.hint.empty()) {
      EXPECT_EQ(finding.hint, row.hint) << row.contents;
    }
  }
}

TEST(CheckRules, AreEachTried) {
  std::set<std::string> tried;
  for (const Faulty& row : faulty()) {
    tried.insert(row.code);
  }
  for (const Rule& rule : rules()) {
    EXPECT_TRUE(tried.contains(rule.code)) << rule.code;
  }
}

TEST(CheckRules, HaveTheSeverityOfTheirCode) {
  for (const Faulty& row : faulty()) {
    for (const Finding& finding : findings_in(row.contents)) {
      const bool is_note = finding.code == "P008";
      const std::set<std::string> warnings = {"P002", "P003", "P006", "P007", "P009",
                                              "P101", "P102", "P103", "P202", "P302",
                                              "P304", "P306", "P401"};
      EXPECT_EQ(finding.severity, is_note                           ? Severity::note
                                  : warnings.contains(finding.code) ? Severity::warning
                                                                    : Severity::error)
          << finding;
    }
  }
}

TEST(CheckRules, LeaveAloneWhatLooksAlike) {
  const std::vector<std::string> rows = {
      "",
      "\n\n",
      "\xEF\xBB\xBF[Flow-1]\nFillTime = 1\n",
      long_line(4095),
      "; FillTime = 1\n\n# a = b\n// a = b\nsome words\n[Flow-1]\n",
      "[Flow-1]\n; FillTime = 1\n  ; words\n\t\n//\n",
      "[Other-1]\nsome words\n",
      "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1 A b 1\n1 = 2 3\n",
      "[Flow-1]\n[Flow-10]\n",
      "[Other]\na = 1\n[Another]\na = 1\n",
      "[Flow-1]  \nFillTime = 1  \n",
      "[Flow-1]\nFillTime = 1\n        ",
      "[Flow-1]\r\nFillTime = 1\r\n",
      "[Flow-1]\nFillTime=1\nMeltTemp\t=\t230\nFR-1 = 0\t5\nUserFR-12 = 1 2\nEndConv = 1\n",
      "[QuickSetting]\n[Output]\n[Flow-2-Skin]\n[Flow-EM1]\n[Pack-EM12]\n[Flow-3-Skin2nd]\n",
      "[FlowCTLInfo]\nFlowCTL-1 = 1 2\nFlowCTL-1] = 1 2\n",
      "[Unit]\nVolum = cc\nTime = sec       Time, 1,5\n",
      "[Flow-1]\nFillTime = 1.5e-007\nMeltTemp = +2\nMoldTemp = .5\nInjectPres = 0x10\n",
      "[CaeHeader]\nProjectType = 1\n[MoldThermalBoundaryType]\nFlow = 5\t(W/m^2.K)\n",
      "[Machine]\nPlatenSize(HxV) = 720x690.5\nMaker =\nTemperatureControlZones = 4+2\n",
      "[RamPosition]\nRP_FRSet = 2\nRP_FR-1 = 100\nRP_FR-2 = 20\nRP_IPSet = 2\nRP_IP-1 = 100 "
      "1\nRP_IP-2 = 20 1\n",
      "[Flow-1]\nFRStrokeMode = 1\nFRSet = 2\nFR-1 = 100 1\nFR-2 = 20 1\n",
      "[Flow-1]\nFRSet = 2\nFR-1 = 5 1\nFR-2 = 5 1\n",
      "[Flow-1]\nFRSet = 0\n",
      "[CoolChannel-1]\nTimeSet = 1\nTCPP-1 = 0 1 2 3 4\n",
      "[PartInsertInitialTemperature]\nTotalPartInsert = 2\nPartInsert-1 = 3\tPin 7\t1\t1\n"
      "PartInsert-2 = 1 Core Pin 80\n",
      "[Moldbase]\n1 = 1\t2\t3\tSteel X 7\t4\t5\t6\n",
      "[FlowCTLInfo]\nTotalInlet = 2\n[Flow-1]\n[Flow-2]\n[OFGateValve-7]\n[Pack-9]\n",
      "[CaeHeader]\nProjectType = 8\n[Summary]\nTotalNodeEM = 2\n[Flow-1-Skin]\n[Flow-2]\n",
      "[CaeHeader]\nProjectType = 11\n[Summary]\nTotalNodeEM = 3\n[Flow-EM1]\n[Flow-EM2]\n",
      "[Summary]\nTotalNodeEC = 7\nTotalGrpCCL = 1\n[CoolChannel-1]\n",
      "[FlowCTL]\nVPSwitchCtrl = 1\nRamPosition = 5\n",
      "[FlowCTL]\nVPSwitchCtrl = 4\n",
      "[FlowCTL]\nVolumeFilled = 4\n",
  };
  for (const std::string& row : rows) {
    const std::string contents = row;
    std::vector<Finding> findings = findings_in(contents);
    std::erase_if(findings, [](const Finding& finding) {
      return finding.code == "P101" && finding.section.find("Other") != std::string::npos;
    });
    std::erase_if(findings, [](const Finding& finding) { return finding.section == "[Another]"; });
    EXPECT_THAT(findings, IsEmpty()) << row;
  }
}

TEST(CheckRules, AreInTheFilesOrder) {
  EXPECT_EQ(
      codes_in("[Flow-1] x\nFRSet = 1\nPackTime = abc\nFillTime = x\n FillTime = 3\n[Flow-0]"),
      (std::vector<std::string>{"P007", "P301", "P103", "P201", "P003", "P008", "P104"}));
}

TEST(CheckRules, AskNothingFurtherOfWhatIsNeverRead) {
  EXPECT_EQ(codes_in("[Flow-1]\n[Flow-1]\nFilTime = x\nFRSet = 3\n"),
            (std::vector<std::string>{"P004"}));
  EXPECT_EQ(codes_in("[Flow-1]\nFillTime = 1\nFillTime = x\n"), (std::vector<std::string>{"P005"}));
}

TEST(CheckRules, TellAKeyWithoutEqualsTwice) {
  EXPECT_EQ(codes_in("[Flow-1]\nFillTime 1.5\n"), (std::vector<std::string>{"P006", "P201"}));
}

TEST(CheckRules, DoNotTakeThePatternOfAKeyForAKey) {
  EXPECT_EQ(codes_in("[Flow-1]\nFR-%d = 0 1\n"), (std::vector<std::string>{"P102"}));
}

TEST(CheckRules, NameNothingNearWhereNothingIsLeftOfTheName) {
  for (const Finding& finding : findings_in("[Unit]\nab = 1\n")) {
    EXPECT_EQ(finding.hint, "") << finding;
  }
}

}  // namespace
}  // namespace qelpro
