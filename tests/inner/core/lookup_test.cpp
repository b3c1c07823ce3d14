#include "core/lookup.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "inner/text/memory_file.h"
#include "text/text.h"

namespace {

using namespace qel;
using qelpro_test::MemoryFile;

constexpr const char* kNothing = "(nothing)";

std::string text_of(const std::optional<Line>& line) {
  return line ? std::string(line->text) : kNothing;
}

std::string plainly(const std::string& contents, const Target& target) {
  LineScanner lines{std::string_view(contents)};
  return text_of(find_plainly(lines, target));
}

std::string in_section(const std::string& contents, const Target& target) {
  LineScanner lines{std::string_view(contents)};
  return text_of(find_in_section(lines, target));
}

// A reading session over one file.
class Indexed : public testing::Test {
 protected:
  std::string find(const Target& target) {
    LookupRoom room;
    return text_of(find_indexed(file, target, index, room));
  }
  std::optional<std::int64_t> offset_of(const std::string& section, const std::string& key) {
    const SectionIndex::Section* known = index.section(section);
    const SectionIndex::Place* place =
        known != nullptr ? index.entry(known->line_name(key)) : nullptr;
    return place != nullptr ? std::optional(place->offset) : std::nullopt;
  }

  MemoryFile file;
  SectionIndex index;
};

TEST(PlainScan, FindsAKeyByItsWholeFirstToken) {
  const std::string file = "\n[A]\nFR-1 = 3\nFlowRate = 1\nFlow = 2\nFR=4\n";
  EXPECT_EQ(plainly(file, {"[A]", "FR"}), "FR=4");
  EXPECT_EQ(plainly(file, {"[A]", "Flow"}), "Flow = 2");
  EXPECT_EQ(plainly(file, {"[A]", "FR-"}), kNothing);
  EXPECT_EQ(plainly(file, {"[A]", "flow"}), kNothing);
}

TEST(PlainScan, NeverFindsALineWithLeadingBlanks) {
  EXPECT_EQ(plainly("[A]\n  Key = Value\n", {"[A]", "Key"}), kNothing);
  EXPECT_EQ(plainly("[A]\n\tKey = Value\n", {"[A]", "Key"}), kNothing);
}

TEST(PlainScan, FindsAKeyThatOnlyALaterSectionHolds) {
  EXPECT_EQ(plainly("[A]\nx = 1\n[B]\ny = 2\n", {"[A]", "y"}), "y = 2");
  EXPECT_EQ(plainly("[B]\ny = 2\n[A]\nx = 1\n", {"[A]", "y"}), kNothing);
}

TEST(PlainScan, TakesTheFirstOfTwoSectionsAndKeys) {
  EXPECT_EQ(plainly("[A]\nx = 1\nx = 2\n[A]\nx = 3\n", {"[A]", "x"}), "x = 1");
}

TEST(PlainScan, LeavesTextBeforeTheFirstHeaderAlone) {
  EXPECT_EQ(plainly("x = 0\n[A]\ny = 1\n", {"[A]", "x"}), kNothing);
}

TEST(PlainScan, CountsEveryLineAfterTheHeader) {
  const std::string file = "\n[A]\nfirst\n\n  third\n[B]\nfifth\n";
  EXPECT_EQ(plainly(file, {"[A]", "", 1}), "first");
  EXPECT_EQ(plainly(file, {"[A]", "", 2}), "");
  EXPECT_EQ(plainly(file, {"[A]", "", 3}), "  third");
}

TEST(PlainScan, ReachesLinesOfLaterSectionsByIndex) {
  const std::string file = "[A]\nfirst\n[B]\nthird\n";
  EXPECT_EQ(plainly(file, {"[A]", "", 2}), "[B]");
  EXPECT_EQ(plainly(file, {"[A]", "", 3}), "third");
  EXPECT_EQ(plainly(file, {"[A]", "", 4}), kNothing);
}

TEST(PlainScan, FindsNothingAtIndexZero) {
  EXPECT_EQ(plainly("[A]\nfirst\n", {"[A]", "first", 0}), kNothing);
}

TEST(PlainScan, FindsNothingWithoutAKeyOrASection) {
  EXPECT_EQ(plainly("[A]\n\n= 1\n", {"[A]", ""}), kNothing);
  EXPECT_EQ(plainly("\n[A]\nx = 1\n", {"", "x"}), kNothing);
}

TEST(PlainScan, FindsASectionByFirstTokenAlone) {
  EXPECT_EQ(plainly("[A] with more\nx = 1\n", {"[A]", "x"}), "x = 1");
  EXPECT_EQ(plainly("[SURFACE ELEMENT BOUNDARY CONDITION NAME]\nx = 1\n", {"[SURFACE", "x"}),
            "x = 1");
  EXPECT_EQ(plainly("[AB]\nx = 1\n", {"[A]", "x"}), kNothing);
  EXPECT_EQ(plainly(" [A]\nx = 1\n", {"[A]", "x"}), kNothing);
}

TEST(ScanInSection, StopsAtTheNextHeader) {
  const std::string file = "[A]\nx = 1\n[B]\ny = 2\n";
  EXPECT_EQ(in_section(file, {"[A]", "y"}), kNothing);
  EXPECT_EQ(in_section(file, {"[A]", "", 2}), kNothing);
  EXPECT_EQ(in_section(file, {"[B]", "y"}), "y = 2");
}

TEST(ScanInSection, GoesOnPastALineThatIsNoHeader) {
  const std::string file = "[A]\n[x\n [B]\n[C] = 1\ny = 2\n";
  EXPECT_EQ(in_section(file, {"[A]", "y"}), "y = 2");
}

TEST(ScanInSection, StopsAtAHeaderWithBlanksAfterOrWithoutALineBreak) {
  EXPECT_EQ(in_section("[A]\n[B] \t\r\ny = 2\n", {"[A]", "y"}), kNothing);
  EXPECT_EQ(in_section("[A]\nx = 1\n[B]", {"[A]", "[B]"}), kNothing);
}

TEST(ScanInSection, TakesNoEntryForASection) {
  EXPECT_EQ(in_section("[A] = 5\n[A]\nx = 1\n", {"[A]", "x"}), "x = 1");
}

TEST_F(Indexed, StopsAtTheNextHeader) {
  file.bytes = "\n[A]\nx = 1\n[B]\ny = 2\n";
  EXPECT_EQ(find({"[A]", "y"}), kNothing);
  EXPECT_EQ(find({"[B]", "y"}), "y = 2");
}

TEST_F(Indexed, LearnsEveryHeaderUpToTheWantedOne) {
  file.bytes = "[A]\nx = 1\n[B] \ny = 2\n[not\n[C]\nz = 3\n[D]\n";
  EXPECT_EQ(find({"[C]", "z"}), "z = 3");
  ASSERT_NE(index.section("[A]"), nullptr);
  EXPECT_EQ(index.section("[A]")->header.offset, 0);
  ASSERT_NE(index.section("[B]"), nullptr);
  EXPECT_EQ(index.section("[B]")->header.offset, 10);
  ASSERT_NE(index.section("[C]"), nullptr);
  EXPECT_EQ(index.section("[C]")->header.offset, 26);
  EXPECT_FALSE(index.section("[not"));
  EXPECT_FALSE(index.section("[D]"));
}

TEST_F(Indexed, LearnsFirstTokensOfHeaders) {
  file.bytes = "\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\nline\n";
  EXPECT_EQ(find({"[SURFACE", "", 1}), "line");
  ASSERT_NE(index.section("[SURFACE"), nullptr);
  EXPECT_EQ(index.section("[SURFACE")->header.offset, 1);
  EXPECT_FALSE(index.section("[SURFACE ELEMENT BOUNDARY CONDITION NAME]"));
}

TEST_F(Indexed, LearnsTheEntriesItPassesInsideTheWantedSectionAlone) {
  file.bytes = "[A]\na = 1\n[B]\nb = 2\nno entry\nc=3\nd = 4\n";
  EXPECT_EQ(find({"[B]", "c"}), "c=3");
  EXPECT_FALSE(offset_of("[A]", "a"));
  EXPECT_EQ(offset_of("[B]", "b"), 14);
  EXPECT_EQ(offset_of("[B]", "no"), 20) << "a line of a key without a value counts like any other";
  EXPECT_EQ(offset_of("[B]", "c"), 29);
  EXPECT_FALSE(offset_of("[B]", "d"));
  EXPECT_EQ(index.furthest().place().offset, 29);
}

TEST_F(Indexed, AnswersASecondLookupByIndexWithTheFirstLine) {
  file.bytes = "\n[A]\nfirst\nsecond\nthird\n";
  EXPECT_EQ(find({"[A]", "", 2}), "second");
  EXPECT_EQ(find({"[A]", "", 1}), "second");
  EXPECT_EQ(find({"[A]", "", 99}), "second");
}

TEST_F(Indexed, KeepsLinesByIndexApartByTheirKeys) {
  file.bytes = "\n[A]\nfirst\nsecond\n";
  EXPECT_EQ(find({"[A]", "k", 1}), "first");
  EXPECT_EQ(find({"[A]", "l", 3}), "second") << "resumed at the header, which counts as line 1";
  EXPECT_EQ(find({"[A]", "k", 2}), "first");
}

TEST_F(Indexed, CountsTheHeaderAsLineOneWhenItResumesThere) {
  file.bytes = "\n[A]\nx = 1\nsecond\n";
  EXPECT_EQ(find({"[A]", "x"}), "x = 1");
  EXPECT_EQ(find({"[A]", "", 1}), "[A]");
}

TEST_F(Indexed, CountsLinesFromAfterTheHeaderTheFirstTime) {
  file.bytes = "\n[A]\nx = 1\nsecond\n";
  EXPECT_EQ(find({"[A]", "", 1}), "x = 1");
}

TEST_F(Indexed, ResumesAtTheFurthestLineForASectionItHasNotMet) {
  file.bytes = "[A]\nx = 1\n[B]\ny = 2\n";
  EXPECT_EQ(find({"[B]", "y"}), "y = 2");
  // A section that appears in front of the furthest line is not met any more.
  file.bytes = "[Q]\nz = 1\n[B]\ny = 2\n";
  EXPECT_EQ(find({"[Q]", "z"}), kNothing);
}

TEST_F(Indexed, BeginsAtTheTopWhileNoLineIsKnown) {
  file.bytes = "[A]\n\n  x = 1\n[B]\ny = 2\n";
  EXPECT_EQ(find({"[A]", "nothing"}), kNothing);
  EXPECT_EQ(index.furthest().place().offset, 0);
  EXPECT_EQ(find({"[B]", "y"}), "y = 2");
}

TEST_F(Indexed, FindsASectionOnTheFirstByteInAnyOrderOfKeys) {
  file.bytes = "[A]\nx = 1\ny = 2\n[B]\nz = 3\n";
  EXPECT_EQ(find({"[B]", "z"}), "z = 3");
  EXPECT_EQ(find({"[A]", "y"}), "y = 2");
  EXPECT_EQ(find({"[A]", "x"}), "x = 1");
}

TEST_F(Indexed, KeepsTheFirstOfTwoEntriesOfOneKey) {
  file.bytes = "[A]\nx = 1\nx = 2\ny = 3\n[A]\nx = 4\n[B]\nz = 5\n";
  EXPECT_EQ(find({"[A]", "y"}), "y = 3");
  EXPECT_EQ(find({"[B]", "z"}), "z = 5");
  EXPECT_EQ(find({"[A]", "x"}), "x = 1");
}

TEST_F(Indexed, TellsSectionsAndKeysApartThatJoinToOneText) {
  file.bytes = "[A]\n]x = 1\n[A]]\nx = 2\n";
  EXPECT_EQ(find({"[A]", "]x"}), "]x = 1");
  EXPECT_EQ(find({"[A]]", "x"}), "x = 2");
}

TEST_F(Indexed, FindsNothingWhereTheFileEndsBeforeAKnownLine) {
  file.bytes = "[A]\nx = 1\ny = 2\n";
  EXPECT_EQ(find({"[A]", "y"}), "y = 2");
  file.bytes = "[A]\n";
  EXPECT_EQ(find({"[A]", "y"}), kNothing);
}

// What a session learnt never changes what a lookup of a key yields.

TEST_F(Indexed, FindsALineOfAKeyWithoutAValueAlsoOnceItWasPassed) {
  file.bytes = "[Flow-1]\nFillTime\nMeltTemp = 200\nFillTime = 2\n";
  EXPECT_EQ(find({"[Flow-1]", "MeltTemp"}), "MeltTemp = 200");
  EXPECT_EQ(find({"[Flow-1]", "FillTime"}), "FillTime");
  EXPECT_EQ(find({"[Flow-1]", "FillTime"}), "FillTime");
}

TEST_F(Indexed, FindsTheSameLineByIndexAgainWhereAnIndentedLineWasPassed) {
  file.bytes = "\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n  x = 1\n2 name 3\n4 other 5\n";
  EXPECT_EQ(find({"[SURFACE", "", 3}), "4 other 5");
  EXPECT_EQ(find({"[SURFACE", "", 3}), "4 other 5");
}

TEST_F(Indexed, DoesNotTakeALineFoundByIndexForAKeys) {
  file.bytes = "\n[A]\nfirst = 1\nsecond = 2\nk = 3\n";
  EXPECT_EQ(find({"[A]", "k", 2}), "second = 2");
  EXPECT_EQ(find({"[A]", "k"}), "k = 3");
  EXPECT_EQ(find({"[A]", "k", 1}), "second = 2");
}

TEST_F(Indexed, NeverTakesAHeaderForAKeysLine) {
  file.bytes = "\n[A] words = 7\nx = 1\n";
  EXPECT_EQ(find({"[A]", "[A]"}), kNothing);
  EXPECT_EQ(find({"[A]", "x"}), "x = 1");
  EXPECT_EQ(find({"[A]", "[A]"}), kNothing);
}

// What was learnt is looked at again.

TEST_F(Indexed, FindsALineThatMovedSinceItWasLearnt) {
  file.bytes = "[A]\nlong = 1\nx = 1\ny = 2\n";
  EXPECT_EQ(find({"[A]", "x"}), "x = 1");
  EXPECT_EQ(find({"[A]", "y"}), "y = 2");
  file.bytes = "[A]\nlong = 12345\nx = 3\ny = 4\n";
  EXPECT_EQ(find({"[A]", "y"}), "y = 4");
  EXPECT_EQ(find({"[A]", "x"}), "x = 3");
}

TEST_F(Indexed, DoesNotTakeTheMiddleOfALineForTheLineThatStoodThere) {
  file.bytes = "[A]\nx = 1\n";
  EXPECT_EQ(find({"[A]", "x"}), "x = 1");
  file.bytes = "[A]yx = 5\n";
  EXPECT_EQ(find({"[A]", "x"}), kNothing);
  file.bytes = "[A]\nx = 6\n";
  EXPECT_EQ(find({"[A]", "x"}), "x = 6");
}

TEST_F(Indexed, FindsAKeyAfterTheLinesItLearntWhereThoseMoved) {
  file.bytes = "[A]\na = 1\nb = 2\n[B]\nc = 3\n";
  EXPECT_EQ(find({"[A]", "a"}), "a = 1");
  // What stands now where the search would have gone on belongs to another section.
  file.bytes = "[A]\n[B]\nc = 5\na = 4\n";
  EXPECT_EQ(find({"[A]", "c"}), kNothing);
  EXPECT_EQ(find({"[B]", "c"}), "c = 5");
}

// Every line begins where it did, and the one that was passed last is as it was.
TEST_F(Indexed, FindsAKeyInThePlaceOfOneThatItPassed) {
  file.bytes = "\n[A]\na = 1\nb = 2\nc = 3\nd = 4\n";
  EXPECT_EQ(find({"[A]", "c"}), "c = 3");
  file.bytes = "\n[A]\na = 1\nx = 5\nc = 3\nd = 4\n";
  EXPECT_EQ(find({"[A]", "x"}), "x = 5");
  EXPECT_EQ(find({"[A]", "b"}), kNothing);
}

TEST_F(Indexed, FindsASectionWhoseHeaderMoved) {
  file.bytes = "[A]\na = 1\n[B]\nb = 2\n";
  EXPECT_EQ(find({"[B]", "b"}), "b = 2");
  file.bytes = "[A]\na = 111\n[B]\nb = 2\nc = 3\n";
  EXPECT_EQ(find({"[B]", "c"}), "c = 3");
  EXPECT_EQ(find({"[A]", "a"}), "a = 111");
}

TEST_F(Indexed, FindsASectionAfterTheFurthestLineWhereThatMoved) {
  file.bytes = "[A]\na = 1\n[B]\nb = 2\n";
  EXPECT_EQ(find({"[B]", "b"}), "b = 2");
  file.bytes = "[C]\nc = 3\n[A]\na = 1\n[B]\nb = 2\n";
  EXPECT_EQ(find({"[C]", "c"}), "c = 3");
}

TEST_F(Indexed, TakesWhatItLearntOfAnEarlierFileAsItIs) {
  file.bytes = "[A]\nx = 1\ny = 2\n";
  EXPECT_EQ(find({"[A]", "y"}), "y = 2");
  index.begin_file();
  file.bytes = "[A]\ny = 1\nx = 2\n";
  EXPECT_EQ(find({"[A]", "y"}), "x = 2");
}

// The offset at which an earlier file's last line began lies in the middle of a line here: what
// begins there is found again as it was.
TEST_F(Indexed, FindsAgainAHeaderThatItMetInTheMiddleOfALine) {
  file.bytes = "[A]\nkey = 1\n";
  EXPECT_EQ(find({"[A]", "key"}), "key = 1");
  index.begin_file();
  file.bytes = "#012[B]\nx = 5\ny = 6\n";
  for (const char* key : {"x", "y", "x", "y"}) {
    EXPECT_EQ(find({"[B]", key}), std::string(key) + (*key == 'x' ? " = 5" : " = 6"));
  }
}

// A line that begins where the known one did no more is not it, nor is the one after it.
TEST_F(Indexed, LooksFromTheTopWhereAKnownLineNoLongerBegins) {
  file.bytes = "[A]\n####\na = 1\nx = 2\nx = 3\n";
  EXPECT_EQ(find({"[A]", "x"}), "x = 2");
  file.bytes = "[A]\nx=9 \na = 1#x = 2\nx = 3\n";
  EXPECT_EQ(find({"[A]", "x"}), "x=9 ");
}

TEST_F(Indexed, TakesAKnownLineAtAGlance) {
  struct : MemoryFile {
    std::int64_t read_some(std::int64_t offset, char* to, std::size_t count) override {
      ++glances;
      return read_at(offset, to, count);
    }
    int glances = 0;
  } glanced;
  glanced.bytes = "\n[A]\na = 1\nb = 2\n";
  LookupRoom room;
  find_indexed(glanced, {"[A]", "b"}, index, room);
  glanced.reads = glanced.glances = 0;
  find_indexed(glanced, {"[A]", "a"}, index, room);
  find_indexed(glanced, {"[A]", "b"}, index, room);
  EXPECT_EQ(glanced.glances, 2);
  EXPECT_EQ(glanced.reads, 2) << "and nothing else is read";
}

TEST_F(Indexed, FindsAgainWhatAPieceOfALongLineHolds) {
  file.bytes = "[A]\n" + std::string(qel::text::kLongestLine, 'w') + "x = 1\ny = 2\n";
  EXPECT_EQ(find({"[A]", "x"}), "x = 1");
  EXPECT_EQ(find({"[A]", "y"}), "y = 2");
  EXPECT_EQ(find({"[A]", "x"}), "x = 1");
}

TEST_F(Indexed, AnswersFromTheIndexWithOneReadOfHeaderAndLineOrOneOfEach) {
  const std::string between(5000, '#');
  file.bytes = "[A]\n" + between + "\nx = 1\n[B]\nw = 1\nx = 2\n" + between + "\ny = 3\n";
  const auto reads_for = [this](const Target& target) {
    find(target);
    const int before = file.reads;
    find(target);
    return file.reads - before;
  };
  EXPECT_EQ(reads_for({"[A]", "x"}), 2);
  EXPECT_EQ(reads_for({"[B]", "x"}), 1);
  EXPECT_EQ(reads_for({"[B]", "y"}), 2);
}

TEST_F(Indexed, LearnsTheNextLineWithOneRead) {
  file.bytes = "\n\n\n\n[A]\na = 1\nb = 2\r\n\nc\t= 3\n[B]\n";
  find({"[A]", "a"});
  const int before = file.reads;
  EXPECT_EQ(find({"[A]", "b"}), "b = 2");
  EXPECT_EQ(find({"[A]", "c"}), "c\t= 3");
  EXPECT_EQ(file.reads - before, 2);
  EXPECT_EQ(offset_of("[A]", "c"), 22);
}

// The longest names that a line holds: a look at one takes more bytes than the name has.
TEST_F(Indexed, FindsKeysOfSectionsWithTheLongestNames) {
  for (std::size_t size = qel::text::kLongestLine - 6; size <= qel::text::kLongestLine + 1;
       ++size) {
    const std::string name = "[" + std::string(size - 2, 'n') + "]";
    file.bytes = "\n" + name + "\nx = 1\n\ny = 2\n";
    index.forget();
    const bool is_line = size <= qel::text::kLongestLine;
    for (const char* key : {"x", "x", "y", "x", "y"}) {
      EXPECT_EQ(find({name, key}),
                is_line ? std::string(key) + (*key == 'x' ? " = 1" : " = 2") : kNothing)
          << size;
    }
  }
}

// One whose lines are never seen at a glance.
struct SlowFile : MemoryFile {
  std::int64_t read_some(std::int64_t /*offset*/, char* /*to*/, std::size_t /*count*/) override {
    return 0;
  }
};

// A session that takes lines at a glance beside one that scans for each, while the file changes.
TEST(Glance, AnswersAsAScanDoes) {
  std::mt19937 random(20261122);
  const auto below = [&random](std::size_t count) { return random() % count; };
  const std::vector<std::string> sections{"[A]", "[B]", "[", "[A", "]", ""};
  const std::vector<std::string> keys{"a",    "b", "ab", "a-twenty-characters-long-key-1",
                                      "a\rb", "",  "[",  "a b"};
  const std::vector<std::string> parts{"[A]",
                                       "[B]",
                                       "[A] more",
                                       "a",
                                       "b",
                                       "ab",
                                       " = ",
                                       "=",
                                       " ",
                                       "\t",
                                       "1",
                                       "2",
                                       "\n",
                                       "\n",
                                       "\n",
                                       "\r\n",
                                       "\r",
                                       "[",
                                       "]",
                                       "#",
                                       "a\rb",
                                       "a-twenty-characters-long-key-1",
                                       std::string(1, '\0'),
                                       "\x1A",
                                       "\n[A]\n",
                                       "\n[B]\r\n",
                                       "\na = 1\n",
                                       "\nb = 2\n",
                                       "\xEF\xBB\xBF",
                                       std::string(4090, 'x')};
  for (int round = 0; round < 4000; ++round) {
    MemoryFile file;
    SlowFile slow;
    SectionIndex index;
    SectionIndex slow_index;
    for (std::size_t count = below(40); count != 0; --count) {
      file.bytes += parts[below(round % 10 == 0 ? parts.size() : parts.size() - 1)];
    }
    for (int step = 0; step < 12; ++step) {
      slow.bytes = file.bytes;
      const Target target{sections[below(step % 2 == 0 ? 2 : sections.size())],
                          keys[below(step % 2 == 0 ? 3 : keys.size())],
                          below(6) == 0 ? static_cast<int>(below(4)) : Target::kByKey};
      LookupRoom room;
      LookupRoom slow_room;
      const std::optional<Line> found = find_indexed(file, target, index, room);
      const std::optional<Line> expected = find_indexed(slow, target, slow_index, slow_room);
      ASSERT_EQ(text_of(found), text_of(expected)) << round << ": " << file.bytes;
      ASSERT_EQ(found ? found->start : -1, expected ? expected->start : -1) << file.bytes;
      const std::size_t change = below(4);
      if (change == 0 && !file.bytes.empty()) {
        file.bytes[below(file.bytes.size())] = parts[below(parts.size() - 1)][0];
      } else if (change == 1) {
        file.bytes.insert(below(file.bytes.size() + 1), parts[below(parts.size() - 1)]);
      } else if (change == 2 && below(8) == 0) {
        index.begin_file();
        slow_index.begin_file();
      }
    }
  }
}

}  // namespace
