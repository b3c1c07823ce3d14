#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "support/comma_locale.h"
#include "support/in_c_locale.h"
#include "support/scratch.h"

namespace qelpro_test {
namespace {

using Properties = std::vector<double>;

// None when the member says no; the outputs must be untouched then.
std::optional<Properties> properties(CQELPCSInterpolator& tables, int coolant, double argument) {
  Properties p(4, -777);
  if (tables.InterpolateCoolantProperties(coolant, argument, p[0], p[1], p[2], p[3])) {
    return p;
  }
  EXPECT_EQ(p, Properties(4, -777));
  return std::nullopt;
}

class CoolantTables : public testing::Test {
 protected:
  bool load(const std::string& contents) {
    return tables_.LoadDataFromFile(scratch_.file(contents, "coolants.pcs").c_str());
  }
  std::optional<Properties> at(int coolant, double argument) {
    return properties(tables_, coolant, argument);
  }

  Scratch scratch_;
  CQELPCSInterpolator tables_;
};

constexpr const char* kTwoRows =
    "[Coolant-1]\nName = Oil\nDataCount = 2\nData-1 = 10 1 2 3 4\nData-2 = 20 3 6 -3 4\n";

TEST_F(CoolantTables, AnswerNothingBeforeTheyAreLoaded) { EXPECT_FALSE(at(1, 15)); }

TEST_F(CoolantTables, AreLinearBetweenTwoRows) {
  ASSERT_TRUE(load(kTwoRows));
  EXPECT_EQ(at(1, 15), Properties({2, 4, 0, 4}));
  EXPECT_EQ(at(1, 12.5), Properties({1.5, 3, 1.5, 4}));
}

TEST_F(CoolantTables, GiveTheEndRowsOutsideOfThem) {
  ASSERT_TRUE(load(kTwoRows));
  EXPECT_EQ(at(1, 10), Properties({1, 2, 3, 4}));
  EXPECT_EQ(at(1, -1e300), Properties({1, 2, 3, 4}));
  EXPECT_EQ(at(1, 20), Properties({3, 6, -3, 4}));
  EXPECT_EQ(at(1, std::numeric_limits<double>::infinity()), Properties({3, 6, -3, 4}));
}

TEST_F(CoolantTables, OfOneRowGiveItForAnyArgument) {
  ASSERT_TRUE(load("[Coolant-2]\nDataCount = 1\nData-1 = 50 1 2 3 4\n"));
  for (const double argument : {-10.0, 50.0, 1e9, std::nan("")}) {
    EXPECT_EQ(at(2, argument), Properties({1, 2, 3, 4}));
  }
}

TEST_F(CoolantTables, GiveZeroForAnArgumentThatIsNoNumber) {
  ASSERT_TRUE(load(kTwoRows));
  EXPECT_EQ(at(1, std::nan("")), Properties({0, 0, 0, 0}));
}

TEST_F(CoolantTables, ShiftIdentifiersFromSixOnAndRefuseThreeToFive) {
  std::string contents;
  for (const int number : {-1, 0, 1, 2, 3, 4, 5, 6, 7}) {
    contents += "[Coolant-" + std::to_string(number) + "]\nDataCount = 1\nData-1 = 0 " +
                std::to_string(number) + " 0 0 0\n";
  }
  ASSERT_TRUE(load(contents));
  const struct {
    int identifier;
    int number;
  } rows[] = {{-1, -1}, {0, 0}, {1, 1}, {2, 2}, {6, 3}, {7, 4}, {8, 5}, {9, 6}, {10, 7}};
  for (const auto& row : rows) {
    EXPECT_EQ(at(row.identifier, 0), Properties({static_cast<double>(row.number), 0, 0, 0}))
        << row.identifier;
  }
  for (const int refused : {3, 4, 5, 11, -2, 2147483647, -2147483647 - 1}) {
    EXPECT_FALSE(at(refused, 0)) << refused;
  }
}

TEST_F(CoolantTables, TakeASectionWithoutANumberForNoCoolant) {
  for (const char* name : {"[Coolant-Water]", "[Coolant-]", "[Coolant-x0]", "[Coolant--]"}) {
    ASSERT_TRUE(load(
        std::string(name) +
        "\nDataCount = 1\nData-1 = 0 9 9 9 9\n[Coolant-0]\nDataCount = 1\nData-1 = 0 1 2 3 4\n"));
    EXPECT_EQ(at(0, 0), Properties({1, 2, 3, 4})) << name;
    ASSERT_TRUE(load("[Coolant-1]\nDataCount = 1\nData-1 = 0 1 2 3 4\n" + std::string(name) +
                     "\nDataCount = 1\nData-1 = 0 9 9 9 9\n"));
    EXPECT_FALSE(at(0, 0)) << name;
    EXPECT_EQ(at(1, 0), Properties({1, 2, 3, 4}))
        << "its lines belong to no other coolant: " << name;
  }
}

TEST_F(CoolantTables, TakeTheFirstOfTwoSectionsOfOneNumber) {
  ASSERT_TRUE(
      load("[Coolant-1]\nDataCount = 1\nData-1 = 0 1 0 0 0\n[Coolant-1]\nDataCount = 1\nData-1 = 0 "
           "2 0 0 0\n"));
  EXPECT_EQ(at(1, 0), Properties({1, 0, 0, 0}));
  ASSERT_TRUE(load("[Coolant-1]\nName = x\n[Coolant-1]\nDataCount = 1\nData-1 = 0 2 0 0 0\n"));
  EXPECT_FALSE(at(1, 0)) << "the first has no count";
}

TEST_F(CoolantTables, NeedAPositiveCount) {
  for (const char* count :
       {"", "DataCount = 0\n", "DataCount = -3\n", "DataCount = x\n", "DataCount =\n"}) {
    ASSERT_TRUE(load("[Coolant-1]\n" + std::string(count) + "Data-1 = 0 1 2 3 4\n"));
    EXPECT_FALSE(at(1, 0)) << count;
  }
}

TEST_F(CoolantTables, LeaveRowsWithoutFiveNumbersAtZero) {
  for (const char* numbers : {"10 1 2 3", "10 1 2 3 x", "", "x"}) {
    ASSERT_TRUE(load("[Coolant-1]\nDataCount = 1\nData-1 = " + std::string(numbers) + "\n"));
    EXPECT_EQ(at(1, 0), Properties({0, 0, 0, 0})) << numbers;
  }
  ASSERT_TRUE(load("[Coolant-1]\nDataCount = 1\nData-1 = 10 1 2 3 4 5 tail\n"));
  EXPECT_EQ(at(1, 0), Properties({1, 2, 3, 4}));
}

TEST_F(CoolantTables, IgnoreRowsOutsideOfTheCount) {
  ASSERT_TRUE(
      load("[Coolant-1]\nDataCount = 1\nData-0 = 1 9 9 9 9\nData-2 = 1 9 9 9 9\nData--1 = 1 9 9 9 "
           "9\nData-x = 1 9 9 9 9\nData-1 = 0 1 2 3 4\n"
           "Data-2147483648 = 1 9 9 9 9\nData-4294967297 = 1 9 9 9 9\nData--4294967295 = 1 9 9 9 "
           "9\nData-18446744073709551617 = 1 9 9 9 9\n"));
  EXPECT_EQ(at(1, 0), Properties({1, 2, 3, 4}));
}

TEST_F(CoolantTables, IgnoreRowsBeforeTheCountAndForgetThemAtANewOne) {
  ASSERT_TRUE(load("[Coolant-1]\nData-1 = 0 9 9 9 9\nDataCount = 1\n"));
  EXPECT_EQ(at(1, 0), Properties({0, 0, 0, 0}));
  ASSERT_TRUE(load("[Coolant-1]\nDataCount = 1\nData-1 = 0 9 9 9 9\nDataCount = 1\n"));
  EXPECT_EQ(at(1, 0), Properties({0, 0, 0, 0}));
}

TEST_F(CoolantTables, KeepTheirCountAndRowsOverALineWithoutACount) {
  ASSERT_TRUE(load(std::string(kTwoRows) + "DataCount = many\nDataCount =\nDataCount = -\n"));
  EXPECT_EQ(at(1, 15), Properties({2, 4, 0, 4}));
  ASSERT_TRUE(load("[Coolant-1]\nDataCount = many\nDataCount = 1\nData-1 = 0 1 2 3 4\n"));
  EXPECT_EQ(at(1, 15), Properties({1, 2, 3, 4}));
}

TEST_F(CoolantTables, TakeTheLastOfTwoLinesOfOneRow) {
  ASSERT_TRUE(
      load("[Coolant-1]\nDataCount = 1\nData-1 = 0 1 1 1 1\nData-1 = 0 2 2 2 2\nData-1 = 0 3 3\n"));
  EXPECT_EQ(at(1, 0), Properties({2, 2, 2, 2}));
}

TEST_F(CoolantTables, TellKeysByWhatTheyContain) {
  ASSERT_TRUE(load("[Coolant-1]\nMyDataCount = 1\nxData-1y = 0 1 2 3 4\nDataCountName = 7\n"));
  EXPECT_EQ(at(1, 0), Properties({1, 2, 3, 4})) << "the last line is a name";
}

TEST_F(CoolantTables, TakeABlankForTheFirstEqualsSign) {
  ASSERT_TRUE(load("[Coolant-1]\nDataCount 1\nData-1=0 1 2 3 4\n"));
  EXPECT_EQ(at(1, 0), Properties({1, 2, 3, 4}));
  ASSERT_TRUE(load("[Coolant-1]\n  DataCount\t=\t1\n\tData-1 = 0\t1\t2\t3\t4\n"));
  EXPECT_EQ(at(1, 0), Properties({1, 2, 3, 4}));
  ASSERT_TRUE(load("[Coolant-1]\nDataCount = 1\nData-1 = = 0 1 2 3 4\n"));
  EXPECT_EQ(at(1, 0), Properties({0, 0, 0, 0})) << "the second stays";
}

TEST_F(CoolantTables, EndASectionAtAnyBracket) {
  ASSERT_TRUE(load("DataCount = 1\n[x Coolant-1]\nDataCount = 1\n[Coolant-1]\n[\nDataCount = 1\n"));
  EXPECT_FALSE(at(1, 0));
  ASSERT_TRUE(
      load("[a [Coolant-1 tail\nDataCount = 1\nData-1 = 0 1 2 3 4\n[Coolant-2]\nDataCount = 1\n"));
  EXPECT_EQ(at(1, 0), Properties({1, 2, 3, 4}))
      << "the name may stand anywhere behind a first bracket";
  EXPECT_EQ(at(2, 0), Properties({0, 0, 0, 0})) << "the line that ends a section begins the next";
}

TEST_F(CoolantTables, EndAtTheEndMark) {
  ASSERT_TRUE(load("[Coolant-1]\nDataCount = 1\n[EOF]\n[Coolant-2]\nDataCount = 1\n"));
  EXPECT_TRUE(at(1, 0));
  EXPECT_FALSE(at(2, 0));
}

TEST_F(CoolantTables, ReadEitherLineBreakAMissingLastOneAndAByteOrderMark) {
  ASSERT_TRUE(load(
      "\xEF\xBB\xBF[Coolant-1]\r\nDataCount = 2\r\nData-1 = 10 1 2 3 4\r\nData-2 = 20 3 6 -3 4"));
  EXPECT_EQ(at(1, 15), Properties({2, 4, 0, 4}));
}

TEST_F(CoolantTables, AreGoneWhenTheNextFileCannotBeOpened) {
  ASSERT_TRUE(load(kTwoRows));
  EXPECT_FALSE(tables_.LoadDataFromFile(scratch_.path("missing.pcs").c_str()));
  EXPECT_FALSE(at(1, 15));
  ASSERT_TRUE(load(kTwoRows));
  EXPECT_FALSE(tables_.LoadDataFromFile(nullptr));
  EXPECT_FALSE(tables_.LoadDataFromFile(scratch_.path("").c_str()));
}

TEST_F(CoolantTables, OfCopiesAreShared) {
  ASSERT_TRUE(load(kTwoRows));
  auto first = std::make_unique<CQELPCSInterpolator>(tables_);
  CQELPCSInterpolator second;
  second = *first;
  const CQELPCSInterpolator& same = second;
  second = same;
  first.reset();
  ASSERT_TRUE(load("[Coolant-2]\nDataCount = 1\n"));
  EXPECT_EQ(properties(second, 1, 15), Properties({2, 4, 0, 4}))
      << "a new file goes to the object that loads it";
  EXPECT_FALSE(at(1, 15));
  EXPECT_EQ(sizeof(CQELPCSInterpolator), sizeof(void*));
}

TEST_F(CoolantTables, ReadTheSameNumbersInAHostOfAnotherLocale) {
  const CommaLocale comma;
  if (!comma.is_set()) {
    GTEST_SKIP() << "the machine has no locale with a decimal comma";
  }
  const bool loaded = load("[Coolant-1]\nDataCount = 1\nData-1 = 0.5 1.25 2.5 3.75 4.125\n");
  ASSERT_TRUE(loaded);
  EXPECT_EQ(at(1, 0), Properties({1.25, 2.5, 3.75, 4.125}));
}

// The interpolation of a column in other words: the rows are known to ascend.
double expected_value(const std::vector<double>& x, const std::vector<double>& y, double t) {
  const auto above = std::lower_bound(x.begin(), x.end(), t);
  if (above == x.begin()) {
    return y.front();
  }
  if (above == x.end()) {
    return y.back();
  }
  const auto i = static_cast<std::size_t>(above - x.begin());
  const double share = (t - x[i - 1]) / (x[i] - x[i - 1]);
  return y[i - 1] * (1 - share) + y[i] * share;
}

std::string number(double value) { return printed("%.17g", value); }

TEST_F(CoolantTables, AgreeWithAnIndependentFormulaForEverySize) {
  std::mt19937 random(20261121);
  std::uniform_real_distribution<double> step(0.01, 5);
  std::uniform_real_distribution<double> value(-100, 100);
  for (int rows = 2; rows <= 200; ++rows) {
    std::vector<double> x;
    std::vector<std::vector<double>> y(4);
    std::string contents = "[Coolant-1]\nDataCount = " + std::to_string(rows) + "\n";
    double argument = value(random);
    for (int row = 1; row <= rows; ++row) {
      x.push_back(argument += step(random));
      contents += "Data-" + std::to_string(row) + " = " + number(argument);
      for (auto& column : y) {
        column.push_back(value(random));
        contents += " " + number(column.back());
      }
      contents += "\n";
    }
    ASSERT_TRUE(load(contents));
    std::vector<double> arguments = {x.front() - 1, x.back() + 1};
    for (std::size_t i = 0; i < x.size(); ++i) {
      arguments.push_back(x[i]);
      if (i > 0) {
        arguments.push_back((x[i - 1] + x[i]) / 2);
        arguments.push_back(x[i - 1] + (x[i] - x[i - 1]) * 0.9);
      }
    }
    for (const double t : arguments) {
      const auto found = at(1, t);
      ASSERT_TRUE(found);
      for (std::size_t property = 0; property < 4; ++property) {
        ASSERT_NEAR((*found)[property], expected_value(x, y[property], t), 1e-9)
            << rows << " rows at " << t;
      }
    }
    for (std::size_t i = 0; i < x.size(); ++i) {
      ASSERT_EQ((*at(1, x[i]))[0], y[0][i]) << "on row " << i;
    }
  }
}

// The search step by step over a whole table in memory, for rows in any order.
double searched_value(const std::vector<double>& x, const std::vector<double>& y, double t) {
  const int n = static_cast<int>(x.size());
  const auto xs = [&](int i) { return x[static_cast<std::size_t>(i)]; };
  const auto ys = [&](int i) { return y[static_cast<std::size_t>(i)]; };
  if (t <= xs(0)) {
    return ys(0);
  }
  if (t >= xs(n - 1)) {
    return ys(n - 1);
  }
  int low = 0;
  int high = n;
  if (n >= 9) {
    do {
      const int middle = (low - 1 + high) / 2;
      (xs(middle) > t ? high : low) = xs(middle) > t ? middle + 1 : middle;
    } while (high - low > 8);
  }
  for (int i = low + 1; i < high; ++i) {
    if (xs(i - 1) <= t && xs(i) >= t) {
      return ys(i - 1) + (ys(i) - ys(i - 1)) * (t - xs(i - 1)) / (xs(i) - xs(i - 1));
    }
  }
  return 0;
}

TEST_F(CoolantTables, OutOfOrderAnswerWhatTheSearchFinds) {
  std::mt19937 random(7007);
  std::uniform_int_distribution<int> whole(1, 60);
  int zeros = 0;
  for (int rows = 2; rows <= 60; ++rows) {
    std::vector<double> x;
    std::vector<double> y;
    std::string contents = "[Coolant-1]\nDataCount = " + std::to_string(rows) + "\n";
    for (int row = 1; row <= rows; ++row) {
      x.push_back(row % 5 == 0 ? 0 : whole(random) + row * 0.001);
      y.push_back(whole(random));
      if (row % 5 != 0) {  // a row that the file never gives is 0
        contents += "Data-" + std::to_string(row) + " = " + number(x.back()) + " " +
                    number(y.back()) + " 0 0 0\n";
      } else {
        y.back() = 0;
      }
    }
    ASSERT_TRUE(load(contents));
    for (double t = -0.5; t < 61; t += 0.75) {
      const double expected = searched_value(x, y, t);
      zeros += expected == 0 ? 1 : 0;
      ASSERT_EQ((*at(1, t))[0], expected) << rows << " rows at " << t;
    }
  }
  EXPECT_GT(zeros, 0) << "some arguments lie between no two rows";
}

TEST_F(CoolantTables, GiveTheRowWhereTwoRowsHaveOneArgument) {
  ASSERT_TRUE(
      load("[Coolant-1]\nDataCount = 4\nData-1 = 1 1 0 0 0\nData-2 = 2 5 0 0 0\nData-3 = 2 7 0 0 "
           "0\nData-4 = 3 9 0 0 0\n"));
  EXPECT_EQ((*at(1, 2))[0], 5);
  EXPECT_EQ((*at(1, 2.5))[0], 8);
}

TEST_F(CoolantTables, GiveARowOfTheirArgumentBesideAnInfiniteOne) {
  std::string contents = "[Coolant-1]\nDataCount = 40\n";
  for (int row = 1; row <= 40; ++row) {
    contents += "Data-" + std::to_string(row) + " = " + std::to_string(row) +
                (row % 2 == 0 ? " 2 2 2 2\n" : " inf 1 1 1\n");
  }
  ASSERT_TRUE(load(contents));
  for (int row = 1; row <= 40; ++row) {
    const auto properties = at(1, row);
    ASSERT_TRUE(properties.has_value());
    EXPECT_EQ((*properties)[0], row % 2 == 0 ? 2.0 : HUGE_VAL) << row;
  }
}

TEST_F(CoolantTables, OfAHugeCountCostNoMoreThanTheirRows) {
  const auto begin = std::chrono::steady_clock::now();
  ASSERT_TRUE(
      load("[Coolant-1]\nDataCount = 2147483647\nData-1 = 10 1 2 3 4\nData-2147483647 = 20 5 6 7 "
           "8\nData-1000000 = 15 9 9 9 9\n"));
  EXPECT_EQ(at(1, 10), Properties({1, 2, 3, 4}));
  EXPECT_EQ(at(1, 20), Properties({5, 6, 7, 8}));
  EXPECT_TRUE(at(1, 12));
  ASSERT_TRUE(load("[Coolant-1]\nDataCount = 2147483647\n"));
  EXPECT_EQ(at(1, -1), Properties({0, 0, 0, 0}));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5))
      << "it would take minutes, row by row";
}

