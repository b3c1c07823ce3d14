#include "text/snapshot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "core/document.h"
#include "support/scratch.h"

namespace {

using qel::Snapshot;
using qelpro_test::Scratch;

constexpr const char* kAwkward =
    "x = 0\n[A]\nFR-1 = 3\n FR-2 = 4\nFR-2=5\r\nFR-2 = 6\nFR-03 = 7\nFR-x = 8\nFR-10 = 9\nFR-0 = "
    "10\n"
    "FR--4 = 11\nFR-2147483648 = 12\nFR = 13\n[not\nlate = 14\n[A]\nlater = 15\n[B] \ny = 16\n[C] "
    "z\nz = 17\nbare\n";

TEST(Snapshot, AnswersAsAOneShotReadDoes) {
  const Scratch scratch;
  const std::string path = scratch.file(kAwkward);
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(path.c_str()));
  for (const char* section : {"[A]", "[B]", "[C]", "[not", "[D]", "A", ""}) {
    for (const char* key :
         {"x", "FR-1", "FR-2", "FR", "FR-10", "late", "later", "y", "z", "bare", "[not", ""}) {
      CQELPROIO document;
      ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kReading));
      const auto text = qel::ValueBuffer::of_thread();
      const bool found = document.ReadOnce(section, key, text) == qel::Result::done;
      const auto value = snapshot.value(section, key);
      ASSERT_EQ(value.has_value(), found) << section << ' ' << key;
      if (found) {
        EXPECT_EQ(*value, text.text) << section << ' ' << key;
      }
    }
  }
}

TEST(Snapshot, KnowsItsSections) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(scratch.file(kAwkward).c_str()));
  EXPECT_TRUE(snapshot.has_section("[A]"));
  EXPECT_TRUE(snapshot.has_section("[B]"));
  EXPECT_TRUE(snapshot.has_section("[C]")) << "words behind a header are no part of it";
  EXPECT_FALSE(snapshot.has_section("[not"));
  EXPECT_FALSE(snapshot.has_section(""));
}

TEST(Snapshot, ListsNumberedEntriesInAscendingOrder) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(
      scratch.file("[A]\nP-3 = c\nP-1 = a\nP-20 = d\nP-2 = b\n[B]\nP-4 = x\n").c_str()));
  std::string listed;
  for (const Snapshot::Numbered& entry : snapshot.numbered("[A]", "P-", 1000)) {
    listed.append(std::to_string(entry.number)).append(entry.value).append(" ");
  }
  EXPECT_EQ(listed, "1a 2b 3c 20d ");
}

TEST(Snapshot, ListsTheEntriesThatALookupByNumberWouldFind) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(scratch.file(kAwkward).c_str()));
  std::string listed;
  for (const Snapshot::Numbered& entry : snapshot.numbered("[A]", "FR-", 2147483647)) {
    EXPECT_EQ(snapshot.value("[A]", "FR-" + std::to_string(entry.number)), entry.value);
    listed.append(std::to_string(entry.number)).append(" ");
  }
  EXPECT_EQ(listed, "1 2 10 ");
}

TEST(Snapshot, TakesTheFirstOfSeveralEntriesOfOneKey) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(scratch
                                .file("[A]\nLongPrefix-2 = b\nLongPrefix-1\nLongPrefix-1 = "
                                      "a\nLongPrefix-2 = c\nLong = d\nLong = e\n")
                                .c_str()));
  std::string listed;
  for (const Snapshot::Numbered& entry : snapshot.numbered("[A]", "LongPrefix-", 1000)) {
    listed.append(std::to_string(entry.number)).append("=").append(entry.value).append(" ");
  }
  EXPECT_EQ(listed, "1= 2=b ");
  EXPECT_EQ(snapshot.value("[A]", "LongPrefix-2"), "b");
  EXPECT_EQ(snapshot.value("[A]", "Long"), "d");
}

