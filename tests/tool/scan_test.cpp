#include "scan/scan.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "file/entries.h"
#include "file/typed.h"
#include "support/scratch.h"
#include "system/failure.h"

// The scan of many files: what it finds is what a reader of each file finds, one after the other.

namespace {

using namespace qelpro_test;
using qelpro::ScannedColumn;
using qelpro::ScannedFile;
using qelpro::ScannedTable;
using qelpro::ScannedValue;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

ScannedTable scan(const std::vector<ScannedFile>& files, const std::vector<std::string>& words,
                  std::size_t threads = 1) {
  return qelpro::scan_files(files, words, threads, [] { return true; });
}

std::vector<ScannedValue> values_of(const ScannedColumn& column) {
  std::vector<ScannedValue> values;
  for (std::size_t index = 0; index < column.values.size(); ++index) {
    values.push_back(column.values.at(index));
  }
  return values;
}

std::vector<std::string> names_of(const ScannedTable& table) {
  std::vector<std::string> names;
  for (const ScannedColumn& column : table.columns) {
    names.push_back(column.name);
  }
  return names;
}

struct Scan : testing::Test {
  Scratch scratch;

  ScannedFile file(const std::string& name, const std::string& contents) const {
    return {scratch.file(contents, name), name};
  }
};

TEST_F(Scan, FindsTheValuesOfEachFile) {
  const ScannedTable table = scan({file("a.pro", "[Flow-1]\nFillTime = 1.5\nFRSet = 2\n"),
                                   file("b.pro", "[Flow-1]\nFRSet = 3\n"),
                                   file("c.pro", "[Flow-1]\nFillTime = 2\nFR-1 = 0 50\n")},
                                  {"Flow-1.FillTime", "Flow-1.FRSet", "Flow-1.FR-1"});
  ASSERT_EQ(table.columns.size(), 3U);
  EXPECT_THAT(table.columns[0].rows, ElementsAre(0, 2));
  EXPECT_THAT(values_of(table.columns[0]), ElementsAre(ScannedValue(1.5), ScannedValue(2.0)));
  EXPECT_THAT(table.columns[1].rows, ElementsAre(0, 1));
  EXPECT_THAT(values_of(table.columns[1]), ElementsAre(ScannedValue(2), ScannedValue(3)));
  EXPECT_THAT(table.columns[2].rows, ElementsAre(2));
  EXPECT_THAT(values_of(table.columns[2]),
              ElementsAre(ScannedValue(std::vector<qel::Field>{0.0, 50.0})));
  EXPECT_THAT(table.errors, IsEmpty());
}

TEST_F(Scan, HasColumnsInTheOrderOfTheWordsAndThenOfFirstAppearance) {
  const ScannedTable table =
      scan({file("a.pro", "[Flow-2]\nMeltTemp = 1\n"),
            file("b.pro", "[Flow-3]\nMeltTemp = 1\n[Flow-1]\nMeltTemp = 2\n")},
           {"Cool.CoolTime", "Flow-*.MeltTemp", "Unit.Time"});
  EXPECT_THAT(names_of(table), ElementsAre("Cool.CoolTime", "Flow-2.MeltTemp", "Flow-3.MeltTemp",
                                           "Flow-1.MeltTemp", "Unit.Time"));
}

TEST_F(Scan, HasAPatternsColumnsInTheOrderInWhichItFindsThem) {
  // A later word names one of them, too.
  const std::vector<ScannedFile> files{file("a.pro", "[Flow-3]\nMeltTemp = 1\n"),
                                       file("b.pro", "[Flow-1]\nMeltTemp = 2\n")};
  for (const std::size_t threads : {1U, 2U}) {
    EXPECT_THAT(names_of(scan(files, {"Flow-*.MeltTemp", "Unit.Time", "Flow-1.MeltTemp"}, threads)),
                ElementsAre("Flow-3.MeltTemp", "Flow-1.MeltTemp", "Unit.Time"));
  }
}

TEST_F(Scan, HasOneColumnOfAnAddressThatSeveralWordsName) {
  const std::vector<ScannedFile> files{file("a.pro", "[Flow-1]\nMeltTemp = 1\n"),
                                       file("b.pro", "[Flow-1]\nMeltTemp = 2\n")};
  for (const std::vector<std::string>& words :
       std::vector<std::vector<std::string>>{{"Flow-1.MeltTemp", "Flow-*.MeltTemp"},
                                             {"Flow-*.MeltTemp", "Flow-1.MeltTemp"},
                                             {"Flow-1.MeltTemp", "Flow-1.MeltTemp"},
                                             {"Flow-*.MeltTemp", "*.MeltTemp"}}) {
    const ScannedTable table = scan(files, words);
    EXPECT_THAT(names_of(table), ElementsAre("Flow-1.MeltTemp"));
    EXPECT_THAT(values_of(table.columns.at(0)), ElementsAre(ScannedValue(1.0), ScannedValue(2.0)));
    EXPECT_EQ(table.columns.at(0).request, 0U);
  }
}

TEST_F(Scan, TellsTheFirstErrorOfEachFileAndKeepsItsOtherValues) {
  const ScannedTable table =
      scan({{scratch.path("none.pro"), "none.pro"},
            file("a.pro", "[Flow-1]\nFillTime = 1,5\nMeltTemp = abc\nMoldTemp = 60\n"),
            file("b.pro", "[Flow-1]\nMoldTemp = 61\n")},
           {"Flow-1.FillTime", "Flow-1.MeltTemp", "Flow-1.MoldTemp"});
  ASSERT_EQ(table.errors.size(), 2U);
  EXPECT_EQ(table.errors[0].row, 0U);
  EXPECT_THAT(table.errors[0].message, HasSubstr("none.pro"));
  EXPECT_THROW(std::rethrow_exception(table.errors[0].reason), qelpro::SystemFailure);
  EXPECT_EQ(table.errors[1].row, 1U);
  EXPECT_THAT(table.errors[1].message, HasSubstr("a.pro:2: [Flow-1] FillTime: \"1,5\""));
  EXPECT_THAT(table.columns[2].rows, ElementsAre(1, 2));
}

TEST_F(Scan, RefusesAWordThatIsNoAddress) {
  for (const char* const word : {"Flow-1", "[Flow-1]", "[Flow-1].FillTime", ""}) {
    EXPECT_THROW(scan({}, {word}), qelpro::Failure) << word;
  }
}

TEST_F(Scan, StopsWhereItsCallerDoesNotWatchOn) {
  // Each is read in a moment, and all of them in some: the first look comes before the last file.
  const std::vector<ScannedFile> files(2'000'000, file("a.pro", "[Flow-1]\nFillTime = 1\n"));
  const ScannedTable table =
      qelpro::scan_files(files, {"Flow-1.FillTime"}, 1, [] { return false; });
  EXPECT_LT(table.columns.at(0).rows.size(), files.size());
}

TEST_F(Scan, HasTheSameTableOnAnyNumberOfThreads) {
  std::vector<ScannedFile> files;
  for (int number = 0; number < 700; ++number) {
    const std::string section = "[Flow-" + std::to_string(number % 5 + 1) + "]\n";
    files.push_back(file(std::to_string(number), section + "FillTime = " + std::to_string(number) +
                                                     (number % 7 == 0 ? "x" : "") +
                                                     "\nName = " + std::to_string(number) +
                                                     "\nFRSet = " + std::to_string(number) + "\n"));
  }
  const std::vector<std::string> words{"Flow-*.FillTime", "Flow-2.Name", "Flow-*.FR*"};
  const ScannedTable one = scan(files, words, 1);
  const ScannedTable four = scan(files, words, 4);
  EXPECT_EQ(names_of(one), names_of(four));
  ASSERT_EQ(one.columns.size(), four.columns.size());
  EXPECT_EQ(one.columns.size(), 11U);
  for (std::size_t index = 0; index < one.columns.size(); ++index) {
    EXPECT_EQ(one.columns[index].rows, four.columns[index].rows);
    EXPECT_EQ(values_of(one.columns[index]), values_of(four.columns[index]));
  }
  ASSERT_EQ(one.errors.size(), 100U);
  ASSERT_EQ(four.errors.size(), 100U);
  for (std::size_t index = 0; index < one.errors.size(); ++index) {
    EXPECT_EQ(one.errors[index].row, four.errors[index].row);
    EXPECT_EQ(one.errors[index].message, four.errors[index].message);
  }
}

TEST(ScannedValues, KeepWhatEachIs) {
  qelpro::ScannedValues values;
  EXPECT_TRUE(values.are_whole());
  values.push_back(1);
  EXPECT_TRUE(values.are_whole());
  values.push_back(2.0);
  EXPECT_FALSE(values.are_whole());
  EXPECT_FALSE(values.are_real());
  EXPECT_TRUE(values.are_numbers());
  qelpro::ScannedValues others;
  others.push_back(std::string("three"));
  others.push_back(4);
  EXPECT_FALSE(others.are_numbers());
  values.append(others);
  values.append(others);
  EXPECT_FALSE(values.are_numbers());
  const std::vector<ScannedValue> expected{1, 2.0, std::string("three"), 4, std::string("three"),
                                           4};
  ASSERT_EQ(values.size(), expected.size());
  for (std::size_t index = 0; index < expected.size(); ++index) {
    EXPECT_EQ(values.at(index), expected[index]);
  }
  qelpro::ScannedValues reals;
  reals.push_back(1.0);
  EXPECT_TRUE(reals.are_real());
}

// A text of the lines, odd ones among them, that files have.
std::string random_text(std::mt19937& chance) {
  static const std::vector<std::string> kPieces{"[Flow-1]\n",
                                                "[Flow-2]\r\n",
                                                "[Flow-1] of old\n",
                                                "[Flow-10]\n",
                                                "[A.B]\n",
                                                "[A]\n",
                                                "[Flow-*]\n",
                                                "[Odd name] more\n",
                                                "[Flow-1\n",
                                                "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n",
                                                "FillTime = 1.5\n",
                                                "FillTime\n",
                                                "FillTime = 1,5\n",
                                                " FillTime = 7\n",
                                                "MeltTemp\t= 2e2\r\n",
                                                "MeltTemp=240 ; note\n",
                                                "FRSet = 3\n",
                                                "FRSet = 3.5\n",
                                                "FR-1 = 0 50\n",
                                                "FR-1 = 0\n",
                                                "B.C = x\n",
                                                "C = y\n",
                                                "C\n",
                                                "; FillTime = 3\n",
                                                "# C = 1\n",
                                                "//C = 1\n",
                                                "\n",
                                                "1 = 2 3.5 4.5\n",
                                                std::string("MeltTemp = 2\0 5\n", 16),
                                                std::string("C = \xFF\xFE\n"),
                                                "C = " + std::string(5000, 'c') + "\n",
                                                "= 3\n",
                                                "\x1A",
                                                "FillTime = nan\n"};
  std::string text = chance() % 20 == 0 ? "\xEF\xBB\xBF" : "";
  for (auto count = chance() % 25; count != 0; --count) {
    text += kPieces[chance() % kPieces.size()];
  }
  if (chance() % 20 == 0) {
    text.resize(chance() % (text.size() + 1));
  }
  return text;
}

// What a reader of one file finds, which looks at all of it.
using Row = std::map<std::string, ScannedValue>;
Row read_alone(const std::string& contents, const std::vector<std::string>& words,
               bool& has_failed) {
  Row row;
  try {
    const qelpro::SectionedText document = qelpro::document_text("file", contents);
    const qelpro::Entries entries(document);
    for (const std::string& word : words) {
      const qelpro::Request request = qelpro::requests_of({word}).front();
      for (const qelpro::FileEntry* const entry : entries.find(request)) {
        qelpro::TypedValue typed = qelpro::typed_value(entries, *entry);
        const std::string name =
            request.is_pattern ? qelpro::text_of(entries.address_of(*entry)) : word;
        if (typed.unread) {
          has_failed = true;
        } else if (typed.fields.empty()) {
          row.try_emplace(name, std::string(entry->value));
        } else if (typed.fields.size() > 1) {
          row.try_emplace(name, std::move(typed.fields));
        } else if (const int* const whole = std::get_if<int>(&typed.fields.front())) {
          row.try_emplace(name, *whole);
        } else if (const double* const real = std::get_if<double>(&typed.fields.front())) {
          row.try_emplace(name, *real);
        } else {
          row.try_emplace(name, std::get<std::string>(typed.fields.front()));
        }
      }
    }
  } catch (const qelpro::Failure&) {
    has_failed = true;
  }
  return row;
}

// One that is not a number is equal to itself here.
bool is_same(const Row& one, const Row& other) {
  return std::ranges::equal(one, other, [](const auto& a, const auto& b) {
    const double* const first = std::get_if<double>(&a.second);
    const double* const second = std::get_if<double>(&b.second);
    const bool are_nan =
        first != nullptr && second != nullptr && *first != *first && *second != *second;
    return a.first == b.first && (are_nan || a.second == b.second);
  });
}

TEST_F(Scan, FindsWhatAReaderOfEachFileFinds) {
  const std::vector<std::vector<std::string>> questions{
      {"Flow-1.FillTime", "Flow-*.MeltTemp"},
      {"*"},
      {"*.C", "A.B.C", "?.?", "Flow-?.F*"},
      {"Flow-1.FR-1", "Flow-1.FRSet", "Flow-*.FillTime", "Flow-2.FillTime"},
      {"SURFACE.#1", "SURFACE*", "Odd name.C", "*0.Fill*"},
      {"*[-]1.*e", "Flow-1].C", "A.C", "A.B.B.C", "Flow-*.C"}};
  std::mt19937 chance(20261122);
  constexpr int kFiles = 1500;
  std::vector<std::string> contents;
  std::vector<ScannedFile> files;
  for (int number = 0; number < kFiles; ++number) {
    contents.push_back(random_text(chance));
    files.push_back(file(std::to_string(number), contents.back()));
  }
  std::size_t found = 0;
  std::size_t failed = 0;
  for (const std::vector<std::string>& words : questions) {
    const ScannedTable table = scan(files, words, 2);
    std::vector<Row> rows(files.size());
    for (const ScannedColumn& column : table.columns) {
      for (std::size_t index = 0; index < column.rows.size(); ++index) {
        rows[column.rows[index]].emplace(column.name, column.values.at(index));
      }
    }
    std::vector<bool> have_failed(files.size());
    for (const qelpro::ScanError& error : table.errors) {
      have_failed[error.row] = true;
    }
    for (std::size_t row = 0; row < files.size(); ++row) {
      bool has_failed = false;
      const Row alone = read_alone(contents[row], words, has_failed);
      ASSERT_TRUE(is_same(rows[row], alone)) << words.front() << "\n" << contents[row];
      ASSERT_EQ(have_failed[row], has_failed) << words.front() << "\n" << contents[row];
      found += alone.size();
      failed += has_failed ? 1 : 0;
    }
  }
  // There is something to be found, and something that fails.
  EXPECT_GT(found, 5'000U);
  EXPECT_GT(failed, 500U);
}

}  // namespace
