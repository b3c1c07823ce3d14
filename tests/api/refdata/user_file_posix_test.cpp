#include <gtest/gtest.h>

#include <sys/stat.h>

#include <optional>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/environment.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

class UserFile : public testing::Test {
 protected:
  static std::string path(unsigned int size = 4096) {
    char buffer[4096] = {};
    return g_GetCurrentUserPSCFilePath(buffer, size) ? buffer : "(false)";
  }
  static void set(const char* name, const std::optional<std::string>& value) {
    set_environment(name, value);
  }

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

TEST_F(UserFile, StandsInNoRelativeFolder) {
  set("HOME", "/somewhere/engineer");
  for (const char* relative : {"settings", "./settings", "~/settings", "../a/b"}) {
    set("XDG_CONFIG_HOME", relative);
    EXPECT_EQ(path(), "/somewhere/engineer/.config/Kestrel/Vantor R14.0/PROCoolantSetting.pcs")
        << relative;
  }
  set("HOME", std::nullopt);
  EXPECT_EQ(path(), "(false)");
}

TEST_F(UserFile, FolderIsMadeWhereAWriterIsAboutToSaveIntoIt) {
  const Scratch scratch;
  const std::string home = scratch.path("home");
  set("XDG_CONFIG_HOME", std::nullopt);
  set("HOME", home);
  ASSERT_EQ(mkdir(home.c_str(), 0700), 0);
  const std::string file = path();
  EXPECT_FALSE(exists(home + "/.config")) << "to ask for the path makes nothing";
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(file.c_str()));
  EXPECT_TRUE(writer.WriteString("[Coolant-1]", "DataCount", "1") &&
              writer.WriteString("[Coolant-1]", "Data-1", "0 1 2 3 4"));
  struct stat status {};
  ASSERT_EQ(stat((home + "/.config/Kestrel").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0700U);
  CQELPCSInterpolator tables;
  double p[4] = {};
  ASSERT_TRUE(tables.LoadDataFromFile(file.c_str()));
  EXPECT_TRUE(tables.InterpolateCoolantProperties(1, 0, p[0], p[1], p[2], p[3]));
  EXPECT_EQ(p[3], 4);
  CQELPROWriter_Manipulator again;
  EXPECT_TRUE(again.SetFilePath(file.c_str())) << "a folder that is there";
}

TEST_F(UserFile, NoOtherFolderIsMade) {
  const Scratch scratch;
  set("XDG_CONFIG_HOME", scratch.path("settings"));
  CQELPROReader_Manipulator reader;
  CQELPROWriter_Manipulator writer;
  EXPECT_FALSE(reader.SetFilePath(path().c_str()));
  for (const char* other : {"/Kestrel/file.pro", "/Kestrel/Vantor R14.0/deeper/file.pro",
                            "/Other/file.pro", "x/Kestrel/Vantor R14.0/file.pro"}) {
    EXPECT_FALSE(writer.SetFilePath((scratch.path("settings") + other).c_str())) << other;
  }
  EXPECT_FALSE(exists(scratch.path("settings")));
  EXPECT_FALSE(exists(scratch.path("settingsx")));
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