TEST(Snapshot, TakesOnlyPrintedNumbersForNumbers) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(
      scratch.file("[A]\nP-1x = a\nP-02 = b\nP-+3 = c\nP-99999999999 = d\nP- = e\nP-4 = f\n")
          .c_str()));
  const std::vector<Snapshot::Numbered> listed = snapshot.numbered("[A]", "P-", 2147483647);
  ASSERT_EQ(listed.size(), 1U);
  EXPECT_EQ(listed.front().number, 4);
  EXPECT_EQ(listed.front().value, "f");
}

TEST(Snapshot, FindsEachOfManySimilarKeys) {
  constexpr std::string_view kLetters = "AaP\x80\xFF";
  std::mt19937 random(7);
  std::string contents = "[A]\n";
  std::map<std::string, std::string> first;
  for (int line = 0; line < 3000; ++line) {
    std::string key;
    for (std::size_t length = random() % 12; length != 0; --length) {
      key += kLetters[random() % kLetters.size()];
    }
    key.append("-").append(std::to_string(1 + random() % 20));
    contents.append(key).append("=").append(std::to_string(line)).append("\n");
    first.try_emplace(key, std::to_string(line));
  }
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(scratch.file(contents).c_str()));
  for (const auto& [key, value] : first) {
    EXPECT_EQ(snapshot.value("[A]", key), value);
    const std::string prefix = key.substr(0, key.find('-') + 1);
    const auto with_prefix = [&](const auto& entry) {
      return entry.first.substr(0, prefix.size()) == prefix;
    };
    EXPECT_EQ(snapshot.numbered("[A]", prefix, 20).size(),
              static_cast<std::size_t>(std::count_if(first.begin(), first.end(), with_prefix)));
  }
}

TEST(Snapshot, EndsALineAtANulByte) {
  using std::string_literals::operator""s;
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(scratch.file("[A]\nx = 1\0 2\ny = 3\n"s).c_str()));
  EXPECT_EQ(snapshot.value("[A]", "x"), "1");
  EXPECT_EQ(snapshot.value("[A]", "y"), "3");
}

TEST(Snapshot, NumbersSectionsByTheirWholeNames) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(
      snapshot.load(scratch.file("[V-12 x]\n[V-3]\n[V-1]\n[V-2x]\n[W-4]\n[V-30]\n]\n").c_str()));
  EXPECT_EQ(snapshot.numbered_sections("[V-%d]", 20), (std::vector<int>{1, 3}));
}

TEST(Snapshot, HoldsNoFileThatCannotBeRead) {
  const Scratch scratch;
  Snapshot snapshot;
  EXPECT_FALSE(snapshot.load(scratch.path("missing").c_str()));
  EXPECT_FALSE(snapshot.load(scratch.path(".").c_str()));
  const std::string huge = scratch.file("[A]\n");
  std::filesystem::resize_file(huge, std::uintmax_t{1} << 31U);
  EXPECT_FALSE(snapshot.load(huge.c_str()));
}

TEST(Snapshot, ListsNothingBeyondTheGivenNumber) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(scratch.file("[A]\nP-1 = a\nP-2 = b\nP-3 = c\n").c_str()));
  EXPECT_EQ(snapshot.numbered("[A]", "P-", 2).size(), 2U);
  EXPECT_TRUE(snapshot.numbered("[A]", "P-", 0).empty());
  EXPECT_TRUE(snapshot.numbered("[B]", "P-", 2).empty());
}

TEST(Snapshot, StaysAsItWasWhenTheFileChanges) {
  const Scratch scratch;
  const std::string path = scratch.file("[A]\nx = 1\n");
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(path.c_str()));
  qelpro_test::put_bytes(path, "");
  EXPECT_EQ(snapshot.value("[A]", "x"), "1");
}

TEST(Snapshot, CannotBeTakenOfWhatIsNoFile) {
  const Scratch scratch;
  Snapshot snapshot;
  EXPECT_FALSE(snapshot.load(scratch.path("missing.pro").c_str()));
  EXPECT_FALSE(snapshot.load(scratch.path("").c_str()));
  EXPECT_FALSE(snapshot.load("/dev/zero"));
}

}  // namespace
