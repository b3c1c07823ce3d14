#include "picture/report.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "file/entries.h"
#include "picture/markup.h"
#include "picture/report_source.h"
#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using qelpro::SectionedText;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

Outcome qelpro_run(const std::vector<std::string>& arguments) {
  return run(QELPRO_TOOL_PATH, arguments);
}

std::string report_of(const std::string& name, const std::string& contents) {
  const SectionedText document(contents);
  qelpro::TextSink page;
  qelpro::write_report(page, {{name, &document}});
  return page.text();
}

std::string comparison_of(const std::string& a, const std::string& b) {
  const SectionedText first(a);
  const SectionedText second(b);
  qelpro::TextSink page;
  qelpro::write_report(page, {{"a.pro", &first}, {"b.pro", &second}});
  return page.text();
}

std::string escaped(std::string_view text) {
  qelpro::TextSink sink;
  qelpro::Markup(sink).text(text);
  return sink.text();
}

TEST(Report, IsAPageByItself) {
  const std::string page = report_of("lid.pro", bytes_of(data_path("injection_two_inlets.pro")));
  EXPECT_THAT(page, AllOf(StartsWith("<!DOCTYPE html>\n<html lang=\"en\">"),
                          HasSubstr("name=\"viewport\""), HasSubstr("<title>lid.pro"),
                          HasSubstr("prefers-color-scheme:dark"), HasSubstr("@media print")));
  for (const char* outside :
       {"<script", "<link", "<img", "<iframe", "@import", "url(", " src=", "<form", "<object"}) {
    EXPECT_THAT(page, Not(HasSubstr(outside)));
  }
}

TEST(Report, HoldsEveryEntryOfEveryFileOfTheTests) {
  for (const char* name : {"injection_two_inlets.pro", "co_injection_type_8.pro",
                           "transfer_molding_curing.pro", "proio_default.pro"}) {
    const SectionedText document(bytes_of(data_path(name)));
    const qelpro::Entries entries(document);
    qelpro::TextSink sink;
    qelpro::write_report(sink, {{name, &document}});
    const std::string page = sink.text();
    ASSERT_GT(entries.all().size(), 20U);
    for (const qelpro::FileEntry& entry : entries.all()) {
      // A count of points that are drawn is told with them.
      if (entry.key.ends_with("Set")) {
        continue;
      }
      EXPECT_THAT(page, HasSubstr(">" + escaped(entry.key) + "<")) << name;
      EXPECT_THAT(page, HasSubstr("<bdi>" + escaped(entry.value) + "</bdi>")) << name;
    }
  }
}

TEST(Report, HasItsChaptersInOrder) {
  const std::string page = report_of("lid.pro", bytes_of(data_path("injection_two_inlets.pro")));
  std::size_t last = 0;
  for (const char* chapter :
       {"File", "Machine", "Run control", "Inlets", "Gates", "Cooling", "Check", "Other entries"}) {
    const std::size_t at = page.find("<h2>" + std::string(chapter) + "</h2>");
    ASSERT_NE(at, std::string::npos) << chapter;
    EXPECT_LT(last, at) << chapter;
    last = at;
  }
}

TEST(Report, DrawsTheProfilesOfAnInletWithUnits) {
  const std::string page =
      report_of("a.pro",
                "[Flow-1]\nFRSet = 2\nFR-1 = 0\t30\nFR-2 = 100\t60\n[Pack-1]\nPPSet = 1\nPP-1 = 0 "
                "80\n[Cure-1]\nCTSet = 1\nCT-1 = 0 120\n");
  EXPECT_THAT(
      page,
      AllOf(HasSubstr("<h3>Inlet 1</h3>"), HasSubstr("Filling <code>[Flow-1]</code>"),
            HasSubstr("Packing <code>[Pack-1]</code>"), HasSubstr("Curing <code>[Cure-1]</code>"),
            HasSubstr(">[Flow-1]: flow rate profile</title>"),
            HasSubstr(">flow rate (cc/sec)</text>"), HasSubstr(">pressure (MPa)</text>"),
            HasSubstr(">temperature (\xC2\xB0"
                      "C)</text>")));
}

TEST(Report, TakesInletsFromWhereTheProjectTypeLoadsThem) {
  const std::string page = report_of(
      "a.pro",
      "[CaeHeader]\nProjectType = 8\n[Flow-1-Skin]\nFRSet = 1\nFR-1 = 0 30\n[Flow-1]\nFillTime = "
      "1\n");
  EXPECT_THAT(
      page, AllOf(HasSubstr("<h3>All inlets</h3>"), HasSubstr("Filling <code>[Flow-1-Skin]</code>"),
                  HasSubstr("<title id=\"p1-title\">[Flow-1-Skin]: flow rate profile")));
  EXPECT_LT(page.find("<h2>Other entries"), page.find("<bdi>[Flow-1]</bdi>"));
}

