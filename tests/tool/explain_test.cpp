#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "blocks/catalogue.h"
#include "file/explain.h"
#include "file/near.h"
#include "support/run.h"
#include "system/failure.h"

namespace {

using namespace qelpro_test;
using qelpro::Json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::vector<std::string> keys(const Json& sections) {
  std::vector<std::string> found;
  for (const Json& section : sections) {
    for (const Json& key : section["keys"]) {
      found.push_back(section["section"].get<std::string>() + "." + key["key"].get<std::string>());
    }
  }
  return found;
}

Outcome explain(const std::vector<std::string>& arguments) {
  std::vector<std::string> all = {"explain"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return run(QELPRO_TOOL_PATH, all);
}

// The message for a name that is not known.
std::string message(const std::vector<std::string>& words) {
  const Outcome outcome = explain(words);
  EXPECT_EQ(outcome.status, 1) << words.front();
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
  return outcome.err;
}

TEST(Explain, HasTheWholeCatalogue) {
  std::vector<std::string> all;
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    std::string name = section->name;
    for (const qel::KeyInfo& key : section->keys) {
      all.push_back(name.substr(1, name.size() - 2) + "." + key.text);
    }
  }
  EXPECT_EQ(keys(qelpro::explain({})), all);
}

TEST(Explain, TakesNamesOfFilesAndOfTheCatalogue) {
  for (const char* word : {"Flow-1.FR-3", "Flow-%ld.FR-%d", "Flow-%d.FR-%ld", "Flow-77.FR-%d"}) {
    EXPECT_THAT(keys(qelpro::explain({word})), ElementsAre("Flow-%ld.FR-%d")) << word;
  }
  EXPECT_THAT(keys(qelpro::explain({"[Flow-2]", "FillTime"})), ElementsAre("Flow-%ld.FillTime"));
  EXPECT_THAT(keys(qelpro::explain({"Flow-2", "FillTime"})), ElementsAre("Flow-%ld.FillTime"));
  for (const char* word : {"Output", "[Output]"}) {
    EXPECT_THAT(keys(qelpro::explain({word})),
                ElementsAre("Output.TimeStep", "Output.TimeFill", "Output.TimePack"));
  }
}

TEST(Explain, TakesAProfileForItsCountAndItsPoints) {
  EXPECT_THAT(keys(qelpro::explain({"Flow-1.FR"})),
              ElementsAre("Flow-%ld.FRSet", "Flow-%ld.FR-%d"));
}

TEST(Explain, TellsEveryEncodingOfAKey) {
  const Json found = qelpro::explain({"GateValve-1.GC-2"});
  ASSERT_EQ(found[0]["keys"].size(), 2U);
  EXPECT_EQ(found[0]["keys"][0]["fields"].size(), 4U);
  EXPECT_EQ(found[0]["keys"][1]["fields"].size(), 3U);
}

TEST(Explain, TakesPositionalLines) {
  const std::string section = "SURFACE ELEMENT BOUNDARY CONDITION NAME";
  for (const std::string& word : {section + ".#3", std::string("SURFACE.#1")}) {
    EXPECT_EQ(qelpro::explain({word})[0]["section"], section);
    EXPECT_EQ(qelpro::explain({word})[0]["keys"].size(), 2U);
  }
}

TEST(Explain, TellsUnitCodesNumberAndMembers) {
  const Json key = qelpro::explain({"Flow-1.FillTime"})[0]["keys"][0];
  EXPECT_EQ(key["unit"], "sec");
  EXPECT_EQ(key["encoding"], "real");
  EXPECT_EQ(key["members"][0], "CQELPROReader_Manipulator::FlowX_ReadFillingTime");
  const Json codes = qelpro::explain({"FlowCTL.VPSwitchCtrl"})[0]["keys"][0]["codes"];
  ASSERT_EQ(codes.size(), 4U);
  EXPECT_EQ(codes[1], Json({{"code", 1}, {"meaning", "ram position"}}));
  const Json point = qelpro::explain({"Flow-1.FR-1"})[0]["keys"][0];
  EXPECT_EQ(point["number"]["name"], "point");
  EXPECT_EQ(point["counted_by"], "FRSet");
  EXPECT_EQ(qelpro::explain({"Flow-1.FRSet"})[0]["keys"][0]["counts"], Json::array({"FR-%d"}));
}

TEST(Explain, PrintsAKey) {
  const Outcome outcome = explain({"Flow-2.FR-3"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out,
            "[Flow-%ld]: the filling stage of an inlet\n"
            "The number is that of the inlet, from 1.\n"
            "\n"
            "FR-%d\n"
            "  a point of the flow rate profile: how far filling has gone, and the flow rate,\n"
            "  in cc/sec\n"
            "  unit        cc/sec\n"
            "  encoding    real pair\n"
            "  fields      x: real\n"
            "              y: real\n"
            "  number      the point, from 1\n"
            "  counted by  FRSet\n"
            "  members     CQELPROReader_Manipulator\n"
            "                FlowX_ReadFRProfile\n"
            "              CQELPROWriter_Manipulator\n"
            "                FlowX_WriteFRProfile\n"
            "              CPROIO_Manipulator\n"
            "                GetFRProfile\n"
            "                SetFRProfile\n");
}

TEST(Explain, FitsEightyColumns) {
  const Json all = qelpro::explain({});
  std::vector<std::vector<std::string>> rows = {{}};
  for (const Json& section : all) {
    const auto name = "[" + section["section"].get<std::string>() + "]";
    rows.push_back({name});
    rows.push_back({name, section["keys"].back()["key"]});
  }
  for (const std::vector<std::string>& words : rows) {
    const Outcome outcome = explain(words);
    EXPECT_EQ(outcome.status, 0);
    std::istringstream lines(outcome.out);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
      EXPECT_LE(line.size(), 80U) << line;
    }
    EXPECT_GT(count, 2);
  }
}

TEST(Explain, OffersTheNameThatIsNear) {
  EXPECT_THAT(message({"Flow-1.FilTime"}), HasSubstr("did you mean \"FillTime\"?"));
  EXPECT_THAT(message({"Flwo-1.FillTime"}), HasSubstr("did you mean \"Flow-1.FillTime\"?"));
  EXPECT_THAT(message({"Flwo-3"}), HasSubstr("did you mean \"Flow-3\"?"));
  EXPECT_THAT(message({"Flow-1.FRR-4"}), HasSubstr("did you mean \"FR-4\"?"));
  EXPECT_THAT(message({"FillTime"}), HasSubstr("it is a key of Flow-%ld"));
  EXPECT_THAT(message({"Flow-1.Zapped"}),
              AllOf(HasSubstr("[Flow-1]"), HasSubstr("qelpro explain Flow-1"),
                    Not(HasSubstr("did you mean"))));
  EXPECT_THAT(message({"Xyzzy"}), HasSubstr("qelpro explain lists them"));
  EXPECT_THAT(message({"Flow-1."}), HasSubstr("\"\""));
  EXPECT_THAT(message({""}), HasSubstr("\"\""));
}

TEST(Explain, WithThreeWordsIsAUsageError) { EXPECT_EQ(explain({"a", "b", "c"}).status, 2); }

TEST(Near, CountsChangesOfLettersAndSwapsOfNeighbours) {
  EXPECT_EQ(qelpro::edit_distance("FillTime", "FillTime", 2), 0U);
  EXPECT_EQ(qelpro::edit_distance("FilTime", "FillTime", 2), 1U);
  EXPECT_EQ(qelpro::edit_distance("Flwo", "Flow", 2), 1U);
  EXPECT_EQ(qelpro::edit_distance("PackTime", "FillTime", 2), 3U);
}

TEST(Near, TakesTheNearestNameOfDistanceTwoOrLess) {
  qelpro::NearNames names;
  names.add("FillTime");
  EXPECT_EQ(names.near("PackTme"), "");
  names.add("PackTimes");
  names.add("PackTime");
  EXPECT_EQ(names.near("PackTme"), "PackTime");
}

}  // namespace
