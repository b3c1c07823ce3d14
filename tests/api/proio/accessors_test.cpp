#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "api/proio/accessors.h"
#include "api/proio/support.h"
#include "support/line_break.h"

// What every accessor of the table does.

namespace qelpro_test {
namespace {

constexpr const char* kGatedVersion = "[CaeHeader]\nFileVersion = 1010\n";
const std::set<std::string> kGated = {"GetMoldClampingForce", "GetInitPelletConv",
                                      "GetPelletDiameter", "GetPelletHeight", "GetPreHeatTime"};

// What stands in front of the values that are kept from older files.
std::string gate_of(const char* accessor) {
  return kGated.count(accessor) != 0 ? kGatedVersion : "";
}

template <class Value>
struct Sample;

template <>
struct Sample<int> {
  static int first() { return 12; }
  static int second() { return -7; }
  static std::string text(int value) { return std::to_string(value); }
  static int untouched() { return 777; }
  static int fallback() { return 0; }
  static std::string read(int value) { return text(value); }
};

template <>
struct Sample<double> {
  static double first() { return 12.25; }
  static double second() { return -1.5e-7; }
  static std::string text(double value) { return value == first() ? "12.25" : "-1.5e-007"; }
  static double untouched() { return 777; }
  static double fallback() { return 0; }
  static std::string read(double value) { return value == 777 ? "777" : text(value); }
};

template <>
struct Sample<char*> {
  static char* first() {
    static char text[] = "a text";
    return text;
  }
  static char* second() {
    static char text[] = "another = \"text\"";
    return text;
  }
  static std::string text(char* value) { return value; }
  static char* untouched() {
    static char text[] = "untouched";
    return text;
  }
  static std::string read(char* value) {
    const std::string text = value;
    EXPECT_TRUE(text == "untouched" || text.back() == '\n') << "a text comes with its line feed";
    return text.back() == '\n' ? text.substr(0, text.size() - 1) : text;
  }
};

template <class Value>
class EveryAccessor : public ProcessObject {
 protected:
  static const std::vector<Accessor<Value>>& rows() {
    if constexpr (std::is_same_v<Value, int>) {
      return integer_accessors();
    } else if constexpr (std::is_same_v<Value, double>) {
      return real_accessors();
    } else {
      return text_accessors();
    }
  }
  // The file that a first write leaves where there was none.
  static std::string new_file(const Accessor<Value>& row, const std::string& text) {
    const std::string section = row.section;
    const std::string written = "\n" + section + "\n" + entry(row.key, text);
    return section == "[FileHeader]" ? written + kMaskedDate
                                     : written + "\n[FileHeader]\n" + kMaskedDate;
  }
};

using Values = testing::Types<int, double, char*>;
TYPED_TEST_SUITE(EveryAccessor, Values);

TYPED_TEST(EveryAccessor, GetsTheValueOfItsKey) {
  using S = Sample<TypeParam>;
  for (const auto& row : this->rows()) {
    SCOPED_TRACE(row.name);
    if (!row.get) {
      continue;
    }
    for (TypeParam value : {S::first(), S::second()}) {
      Object& object = this->over(gate_of(row.name) + "[Before]\n" + row.key + " = 5\n" +
                                  row.section + "\n " + row.key + " = 6\n" + row.key + "x = 7\n" +
                                  row.key + " =  " + S::text(value) + "\n" + row.key + " = 8\n");
      TypeParam read = S::untouched();
      EXPECT_TRUE(row.get(object, read));
      EXPECT_EQ(S::read(read), S::text(value));
    }
  }
}

TYPED_TEST(EveryAccessor, LeavesItsOutputAloneWithoutItsKey) {
  using S = Sample<TypeParam>;
  for (const auto& row : this->rows()) {
    SCOPED_TRACE(row.name);
    if (!row.get) {
      continue;
    }
    for (const std::string& contents : {std::string(), std::string(row.section) + "\n",
                                        std::string(row.key) + " = 5\n" + row.section + "\n"}) {
      TypeParam read = S::untouched();
      EXPECT_FALSE(row.get(this->over(gate_of(row.name) + contents), read));
      EXPECT_EQ(S::read(read), S::read(S::untouched()));
    }
  }
}

TYPED_TEST(EveryAccessor, YieldsFalseWithoutAFile) {
  using S = Sample<TypeParam>;
  for (const auto& row : this->rows()) {
    SCOPED_TRACE(row.name);
    Object none;
    TypeParam read = S::untouched();
    if (row.get) {
      EXPECT_FALSE(row.get(none, read));
      EXPECT_FALSE(row.get(this->over_missing_file(), read));
      if (kGated.count(row.name) == 0) {
        EXPECT_EQ(S::read(read), S::read(S::untouched()));
      }
    }
    if (row.set) {
      EXPECT_FALSE(row.set(none, S::first())) << "no path was ever set";
    }
  }
  EXPECT_FALSE(exists(this->path_));
}

TYPED_TEST(EveryAccessor, SetsItsKeyInANewFileAndStampsIt) {
  using S = Sample<TypeParam>;
  for (const auto& row : this->rows()) {
    SCOPED_TRACE(row.name);
    if (!row.set) {
      continue;
    }
    Object& object = this->over_missing_file();
    EXPECT_TRUE(row.set(object, S::first()));
    EXPECT_EQ(this->masked_bytes(), native(this->new_file(row, S::text(S::first()))));
    std::filesystem::remove(this->path_);
  }
}

TYPED_TEST(EveryAccessor, AppendsAMissingKeyAtTheEndOfTheFile) {
  using S = Sample<TypeParam>;
  for (const auto& row : this->rows()) {
    SCOPED_TRACE(row.name);
    if (!row.set) {
      continue;
    }
    const std::string before = std::string(row.section) + "\nOther = 1\n[Last]\nx = 1\n";
    Object& object = this->over("[FileHeader]\nDate = 2001/01/01 00:00:00\n" + before);
    EXPECT_TRUE(row.set(object, S::first()));
    EXPECT_EQ(this->masked_bytes(),
              "[FileHeader]\n" + kMaskedDate + before + entry(row.key, S::text(S::first())));
    TypeParam read = S::untouched();
    if (row.get && kGated.count(row.name) == 0) {
      EXPECT_TRUE(row.get(object, read));
      EXPECT_EQ(S::read(read), S::text(S::first()));
    }
  }
}

TYPED_TEST(EveryAccessor, ReplacesItsLineWhereItStandsAndNeverShortensTheFile) {
  using S = Sample<TypeParam>;
  for (const auto& row : this->rows()) {
    SCOPED_TRACE(row.name);
    if (!row.set) {
      continue;
    }
    const std::string old_line = std::string(row.key) + "=" + std::string(60, 'v') + "\n";
    const std::string before =
        "[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00") + std::string(row.section) + "\n";
    const std::string after = "[Last]\nx = 1\n";
    Object& object = this->over(before + old_line + after);
    EXPECT_TRUE(row.set(object, S::second()));
    const std::string line = entry(row.key, S::text(S::second()));
    ASSERT_GT(old_line.size(), line.size());
    EXPECT_EQ(this->masked_bytes(),
              masked(before) + line + after + std::string(old_line.size() - line.size(), ' '));
  }
}

TYPED_TEST(EveryAccessor, ConvertsTextThatIsNoNumberToNothingAndYieldsTrue) {
  using S = Sample<TypeParam>;
  if constexpr (!std::is_same_v<TypeParam, char*>) {
    for (const auto& row : this->rows()) {
      SCOPED_TRACE(row.name);
      if (!row.get) {
        continue;
      }
      for (const char* text : {" = none", " =", ""}) {
        TypeParam read = S::untouched();
        EXPECT_TRUE(row.get(
            this->over(gate_of(row.name) + row.section + "\n" + row.key + text + "\n"), read));
        EXPECT_EQ(read, S::untouched());
      }
    }
  }
}

class EveryPoint : public ProcessObject {};

TEST_F(EveryPoint, IsReadFromItsKey) {
  for (const auto& row : point_accessors()) {
    SCOPED_TRACE(row.name);
    double x = 777;
    double y = 777;
    EXPECT_TRUE(
        row.get(over(std::string(row.section) + "\n" + row.key + " = 1.5  \t20 tail\n"), x, y));
    EXPECT_EQ(x, 1.5);
    EXPECT_EQ(y, 20);
  }
}

TEST_F(EveryPoint, OfOneNumberSetsXAlone) {
  for (const auto& row : point_accessors()) {
    SCOPED_TRACE(row.name);
    double x = 777;
    double y = 777;
    EXPECT_TRUE(row.get(over(std::string(row.section) + "\n" + row.key + " = 1.5\n"), x, y));
    EXPECT_EQ(x, 1.5);
    EXPECT_EQ(y, 777);
  }
}

TEST_F(EveryPoint, IsLeftAloneWithoutItsKey) {
  for (const auto& row : point_accessors()) {
    SCOPED_TRACE(row.name);
    double x = 777;
    double y = 777;
    EXPECT_FALSE(row.get(over(std::string(row.section) + "\n"), x, y));
    EXPECT_FALSE(row.get(over_missing_file(), x, y));
    EXPECT_EQ(x, 777);
    EXPECT_EQ(y, 777);
  }
}

TEST_F(EveryPoint, IsWrittenWithATabAndLeavesTheCountAlone) {
  for (const auto& row : point_accessors()) {
    SCOPED_TRACE(row.name);
    if (!row.set) {
      continue;
    }
    const std::string section = std::string(row.section) + "\nFRSet = 2\n";
    EXPECT_TRUE(
        row.set(over("[FileHeader]\nDate = 2001/01/01 00:00:00\n" + section), 0.5, -1.5e-7));
    EXPECT_EQ(masked_bytes(),
              "[FileHeader]\n" + kMaskedDate + section + entry(row.key, "0.5\t-1.5e-007"));
  }
}

}  // namespace
}  // namespace qelpro_test
