#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "api/proio/accessors.h"
#include "api/proio/support.h"

// One file, two readers: what either side writes, the other reads.

namespace qelpro_test {
namespace {

std::string engine_reads(const std::string& path, const char* section, const char* key) {
  CQELPROReader_Manipulator reader;
  char buffer[256];
  char* value = nullptr;
  return reader.SetFilePath(path.c_str()) &&
                 reader.ReadString(section, key, value, buffer, sizeof buffer)
             ? value
             : "(none)";
}

std::string without_line_feed(std::string text) {
  if (!text.empty() && text.back() == '\n') {
    text.pop_back();
  }
  return text;
}

class BothSides : public ProcessObject {
 protected:
  void engine_writes(const char* section, const char* key, const char* text) {
    path_ = scratch_.path("engine.pro");
    std::filesystem::remove(path_);
    CQELPROWriter_Manipulator writer;
    ASSERT_TRUE(writer.SetFilePath(path_.c_str()));
    ASSERT_TRUE(writer.WriteString("[CaeHeader]", "FileVersion", "1010"));
    ASSERT_TRUE(writer.WriteString(section, key, text));
    object_.SetFilePath(path_.data());
  }
  void new_file() {
    over_missing_file();
    std::filesystem::remove(path_);
  }
};

TEST_F(BothSides, EngineReadsWhatTheObjectWrites) {
  char text[] = "a text";
  for (const auto& row : text_accessors()) {
    new_file();
    if (row.set) {
      EXPECT_TRUE(row.set(object_, text));
      EXPECT_EQ(engine_reads(path_, row.section, row.key), text) << row.name;
    }
  }
  for (const auto& row : integer_accessors()) {
    new_file();
    if (row.set) {
      EXPECT_TRUE(row.set(object_, -12));
      EXPECT_EQ(engine_reads(path_, row.section, row.key), "-12") << row.name;
    }
  }
  for (const auto& row : real_accessors()) {
    new_file();
    if (row.set) {
      EXPECT_TRUE(row.set(object_, 1.5));
      EXPECT_EQ(engine_reads(path_, row.section, row.key), "1.5") << row.name;
    }
  }
  for (const auto& row : point_accessors()) {
    new_file();
    if (row.set) {
      EXPECT_TRUE(row.set(object_, 1.5, 20));
      EXPECT_EQ(engine_reads(path_, row.section, row.key), "1.5\t20") << row.name;
    }
  }
}

TEST_F(BothSides, ObjectReadsWhatTheEngineWrites) {
  for (const auto& row : text_accessors()) {
    char* value = nullptr;
    engine_writes(row.section, row.key, "a text");
    if (row.get) {
      EXPECT_TRUE(row.get(object_, value)) << row.name;
      EXPECT_EQ(without_line_feed(value), "a text") << row.name;
    }
  }
  for (const auto& row : integer_accessors()) {
    int value = 0;
    engine_writes(row.section, row.key, "-12");
    if (row.get) {
      EXPECT_TRUE(row.get(object_, value)) << row.name;
      EXPECT_EQ(value, -12) << row.name;
    }
  }
  for (const auto& row : real_accessors()) {
    double value = 0;
    engine_writes(row.section, row.key, "1.5");
    if (row.get) {
      EXPECT_TRUE(row.get(object_, value)) << row.name;
      EXPECT_EQ(value, 1.5) << row.name;
    }
  }
  for (const auto& row : point_accessors()) {
    double x = 0;
    double y = 0;
    engine_writes(row.section, row.key, "1.5\t20");
    if (row.get) {
      EXPECT_TRUE(row.get(object_, x, y)) << row.name;
      EXPECT_EQ(x, 1.5);
      EXPECT_EQ(y, 20);
    }
  }
}

TEST_F(BothSides, EngineReadsTheDefaultDocumentByItsMembers) {
  over_missing_file().SetDefault();
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  char* text = nullptr;
  int number = 0;
  double value = 0;
  double x = 0;
  double y = 0;
  EXPECT_TRUE(reader.FileHeader_ReadName(text));
  EXPECT_STREQ(text, "Default.pro");
  EXPECT_TRUE(reader.CaeHeader_ReadType(text));
  EXPECT_STREQ(text, "Injection");
  EXPECT_TRUE(reader.CaeHeader_ReadFileVersion(number));
  EXPECT_EQ(number, 1008);
  EXPECT_TRUE(reader.Summary_ReadTotalLayer(number));
  EXPECT_EQ(number, 6);
  EXPECT_TRUE(reader.FlowX_ReadMeltTemperature(value, 1));
  EXPECT_EQ(value, 230);
  EXPECT_TRUE(reader.FlowX_ReadFRProfile(x, y, 2, 1));
  EXPECT_EQ(x, 100);
  EXPECT_EQ(y, 50);
}

TEST_F(BothSides, MoldRowsAndCoolantsAreReadByTheOther) {
  char name[] = "P20";
  char water[] = "Water";
  new_file();
  const QELPRO_MMM_MECHANICAL record{{1, 2, 3}, {4, 5, 6}, name};
  ASSERT_TRUE(object_.SetMoldbase(1, record) && object_.SetCoolant(2, 1, 2, 3, 4, 5, water, 6, 7));
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path_.c_str()));
  double d[6] = {};
  int i[2] = {};
  char* text = nullptr;
  EXPECT_TRUE(reader.Moldbase_ReadMoldbase(d[0], d[1], d[2], text, d[3], d[4], d[5], 1));
  EXPECT_STREQ(text, "P20");
  EXPECT_EQ(d[2], 5) << "the second mechanical value";
  EXPECT_EQ(d[5], 6);
  EXPECT_TRUE(reader.Coolant_ReadCoolant(d[0], d[1], d[2], d[3], i[0], text, d[4], i[1], 2));
  EXPECT_STREQ(text, "Water");
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path_.c_str()));
  ASSERT_TRUE(writer.MoldMetalMaterial_WriteMaterial(1, 2, 3, name, 4, 5, 6, 1));
  EXPECT_TRUE(object_.GetMoldMetalMaterial(1, d[0], d[1], d[2], text));
  EXPECT_STREQ(text, "P20");
  EXPECT_EQ(d[2], 3);
}

TEST_F(BothSides, TakeTurnsOnOneFile) {
  new_file();
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path_.c_str()));
  for (int turn = 1; turn <= 20; ++turn) {
    EXPECT_TRUE(object_.SetFillTime(turn, 1));
    EXPECT_EQ(engine_reads(path_, "[Flow-1]", "FillTime"), std::to_string(turn));
    EXPECT_TRUE(writer.FlowX_WriteFillingTime(turn + 0.5, 1));
    double time = 0;
    EXPECT_TRUE(object_.GetFillTime(time, 1));
    EXPECT_EQ(time, turn + 0.5);
  }
}

}  // namespace
}  // namespace qelpro_test
