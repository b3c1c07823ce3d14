#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "core/document.h"
#include "support/naive_document.h"
#include "support/scratch.h"

// The engine beside the naive model of its rules.
namespace {

namespace naive = qelpro_test::naive;

using naive::Answer;
using qelpro_test::bytes_of;
using qelpro_test::put_bytes;
using qelpro_test::Scratch;

class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  bool chance(int percent) { return below(100) < percent; }

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  template <class Item>
  const Item& one_of(const std::vector<Item>& items) {
    return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))];
  }

  std::string section() {
    static const std::vector<std::string> kSections = {"[A]", "[B]", "[Flow-1]", "[Flow-10]",
                                                       "[SURFACE"};
    static const std::vector<std::string> kOdd = {"A",     "[not", "[A",   "",
                                                  "[A B]", "x",    "[A]]", "k\n"};
    return chance(93) ? one_of(kSections) : one_of(kOdd);
  }

  std::string key() {
    static const std::vector<std::string> kKeys = {
        "x", "xy", "FR", "FR-1", "FR-10", "GC-1", "aKeyOfMoreThanTwentyCharacters"};
    static const std::vector<std::string> kOdd = {"", "x y", "[A]", "[B", "x=", "]x", "x\x1A"};
    return chance(95) ? one_of(kKeys) : one_of(kOdd);
  }

  std::string value() {
    static const std::vector<std::string> kOdd = {"",      " ",   "a = b", "[A]",  "see [B] there",
                                                  "y]",    "1\n", "1\r\n", "1\n2", "\tt\t",
                                                  "x = 1", "=",   "\f1\f", "1\x1A"};
    if (chance(20)) {
      return one_of(kOdd);
    }
    if (chance(2)) {
      return std::string(static_cast<std::size_t>(4060 + below(45)), 'v');
    }
    return std::string(static_cast<std::size_t>(below(12)), 'v') + std::to_string(below(1000));
  }

  std::string line() {
    static const std::vector<std::string> kHeaders = {"[A]", "[B]", "[Flow-1]",
                                                      "[SURFACE ELEMENT BOUNDARY CONDITION NAME]"};
    static const std::vector<std::string> kOdd = {"",
                                                  " ",
                                                  "\t",
                                                  "[A] ",
                                                  "[B]\t ",
                                                  " [A]",
                                                  "[A] tail",
                                                  "[A] = 5",
                                                  "[not",
                                                  "not]",
                                                  "x",
                                                  "FR =",
                                                  "  x = indented",
                                                  "\tx = 1",
                                                  "x\t= 1",
                                                  "= 3",
                                                  "\r",
                                                  "x = 1\r",
                                                  "[A]]",
                                                  "]x = 9",
                                                  "GC-1 = [1",
                                                  "see [A]",
                                                  "[A][B]",
                                                  "x y = 1",
                                                  "[B] # note",
                                                  "[A]\tnote = 1",
                                                  "[SURFACE ELEMENT] note",
                                                  "x = \x1A",
                                                  "\x1A",
                                                  "[B]x y"};
    const int kind = below(100);
    if (kind < 25) {
      return one_of(kHeaders);
    }
    if (kind < 45) {
      return one_of(kOdd);
    }
    if (kind < 46) {
      const std::string part(static_cast<std::size_t>(4080 + below(30)), chance(30) ? ' ' : 'w');
      static const std::vector<std::string> kTails = {"", "x = tail", "[A]", "   ", "[B]x"};
      return part + one_of(kTails);
    }
    if (kind < 48) {
      return key() + " = a" + std::string(1, '\0') + "b";
    }
    return key() + (chance(70) ? " = " : "=") + value();
  }

  std::string file() {
    std::string bytes;
    if (chance(10)) {
      bytes += "\xEF\xBB\xBF";
    }
    const int breaks = below(3);  // "\n", "\r\n", both
    const int count = below(25);
    for (int i = 0; i < count; ++i) {
      bytes += line();
      bytes += breaks == 0 || (breaks == 2 && chance(50)) ? "\n" : "\r\n";
    }
    if (chance(25)) {
      bytes += line();
    }
    if (chance(25)) {
      bytes += std::string(static_cast<std::size_t>(below(40)), ' ');
    }
    if (chance(10)) {
      bytes += std::string(static_cast<std::size_t>(1 + below(2)), '\x1A');
    }
    return bytes;
  }

 private:
  std::mt19937 random_;
};

Answer look(CQELPROIO& document, const std::string& section, const std::string& key, int index) {
  char* value = nullptr;
  const int result = qel::to_int(document.GetValue(section.c_str(), key.c_str(), value, index));
  return {result, result == naive::kDone ? value : ""};
}

Answer look_once(CQELPROIO& document, const std::string& section, const std::string& key) {
  const auto value = qel::ValueBuffer::of_thread();
  const int result = qel::to_int(document.ReadOnce(section, key, value));
  return {result, result == naive::kDone ? value.text : ""};
}

