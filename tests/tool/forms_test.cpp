#include <gmock/gmock.h>

#include <filesystem>
#include <random>

#include "file/forms.h"
#include "json/json_input.h"
#include "support/comma_locale.h"
#include "support/line_break.h"
#include "support/run.h"
#include "support/scratch.h"
#include "system/failure.h"

namespace {

using namespace qelpro;
using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;

Outcome qelpro_tool(const std::vector<std::string>& arguments) {
  return run(QELPRO_TOOL_PATH, arguments);
}

std::string json_text(const Json& value) {
  TextSink sink;
  write_json(sink, value);
  return sink.text();
}

TEST(Export, TypesTheValuesByTheCatalogue) {
  const Scratch scratch;
  const std::string file = scratch.file(
      "[Flow-1]\nFillTime = 1\nFRSet = 2\nFR-1 = 0 50\nMeltTemp = 1e-007\nOwn = 1\nMoldTemp = "
      "warm\nFR-2=3.14159265358979323846 1\n[Empty]\n[SURFACE x y] z\n1 Wall 0\n\n1 = 2 3\n\n"
      "[Machine]\n; c\n");
  EXPECT_EQ(qelpro_tool({"export", file}).out,
            "{\n  \"Flow-1\": {\n    \"FillTime\": 1.0,\n    \"FRSet\": 2,\n    \"FR-1\": [\n      "
            "0.0,\n      50.0\n    ],\n    \"MeltTemp\": 1e-007,\n    \"Own\": \"1\",\n    "
            "\"MoldTemp\": \"warm\",\n    \"FR-2\": [\n      3.14159265358979323846,\n      1.0\n  "
            "  ]\n  },\n  \"Empty\": {},\n  \"SURFACE x y\": {\n    \"lines\": [\n      \"1 Wall "
            "0\",\n      \"\",\n      \"1 = 2 3\"\n    ]\n  },\n  \"Machine\": {}\n}\n");
}

TEST(Export, OfTheImportedPlainFormIsTheSame) {
  const Scratch scratch;
  for (const auto& item : std::filesystem::recursive_directory_iterator(data_path(""))) {
    if (item.path().extension() != ".pro") {
      continue;
    }
    const std::string form = scratch.path("form.json");
    const std::string copy = scratch.path("copy.pro");
    ASSERT_EQ(qelpro_tool({"export", item.path().string(), "-o", form}).status, 0) << item.path();
    ASSERT_EQ(qelpro_tool({"import", form, "-o", copy}).err, "") << item.path();
    EXPECT_EQ(qelpro_tool({"export", copy}).out, bytes_of(form)) << item.path();
  }
}

TEST(Export, OfATextEndsItWhereTheEngineDoes) {
  const SectionedText document(std::string("[FileHeader]\nRemark = a b\t\0c\n", 29));
  EXPECT_EQ(plain_form(Entries(document)), Json({{"FileHeader", {{"Remark", "a b"}}}}));
}

TEST(Export, HasNoEntryThatNoLookupFinds) {
  const SectionedText document("[Flow-1]\nFill\rTime = 1\nFillTime = 2\n");
  EXPECT_EQ(json_text(plain_form(Entries(document))),
            "{\n  \"Flow-1\": {\n    \"FillTime\": 2.0\n  }\n}");
}

TEST(Export, NamesASectionOfTwoBracketsAsItIs) {
  const SectionedText document("[[A]]\nx = 1\n");
  const Json form = plain_form(Entries(document));
  EXPECT_EQ(form, Json({{"[[A]]", {{"x", "1"}}}}));
  const SectionedText made(contents_of("form", form));
  EXPECT_EQ(plain_form(Entries(made)), form);
}

TEST(Export, ExactFormsHoldEveryByte) {
  const Scratch scratch;
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    std::string contents(random() % 300, '\0');
    for (char& byte : contents) {
      constexpr std::string_view kUsual = "[]=\n\r\t \xEF\xBB\xBF\xF4\x8F\xBF\xED\xB2\x80\\u\"d";
      byte = random() % 2 == 0 ? kUsual[random() % kUsual.size()] : static_cast<char>(random());
    }
    const Json form = exact_form(contents);
    const Json again = parse_json("form.json", json_text(form));
    ASSERT_EQ(contents_of("form.json", again), contents);
  }
  const std::string file = scratch.file(std::string("[A]\r\nx = \xFF\0\x1A", 12));
  ASSERT_EQ(qelpro_tool({"export", "--exact", file, "-o", scratch.path("form.json")}).status, 0);
  ASSERT_EQ(
      qelpro_tool({"import", scratch.path("form.json"), "-o", scratch.path("copy.pro")}).status, 0);
  EXPECT_EQ(bytes_of(scratch.path("copy.pro")), bytes_of(file));
}

