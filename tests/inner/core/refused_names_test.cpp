#include "inner/core/document_fixture.h"

// Names and values that would read as something else are stored by nothing, whether or not the file
// holds such a line.

namespace qelpro_test {
namespace {

struct Name {
  const char* section;
  const char* key;
};

class RefusedNames : public Document {
 protected:
  // No store takes it, and the file stays as it is.
  void expect_refused(const char* section, const char* key, const char* value) {
    const std::string before = bytes_of(path);
    EXPECT_EQ(document.SetValue(section, key, value, kByKey), kNoOpen) << section << ' ' << key;
    EXPECT_EQ(document.WriteOnce(section, key, value), kNoOpen) << section << ' ' << key;
    EXPECT_EQ(document.InsertValue(path.c_str(), section, key, value), kNoOpen)
        << section << ' ' << key;
    EXPECT_EQ(document.ReplaceValue(section, key, value), kNoOpen) << section << ' ' << key;
    EXPECT_EQ(bytes_of(path), before);
  }
};

TEST_F(RefusedNames, AreSectionsWithoutBothBrackets) {
  write("Unit\nk = 1\n[Unit\nk = 1\nUnit]\nk = 1\n[SURFACE\nk = 1\n");
  for (const char* section : {"Unit", "[Unit", "Unit]", "[SURFACE", "[", "]", ""}) {
    expect_refused(section, "k", "2");
    expect_refused(section, "new", "2");
  }
}

TEST_F(RefusedNames, AreKeysThatBeginWithABracket) {
  write("[A]\n[B] = 1\n[x = 2\n");
  for (const char* key : {"[B]", "[x", "["}) {
    expect_refused("[A]", key, "1");
  }
}

TEST_F(RefusedNames, AndValuesHoldNoEndMark) {
  write("[A]\nx = 1\n");
  expect_refused("[A]", "x", "1\x1A");
  expect_refused("[A]", "x", "\x1A");
  expect_refused("[A]", "x\x1A", "1");
  expect_refused("[A\x1A]", "x", "1");
  EXPECT_EQ(document.SetValue("[SURFACE", "", "1 a\x1A 2", 1), kNoOpen);
}

TEST_F(RefusedNames, AreNoHeadersForALineByIndex) {
  write("[A]\nfirst\n");
  for (const char* line : {"[B]", "[B] # note", "[B b]\tnote"}) {
    EXPECT_EQ(document.SetValue("[A]", "", line, 1), kNoOpen) << line;
  }
  EXPECT_EQ(document.SetValue("A", "", "line", 1), kNoOpen);
  EXPECT_EQ(bytes_of(path), "[A]\nfirst\n");
  EXPECT_EQ(document.SetValue("[A]", "", "[B] = 1", 1), kDone);
  EXPECT_EQ(bytes_of(path), "[A]\n[B] = 1\n");
}

TEST_F(RefusedNames, MayBeLookedUpAllTheSame) {
  lend("Unit\nk = 1\n[A]\n[B = 2\n", "r");
  EXPECT_EQ(look(document, "Unit", "k"), "1");
  EXPECT_EQ(look(document, "[A]", "[B"), "2");
  std::fclose(stream);
}

}  // namespace
}  // namespace qelpro_test
