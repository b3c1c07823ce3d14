#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/line_break.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

TEST(WriteUnitBlock, WritesTheSevenUnitsInOrder) {
  const Scratch scratch;
  const std::string path = scratch.path();
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  writer.WriteUnitBlock();
  const std::string written =
      "\n[Unit]\n"
      "Time                 = sec\tTime\n"
      "Temp = oC\tTemperature\n"
      "Pres = MPa\tPressure\n"
      "FR = cc/sec\tFlowRate\n"
      "IP = MPa\tInjectionPressure\n"
      "PP = MPa\tPackPressure\n"
      "Volume = cc\tVolume\n";
  EXPECT_EQ(bytes_of(path), native(written));
}

TEST(WriteUnitBlock, ReplacesUnitsThatAreThere) {
  const Scratch scratch;
  const std::string path = scratch.path();
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  writer.WriteUnitBlock();
  writer.WriteUnitBlock();
  const std::string written =
      "\n[Unit]\n"
      "Time                 = sec\tTime\n"
      "Temp                 = oC\tTemperature\n"
      "Pres                 = MPa\tPressure\n"
      "FR                   = cc/sec\tFlowRate\n"
      "IP                   = MPa\tInjectionPressure\n"
      "PP                   = MPa\tPackPressure\n"
      "Volume               = cc\tVolume\n";
  EXPECT_EQ(bytes_of(path), native(written));
}

TEST(WriteUnitBlock, LeavesTheOtherSectionsAlone) {
  const Scratch scratch;
  const std::string before = "[Summary]\nTotalNdivz           = 10\n";
  const std::string path = scratch.file(before);
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  writer.WriteUnitBlock();
  EXPECT_EQ(bytes_of(path).substr(0, before.size() + 8), before + "\n[Unit]\n");
}

TEST(WriteUnitBlock, UnitsReadBackRaw) {
  const Scratch scratch;
  const std::string path = scratch.path();
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  writer.WriteUnitBlock();
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  char* text = nullptr;
  ASSERT_TRUE(reader.ReadString("[Unit]", "FR", text, nullptr, 0));
  EXPECT_STREQ(text, "cc/sec\tFlowRate");
}

TEST(WriteUnitBlock, DoesNothingWithoutAFile) {
  CQELPROWriter_Manipulator writer;
  writer.WriteUnitBlock();
  const char* path = nullptr;
  EXPECT_FALSE(writer.GetFilePath(path));
}

TEST(WriteUnitBlock, IsSilentWhenTheFileCannotBeOpenedAnyMore) {
  const Scratch scratch;
  const std::string path = scratch.path();
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  writer.WriteUnitBlock();
  EXPECT_TRUE(std::filesystem::is_empty(path));
}

}  // namespace
}  // namespace qelpro_test
