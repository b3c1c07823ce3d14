#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/environment.h"

namespace qelpro_test {
namespace {

class UserFile : public testing::Test {
 protected:
  static std::string path(unsigned int size = 200) {
    char buffer[200] = {};
    return g_GetCurrentUserPSCFilePath(buffer, size) ? buffer : "(false)";
  }
  static void set(const char* name, const std::optional<std::string>& value) { set_environment(name, value); }

 private:
  KeptEnvironment config_{"XDG_CONFIG_HOME"};
  KeptEnvironment home_{"HOME"};
};

TEST_F(UserFile, StandsInTheFolderOfSettings) {
  set("XDG_CONFIG_HOME", "/somewhere/settings");
  EXPECT_EQ(path(), "/somewhere/settings/Kestrel/Vantor R14.0/PROCoolantSetting.pcs");
  set("XDG_CONFIG_HOME", "/somewhere/settings/");
  EXPECT_EQ(path(), "/somewhere/settings/Kestrel/Vantor R14.0/PROCoolantSetting.pcs");
}

TEST_F(UserFile, StandsBelowTheHomeFolderOtherwise) {
  for (const auto& config : {std::optional<std::string>(), std::optional<std::string>("")}) {
    set("XDG_CONFIG_HOME", config);
    set("HOME", "/somewhere/engineer/");
    EXPECT_EQ(path(), "/somewhere/engineer/.config/Kestrel/Vantor R14.0/PROCoolantSetting.pcs");
    set("HOME", "/somewhere/engineer");
    EXPECT_EQ(path(), "/somewhere/engineer/.config/Kestrel/Vantor R14.0/PROCoolantSetting.pcs");
  }
}

TEST_F(UserFile, NeedsAFolder) {
  set("XDG_CONFIG_HOME", std::nullopt);
  set("HOME", std::nullopt);
  EXPECT_EQ(path(), "(false)");
  set("HOME", "");
  EXPECT_EQ(path(), "(false)");
  set("XDG_CONFIG_HOME", "/a");
  EXPECT_EQ(path(), "(false)") << "shorter than three characters";
  set("XDG_CONFIG_HOME", "/ab");
  EXPECT_EQ(path(), "/ab/Kestrel/Vantor R14.0/PROCoolantSetting.pcs");
}

TEST_F(UserFile, MustFitItsBufferWithItsTerminator) {
  set("XDG_CONFIG_HOME", "/ab");
  const auto length = static_cast<unsigned int>(path().size());
  EXPECT_EQ(path(10), "(false)");
  EXPECT_EQ(path(0), "(false)");
  EXPECT_EQ(path(length), "(false)");
  EXPECT_EQ(path(length + 1).size(), length);
  EXPECT_FALSE(g_GetCurrentUserPSCFilePath(nullptr, 200));
}

}  // namespace
}  // namespace qelpro_test
