#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "QELPROEngine/QELPROEngine.h"

namespace qelpro_test {
namespace {

std::string user_file(unsigned int size) {
  char buffer[300] = {};
  return g_GetCurrentUserPSCFilePath(buffer, size) ? buffer : "(false)";
}

TEST(UserFile, StandsInTheRoamingFolderOfTheUser) {
  const std::string path = user_file(300);
  const std::string after_folder = "\\Kestrel\\Vantor R14.0\\PROCoolantSetting.pcs";
  ASSERT_GT(path.size(), after_folder.size());
  EXPECT_EQ(path.substr(path.size() - after_folder.size()), after_folder);
  const std::string folder = path.substr(0, path.size() - after_folder.size());
  EXPECT_TRUE(std::filesystem::is_directory(folder)) << folder << ": made where it is missing";
  EXPECT_EQ(folder, std::getenv("APPDATA"));
}

TEST(UserFile, MustFitItsBufferWithItsTerminator) {
  const auto length = static_cast<unsigned int>(user_file(300).size());
  EXPECT_EQ(user_file(10), "(false)");
  EXPECT_EQ(user_file(length), "(false)");
  EXPECT_EQ(user_file(length + 1).size(), length);
  EXPECT_FALSE(g_GetCurrentUserPSCFilePath(nullptr, 300));
}

}  // namespace
}  // namespace qelpro_test
