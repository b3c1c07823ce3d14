#include "proio/catalogue.h"

#include <gtest/gtest.h>

#include <string>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "proio/scratch.h"
#include "proio/words.h"

namespace {

using Object = CPROIO_Manipulator;
using qel::proio::Buffer;

TEST(Catalogue, NamesEveryNumberedSection) {
  const struct {
    Object::BLOCK kind;
    int value;
    const char* name;
  } rows[] = {{Object::BLOCK_FLOW, 1, "[Flow-2]"},
              {Object::BLOCK_PACK, 2, "[Pack-2]"},
              {Object::BLOCK_GASF, 3, "[GasF-2]"},
              {Object::BLOCK_GATE_VALVE, 4, "[GateValve-2]"},
              {Object::BLOCK_CURE, 5, "[Cure-2]"},
              {Object::BLOCK_COOL_CHANNEL, 6, "[CoolChannel-2]"},
              {Object::BLOCK_OF_GATE_VALVE, 7, "[OFGateValve-2]"},
              {Object::BLOCK_MPREHEAT_COOL_CHANNEL, 8, "[MPreheat_CoolChannel-2]"}};
  Buffer buffer;
  for (const auto& row : rows) {
    EXPECT_EQ(static_cast<int>(row.kind), row.value);
    EXPECT_STREQ(qel::proio::block_name(2, row.kind, buffer), row.name);
  }
  for (const int none : {0, 9, -1, 100}) {
    EXPECT_STREQ(qel::proio::block_name(2, none, buffer), "") << none;
  }
  EXPECT_STREQ(qel::proio::block_name(-2147483647 - 1, 1, buffer), "[Flow--2147483648]");
}

TEST(Catalogue, NamesEveryNumberedKeyInItsFixedOrder) {
  const struct {
    Object::KEY kind;
    const char* name;
  } rows[] = {{Object::KEY_FR, "FR-7"},
              {Object::KEY_USER_FR, "UserFR-7"},
              {Object::KEY_IP, "IP-7"},
              {Object::KEY_USER_IP, "UserIP-7"},
              {Object::KEY_USER_PP, "UserPP-7"},
              {Object::KEY_PP, "PP-7"},
              {Object::KEY_T, "T-7"},
              {Object::KEY_F, "F-7"},
              {Object::KEY_M, "M-7"},
              {Object::KEY_INDEX, "7"},
              {Object::KEY_ST, "ST-7"},
              {Object::KEY_ET, "ET-7"},
              {Object::KEY_RP_FR, "RP_FR-7"},
              {Object::KEY_RP_IP, "RP_IP-7"},
              {Object::KEY_USER_GR, "UserGR-7"},
              {Object::KEY_GR, "GR-7"},
              {Object::KEY_USER_GP, "UserGP-7"},
              {Object::KEY_GP, "GP-7"},
              {Object::KEY_GC, "GC-7"},
              {Object::KEY_Q_SETTING, "Q_Setting_7"},
              {Object::KEY_PI_SETTING, "Pi_Setting_7"},
              {Object::KEY_PP_SETTING, "Pp_Setting_7"},
              {Object::KEY_USER_TP, "UserTP-7"},
              {Object::KEY_TP, "TP-7"},
              {Object::KEY_USER_CP, "UserCP-7"},
              {Object::KEY_CP, "CP-7"},
              {Object::KEY_COOLANT, "Coolant-7"},
              {Object::KEY_TCP, "TCP-7"},
              {Object::KEY_SENSOR_NODE, "SensorNode-7"},
              {Object::KEY_CRITERIA_NODE, "CriteriaNode-7"},
              {Object::KEY_PART_INSERT, "PartInsert-7"}};
  Buffer buffer;
  int value = 1;
  for (const auto& row : rows) {
    EXPECT_EQ(static_cast<int>(row.kind), value++);
    EXPECT_STREQ(qel::proio::key_name(7, row.kind, buffer), row.name);
  }
  EXPECT_EQ(value, 32);
  for (const int none : {0, 32, -1}) {
    EXPECT_STREQ(qel::proio::key_name(7, none, buffer), "") << none;
  }
}

TEST(Buffer, HoldsAtMost127Characters) {
  Buffer buffer;
  EXPECT_EQ(buffer.assign(std::string(200, 'x')).text(), std::string(127, 'x'));
  EXPECT_EQ(buffer.append("y").text(), std::string(127, 'x'));
  EXPECT_EQ(buffer.assign("a").append("b").text(), std::string("ab"));
}

TEST(Words, OfARowOfManyAreBounded) {
  std::string row;
  for (int i = 0; i < 64; ++i) {
    row += "w ";
  }
  EXPECT_EQ(qel::proio::Words(row.substr(0, 127)).count(), 64U);
  EXPECT_EQ(qel::proio::Words("  \t\n ").count(), 0U);
  const qel::proio::Words words("a b\tc");
  EXPECT_EQ(words.count(), 3U);
  EXPECT_EQ(words.stretch(0, 1), "a b");
}

}  // namespace
