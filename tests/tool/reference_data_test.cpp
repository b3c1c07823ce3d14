#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;

Outcome qelpro(const std::vector<std::string>& arguments) { return run(QELPRO_TOOL_PATH, arguments); }

TEST(MachinesCommand, ListsMakersWithTheirNumbersOfGrades) {
  const Outcome outcome = qelpro({"machines", data_path("machines.bank")});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "Alder & Sons\t2\nNorvik Presses\t2\nTessaro\t3\nalder & sons\t1\n");
  EXPECT_EQ(outcome.err, "");
}

TEST(MachinesCommand, ListsTheGradesOfAMaker) {
  EXPECT_EQ(qelpro({"machines", data_path("machines.bank"), "Tessaro"}).out, "T 160 Hybrid\nT 160 Hybrid\nT 320\n");
}

TEST(MachinesCommand, PrintsJson) {
  EXPECT_THAT(qelpro({"machines", "--json", data_path("machines.bank")}).out,
              AllOf(HasSubstr("\"maker\": \"Norvik Presses\""), HasSubstr("\"grades\": 3")));
  EXPECT_THAT(qelpro({"machines", data_path("machines.bank"), "Tessaro", "--json"}).out,
              AllOf(HasSubstr("\"maker\": \"Tessaro\""), HasSubstr("\"T 320\"")));
}

TEST(MachinesCommand, TellsWhatIsMissing) {
  const Scratch scratch;
  const Outcome maker = qelpro({"machines", data_path("machines.bank"), "Nobody"});
  EXPECT_EQ(maker.status, 1);
  EXPECT_THAT(maker.err, AllOf(HasSubstr("machines.bank"), HasSubstr("Nobody")));
  const Outcome foreign = qelpro({"machines", data_path("machines_foreign_version.bank")});
  EXPECT_EQ(foreign.status, 1);
  EXPECT_THAT(foreign.err, HasSubstr("7007"));
  const Outcome missing = qelpro({"machines", scratch.path("missing.bank")});
  EXPECT_EQ(missing.status, 3);
  EXPECT_THAT(missing.err, AllOf(HasSubstr("missing.bank"), HasSubstr("No such file")));
  const Outcome refused = qelpro({"machines", scratch.file("[Header]\nTotalNo 3\n", "old.bank")});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.err, HasSubstr("TotalNo"));
  EXPECT_EQ(qelpro({"machines"}).status, 2);
}

TEST(CoolantCommand, PrintsTheFourProperties) {
  const Outcome outcome = qelpro({"coolant", data_path("coolants.pcs"), "6", "10"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "1\t4.18e+07\t59800\t0.013\n");
  EXPECT_EQ(qelpro({"coolant", data_path("coolants.pcs"), "6", "-40.5"}).out, outcome.out) << "below the first row";
}

TEST(CoolantCommand, PrintsATable) {
  const Outcome outcome = qelpro({"coolant", data_path("coolants.pcs"), "--table", "6", "--from", "-10", "--to", "90", "--step", "20"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, testing::StartsWith("-10\t1\t4.18e+07\t59800\t0.013\n10\t1\t4.18e+07\t59800\t0.013\n30\t"));
  EXPECT_THAT(outcome.out, HasSubstr("\n90\t0.968\t"));
  EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 6);
}

TEST(CoolantCommand, PrintsJson) {
  EXPECT_THAT(qelpro({"coolant", "--json", data_path("coolants.pcs"), "6", "10"}).out,
              AllOf(HasSubstr("\"temperature\": 10.0"), HasSubstr("59800.0")));
  EXPECT_THAT(qelpro({"coolant", data_path("coolants.pcs"), "--table", "6", "--from", "10", "--to", "11", "--step", "1", "--json"}).out,
              AllOf(HasSubstr("\"temperature\": 10.0"), HasSubstr("\"temperature\": 11.0")));
}

TEST(CoolantCommand, TellsWhatIsMissing) {
  const Scratch scratch;
  const Outcome refused = qelpro({"coolant", data_path("coolants.pcs"), "3", "10"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, AllOf(HasSubstr("coolants.pcs"), HasSubstr("coolant 3")));
  const Outcome missing = qelpro({"coolant", scratch.path("missing.pcs"), "6", "10"});
  EXPECT_EQ(missing.status, 3);
  EXPECT_THAT(missing.err, AllOf(HasSubstr("missing.pcs"), HasSubstr("No such file")));
}

TEST(CoolantCommand, RefusesArgumentsThatMakeNoRequest) {
  const std::string file = data_path("coolants.pcs");
  const std::vector<std::vector<std::string>> rows = {{"coolant"},
                                                      {"coolant", file},
                                                      {"coolant", file, "six", "10"},
                                                      {"coolant", file, "6", "warm"},
                                                      {"coolant", file, "6", "10", "11"},
                                                      {"coolant", file, "--table", "6"},
                                                      {"coolant", file, "x", "--table", "6", "--from", "1", "--to", "2", "--step", "1"},
                                                      {"coolant", file, "--table", "6", "--from", "1", "--to", "2", "--step", "0"},
                                                      {"coolant", file, "--table", "6", "--from", "1", "--to", "2", "--step", "-1"},
                                                      {"coolant", file, "--table", "6", "--from", "2", "--to", "1", "--step", "1"},
                                                      {"coolant", file, "--table", "6", "--from", "0", "--to", "1e9", "--step", "1e-9"}};
  for (const auto& row : rows) {
    const Outcome outcome = qelpro(row);
    EXPECT_EQ(outcome.status, 2) << testing::PrintToString(row);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err, "");
  }
}

}  // namespace
