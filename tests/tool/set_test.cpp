#include <gmock/gmock.h>

#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::HasSubstr;

Outcome qelpro(const std::vector<std::string>& arguments) {
  return run(QELPRO_TOOL_PATH, arguments);
}

class ChangeOfAFile : public testing::Test {
 protected:
  // What a command makes of a file.
  std::string after(const std::string& contents, std::vector<std::string> words, int status = 0) {
    const std::string file = scratch_.file(contents);
    words.insert(words.begin() + 1, file);
    last_ = qelpro(words);
    EXPECT_EQ(last_.status, status) << last_.err;
    return bytes_of(file);
  }
  Scratch scratch_;
  Outcome last_;
};

TEST_F(ChangeOfAFile, SetsSeveralEntriesInOneWrite) {
  EXPECT_EQ(after("[A]\nx=1\ny\t=  2  \n", {"set", "A.x=10", "A.y=20", "A", "z", "=3", "B.w=4=5"}),
            "[A]\nx=10\ny\t=  20  \nz = =3\n\n[B]\nw                    = 4=5\n");
}

TEST_F(ChangeOfAFile, ChangesTheValueAndNoOtherByte) {
  EXPECT_EQ(after("\xEF\xBB\xBF[A]  ; a\r\n;x = 0\r\n x = 0\r\nx  =   1 \r\nx = 2\r\n\r\n; end\r\n",
                  {"set", "A.x=7"}),
            "\xEF\xBB\xBF[A]  ; a\r\n;x = 0\r\n x = 0\r\nx  =   7 \r\nx = 2\r\n\r\n; end\r\n");
  EXPECT_EQ(after("[A]\nx =\ny = 1", {"set", "A.x=2", "A.y="}), "[A]\nx = 2\ny = ");
}

TEST_F(ChangeOfAFile, PutsANewKeyBelowTheSectionsLastEntry) {
  EXPECT_EQ(after("[A]\nx = 1\n\n; of B\n[B]\ny = 2\n", {"set", "A.z=3"}),
            "[A]\nx = 1\nz = 3\n\n; of B\n[B]\ny = 2\n");
  EXPECT_EQ(after("[A]\nx                    = 1\n", {"set", "A.z=3"}),
            "[A]\nx                    = 1\nz                    = 3\n");
  EXPECT_EQ(after("[A]\n[B]\n", {"set", "A.z=3", "A.y=4"}),
            "[A]\nz                    = 3\ny                    = 4\n[B]\n");
  EXPECT_EQ(after("[A]\r\nx = 1", {"set", "A.y=2", "B.z=3"}),
            "[A]\r\nx = 1\r\ny = 2\r\n\r\n[B]\r\nz                    = 3\r\n");
}

TEST_F(ChangeOfAFile, OfTwoValuesOfOneAddressTakesTheLast) {
  EXPECT_EQ(after("[A]\nx = 1\n", {"set", "A.x=2", "A.y=1", "A.x=3", "A.y=2"}),
            "[A]\nx = 3\ny = 2\n");
}

TEST_F(ChangeOfAFile, SetsWhatAPatternMatches) {
  EXPECT_EQ(after("[Flow-1]\nMeltTemp = 1\n[Flow-2]\nMeltTemp = 2\n[Flow-3]\n",
                  {"set", "Flow-*.MeltTemp=230"}),
            "[Flow-1]\nMeltTemp = 230\n[Flow-2]\nMeltTemp = 230\n[Flow-3]\n");
  EXPECT_EQ(after("[A]\nx = 1\n", {"set", "A.x=2", "B*.y=1"}, 1), "[A]\nx = 1\n");
}

TEST_F(ChangeOfAFile, IsAllOrNothing) {
  const std::string contents = "[Flow-1]\nFillTime = 1\n";
  EXPECT_EQ(after(contents, {"set", "Flow-1.MeltTemp=230", "Flow-1.FillTime=fast"}, 2), contents);
  EXPECT_THAT(last_.err, HasSubstr("[Flow-1] FillTime: \"fast\" would not be read back whole"));
  EXPECT_EQ(after(contents, {"set", "A.x=1", "Flow-1.a b=1"}, 2), contents);
  EXPECT_EQ(after(contents, {"set", "Flow-1.FillTime=2", "x"}, 2), contents);
  EXPECT_EQ(after(contents, {"set"}, 2), contents);
}

