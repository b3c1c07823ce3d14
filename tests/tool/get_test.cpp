#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using testing::HasSubstr;

Outcome qelpro(const std::vector<std::string>& arguments) {
  return run(QELPRO_TOOL_PATH, arguments);
}

constexpr const char* kFile =
    "[FileHeader]\nName = a.pro\n;x = 1\n\n[Flow-1] # first\nFillTime = 1.50\nFRSet = 2\nFR-1 = "
    "0\t50\nFR-2 = 100 40.\nMeltTemp = hot\nOwn = 3\n Indented = 4\nFillTime = 9\nFillTypo\n"
    "MoldTemp\n\n[A.b]\nc = 5\n"
    "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1 Wall 0\n\n1 = 20 30\n[Flow-1]\nFillTime = 8\n";

class GetOfAFile : public testing::Test {
 protected:
  Outcome get(std::vector<std::string> words) {
    words.insert(words.begin(), {"get", file_});
    return qelpro(words);
  }
  Scratch scratch_;
  std::string file_ = scratch_.file(kFile);
};

TEST_F(GetOfAFile, OneAddressIsTheValueAloneAsItStands) {
  EXPECT_EQ(get({"Flow-1.FillTime"}).out, "1.50\n");
  EXPECT_EQ(get({"Flow-1", "FillTime"}).out, "1.50\n");
  EXPECT_EQ(get({"[Flow-1]", "FR-1"}).out, "0\t50\n");
}

TEST_F(GetOfAFile, TakesNamesThatHoldADot) {
  EXPECT_EQ(get({"A.b.c"}).out, "5\n");
  EXPECT_EQ(get({"[A.b]", "c"}).out, "5\n");
}

TEST_F(GetOfAFile, SeveralAreALineEach) {
  EXPECT_EQ(get({"Flow-1.Own", "FileHeader", "Name"}).out,
            "Flow-1.Own = 3\nFileHeader.Name = a.pro\n");
}

TEST_F(GetOfAFile, APatternIsAnsweredInTheFilesOrder) {
  EXPECT_EQ(get({"Flow-1.F*"}).out,
            "Flow-1.FillTime = 1.50\nFlow-1.FRSet = 2\nFlow-1.FR-1 = 0\t50\nFlow-1.FR-2 = 100 "
            "40.\n");
  EXPECT_EQ(get({"*Own"}).out, "Flow-1.Own = 3\n") << "a pattern without a dot is of the whole";
  EXPECT_EQ(get({"Flow-[12].FR-?"}).out, "Flow-1.FR-1 = 0\t50\nFlow-1.FR-2 = 100 40.\n");
}

TEST_F(GetOfAFile, TypedAreTheFieldsAsTheReaderGivesThem) {
  EXPECT_EQ(get({"Flow-1.FillTime", "--typed"}).out, "1.5\n");
  EXPECT_EQ(get({"Flow-1.FR-2", "--typed"}).out, "100\t40\n");
  EXPECT_EQ(get({"Flow-1.Own", "--typed"}).out, "3\n");
  const Outcome unread = get({"Flow-1.MeltTemp", "--typed"});
  EXPECT_EQ(unread.out, "0\n");
  EXPECT_THAT(unread.err, HasSubstr("file.pro:10: [Flow-1] MeltTemp: field 1, a number"));
}