Answer scan(CQELPROIO& document, const std::string& path, const std::string& section,
            const std::string& key) {
  const auto value = qel::ValueBuffer::of_thread_for_scans();
  const bool found = document.ScanValue(path.c_str(), section, key, value);
  return {found ? naive::kDone : 0, found ? value.text : ""};
}

// One file that is stored into and read in every way.
class Trial {
 public:
  explicit Trial(unsigned seed) : random_(seed), path_(scratch_.path()), bytes_(random_.file()) {
    put_bytes(path_, bytes_);
  }

  void store_some() {
    CQELPROIO document;
    ASSERT_TRUE(document.SetFilePath(path_.c_str(), CQELPROIO::kWriting));
    for (int i = random_.below(8); i > 0 && !testing::Test::HasFailure(); --i) {
      const std::string before = bytes_;
      const std::string section = random_.section();
      const std::string key = random_.key();
      const std::string value = random_.value();
      const int kind = random_.below(100);
      const int index = kind < 70 || kind >= 85 ? -1 : random_.below(7);
      int expected = 0;
      int result = 0;
      if (kind < 85) {
        expected = naive::store(bytes_, section, key, value, index, true);
        result = qel::to_int(document.SetValue(section.c_str(), key.c_str(), value.c_str(), index));
      } else if (kind < 90) {
        expected = naive::insert(bytes_, section, key, value);
        result = qel::to_int(
            document.InsertValue(path_.c_str(), section.c_str(), key.c_str(), value.c_str()));
      } else if (kind < 95) {
        expected = naive::replace(bytes_, section, key, value);
        result = qel::to_int(document.ReplaceValue(section.c_str(), key.c_str(), value.c_str()));
      } else {
        expected = naive::store(bytes_, section, key, value, -1, false);
        result = store_lent(section, key, value);
      }
      const auto what = [&] {
        return std::to_string(kind) + ": " + section + " | " + key + " | " + value + " | " +
               std::to_string(index) + "\nover " + testing::PrintToString(before);
      };
      EXPECT_EQ(result, expected) << what();
      ASSERT_TRUE(bytes_of(path_) == bytes_)
          << what() << "\nis " << testing::PrintToString(bytes_of(path_)) << "\nnot "
          << testing::PrintToString(bytes_);
      if (result == naive::kDone && kind < 70) {
        const Answer read = look(document, section, key, -1);
        EXPECT_EQ(read, naive::plain(bytes_, section, key, -1)) << what();
        EXPECT_EQ(read.text, naive::read_back(value)) << "a store is read back: " << what();
      }
    }
  }

  void look_around(CQELPROIO& reading, naive::Reading& model) {
    ASSERT_TRUE(reading.SetFilePath(path_.c_str(), CQELPROIO::kReading));
    CQELPROIO lent;
    std::FILE* stream = std::fopen(path_.c_str(), "r");
    ASSERT_TRUE(lent.SetFilePtr(stream));
    for (int i = 0; i < 12 && !testing::Test::HasFailure(); ++i) {
      const std::string section = random_.section();
      const std::string key = random_.chance(85) ? random_.key() : "";
      const int index = random_.chance(70) ? -1 : random_.below(8);
      const auto what = [&] {
        return section + " | " + key + " | " + std::to_string(index) + "\nin " +
               testing::PrintToString(bytes_);
      };
      EXPECT_EQ(look(reading, section, key, index), model.look(bytes_, section, key, index))
          << what();
      EXPECT_EQ(look(lent, section, key, index), naive::plain(bytes_, section, key, index))
          << what();
      EXPECT_EQ(look_once(reading, section, key), naive::once(bytes_, section, key)) << what();
      EXPECT_EQ(look_once(lent, section, key), naive::plain(bytes_, section, key, -1)) << what();
      EXPECT_EQ(scan(lent, path_, section, key), naive::whole_text(bytes_, section, key)) << what();
    }
    std::fclose(stream);
  }

 private:
  int store_lent(const std::string& section, const std::string& key, const std::string& value) {
    CQELPROIO lent;
    std::FILE* stream = std::fopen(path_.c_str(), "r+");
    const int result =
        lent.SetFilePtr(stream)
            ? qel::to_int(lent.SetValue(section.c_str(), key.c_str(), value.c_str(), -1))
            : -1;
    std::fclose(stream);
    return result;
  }

  Scratch scratch_;
  Generator random_;
  std::string path_;
  std::string bytes_;
};

TEST(Model, AgreesOnResultsAndBytes) {
  constexpr unsigned kRuns = 2000;
  for (unsigned seed = 1; seed <= kRuns && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Trial trial(seed);
    for (int round = 0; round < 2; ++round) {
      trial.store_some();
      CQELPROIO reading;
      naive::Reading model;
      trial.look_around(reading, model);
    }
  }
}

TEST(Model, AgreesOnAReadingDocumentThatGoesFromFileToFile) {
  constexpr unsigned kRuns = 300;
  for (unsigned seed = 100001; seed <= 100000 + kRuns && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    CQELPROIO reading;
    naive::Reading model;
    for (unsigned file = 0; file < 3; ++file) {
      Trial trial(seed * 3 + file);
      trial.look_around(reading, model);
    }
  }
}

}  // namespace