TEST(Import, WritesValuesInTheLayoutOfTheirEncodings) {
  const Json form = parse_json("f",
                               "{\"Flow-1\": {\"FillTime\": 1.50, \"FRSet\": 2, \"FR-1\": [0, "
                               "0.1]}, \"Own\": {\"k\": 12345678901234567890123, \"t\": \" a "
                               "\"}, \"MoldbaseInfo\": {\"MB-1\": [1, \"P 20\"]}, "
                               "\"GateValve-1\": {\"GC-1\": [1.5, 2, 1, -1], \"GC-2\": [1.5, "
                               "2, 2, 7]}}");
  const std::string contents = contents_of("f", form);
  for (const char* line :
       {"FillTime             = 1.50", "FRSet                = 2", "FR-1                 = 0\t0.1",
        "k                    = 12345678901234567890123", "MB-1                 = 1\t\"P 20\"",
        "GC-1                 = 1.5\t2\t1", "GC-2                 = 1.5\t2\t2\t7"}) {
    EXPECT_THAT(contents, HasSubstr(line));
  }
}

TEST(Import, WritesNumbersWithAPointWhateverTheHostsLocale) {
  const CommaLocale comma;
  if (!comma.is_set()) {
    GTEST_SKIP() << "the machine has no locale with a decimal comma";
  }
  const std::string contents =
      contents_of("f", parse_json("f",
                                  "{\"Flow-1\": {\"FillTime\": 1.50, \"FR-1\": [-2.5e-3, 0.1]}, "
                                  "\"Own\": {\"k\": 0.125}}"));
  EXPECT_THAT(without_returns(contents),
              AllOf(HasSubstr("FillTime             = 1.50\n"), HasSubstr("= -2.5e-3\t0.1\n"),
                    HasSubstr("k                    = 0.125\n")));
  EXPECT_THROW(contents_of("f", parse_json("f", "{\"Flow-1\": {\"FRSet\": 1.5}}")), Failure);
}

TEST(Import, RefusesWhatCouldNotBeReadBack) {
  for (const char* form :
       {"{\"A\": {\"a b\": \"1\"}}", "{\"A\": {\"x\": \"1\\n2\"}}", "{\"A\": {\";x\": \"1\"}}",
        "{\"A\": {\"x\": \"1\"}, \"[A]\": {\"y\": \"1\"}}", "{\"Flow-1\": {\"FRSet\": 1.5}}",
        "{\"Flow-1\": {\"FR-1\": [1]}}", "{\"Flow-1\": {\"FR-1\": [1, 2, 3]}}",
        "{\"Flow-1\": {\"FR-1\": [1, \"x\"]}}", "{\"Flow-1\": {\"FRSet\": 3000000000}}",
        "{\"A\": {\"x\": [1]}}", "{\"A\": {\"x\": null}}", "{\"A\": {\"x\": true}}",
        "{\"A\": {\"x\": {}}}", "{\"A\": 1}", "[]", "{\"exact\": [1]}",
        "{\"SURFACE x\": {\"#1\": \"a\"}}", "{\"A\": {\"\": \"1\"}}"}) {
    EXPECT_THROW(contents_of("f", parse_json("f", form)), Failure) << form;
  }
}

TEST(Import, TellsLineAndNameOfWhatIsNoJson) {
  const Scratch scratch;
  const std::string form = scratch.path("form.json");
  put_bytes(form, "{\n  \"A\": {\"x\": 1,}\n}\n");
  const Outcome outcome = qelpro_tool({"import", form, "-o", scratch.path("x.pro")});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("form.json:2: no JSON"));
  EXPECT_FALSE(std::filesystem::exists(scratch.path("x.pro")));
  put_bytes(form, "{\"A\": {\"x\": \"1\", \"x\": \"2\"}}");
  EXPECT_THAT(qelpro_tool({"import", form, "-o", scratch.path("x.pro")}).err,
              HasSubstr("the name \"x\" twice"));
}

