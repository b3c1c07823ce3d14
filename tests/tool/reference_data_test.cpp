#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;

Outcome qelpro(const std::vector<std::string>& arguments) {
  return run(QELPRO_TOOL_PATH, arguments);
}

TEST(MachinesCommand, ListsMakersWithTheirNumbersOfGrades) {
  const Outcome outcome = qelpro({"machines", data_path("machines.bank")});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "Alder & Sons\t2\nNorvik Presses\t2\nTessaro\t3\nalder & sons\t1\n");
  EXPECT_EQ(outcome.err, "");
}

TEST(MachinesCommand, ListsTheGradesOfAMaker) {
  EXPECT_EQ(qelpro({"machines", data_path("machines.bank"), "Tessaro"}).out,
            "T 160 Hybrid\nT 160 Hybrid\nT 320\n");
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

TEST(MachinesCommand, TellsABankOfAnUnreadableVersionFromAnEmptyOne) {
  const Scratch scratch;
  const std::string data = "[Machine Database]\n";
  const std::vector<std::tuple<std::string, int, std::string>> rows = {
      {"[Header]\nVersion = 7007\n" + data, 3,
       ":2: no version can be read from \"Version = 7007\": write \"Version,7007\"\n"},
      {"[Header]\nVersion,7007\n" + data, 1,
       ": the bank is empty: no line of it is a machine (flag 1 and 22 fields or more)\n"},
      {"[Header]\nVersion,7010\n" + data, 1,
       ":2: no machine: \"Version,7010\" is not version 7007, the one that is read\n"},
      {data, 3, ": not a machine bank: no \"Version\" line behind a \"[Header]\" line\n"}};
  for (const auto& [contents, status, message] : rows) {
    const std::string bank = scratch.file(contents, "bank");
    const Outcome outcome = qelpro({"machines", bank});
    EXPECT_EQ(outcome.status, status) << message;
    EXPECT_EQ(outcome.err, "qelpro: " + bank + message);
  }
}

TEST(CoolantCommand, HelpSaysWhichNumberIdentifiesACoolant) {
  EXPECT_THAT(qelpro({"coolant", "--help"}).out,
              AllOf(HasSubstr("[Coolant-3]"), HasSubstr("the section's number plus 3")));
}

TEST(CoolantCommand, NamesTheCoolantsThatAreThereWhereOneIsNotFound) {
  const Outcome absent = qelpro({"coolant", data_path("coolants.pcs"), "17", "10"});
  EXPECT_EQ(absent.status, 1);
  EXPECT_EQ(absent.err, "qelpro: " + data_path("coolants.pcs") +
                            ": coolant 17: not found; there are 0 ([Coolant-0], Water), 1 "
                            "([Coolant-1], Oil), 2 ([Coolant-2], WaterGlycol), "
                            "6 ([Coolant-3], Brine), 7 ([Coolant-4], Steam), 8 ([Coolant-5], "
                            "Unfinished, without \"DataCount\")\n");
  EXPECT_THAT(qelpro({"coolant", data_path("coolants.pcs"), "8", "10"}).err,
              HasSubstr("its section holds no \"DataCount\" above 0"));
  EXPECT_THAT(qelpro({"coolant", data_path("coolants.pcs"), "4", "10"}).err,
              HasSubstr("3, 4 and 5 identify no coolant"));
  const Scratch scratch;
  EXPECT_THAT(qelpro({"coolant", scratch.file("[Header]\n", "none.pcs"), "0", "10"}).err,
              HasSubstr("the file has no coolant"));
}

TEST(CoolantCommand, PrintsTheFourProperties) {
  const Outcome outcome = qelpro({"coolant", data_path("coolants.pcs"), "6", "10"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "1\t4.18e+07\t59800\t0.013\n");
  EXPECT_EQ(qelpro({"coolant", data_path("coolants.pcs"), "6", "-40.5"}).out, outcome.out)
      << "below the first row";
}

TEST(CoolantCommand, PrintsATable) {
  const Outcome outcome = qelpro({"coolant", data_path("coolants.pcs"), "--table", "6", "--from",
                                  "-10", "--to", "90", "--step", "20"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(
      outcome.out,
      testing::StartsWith("-10\t1\t4.18e+07\t59800\t0.013\n10\t1\t4.18e+07\t59800\t0.013\n30\t"));
  EXPECT_THAT(outcome.out, HasSubstr("\n90\t0.968\t"));
  EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 6);
}

TEST(CoolantCommand, PrintsJson) {
  EXPECT_THAT(qelpro({"coolant", "--json", data_path("coolants.pcs"), "6", "10"}).out,
              AllOf(HasSubstr("\"temperature\": 10.0"), HasSubstr("59800.0")));
  EXPECT_THAT(qelpro({"coolant", data_path("coolants.pcs"), "--table", "6", "--from", "10", "--to",
                      "11", "--step", "1", "--json"})
                  .out,
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
  const std::vector<std::vector<std::string>> rows = {
      {"coolant"},
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
