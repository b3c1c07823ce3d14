#include "core/offset_table.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

namespace qel {
namespace {

using Name = OffsetTable::Name;

TEST(OffsetTable, KnowsNothingAtFirst) { EXPECT_EQ(OffsetTable().find(Name("x")), std::nullopt); }

TEST(OffsetTable, KeepsTheFirstOffsetOfAName) {
  OffsetTable table;
  EXPECT_TRUE(table.insert(Name("x"), 7));
  EXPECT_FALSE(table.insert(Name("x"), 8));
  EXPECT_EQ(table.find(Name("x")), 7);
  EXPECT_EQ(table.find(Name("")), std::nullopt);
  EXPECT_TRUE(table.insert(Name(""), 0));
  EXPECT_EQ(table.find(Name("")), 0);
}

TEST(OffsetTable, TellsNamesOfOneHashApart) {
  OffsetTable table;
  Name one("one");
  Name other("other");
  one.hash = other.hash = 1;
  Name third("third");
  third.hash = 2;
  EXPECT_TRUE(table.insert(one, 1));
  EXPECT_TRUE(table.insert(other, 2));
  EXPECT_TRUE(table.insert(third, 3));
  EXPECT_EQ(table.find(one), 1);
  EXPECT_EQ(table.find(other), 2);
  EXPECT_EQ(table.find(third), 3);
  Name unknown("unknown");
  unknown.hash = 1;
  EXPECT_EQ(table.find(unknown), std::nullopt);
}

TEST(OffsetTable, AgreesWithAMapAsItGrows) {
  OffsetTable table;
  std::map<std::string, std::int64_t> model;
  std::mt19937 random(1);
  for (std::int64_t offset = 0; offset < 20000; ++offset) {
    const std::string name = "[Flow-" + std::to_string(random() % 300) + "]" + std::to_string(random() % 50);
    EXPECT_EQ(table.insert(Name(name), offset), model.try_emplace(name, offset).second);
  }
  for (const auto& [name, offset] : model) {
    ASSERT_EQ(table.find(Name(name)), offset) << name;
  }
  EXPECT_EQ(table.find(Name("[Flow-300]0")), std::nullopt);
}

}  // namespace
}  // namespace qel