TEST_F(GetOfAFile, JsonIsAnObjectFromAddressToTypedValue) {
  const Outcome outcome = get({"Flow-1.*", "Flow-1.FillTime", "--json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out,
            "{\n  \"Flow-1.FillTime\": 1.50,\n  \"Flow-1.FRSet\": 2,\n  \"Flow-1.FR-1\": [\n    "
            "0.0,\n    50.0\n  ],\n  \"Flow-1.FR-2\": [\n    100.0,\n    40.0\n  ],\n  "
            "\"Flow-1.MeltTemp\": \"hot\",\n  \"Flow-1.Own\": \"3\",\n  \"Flow-1.MoldTemp\": "
            "\"\"\n}\n");
}

TEST_F(GetOfAFile, WhatIsNotFoundIsToldAndTheRestAnswered) {
  const Outcome outcome = get({"Flow-1.Own", "Flow-1.Gone", "Flow-9.x", "Q*.y"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "Flow-1.Own = 3\n");
  EXPECT_EQ(outcome.err,
            "qelpro: " + file_ +
                ": [Flow-1] Gone: not found: the section has no such key; qelpro list prints those "
                "that it "
                "has\nqelpro: " +
                file_ +
                ": [Flow-9] x: not found: the file has no such section; qelpro list --sections "
                "prints those it has\nqelpro: " +
                file_ + ": \"Q*.y\" matches no entry; qelpro list prints them\n");
}

TEST_F(GetOfAFile, ANameThatIsNearIsOffered) {
  EXPECT_THAT(get({"Flow-1.FilTime"}).err, HasSubstr("did you mean \"FillTime\"?"));
  EXPECT_THAT(get({"[Flow-1].FillTime"}).err, HasSubstr("leave the brackets out"));
}

TEST_F(GetOfAFile, ADefaultStandsForWhatIsNotFound) {
  EXPECT_EQ(get({"Flow-1.Gone", "--default", "7"}).out, "7\n");
  EXPECT_EQ(get({"Flow-1.Gone", "--default", "7"}).status, 0);
  EXPECT_EQ(get({"Flow-1.Gone", "Flow-1.Own", "--default", ""}).out,
            "Flow-1.Gone = \nFlow-1.Own = 3\n");
  EXPECT_EQ(get({"Flow-1.Gone", "--default", "[x]", "--json"}).out,
            "{\n  \"Flow-1.Gone\": \"[x]\"\n}\n");
}

TEST_F(GetOfAFile, WhatNobodyReadsIsNotFound) {
  for (const char* address : {"FileHeader.;x", "Flow-1.Indented", "Flow-1.#1", "Flow-1.FillTypo"}) {
    EXPECT_EQ(get({address}).status, 1) << address;
  }
}

TEST_F(GetOfAFile, AKnownKeyWithoutEqualsHasAnEmptyValue) {
  EXPECT_EQ(get({"Flow-1.MoldTemp"}).out, "\n");
}

TEST_F(GetOfAFile, LinesThatHaveAPositionAreCountedBehindTheHeader) {
  EXPECT_EQ(get({"SURFACE.#1"}).out, "1 Wall 0\n");
  EXPECT_EQ(get({"SURFACE.#3"}).out, "1 = 20 30\n");
  EXPECT_EQ(get({"SURFACE ELEMENT BOUNDARY CONDITION NAME.#3", "--typed"}).out, "20\t30\n");
  EXPECT_EQ(get({"SURFACE.#2"}).out, "\n") << "an empty line among others has a position, too";
  EXPECT_EQ(get({"SURFACE.#4"}).status, 1);
  EXPECT_THAT(get({"SURFACE.Wall"}).err, HasSubstr("have a position and no key"));
}

TEST_F(GetOfAFile, ListPrintsAddressesOneALine) {
  EXPECT_EQ(qelpro({"list", file_}).out,
            "FileHeader.Name\nFlow-1.FillTime\nFlow-1.FRSet\nFlow-1.FR-1\nFlow-1.FR-2\nFlow-1."
            "MeltTemp\nFlow-1.Own\nFlow-1.MoldTemp\nA.b.c\nSURFACE ELEMENT BOUNDARY CONDITION "
            "NAME.#1\nSURFACE ELEMENT BOUNDARY CONDITION NAME.#2\nSURFACE ELEMENT BOUNDARY "
            "CONDITION NAME.#3\n");
  EXPECT_EQ(qelpro({"list", file_, "*FR-*"}).out, "Flow-1.FR-1\nFlow-1.FR-2\n");
  EXPECT_EQ(qelpro({"list", file_, "FileHeader"}).out, "FileHeader.Name\n");
  EXPECT_EQ(qelpro({"list", file_, "[FileHeader]"}).out, "FileHeader.Name\n");
  EXPECT_EQ(qelpro({"list", file_, "--sections"}).out,
            "FileHeader\nFlow-1\nA.b\nSURFACE ELEMENT BOUNDARY CONDITION NAME\n");
  EXPECT_EQ(qelpro({"list", file_, "F*", "--sections", "--json"}).out,
            "[\n  \"FileHeader\",\n  \"Flow-1\"\n]\n");
  EXPECT_EQ(qelpro({"list", file_, "x*"}).status, 1);
  EXPECT_EQ(qelpro({"list", scratch_.file("")}).status, 0);
}

TEST_F(GetOfAFile, EveryAddressThatListPrintsIsFound) {
  const std::string listed = qelpro({"list", file_}).out;
  std::size_t begin = 0;
  for (std::size_t end = listed.find('\n'); end != std::string::npos;
       end = listed.find('\n', begin = end + 1)) {
    EXPECT_EQ(get({listed.substr(begin, end - begin)}).status, 0);
  }
}

}  // namespace