TEST_F(ChangeOfAFile, NamesTheFieldThatWouldNotBeRead) {
  EXPECT_EQ(after("[Flow-1]\n", {"set", "Flow-1.FR-1=0 x"}, 2), "[Flow-1]\n");
  EXPECT_THAT(last_.err, HasSubstr("field 2"));
  EXPECT_EQ(after("[Flow-1]\n", {"set", "Flow-1.FR-1=0 x", "--force"}),
            "[Flow-1]\nFR-1                 = 0 x\n");
}

TEST_F(ChangeOfAFile, TakesAnObjectOfAddresses) {
  const std::string object = scratch_.path("values.json");
  put_bytes(object,
            "{\"Flow-1.FillTime\": 1.50, \"Flow-1.FR-1\": [0, 1e-7], \"A.b\": \"x\", "
            "\"Flow-2.FRSet\": 3}");
  EXPECT_EQ(after("[Flow-1]\nFillTime = 1\n", {"set", "--from", object, "A.c=2"}),
            "[Flow-1]\nFillTime = 1.50\nFR-1 = 0\t1e-7\n\n[A]\nb                    = x\nc        "
            "            = 2\n\n[Flow-2]\nFRSet                = 3\n");
  put_bytes(object, "{\"Flow-1.FillTime\": \"fast\"}");
  EXPECT_EQ(after("[Flow-1]\n", {"set", "--from", object}, 2), "[Flow-1]\n");
  put_bytes(object, "{\"Flow-1.FRSet\": 1.5}");
  EXPECT_EQ(after("[Flow-1]\n", {"set", "--from", object}, 2), "[Flow-1]\n");
  put_bytes(object, "{\"Flow-1.FRSet\": 1.5");
  EXPECT_EQ(after("[Flow-1]\n", {"set", "--from", object}, 3), "[Flow-1]\n");
  EXPECT_THAT(last_.err, HasSubstr("values.json:1: no JSON"));
  put_bytes(object, "[1]");
  EXPECT_EQ(after("[Flow-1]\n", {"set", "--from", object}, 3), "[Flow-1]\n");
}

TEST_F(ChangeOfAFile, SetsLinesThatHaveAPosition) {
  const std::string section = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n";
  EXPECT_EQ(after(section + "1 Wall 0\n1 = 2 3\n\n[B]\n", {"set", "SURFACE.#2=1 = 4 5"}),
            section + "1 Wall 0\n1 = 4 5\n\n[B]\n");
  EXPECT_EQ(after(section + "1 Wall 0\n\n[B]\n", {"set", "SURFACE.#2=1 = 4 5"}),
            section + "1 Wall 0\n1 = 4 5\n[B]\n");
  EXPECT_EQ(after(section + "1 Wall 0\n\n[B]\n", {"set", "SURFACE.#3=1 = 4 5"}),
            section + "1 Wall 0\n\n1 = 4 5\n[B]\n")
      << "an empty line has a position, too";
  EXPECT_EQ(after(section + "1 Wall 0\n", {"set", "SURFACE.#2=1 = 4 5", "SURFACE.#3=1 = 6 7"}),
            section + "1 Wall 0\n1 = 4 5\n1 = 6 7\n");
  EXPECT_EQ(after(section + "1 Wall 0\n[B]\n", {"set", "SURFACE.#9=1 = 4 5"}, 2),
            section + "1 Wall 0\n[B]\n");
  EXPECT_THAT(last_.err, HasSubstr("the section's next line is #2"));
  EXPECT_EQ(after("[A]\n", {"set", "SURFACE.#2=1 Wall 0"}, 2), "[A]\n");
  EXPECT_EQ(after(section + "1 Wall 0\n", {"set", "SURFACE.#1="}, 2), section + "1 Wall 0\n");
  EXPECT_EQ(after("[A]\n", {"set", "SURFACE.#1=1 Wall 0", "SURFACE.#2=1 = 2 3"}),
            "[A]\n\n" + section + "1 Wall 0\n1 = 2 3\n");
  EXPECT_EQ(after(section, {"set", "SURFACE.#1=[B]"}, 2), section);
  EXPECT_EQ(after(section, {"set", "SURFACE.x=1"}, 2), section);
}

