#include "refdata/machine_bank.h"

#include <gtest/gtest.h>

#include <string>

namespace qelpro_test {
namespace {

using qel::refdata::BankReport;
using qel::refdata::examine_machine_bank;

const std::string kMachine = "1,Maker,Grade,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22\n";
const std::string kData = "[Machine Database]\n";

TEST(BankReport, CountsTheMachinesOfABank) {
  const BankReport report = examine_machine_bank("[Header]\nVersion,7007\n" + kData + kMachine +
                                                 "0,off\n" + kMachine + "1,too,short\n");
  EXPECT_EQ(report.version, 7007);
  EXPECT_TRUE(report.has_header && report.has_data);
  EXPECT_EQ(report.machines, 2U);
  EXPECT_EQ(report.machines_passed_over, 0U);
  EXPECT_EQ(report.unread_version_line, "");
  EXPECT_FALSE(report.has_total);
}

TEST(BankReport, TellsAnEmptyBankFromOneWhoseVersionCannotBeRead) {
  const BankReport empty = examine_machine_bank("[Header]\nVersion,7007\n" + kData);
  EXPECT_EQ(empty.machines + empty.machines_passed_over, 0U);
  EXPECT_EQ(empty.unread_version_line, "");
  const BankReport unread =
      examine_machine_bank("[Header]\nVersion=7007\n" + kData + kMachine + kMachine);
  EXPECT_EQ(unread.version, 1000);
  EXPECT_EQ(unread.machines, 0U);
  EXPECT_EQ(unread.machines_passed_over, 2U);
  EXPECT_EQ(unread.unread_version_line, "Version=7007");
  EXPECT_EQ(examine_machine_bank("[Header]\nVersion = 7007\n" + kData).unread_version_line,
            "Version = 7007");
}

TEST(BankReport, NamesTheVersionOfAForeignBank) {
  const BankReport foreign = examine_machine_bank("[Header]\nVersion,7006,x\n" + kData + kMachine);
  EXPECT_EQ(foreign.version, 7006);
  EXPECT_EQ(foreign.machines, 0U);
  EXPECT_EQ(foreign.machines_passed_over, 1U);
  EXPECT_EQ(foreign.unread_version_line, "");
}

TEST(BankReport, TellsWhatIsMissing) {
  EXPECT_FALSE(examine_machine_bank(kData + kMachine).has_header);
  EXPECT_EQ(examine_machine_bank("[Header]\n" + kData + kMachine).version, 0) << "no version line";
  EXPECT_FALSE(examine_machine_bank("[Header]\nVersion,7007\n" + kMachine).has_data);
  EXPECT_TRUE(examine_machine_bank("[Header]\nTotalNo,3\n").has_total);
  EXPECT_FALSE(examine_machine_bank("").has_header);
}

TEST(BankReport, LooksNoFurtherThanTheEndMark) {
  const BankReport report = examine_machine_bank("[Header]\nVersion,7007\n" + kData + kMachine +
                                                 "[EOF]\n" + kMachine + "TotalNo\n");
  EXPECT_EQ(report.machines, 1U);
  EXPECT_FALSE(report.has_total);
}

}  // namespace
}  // namespace qelpro_test
