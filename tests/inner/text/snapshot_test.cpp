#include "text/snapshot.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <utility>
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

// What a section's entries are, one after the other; nothing where there is no such section.
std::string entries_of(const Snapshot& snapshot, std::string_view section) {
  std::string listed;
  return snapshot.visit_entries(section,
                                [&listed](std::string_view key, std::string_view line) {
                                  listed.append(key).append("|").append(line).append(";");
                                })
             ? listed
             : "(nothing)";
}

TEST(Snapshot, HandsOutTheEntriesOfItsSectionsAsTheyStand) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(
      scratch.file("x = 0\n[A]\nb = 1\r\n c = 2\n\nb = 3\nd\n[B] z\n[A]\ne = 4\n[not\nf = 5")
          .c_str()));
  EXPECT_EQ(entries_of(snapshot, "[A]"), "b|b = 1;b|b = 3;d|d;");
  EXPECT_EQ(entries_of(snapshot, "[B]"), "");
  EXPECT_EQ(entries_of(snapshot, "[not"), "(nothing)");
  EXPECT_EQ(entries_of(snapshot, ""), "(nothing)");
}

TEST(Snapshot, HandsAValueOutAsATextAndKeepsWhatStandsBehindIt) {
  const Scratch scratch;
  Snapshot snapshot;
  ASSERT_TRUE(snapshot.load(scratch.file("[A]\na = 1\nb =\nc = 2").c_str()));
  for (const auto& [key, expected] :
       {std::pair("a", "1"), std::pair("b", ""), std::pair("c", "2"), std::pair("a", "1")}) {
    std::string text = "(nothing)";
    snapshot.with_text(snapshot.value("[A]", key).value(),
                       [&text](const char* value) { text = value; });
    EXPECT_EQ(text, expected) << key;
  }
  EXPECT_EQ(entries_of(snapshot, "[A]"), "a|a = 1;b|b =;c|c = 2;");
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