TEST_F(ChangeOfAFile, RemovesEntries) {
  EXPECT_EQ(after("[A]\nx = 1\ny = 2\n;x = 3\n x = 4\nx = 5\n\n[B]\nx = 6", {"unset", "A.x"}),
            "[A]\ny = 2\n;x = 3\n x = 4\n\n[B]\nx = 6");
  EXPECT_EQ(after("[A]\r\nx = 1\r\ny = 2", {"unset", "A.y"}), "[A]\r\nx = 1\r\n");
  EXPECT_EQ(after("[A]\nx1 = 1\nx2 = 2\ny = 3\n", {"unset", "A.x*"}), "[A]\ny = 3\n");
  EXPECT_EQ(after("[SURFACE x]\n1 A 0\n1 = 2 3\n", {"unset", "SURFACE.#2"}),
            "[SURFACE x]\n1 A 0\n");
}

TEST_F(ChangeOfAFile, RemovesSectionsWithTheirHeaders) {
  EXPECT_EQ(after("[A]\nx = 1\n\n[B] # b\n; b\ny = 2\n\n[C]\nz = 3\n", {"unset", "B.*"}),
            "[A]\nx = 1\n\n[C]\nz = 3\n");
  EXPECT_EQ(after("[A]\nx = 1\n[B]\ny = 2\n[A]\nx = 3", {"unset", "A.*"}), "[B]\ny = 2\n")
      << "the second one must not come to light";
  EXPECT_EQ(after("[Flow-1]\n[Flow-2]\n[Pack-1]\n", {"unset", "Flow-*.*"}), "[Pack-1]\n");
  EXPECT_EQ(after("[A]\n[SURFACE x]\n1 A 0\n", {"unset", "SURFACE.*"}), "[A]\n");
}

TEST_F(ChangeOfAFile, TellsWhatItDidNotFindAndRemovesTheRest) {
  EXPECT_EQ(after("[A]\nx = 1\ny = 2\n", {"unset", "A.x", "A.gone", "G.*"}, 1), "[A]\ny = 2\n");
  EXPECT_THAT(last_.err, HasSubstr("\"A.gone\": not found"));
  EXPECT_THAT(last_.err, HasSubstr("\"G.*\": not found"));
}

TEST_F(ChangeOfAFile, TakesWordsThatBeginWithADashBehindTwo) {
  EXPECT_EQ(after("[A]\nx = 1\n", {"set", "A", "x", "-5"}), "[A]\nx = -5\n");
  EXPECT_EQ(after("[A]\nx = 1\n", {"set", "A", "x", "--", "-5"}), "[A]\nx = -5\n");
  EXPECT_EQ(after("[A]\nx = 1\n", {"set", "--", "A", "x", "--force"}), "[A]\nx = --force\n");
  EXPECT_EQ(after("[A]\nx = 1\n", {"set", "A", "x", "--farce"}, 2), "[A]\nx = 1\n");
}

TEST_F(ChangeOfAFile, RemovesOfALineThatGoesOnWhatIsReadByItself) {
  const std::string front = "b = " + std::string(4091, 'v');
  EXPECT_EQ(after("[A]\n" + front + "c = 3\nd = 4\n", {"unset", "A.b"}), "[A]\nc = 3\nd = 4\n");
}

TEST_F(ChangeOfAFile, DryRunWritesNothing) {
  const std::string contents = "[A]\nx = 1\ny = 2\n";
  EXPECT_EQ(after(contents, {"set", "A.x=3", "--dry-run"}), contents);
  EXPECT_EQ(last_.out, "~ A.x: 1 -> 3\n");
  EXPECT_EQ(after(contents, {"unset", "A.y", "--dry-run"}), contents);
  EXPECT_EQ(last_.out, "- A.y: 2\n");
  EXPECT_EQ(after(contents, {"set", "A.x=1", "--dry-run"}), contents);
  EXPECT_EQ(last_.out, "");
}

}  // namespace
