#include "file/edit.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

#include "support/scratch.h"
#include "system/failure.h"

// What a program wants to be changed, as the changes that it takes.

namespace {

using namespace qelpro;
using testing::HasSubstr;

const std::string kPositional = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n";

std::string after(std::string contents, const std::vector<Edit>& edits) {
  const SectionedText document(std::move(contents));
  return with_changes(document, changes_of("a.pro", document, edits));
}

// The status, and the message.
std::pair<Status, std::string> refusal_of(const std::string& contents, const Edit& edit) {
  try {
    after(contents, {edit});
  } catch (const Failure& failure) {
    return {failure.status(), failure.what()};
  }
  return {kDone, ""};
}

TEST(SetEntry, ChangesTheEntryOrAddsIt) {
  EXPECT_EQ(after("[Flow-1]\nFillTime = 1 \n", {set_entry({"Flow-1", "FillTime"}, 1.5)}),
            "[Flow-1]\nFillTime = 1.5 \n");
  EXPECT_EQ(after("[Flow-1]\nFillTime = 1\n", {set_entry({"Flow-1", "FRSet"}, 2)}),
            "[Flow-1]\nFillTime = 1\nFRSet = 2\n");
  EXPECT_EQ(after("", {set_entry({"Flow-1", "FR-1"}, Json::array({0, 50.5}))}),
            "[Flow-1]\nFR-1                 = 0\t50.5\n");
}

TEST(SetEntry, RefusesWhatTheEncodingDoesNotHold) {
  for (const Json& value : {Json("fast"), Json("1 2"), Json(""), Json::array({1, 2})}) {
    const auto [status, message] = refusal_of("", set_entry({"Flow-1", "FillTime"}, value));
    EXPECT_EQ(status, kUsage) << value;
    EXPECT_THAT(message, HasSubstr("a.pro: [Flow-1] FillTime: ")) << value;
  }
  EXPECT_EQ(refusal_of("", set_entry({"Flow-1", "FRSet"}, 1.5)).first, kUsage);
  EXPECT_EQ(refusal_of("", set_entry({"Flow-1", "a b"}, 1)).first, kUsage);
}

TEST(SetEntry, RefusesWhatIsNotFinite) {
  for (const char* text : {"nan", "inf", "-inf", "1e999"}) {
    EXPECT_EQ(refusal_of("", set_entry({"Flow-1", "FillTime"}, text)).first, kUsage) << text;
  }
  // A text is one.
  EXPECT_EQ(refusal_of("", set_entry({"Mine", "x"}, "nan")).first, kDone);
}

TEST(SetEntry, RefusesACharacterZeroWithAWholeMessage) {
  const std::string text("a\0b", 3);
  EXPECT_EQ(refusal_of("", set_entry({"Mine", "x"}, text)).second,
            "a.pro: [Mine] x: the value holds a character 0, where texts end");
  EXPECT_EQ(refusal_of("", set_entry({"Mine", text}, 1)).second,
            "a.pro: [Mine] a\\x00b: key \"a\\x00b\": a name holds no character 0, where texts end");
  EXPECT_EQ(refusal_of("", set_section("SURFACE", {{"lines", {text}}})).first, kUsage);
}

TEST(RemoveEntry, TakesEveryLineOfTheKey) {
  EXPECT_EQ(after("[A]\nx = 1\ny = 2\nx = 3\n", {remove_entry({"A", "x"})}), "[A]\ny = 2\n");
  const auto [status, message] = refusal_of("[A]\nx = 1\n", remove_entry({"A", "y"}));
  EXPECT_EQ(status, kNotFound);
  EXPECT_EQ(message, "a.pro: [A] y: not found");
}

TEST(SetSection, HoldsTheseEntriesAndNoOthers) {
  EXPECT_EQ(after("[A]\n; why\nx = 1\ny = 2\ny = 3\n[B]\nx = 4\n",
                  {set_section("A", {{"z", "5"}, {"x", "6"}})}),
            "[A]\n; why\nx = 6\nz = 5\n[B]\nx = 4\n");
  EXPECT_EQ(after("[A]\nx = 1\n", {set_section("A", Json::object())}), "[A]\n");
}

TEST(SetSection, MakesOneThatIsNotThere) {
  EXPECT_EQ(after("[A]\nx = 1\n", {set_section("B", Json::object())}), "[A]\nx = 1\n\n[B]\n");
  EXPECT_EQ(after("", {set_section("B", {{"x", 1}})}), "[B]\nx                    = 1\n");
}

TEST(SetSection, IsRefusedWhole) {
  EXPECT_EQ(refusal_of("", set_section("B", {{"x", 1}, {"a b", 1}})).first, kUsage);
  EXPECT_EQ(refusal_of("", set_section("B", Json::array({1}))).first, kUsage);
  EXPECT_EQ(refusal_of("", set_section("a b", Json::object())).first, kUsage);
  EXPECT_EQ(refusal_of("", set_section("Flow-1", {{"FillTime", "x"}})).first, kUsage);
}

TEST(RemoveSection, TakesHeaderAndLines) {
  EXPECT_EQ(after("[A]\nx = 1\n[B]\ny = 2\n[A]\nz = 3\n", {remove_section("A")}), "[B]\ny = 2\n");
  EXPECT_EQ(refusal_of("[A]\n", remove_section("B")).first, kNotFound);
}

TEST(EditOfLinesThatHaveAPosition, SetsThemAll) {
  const std::string contents = kPositional + "1 a\n\nb\n[B]\n";
  const Json lines{{"lines", {"1 a", "", "c"}}};
  EXPECT_EQ(after(contents, {set_section("SURFACE", lines)}), kPositional + "1 a\n\nc\n[B]\n");
  EXPECT_EQ(after(contents, {set_entry({"SURFACE", "lines"}, {"x"})}), kPositional + "x\n[B]\n");
  EXPECT_EQ(after(contents, {remove_entry({"SURFACE", "lines"})}), kPositional + "[B]\n");
  EXPECT_EQ(after(contents, {set_section("SURFACE", Json::object())}), kPositional + "[B]\n");
}

TEST(EditOfLinesThatHaveAPosition, MakesTheirSectionUnderItsWholeName) {
  EXPECT_EQ(after("", {set_entry({"SURFACE", "lines"}, {"x", "y"})}), kPositional + "x\ny\n");
  EXPECT_EQ(after("", {set_section("SURFACE", Json::object())}), kPositional);
}

TEST(EditOfLinesThatHaveAPosition, RefusesAllElse) {
  for (const Json& keys : {Json{{"x", 1}}, Json{{"lines", 1}}, Json{{"lines", {1}}},
                           Json{{"lines", {"a"}}, {"x", 1}}, Json::array({"a"})}) {
    EXPECT_EQ(refusal_of(kPositional, set_section("SURFACE", keys)).first, kUsage) << keys;
  }
  EXPECT_EQ(refusal_of(kPositional, set_section("SURFACE", {{"lines", {"[A]"}}})).first, kUsage);
}

TEST(Edits, BuildOnTheOnesBefore) {
  EXPECT_EQ(after("", {set_section("A", {{"x", 1}}), remove_entry({"A", "x"}),
                       set_entry({"A", "y"}, 2), set_entry({"B", "z"}, 3), remove_section("B")}),
            "[A]\ny                    = 2\n\n");
}

TEST(Edits, ThatAreTakenBackAreNotLookedForInTheFile) {
  const qelpro_test::Scratch scratch;
  const std::string file = scratch.file("[A]\nx = 1\n");
  change_file(file, [&](const SectionedText& document) {
    return changes_of(file, document,
                      {set_entry({"B", "y"}, 2), remove_section("B"), set_entry({"A", "z"}, 3),
                       remove_entry({"A", "z"}), set_entry({"A", "x"}, 4)});
  });
  EXPECT_EQ(qelpro_test::bytes_of(file), "[A]\nx = 4\n\n");
}

TEST(AddSection, MakesASectionWithoutEntriesWhereThereIsNone) {
  const auto added = [](std::string contents, const std::string& section) {
    return with_changes(SectionedText(std::move(contents)),
                        {{Change::Kind::add_section, {section, ""}, ""}});
  };
  EXPECT_EQ(added("", "A"), "[A]\n");
  EXPECT_EQ(added("[A]\nx = 1", "B"), "[A]\nx = 1\n\n[B]\n");
  EXPECT_EQ(added("[A]\r\n", "B"), "[A]\r\n\r\n[B]\r\n");
  EXPECT_EQ(added("[A]\nx = 1\n", "A"), "[A]\nx = 1\n");
  EXPECT_EQ(added("", "SURFACE"), kPositional);
}

TEST(AddSection, ComesBeforeTheEntriesThatFollow) {
  EXPECT_EQ(with_changes(SectionedText("[A]\n"), {{Change::Kind::add_section, {"C", ""}, ""},
                                                  {Change::Kind::set, {"B", "x"}, "1"},
                                                  {Change::Kind::set, {"C", "y"}, "2"},
                                                  {Change::Kind::add_section, {"B", ""}, ""}}),
            "[A]\n\n[C]\ny                    = 2\n\n[B]\nx                    = 1\n");
}

}  // namespace
