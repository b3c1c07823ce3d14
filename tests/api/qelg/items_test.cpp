#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <set>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "support/process_dump.h"
#include "support/process_items.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

// Two values of each kind that nothing holds by chance.
template <class Value>
struct Sample;
template <>
struct Sample<unsigned int> {
  static constexpr unsigned int kFirst = 7;
  static constexpr unsigned int kSecond = std::numeric_limits<unsigned int>::max();
  static constexpr unsigned int kUntouched = 4711;
};
template <>
struct Sample<double> {
  static constexpr double kFirst = 0.1;
  static constexpr double kSecond = -1.7976931348623157e308;
  static constexpr double kUntouched = 47.11;
};
template <>
struct Sample<const char*> {
  static constexpr const char* kFirst = "Housing Lid";
  static constexpr const char* kSecond = "";
  static constexpr const char* kUntouched = "untouched";
};

template <class Object>
const std::vector<ProcessItem<Object>>& items_of();
template <>
const std::vector<ProcessItem<QELG_SimulatorProcess>>& items_of() {
  return process_items();
}
template <>
const std::vector<ProcessItem<QELG_SimulatorFlowPackProcess>>& items_of() {
  return inlet_items();
}

template <class Object>
class Items : public testing::Test {
 protected:
  // Calls `check(access, sample)` for every item, each on an object of its own.
  template <class Check>
  static void for_each(Check check) {
    for (const ProcessItem<Object>& item : items_of<Object>()) {
      SCOPED_TRACE(item.name);
      std::visit([&check]<class Value>(
                     const Accessors<Object, Value>& access) { check(access, Sample<Value>()); },
                 item.access);
    }
  }

  static std::size_t count_set(const Object& object) {
    std::string text;
    dump_items(items_of<Object>(), object, "", text);
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  }
};

using Objects = testing::Types<QELG_SimulatorProcess, QELG_SimulatorFlowPackProcess>;
TYPED_TEST_SUITE(Items, Objects);

TYPED_TEST(Items, AreUnsetInANewObjectAndLeaveTheOutputAlone) {
  this->for_each([]<class Value>(const Accessors<TypeParam, Value>& access, Sample<Value> sample) {
    const TypeParam object;
    Value value = sample.kUntouched;
    EXPECT_FALSE(access.get(object, value));
    EXPECT_EQ(value, sample.kUntouched);
  });
}

TYPED_TEST(Items, GiveBackWhatWasSetLast) {
  this->for_each([]<class Value>(const Accessors<TypeParam, Value>& access, Sample<Value> sample) {
    TypeParam object;
    for (const Value& set : {sample.kFirst, sample.kSecond, sample.kFirst}) {
      access.set(object, set);
      Value value = sample.kUntouched;
      EXPECT_TRUE(access.get(object, value));
      EXPECT_EQ(as_text(value), as_text(set));
    }
  });
}

TYPED_TEST(Items, AreApartFromEachOther) {
  this->for_each([]<class Value>(const Accessors<TypeParam, Value>& access, Sample<Value> sample) {
    TypeParam object;
    access.set(object, sample.kFirst);
    EXPECT_EQ(TestFixture::count_set(object), 1U);
  });
}

TYPED_TEST(Items, OfZeroAreSet) {
  this->for_each([]<class Value>(const Accessors<TypeParam, Value>& access, Sample<Value> sample) {
    if constexpr (!std::is_pointer_v<Value>) {
      TypeParam object;
      access.set(object, Value{});
      Value value = sample.kUntouched;
      EXPECT_TRUE(access.get(object, value));
      EXPECT_EQ(value, Value{});
    }
  });
}

TYPED_TEST(Items, OfTextAreCopied) {
  this->for_each([]<class Value>(const Accessors<TypeParam, Value>& access, Sample<Value> sample) {
    if constexpr (std::is_pointer_v<Value>) {
      TypeParam object;
      std::string text = "Plate";
      access.set(object, text.c_str());
      text = "Wedge";
      Value value = sample.kUntouched;
      ASSERT_TRUE(access.get(object, value));
      EXPECT_STREQ(value, "Plate");
      EXPECT_NE(value, text.c_str());
    }
  });
}

TYPED_TEST(Items, OfTextKeepTheirValueForNull) {
  this->for_each([]<class Value>(const Accessors<TypeParam, Value>& access, Sample<Value> sample) {
    if constexpr (std::is_pointer_v<Value>) {
      TypeParam object;
      Value value = sample.kUntouched;
      access.set(object, nullptr);
      EXPECT_FALSE(access.get(object, value));
      EXPECT_EQ(value, sample.kUntouched);
      access.set(object, sample.kFirst);
      access.set(object, nullptr);
      ASSERT_TRUE(access.get(object, value));
      EXPECT_STREQ(value, sample.kFirst);
    }
  });
}

TEST(ItemsHeader, EveryDeclarationHasARowInTheTables) {
  std::set<std::string> rows;
  for (const auto& item : process_items()) {
    rows.insert(std::string("QELG_SimulatorProcess ") + item.name);
  }
  for (const auto& item : inlet_items()) {
    rows.insert(std::string("QELG_SimulatorFlowPackProcess ") + item.name);
  }
  std::set<std::string> getters;
  std::set<std::string> setters;
  std::istringstream header(bytes_of(data_path("../../include/QELG/items.h")));
  for (std::string line; std::getline(header, line);) {
    for (const std::string prefix : {"set_process_", "get_process_"}) {
      const std::size_t at = line.find(prefix);
      if (at != std::string::npos && !line.starts_with("///")) {
        const std::size_t name = at + prefix.size();
        const std::size_t end = line.find('(', name);
        const std::string object =
            line.find("QELG_SimulatorFlowPackProcess", end) != std::string::npos
                ? "QELG_SimulatorFlowPackProcess "
                : "QELG_SimulatorProcess ";
        (prefix == "set_process_" ? setters : getters)
            .insert(object + line.substr(name, end - name));
      }
    }
  }
  EXPECT_EQ(setters, rows);
  EXPECT_EQ(getters, rows);
}

}  // namespace
}  // namespace qelpro_test
