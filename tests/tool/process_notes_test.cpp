#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/run.h"
#include "support/scratch.h"

// What `process` says of sections and entries that do not reach the process.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string notes_of(const std::string& contents) {
  const Scratch scratch;
  return run(QELPRO_TOOL_PATH, {"process", scratch.file(contents)}).err;
}

constexpr const char* kTypeEight = "[CaeHeader]\nProjectType = 8\n";
constexpr const char* kTypeEleven = "[CaeHeader]\nProjectType = 11\n";

TEST(ProcessNotes, NameTheSectionsThatCoInjectionDoesNotLoad) {
  const std::string notes =
      notes_of(std::string(kTypeEight) +
               "[Flow-1-Skin]\nFillTime = "
               "1\n[Pack-1-Skin]\n[Flow-2-Skin]\n[Flow-1]\n[Pack-EM1]\n[Cure-1]\n");
  EXPECT_THAT(notes,
              AllOf(HasSubstr(":6: [Flow-2-Skin]: dropped: of project type 8 it is not loaded\n"),
                    HasSubstr(":7: [Flow-1]: dropped: of project type 8 it is not loaded\n"),
                    HasSubstr(":8: [Pack-EM1]: dropped: of project type 8 it is not loaded\n"),
                    HasSubstr(":9: [Cure-1]: dropped: of project type 8 it is not loaded\n"),
                    Not(HasSubstr("[Pack-1-Skin]"))));
}

TEST(ProcessNotes, NameTheSectionsThatTwoMeltEntrancesDoNotLoad) {
  const std::string notes =
      notes_of(std::string(kTypeEleven) + "[Flow-EM1]\n[Flow-EM2]\n[Flow-EM3]\n[Flow-1]\n");
  EXPECT_THAT(notes,
              AllOf(HasSubstr(":5: [Flow-EM3]: dropped: of project type 11 it is not loaded\n"),
                    HasSubstr(":6: [Flow-1]: dropped: of project type 11 it is not loaded\n"),
                    Not(HasSubstr("[Flow-EM2]"))));
  EXPECT_THAT(
      notes_of(std::string(kTypeEleven) +
               "[FlowCTLInfo]\nTotalInlet = 1\n[Flow-EM1]\n[Flow-EM2]\n"),
      AllOf(HasSubstr("TotalInlet: \"1\" is not 2: of project type 11 one inlet is loaded\n"),
            HasSubstr("[Flow-EM2]: dropped: ")));
}

TEST(ProcessNotes, NameTheSectionsThatAnOrdinaryProcessDoesNotLoad) {
  EXPECT_THAT(notes_of("[Flow-1]\n[Flow-1-Skin]\n[Pack-EM1]\n"),
              AllOf(HasSubstr("[Flow-1-Skin]: dropped: of project type 0 it is not loaded\n"),
                    HasSubstr("[Pack-EM1]: dropped: ")));
}

TEST(ProcessNotes, NameTheInletsWithoutASectionOfEveryProjectType) {
  EXPECT_THAT(notes_of(kTypeEight), HasSubstr("inlets without a section [Flow-1-Skin]: 1 to 2\n"));
  EXPECT_THAT(notes_of(std::string(kTypeEleven) + "[Flow-EM1]\n"),
              HasSubstr("inlets without a section [Flow-EM...]: 2\n"));
  EXPECT_THAT(notes_of("[FlowCTLInfo]\nTotalInlet = 3\n[Flow-1]\n"),
              HasSubstr("inlets without a section [Flow-...]: 2 to 3\n"));
}

TEST(ProcessNotes, NameAControlTypeWithoutTheBracketThatTheLoaderTakes) {
  EXPECT_THAT(notes_of("[FlowCTLInfo]\nTotalInlet = 1\nFlowCTL-1 = 1 2\n[Flow-1]\n"),
              HasSubstr(":3: [FlowCTLInfo] FlowCTL-1: dropped: the process takes the control type "
                        "from \"FlowCTL-1]\"\n"));
  EXPECT_EQ(
      notes_of("[FlowCTLInfo]\nTotalInlet = 1\nFlowCTL-1 = 1 2\nFlowCTL-1] = 1 2\n[Flow-1]\n"), "");
  EXPECT_THAT(
      notes_of(std::string(kTypeEight) + "[FlowCTLInfo]\nFlowCTL-1] = 1 2\n[Flow-1-Skin]\n"),
      HasSubstr(
          ":4: [FlowCTLInfo] FlowCTL-1]: dropped: of project type 8 no control type is loaded\n"));
}

TEST(ProcessNotes, NameTransferPressurePointsAfterInjectionPressurePoints) {
  EXPECT_THAT(notes_of("[Flow-1]\nIPSet = 1\nIP-1 = 0 5\nTPSet = 1\nTP-1 = 0 6\n"),
              HasSubstr(":4: [Flow-1] TPSet: its points are appended to those of \"IPSet\"\n"));
  EXPECT_EQ(notes_of("[Flow-1]\nIPSet = 0\nTPSet = 1\nTP-1 = 0 6\n"), "");
}

}  // namespace
