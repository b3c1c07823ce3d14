#include "inner/core/document_fixture.h"
#include "support/line_break.h"
#include "text/snapshot.h"

// A 0x1A at a file's very end is where other programs' text mode stops: padding, before which
// stores land.

namespace qelpro_test {
namespace {

class EndMark : public Document {};

TEST_F(EndMark, IsNoPartOfTheLastLine) {
  for (const char* contents : {"[A]\ny = 2\nx = 1\x1A", "[A]\ny = 2\nx = 1 \x1A",
                               "[A]\ny = 2\nx = 1\n\x1A", "[A]\ny = 2\nx = 1\n\x1A\x1A  \x1A"}) {
    read(contents);
    EXPECT_EQ(look(document, "[A]", "x"), "1");
    EXPECT_EQ(look_once(document, "[A]", "x"), "1");
    EXPECT_EQ(scan(document, path.c_str(), "[A]", "x"), "1");
    qel::Snapshot snapshot;
    ASSERT_TRUE(snapshot.load(path.c_str()));
    EXPECT_EQ(snapshot.value("[A]", "x"), "1");
    CQELPROIO lent;
    stream = std::fopen(path.c_str(), "r");
    ASSERT_TRUE(lent.SetFilePtr(stream));
    EXPECT_EQ(look(lent, "[A]", "x"), "1");
    EXPECT_EQ(look(lent, "[A]", "", 3), "-2") << "it is no line of its own";
    std::fclose(stream);
  }
}

TEST_F(EndMark, IsNoPartOfAHeaderThatEndsTheFile) {
  read("[B]\nx = 1\n[A]\x1A");
  EXPECT_EQ(look(document, "[B]", "", 2), "-2");
  write("[B]\nx = 1\n[A]\x1A");
  EXPECT_EQ(document.SetValue("[A]", "y", "2", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), "[B]\nx = 1\n[A]\ny = 2\n");
}

TEST_F(EndMark, IsLookedForAfterANulToo) {
  using namespace std::string_literals;
  write("[B]\n[A]\x1A\0b\x1A"s);  // the line's text ends at the NUL, the file after it
  EXPECT_EQ(document.SetValue("[A]", "y", "2", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), "[B]\n[A]\x1A\0b\n[A]\ny                    = 2\n"s);
  read(bytes_of(path));
  EXPECT_EQ(look(document, "[A]", "y"), "2");
}

TEST_F(EndMark, HasStoresLandInFrontOfIt) {
  write("[A]\nx = 1\n\x1A");
  EXPECT_EQ(document.SetValue("[A]", "y", "2", kByKey), kDone);
  EXPECT_EQ(document.SetValue("[B]", "z", "3", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\ny = 2\n\n[B]\nz                    = 3\n");
}

TEST_F(EndMark, StaysWhereAStoreDoesNotReachIt) {
  write("[A]\nx                    = 100\n\x1A");
  EXPECT_EQ(document.SetValue("[A]", "x", "2", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx                    = 2\n  \x1A");
  EXPECT_EQ(document.SetValue("[A]", "x", "100", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx                    = 100\n\x1A");
}

TEST_F(EndMark, EndsALastLineWithoutALineBreakAfterWhichAnEntryComes) {
  write("[A]\nx = 1\x1A");
  EXPECT_EQ(document.SetValue("[A]", "y", "2", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 1\ny = 2\n");
}

TEST_F(EndMark, GoesWithAStoreThatWritesTheWholeFile) {
  write("[A]\nx = 1\n\x1A");
  EXPECT_EQ(document.ReplaceValue("[A]", "x", "2"), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\nx = 2\n");
}

TEST_F(EndMark, IsTextWithinTheFile) {
  read("[A]\nx = 1\x1A 2\n\x1A\ny = 3\n");
  EXPECT_EQ(look(document, "[A]", "x"), "1\x1A 2");
  EXPECT_EQ(look(document, "[A]", "y"), "3");
}

TEST_F(EndMark, AloneIsAnEmptyFile) {
  write("\x1A");
  EXPECT_EQ(document.SetValue("[A]", "x", "1", kByKey), kDone);
  EXPECT_EQ(bytes_of(path), native("\n[A]\nx                    = 1\n"));
}

}  // namespace
}  // namespace qelpro_test