TEST_F(CoolantTables, SurviveHostileFiles) {
  using namespace std::string_literals;
  for (const std::string& contents :
       {std::string(), "\0\xFF[Coolant-1]\0\n"s,
        "[Coolant-1]\nDataCount\0 = 1\nData-1 = 0 1 2 3 4\n"s, std::string(10 << 20, '['),
        "[Coolant-1]\nName = "s + std::string(10 << 20, 'n'),
        "[Coolant-99999999999999999999]\nDataCount = 99999999999999999999\n"s, "[Coolant-"s}) {
    EXPECT_TRUE(load(contents));
    for (int coolant = -2; coolant < 12; ++coolant) {
      at(coolant, 1);
    }
  }
}

TEST_F(CoolantTables, OfAFrontEndAreReadInFull) {
  ASSERT_TRUE(tables_.LoadDataFromFile(data_path("coolants.pcs").c_str()));
  const struct {
    int identifier;
    double first;
    double last;
  } rows[] = {{0, 10, 170}, {1, 10, 170}, {2, 10, 170}, {6, 10, 170}};
  for (const auto& row : rows) {
    const auto cold = at(row.identifier, row.first);
    const auto hot = at(row.identifier, row.last);
    ASSERT_TRUE(cold && hot) << row.identifier;
    EXPECT_EQ((*cold)[0], 1) << row.identifier;
    EXPECT_EQ((*cold)[1], 4.18e7);
    EXPECT_EQ((*cold)[2], 59800);
    EXPECT_EQ((*cold)[3], 0.013);
    EXPECT_EQ((*hot)[0], 0.936);
    EXPECT_EQ((*hot)[2], 66520);
    const auto between = at(row.identifier, 90);
    EXPECT_NEAR((*between)[0], 0.968, 1e-4) << row.identifier;
    EXPECT_NEAR((*between)[2], 63160, 10) << row.identifier;
  }
  EXPECT_EQ((*at(7, 0))[0], 0.98) << "the only row";
  EXPECT_FALSE(at(8, 0)) << "a coolant without a count";
}

}  // namespace
}  // namespace qelpro_test