TEST(Import, OntoAFileSetsItsEntriesAndLeavesTheRest) {
  const Scratch scratch;
  const std::string form = scratch.path("form.json");
  put_bytes(form, "{\"Flow-1\": {\"FillTime\": 2, \"Own\": \"x\"}, \"B\": {\"y\": \"1\"}}");
  const std::string file = scratch.file("; c\n[Flow-1]\nFillTime=1.0\nMeltTemp = 3\n");
  EXPECT_EQ(qelpro_tool({"import", form, "--onto", file}).err, "");
  EXPECT_EQ(bytes_of(file),
            "; c\n[Flow-1]\nFillTime=2\nMeltTemp = 3\nOwn = x\n\n[B]\ny                    = 1\n");
  put_bytes(form, "{\"Flow-1\": {\"FillTime\": \"fast\"}}");
  EXPECT_EQ(qelpro_tool({"import", form, "--onto", file}).status, 2);
  EXPECT_EQ(qelpro_tool({"import", form, "--onto", file, "--force"}).status, 0);
  EXPECT_THAT(bytes_of(file), HasSubstr("FillTime=fast\n"));
}

TEST(Import, TakesEverythingThatExportPrints) {
  const Scratch scratch;
  const std::string file =
      scratch.file("[Flow-1]\nFillTime = nan\nFR-1 = nan inf\nFR-2 = 1 x\n[SURFACE x]\na\n\nb\n");
  const std::string form = scratch.path("form.json");
  ASSERT_EQ(qelpro_tool({"export", file, "-o", form}).status, 0);
  const std::string copy = scratch.path("copy.pro");
  EXPECT_EQ(qelpro_tool({"import", form, "-o", copy}).err, "");
  EXPECT_EQ(qelpro_tool({"export", copy}).out, bytes_of(form));
}

TEST(Import, RefusesLinesThatTheEngineWouldReadAsTwo) {
  EXPECT_THROW(contents_of("f", {{"A", {{"b", std::string(4072, 'x') + "c=1"}}}}), Failure);
  EXPECT_NE(contents_of("f", {{"A", {{"b", std::string(5000, 'x')}}}}), "");
}

TEST(Import, TellsANumberThatIsTooLarge) {
  const Scratch scratch;
  const std::string form = scratch.file("{\"Flow-1\":\n{\"FillTime\": 1e400}}", "form.json");
  const Outcome outcome = qelpro_tool({"import", form, "-o", scratch.path("x.pro")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.err, HasSubstr("form.json:2: a number is too large"));
}

TEST(Import, WantsOneFileToWriteTo) {
  const Scratch scratch;
  const std::string form = scratch.path("form.json");
  put_bytes(form, "{}");
  EXPECT_EQ(qelpro_tool({"import", form}).status, 2);
  EXPECT_EQ(qelpro_tool({"import", form, "-o", "a", "--onto", "b"}).status, 2);
  EXPECT_EQ(qelpro_tool({"import", form, "-o", "-"}).out, "");
  for (const char* option : {"--dry-run", "--force"}) {
    EXPECT_EQ(qelpro_tool({"import", form, "-o", scratch.path("x.pro"), option}).status, 2);
    EXPECT_FALSE(std::filesystem::exists(scratch.path("x.pro"))) << option;
  }
  put_bytes(form, "{\"exact\": []}");
  EXPECT_EQ(qelpro_tool({"import", form, "--onto", scratch.file("[A]\n")}).status, 2);
}

TEST(Json, KeepsBytesThatAreNoUtf8) {
  std::string every;
  for (int byte = 255; byte >= 0; --byte) {
    every += static_cast<char>(byte);
  }
  EXPECT_EQ(parse_json("f", json_text(Json(every))).get<std::string>(), every);
  EXPECT_EQ(parse_json("f", "\"\\udc80\\udbff\\udfff\\ud83d\\ude00\\\\udc80\"").get<std::string>(),
            "\x80\xF4\x8F\xBF\xBF\xF0\x9F\x98\x80\\udc80");
  EXPECT_THROW(parse_json("f", "\"\\ud800\""), Failure);
  EXPECT_THROW(parse_json("f", "\"\\udc00\""), Failure);
  EXPECT_THROW(parse_json("f", "\"\xFF\""), Failure);
}

}  // namespace