TEST(Report, TellsPointsBeyondAndBelowTheirCount) {
  const std::string page =
      report_of("a.pro", "[Flow-1]\nFRSet = 2147483647\nFR-1 = 0 30\nFR-7 = 100 60\n");
  EXPECT_THAT(page, HasSubstr("2 points, FRSet = 2147483647"));
  EXPECT_THAT(report_of("a.pro", "[Flow-1]\nFRSet = 1\nFR-1 = 0 30\nFR-2 = 100 60\n"),
              AllOf(HasSubstr("2 points, FRSet = 1"), HasSubstr("FR: 1 point,")));
}

TEST(Report, TellsWhatACodeIsAndTheUnitOfAValue) {
  const std::string page =
      report_of("a.pro", "[FlowCTL]\nVPSwitchCtrl = 1\n[Flow-1]\nFillTime = 1.5\n");
  EXPECT_THAT(page, AllOf(HasSubstr("<bdi>1</bdi> <small>ram position</small>"),
                          HasSubstr("<td>sec</td>"), HasSubstr("\">the filling time</td>")));
}

TEST(Report, DrawsGatesAsTimelines) {
  const std::string page =
      report_of("a.pro",
                "[GateCTL]\nST-1 = 0.5\nET-1 = 6\nST-3 = 2\n[GateValve-1]\nGCSet = 2\nGC-1 = 0 1 "
                "1\nGC-2 = 4 0 2 7\n");
  EXPECT_THAT(page,
              AllOf(HasSubstr("Gate 1: opens at 0.5 sec, closes at 6 sec. Gate 3: opens at 2 sec, "
                              "no end time."),
                    HasSubstr("Valve gate 1: from 0 on integer 1, mode 1. Valve gate 1: from 4 on "
                              "integer 0, mode 2.")));
}

TEST(Report, EscapesWhatAFileSays) {
  using namespace std::string_literals;
  const std::string page =
      report_of("<b>.pro",
                "[<svg onload=x>]\n<i>k</i> = <script>alert(1)</script>\xFF\n[Machine]"
                "\nMaker = \x1B]0;x\x07\"'&\xE2\x80\xAE\nGrade = a\0b\n"s);
  EXPECT_THAT(page, AllOf(Not(HasSubstr("<svg onload")), Not(HasSubstr("<i>k")),
                          Not(HasSubstr("<script")), Not(HasSubstr("<b>.pro")),
                          HasSubstr("&lt;script&gt;alert(1)&lt;/script&gt;\\xFF"),
                          HasSubstr("\\x1B]0;x\\x07&quot;&#39;&amp;\\u202E")));
  EXPECT_EQ(page.find('\0'), std::string::npos);
}

TEST(Report, OfNothingIsAPage) {
  EXPECT_THAT(report_of("a.pro", ""),
              AllOf(HasSubstr("No such section."), HasSubstr("No section of an inlet."),
                    HasSubstr("No gate is controlled."), HasSubstr("</html>")));
}

TEST(Report, OfTwoFilesStandsSideBySide) {
  const std::string page = comparison_of(
      "[Flow-1]\nFillTime = 1.5\nMeltTemp = 230\nFRSet = 1\nFR-1 = 0 30\n",
      "[Flow-1]\nFillTime = 1.75\nMeltTemp = 230.0\nMoldTemp = 60\nFRSet = 1\nFR-1 = 0 40\n");
  EXPECT_THAT(page, AllOf(HasSubstr("<th scope=\"col\">a.pro</th>"),
                          HasSubstr("<th scope=\"col\">b.pro</th>"),
                          HasSubstr("a.pro: 1 point, flow rate 30 cc/sec"),
                          HasSubstr("b.pro: 1 point, flow rate 40 cc/sec")));
  const auto row = [&](const std::string& key) {
    const std::size_t at = page.find("<bdi>" + key + "</bdi>");
    const std::size_t begin = page.rfind("<tr", at);
    return page.substr(begin, page.find("</tr>", at) - begin);
  };
  EXPECT_THAT(row("FillTime"), AllOf(HasSubstr("differs"), HasSubstr("<bdi>1.5</bdi>"),
                                     HasSubstr("<bdi>1.75</bdi>")));
  EXPECT_THAT(row("MeltTemp"), Not(HasSubstr("differs")));
  EXPECT_THAT(row("MoldTemp"), AllOf(HasSubstr("differs"), HasSubstr("missing")));
}

