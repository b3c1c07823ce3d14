#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "support/environment.h"
#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::HasSubstr;

Outcome qelpro(const std::vector<std::string>& arguments) {
  return run(QELPRO_TOOL_PATH, arguments);
}

TEST(CoolantCommand, ReadsTheUsersOwnFileWhereNoneIsNamed) {
  const Scratch scratch;
  const KeptEnvironment kept("XDG_CONFIG_HOME");
  set_environment("XDG_CONFIG_HOME", scratch.path("settings"));
  const Outcome missing = qelpro({"coolant", "6", "10"});
  const std::string folder = scratch.path("settings/Kestrel/Vantor R14.0");
  std::filesystem::create_directories(folder);
  std::filesystem::copy(data_path("coolants.pcs"), folder + "/PROCoolantSetting.pcs");
  const Outcome found = qelpro({"coolant", "6", "10"});
  const Outcome table =
      qelpro({"coolant", "--table", "6", "--from", "10", "--to", "10", "--step", "1"});
  EXPECT_EQ(missing.status, 3);
  EXPECT_THAT(missing.err, HasSubstr(folder + "/PROCoolantSetting.pcs"));
  EXPECT_EQ(found.out, "1\t4.18e+07\t59800\t0.013\n");
  EXPECT_EQ(table.out, "10\t1\t4.18e+07\t59800\t0.013\n");
}

}  // namespace
