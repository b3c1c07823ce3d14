#include "simulation/process_json.h"

#include <gmock/gmock.h>

#include <string>

#include "support/scratch.h"
#include "system/failure.h"

// The simulator's process as JSON, for whoever calls it.

namespace {

using namespace qelpro;
using qelpro_test::Scratch;

Json process_of(const std::string& contents) {
  const Scratch scratch;
  const std::string file = scratch.file(contents);
  return process_json(file, load_document(file));
}

TEST(ProcessJson, HasTheValuesThatAreSetAndNoOthers) {
  const Json process = process_of(
      "[Flow-1]\nFillTime = 1.25\n[Machine]\nMaker = Any\n[CaeHeader]\nProjectType = 1\n");
  EXPECT_EQ(process["values"], (Json{{"ProjectType", 1}}));
  EXPECT_EQ(process["machine"], (Json{{"Maker", "Any"}}));
  EXPECT_EQ(process["heat transfer"], Json::object());
  ASSERT_EQ(process["inlets"].size(), 1U);
  EXPECT_EQ(process["inlets"][0]["number"], 1);
  EXPECT_EQ(process["inlets"][0]["values"], (Json{{"FillTime", 1.25}}));
}

TEST(ProcessJson, HasListsEmptyOnesToo) {
  const Json inlet = process_of("[Flow-1]\nFRSet = 2\nFR-1 = 0 50\nFR-2 = 100 40\n")["inlets"][0];
  EXPECT_EQ(inlet["flow rate"], Json::parse("[[0.0, 50.0], [100.0, 40.0]]"));
  EXPECT_EQ(inlet["injection pressure"], Json::array());
}

TEST(ProcessJson, RefusesAFileWithoutSections) {
  for (const char* contents : {"", "x = 1\n"}) {
    try {
      process_of(contents);
      FAIL() << contents;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.status(), kFileError);
      EXPECT_THAT(failure.what(), testing::HasSubstr("file.pro: no process file"));
    }
  }
}

}  // namespace
