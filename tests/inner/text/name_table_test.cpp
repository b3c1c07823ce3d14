#include "text/name_table.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

namespace qel {
namespace {

using Numbers = NameTable<int>;

// The number of a name; -1 where it is not known.
int number_of(Numbers& table, const HashedName& name) {
  const int* number = table.find(name);
  return number != nullptr ? *number : -1;
}
int number_of(Numbers& table, const char* name) { return number_of(table, HashedName(name)); }

TEST(NameTable, KnowsNothingAtFirst) {
  Numbers table;
  EXPECT_EQ(number_of(table, "x"), -1);
}

TEST(NameTable, KeepsTheFirstValueOfAName) {
  Numbers table;
  EXPECT_TRUE(table.insert(HashedName("x"), 7).is_new);
  const Numbers::Inserted again = table.insert(HashedName("x"), 8);
  EXPECT_FALSE(again.is_new);
  EXPECT_EQ(*again.value, 7);
  EXPECT_EQ(number_of(table, "x"), 7);
  EXPECT_EQ(number_of(table, ""), -1);
  EXPECT_TRUE(table.insert(HashedName(""), 0).is_new);
  EXPECT_EQ(number_of(table, ""), 0);
}

TEST(NameTable, KeepsNamesInTheOrderInWhichTheyCame) {
  Numbers table;
  table.insert(HashedName("z"), 1);
  table.insert(HashedName("a"), 2);
  table.insert(HashedName("z"), 3);
  ASSERT_EQ(table.size(), 2U);
  EXPECT_EQ(table.name(0), "z");
  EXPECT_EQ(table.name(1), "a");
  EXPECT_EQ(table.value(1), 2);
}

TEST(NameTable, TellsNamesOfOneHashApart) {
  Numbers table;
  HashedName one("one");
  HashedName other("other");
  HashedName third("third");
  HashedName unknown("unknown");
  one.hash = other.hash = unknown.hash = 1;
  third.hash = 2;
  table.insert(one, 1);
  table.insert(other, 2);
  table.insert(third, 3);
  EXPECT_EQ(number_of(table, one), 1);
  EXPECT_EQ(number_of(table, other), 2);
  EXPECT_EQ(number_of(table, third), 3);
  EXPECT_EQ(number_of(table, unknown), -1);
}

TEST(NameTable, TellsTheSameNameOfTwoOwnersApart) {
  Numbers table;
  const HashedName first(name_hash("[A]"), 0, "x");
  const HashedName second(name_hash("[B]"), 1, "x");
  HashedName third(name_hash("[C]"), 2, "x");
  EXPECT_NE(first.hash, second.hash);
  table.insert(first, 1);
  EXPECT_EQ(number_of(table, second), -1);
  EXPECT_TRUE(table.insert(second, 2).is_new);
  third.hash = first.hash;
  EXPECT_TRUE(table.insert(third, 3).is_new);
  EXPECT_EQ(number_of(table, first), 1);
  EXPECT_EQ(number_of(table, second), 2);
  EXPECT_EQ(number_of(table, third), 3);
}

TEST(NameTable, AgreesWithAMapAsItGrows) {
  Numbers table;
  std::map<std::string, int> model;
  std::mt19937 random(1);
  for (int number = 0; number < 20000; ++number) {
    const std::string name =
        "[Flow-" + std::to_string(random() % 300) + "]" + std::to_string(random() % 50);
    EXPECT_EQ(table.insert(HashedName(name), number).is_new,
              model.try_emplace(name, number).second);
  }
  for (const auto& [name, number] : model) {
    ASSERT_EQ(number_of(table, HashedName(name)), number) << name;
  }
  EXPECT_EQ(number_of(table, "[Flow-300]0"), -1);
  table.clear();
  EXPECT_EQ(number_of(table, "[Flow-1]1"), -1);
}

}  // namespace
}  // namespace qel
