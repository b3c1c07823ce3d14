#include <gmock/gmock.h>

#include <cerrno>
#include <string>

#include "reference/coolant_table.h"
#include "reference/machine_bank.h"
#include "support/scratch.h"
#include "system/failure.h"

// Machine banks and coolant tables, for whoever calls them.

namespace {

using namespace qelpro;
using qelpro_test::data_path;
using qelpro_test::Scratch;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(MachineBankFile, HasMakersByTheirBytesAndGradesInItsOrder) {
  const MachineBank bank(data_path("machines.bank"));
  EXPECT_THAT(bank.makers(),
              ElementsAre("Alder & Sons", "Norvik Presses", "Tessaro", "alder & sons"));
  EXPECT_THAT(bank.grades("Tessaro"), ElementsAre("T 160 Hybrid", "T 160 Hybrid", "T 320"));
}

TEST(MachineBankFile, TellsAnUnknownMaker) {
  const MachineBank bank(data_path("machines.bank"));
  for (const std::string maker : {"", "tessaro", "No One"}) {
    try {
      static_cast<void>(bank.grades(maker));
      FAIL() << maker;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.status(), kNotFound);
    }
  }
}

TEST(MachineBankFile, OfAnotherVersionOrNoneIsRefused) {
  const Scratch scratch;
  for (const char* contents : {"", "[Header]\nVersion,1\n", "[Header]\nVersion,x\n", "x"}) {
    EXPECT_THROW(MachineBank(scratch.file(contents)), Failure) << contents;
  }
}

TEST(MachineBankFile, ThatCannotBeReadHasTheReasonOfTheSystem) {
  const Scratch scratch;
  try {
    const MachineBank bank(scratch.path("none.bank"));
    FAIL();
  } catch (const SystemFailure& failure) {
    EXPECT_EQ(failure.error(), ENOENT);
    EXPECT_EQ(failure.file(), scratch.path("none.bank"));
  }
}

TEST(CoolantTableFile, IsLinearBetweenTwoRows) {
  const Scratch scratch;
  CoolantTable table(
      scratch.file("[Header]\nVersion = 14\n\n[Coolant-0]\nName = Water\nDataCount "
                   "= 2\nData-1 = 10 1 10 100 0.5\nData-2 = 20 3 20 200 0.25\n"));
  EXPECT_THAT(table.properties(0, 15), ElementsAre(2, 15, 150, 0.375));
  EXPECT_THAT(table.properties(0, -5), ElementsAre(1, 10, 100, 0.5));
  EXPECT_THAT(table.properties(0, 500), ElementsAre(3, 20, 200, 0.25));
}

TEST(CoolantTableFile, TellsThoseThatItHasWhereOneIsNotThere) {
  CoolantTable table(data_path("coolants.pcs"));
  try {
    static_cast<void>(table.properties(77, 25));
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.status(), kNotFound);
    EXPECT_THAT(failure.what(), HasSubstr("[Coolant-0], Water"));
  }
}

}  // namespace