TEST(Report, NamesFilesByAsMuchOfTheirPathsAsItTakes) {
  using qelpro::labels_of;
  using testing::ElementsAre;
  EXPECT_THAT(labels_of({"x/lid.pro", "y/box.pro"}), ElementsAre("lid.pro", "box.pro"));
  EXPECT_THAT(labels_of({"run/x/lid.pro", "run/y/lid.pro"}), ElementsAre("x/lid.pro", "y/lid.pro"));
  EXPECT_THAT(labels_of({"lid.pro", "lid.pro"}), ElementsAre("lid.pro", "lid.pro (2)"));
  EXPECT_THAT(labels_of({"lid.pro", "old/lid.pro"}), ElementsAre("lid.pro", "old/lid.pro"));
}

TEST(Report, GoesToAFileOrToStandardOutput) {
  const Scratch scratch;
  const std::string file = scratch.file("[Flow-1]\nFillTime = 1.5\n");
  const std::string page = scratch.path("page.html");
  const Outcome to_file = qelpro_run({"report", file, "-o", page});
  EXPECT_EQ(to_file.status, 0) << to_file.err;
  EXPECT_EQ(to_file.out, "");
  const Outcome to_output = qelpro_run({"report", file});
  EXPECT_EQ(to_output.status, 0);
  EXPECT_EQ(to_output.out, bytes_of(page));
  EXPECT_EQ(qelpro_run({"report"}).status, 2);
}

TEST(Report, LeavesAnOldPageWhereAFileCannotBeRead) {
  const Scratch scratch;
  const std::string page = scratch.file("old", "page.html");
  const Outcome outcome = qelpro_run({"report", scratch.path("missing.pro"), "-o", page});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_THAT(outcome.err, HasSubstr("missing.pro"));
  EXPECT_EQ(bytes_of(page), "old");
}

constexpr const char* kProfiles =
    "[Flow-1]\nFRSet = 2\nFR-1 = 0\t30\nFR-2 = 100\t60\nIPSet = 1\nIP-1 = 0 5\n[Flow-2]\nFRSet = "
    "1\nFR-1 = 0 10\n[GateValve-1]\nGCSet = 1\nGC-1 = 0 1 1\n";

TEST(Plot, DrawsProfilesInCharactersToAPipe) {
  const Scratch scratch;
  const std::string file = scratch.file(kProfiles);
  const Outcome one = qelpro_run({"plot", file, "Flow-1.FR", "Flow-2.FRSet"});
  EXPECT_EQ(one.status, 0) << one.err;
  EXPECT_THAT(one.out, AllOf(StartsWith("flow rate profile\n\nflow rate (cc/sec)\n"),
                             HasSubstr("\n* Flow-1.FR\no Flow-2.FR\n")));
  EXPECT_EQ(qelpro_run({"plot", file, "Flow-1", "FR", "[Flow-2]", "FR"}).out, one.out);
  EXPECT_EQ(qelpro_run({"plot", file, "Flow-*.FR"}).out, one.out);
}

TEST(Plot, PutsOtherQuantitiesUnderIt) {
  const Scratch scratch;
  const Outcome outcome =
      qelpro_run({"plot", scratch.file(kProfiles), "Flow-1.FR", "Flow-1.IP", "Flow-1.FR"});
  EXPECT_THAT(outcome.out, AllOf(HasSubstr("flow rate (cc/sec)"), HasSubstr("pressure (MPa)"),
                                 HasSubstr("\n* Flow-1.IP\n"), Not(HasSubstr("\no "))));
}

TEST(Plot, WritesSvg) {
  const Scratch scratch;
  const std::string file = scratch.file(kProfiles);
  const std::string picture = scratch.path("p.svg");
  EXPECT_EQ(qelpro_run({"plot", file, "Flow-*.FR", "-o", picture}).status, 0);
  EXPECT_THAT(bytes_of(picture),
              AllOf(StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns="),
                    HasSubstr(">Flow-2.FR</text>"), HasSubstr("prefers-color-scheme")));
  EXPECT_EQ(qelpro_run({"plot", file, "Flow-*.FR", "-o", "-"}).out, bytes_of(picture));
}

TEST(Plot, NamesTheProfilesThatAreThere) {
  const Scratch scratch;
  const std::string file = scratch.file(kProfiles);
  const Outcome outcome = qelpro_run({"plot", file, "Flow-1.XX"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err,
              HasSubstr(file + ": \"Flow-1.XX\" is no profile of the file: there are Flow-1.FR, "
                               "Flow-1.IP, Flow-2.FR\n"));
  EXPECT_THAT(qelpro_run({"plot", file, "GateValve-1.GC"}).err, HasSubstr("is no curve"));
  EXPECT_THAT(qelpro_run({"plot", scratch.file("", "e.pro"), "Flow-1.FR"}).err,
              HasSubstr("it has none"));
  EXPECT_EQ(qelpro_run({"plot", file}).status, 2);
  EXPECT_EQ(qelpro_run({"plot", scratch.path("missing.pro"), "Flow-1.FR"}).status, 3);
}

}  // namespace
