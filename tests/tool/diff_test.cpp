#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "compare/difference.h"
#include "compare/tolerance.h"
#include "file/change.h"
#include "file/entries.h"
#include "file/profile.h"
#include "file/value_check.h"
#include "support/run.h"
#include "support/scratch.h"

namespace {

using namespace qelpro_test;
using qelpro::Entries;
using qelpro::FileEntry;
using qelpro::SectionedText;
using qelpro::Tolerances;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::vector<std::string> lines(const std::string& before, const std::string& after,
                               const Tolerances& tolerances = {}) {
  const SectionedText old_text(before);
  const SectionedText new_text(after);
  std::vector<std::string> found;
  for (const qelpro::Difference& difference : qelpro::differences(old_text, new_text, tolerances)) {
    found.push_back(qelpro::line_of(difference));
  }
  return found;
}

// One entry in two files.
std::vector<std::string> lines_of_values(const std::string& section, const std::string& key,
                                         const std::string& before, const std::string& after,
                                         const Tolerances& tolerances = {}) {
  const std::string start = "[" + section + "]\n" + key + " = ";
  return lines(start + before + "\n", start + after + "\n", tolerances);
}

std::string profile(const std::vector<std::string>& points) {
  std::string text = "[Flow-1]\nFRSet = " + std::to_string(points.size()) + "\n";
  for (std::size_t index = 0; index < points.size(); ++index) {
    text += "FR-" + std::to_string(index + 1) + " = " + points[index] + "\n";
  }
  return text;
}

std::vector<std::string> lines_of_profiles(const std::vector<std::string>& before,
                                           const std::vector<std::string>& after,
                                           const Tolerances& tolerances = {}) {
  return lines(profile(before), profile(after), tolerances);
}

TEST(Diff, TellsChangedRemovedAndAddedEntriesInTheOrderOfTheFiles) {
  EXPECT_THAT(lines("[Cool]\nCoolTime = 15\nOpenTime = 5\nAirTemp = 25\n[Gone]\nx = 1\n[Unit]\n",
                    "[New]\ny = 2\n[Unit]\nTime = sec\n[Cool]\nAirTemp = 26\nOpenTime = 5\n"
                    "EjectTemp = 95\n"),
              ElementsAre("- Cool.CoolTime: 15", "~ Cool.AirTemp: 25 -> 26", "- [Gone]", "+ [New]",
                          "+ Unit.Time: sec", "+ Cool.EjectTemp: 95"));
}

TEST(Diff, PassesOverOrderSpacingCommentsAndLineBreaks) {
  EXPECT_THAT(lines("; a comment\r\n[Cool] # words\r\nCoolTime=15\r\nOpenTime = 5\r\n\r\n"
                    "[CoolCTL]\r\nT-1 = 55",
                    "[CoolCTL]\nT-1                  = 55   \n[Cool]\n// x = 1\nOpenTime\t=\t5\n"
                    "CoolTime = 15\nCoolTime = 16\n[Cool]\nCoolTime = 17\n"),
              IsEmpty());
}

TEST(Diff, PassesOverTheSpellingOfNumbers) {
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "1", "1e0"), IsEmpty());
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "1.0", "+1.e-000"), IsEmpty());
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "nan", "NaN"), IsEmpty());
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "inf", "Infinity"), IsEmpty());
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "inf", "-inf"), Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "1", "nan"), Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Cool", "CoolingType", "7", "+007"), IsEmpty());
  EXPECT_THAT(lines_of_values("AdvancedSetting", "OpenDirection", "0 0 1", "0.0\t0e1\t 1"),
              IsEmpty());
  EXPECT_THAT(lines_of_values("Machine", "PlatenSize(HxV)", "720x690.5", "720.0x690.50"),
              IsEmpty());
  EXPECT_THAT(lines_of_values("Moldbase", "1", "7.75\t462\t36.5\tPlate M\t205\t0.29\t11.9",
                              "7.750 462 36.5 Plate M 205 .29 11.9"),
              IsEmpty());
}

TEST(Diff, ReadsNumbersAsTheEngineDoes) {
  // A whole number is read up to its "e".
  EXPECT_THAT(lines_of_values("Cool", "CoolingType", "1000", "1e3"),
              ElementsAre("~ Cool.CoolingType: 1000 -> 1e3"));
  EXPECT_THAT(lines_of_values("Cool", "CoolingType", "1", "1.5"), Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Cool", "CoolingType", "1", "1.0"), IsEmpty());
  EXPECT_THAT(lines_of_values("CaeHeader", "Version", "9.1", "9.10"), Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "15 # sec", "15.0 # sec"), IsEmpty());
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "15 # sec", "15 # min"), Not(IsEmpty()));
}

TEST(Diff, TellsWhatNoFieldHas) {
  EXPECT_THAT(
      lines_of_values("MoldThermalBoundaryType", "Flow", "5000\t(W/m^2.K)", "5e3 (W/m^2.K)"),
      IsEmpty());
  EXPECT_THAT(lines_of_values("MoldThermalBoundaryType", "Flow", "5000 (W/m^2.K)", "5000 (cal)"),
              Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("CaeHeader", "ProjectType", "1 0", "1 2"), Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Unknown", "x", std::string("1\0002", 3), "1"), Not(IsEmpty()));
}

TEST(Diff, ComparesNumbersOfUnknownKeysAsNumbersAndTextsAsTheyStand) {
  EXPECT_THAT(lines_of_values("Other", "x", "1", "1.0"), IsEmpty());
  EXPECT_THAT(lines_of_values("Other", "x", "1 2", "1.0\t2e0"), IsEmpty());
  EXPECT_THAT(lines_of_values("Other", "x", "steel 1", "steel 1.0"), Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Other", "x", "9007199254740993", "9007199254740992"),
              Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Other", "x", "1", "-1"), Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Other", "x", "1.0", "1.1", {.relative = 0.2}), IsEmpty());
}

TEST(Diff, LetsRealsDifferWithinTheTolerances) {
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "100", "101", {.relative = 0.01}), IsEmpty());
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "100", "102", {.relative = 0.01}),
              Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "100", "102", {.relative = 0.01, .absolute = 1}),
              IsEmpty());
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "0", "0.5", {.absolute = 0.5}), IsEmpty());
  EXPECT_THAT(lines_of_values("Cool", "CoolTime", "inf", "5", {.relative = 1}), Not(IsEmpty()));
  EXPECT_THAT(lines_of_values("Cool", "CoolingType", "100", "101", {.relative = 0.5}),
              Not(IsEmpty()))
      << "whole numbers are no reals";
  EXPECT_THAT(
      lines_of_values("MoldThermalBoundaryType", "Flow", "5000 (a)", "5001 (a)", {.absolute = 1}),
      IsEmpty());
}

TEST(Diff, TellsAProfileInOneLine) {
  EXPECT_THAT(
      lines_of_profiles({"0 50", "20 60", "40 60", "80 60", "100 40"},
                        {"0 50", "20 60", "40 63.2", "50 60.25", "60 60", "80 60", "100 40"}),
      ElementsAre("~ Flow-1.FR: 5 points -> 7 points, largest difference 3.2 at 40"));
  EXPECT_THAT(lines_of_profiles({"0 50", "100 40"}, {"0 50", "100 40.5"}),
              ElementsAre("~ Flow-1.FR: 2 points -> 2 points, largest difference 0.5 at 100"));
}

TEST(Diff, TakesEqualCurvesForTheSame) {
  EXPECT_THAT(lines_of_profiles({"0 50", "100 40"}, {"0 50", "50 45", "100 40"}), IsEmpty());
  EXPECT_THAT(lines_of_profiles({"0 0.1", "10 0.4"}, {"0 0.1", "1 0.13", "3 0.19", "10 0.4"}),
              IsEmpty())
      << "what doubles lose is no difference";
  EXPECT_THAT(lines_of_profiles({"0 50", "60 40"}, {"0 50", "60 40", "100 40"}), IsEmpty())
      << "a curve holds its last value";
  EXPECT_THAT(lines_of_profiles({"0 50"}, {"0 50", "100 50"}), IsEmpty());
  EXPECT_THAT(lines_of_profiles({"0 50", "100 40"}, {"0 50", "50 45.001", "100 40"}),
              ElementsAre(HasSubstr("largest difference 0.001 at 50")));
}

TEST(Diff, ComparesCurvesOverTheRangesOfBoth) {
  EXPECT_THAT(lines_of_profiles({"0 50", "60 40"}, {"0 50", "60 40", "100 30"}),
              ElementsAre(HasSubstr("largest difference 10 at 100")));
  EXPECT_THAT(lines_of_profiles({"20 10", "60 10"}, {"0 0", "20 10", "60 10"}),
              ElementsAre(HasSubstr("largest difference 10 at 0")));
}

TEST(Diff, TakesTwoPointsOfOnePlaceForAJump) {
  EXPECT_THAT(lines_of_profiles({"0 50", "40 50", "40 80", "100 80"},
                                {"0 50", "20 50", "40 50", "40 80", "70 80", "100 80"}),
              IsEmpty());
  EXPECT_THAT(
      lines_of_profiles({"0 50", "40 50", "40 80", "100 80"}, {"0 50", "40 50", "40 90", "100 80"}),
      ElementsAre(HasSubstr("largest difference 10 at 40")));
  EXPECT_THAT(
      lines_of_profiles({"0 50", "40 50", "40 80", "100 80"}, {"0 50", "50 50", "50 80", "100 80"}),
      ElementsAre(HasSubstr("largest difference 30 at 40")));
  EXPECT_THAT(lines_of_profiles({"0 50", "0 60", "100 60"}, {"0 60", "100 60"}),
              ElementsAre(HasSubstr("largest difference 10 at 0")));
}

TEST(Diff, ComparesCurvesOverAStrokeThatFalls) {
  const std::string start = "[RamPosition]\nRP_FRSet = ";
  EXPECT_THAT(lines(start + "2\nRP_FR-1 = 100 0\nRP_FR-2 = 0 100\n",
                    start + "3\nRP_FR-1 = 100 0\nRP_FR-2 = 50 50\nRP_FR-3 = 0 100\n"),
              IsEmpty());
  EXPECT_THAT(lines(start + "2\nRP_FR-1 = 100 0\nRP_FR-2 = 0 100\n",
                    start + "3\nRP_FR-1 = 100 0\nRP_FR-2 = 50 53\nRP_FR-3 = 0 100\n"),
              ElementsAre("~ RamPosition.RP_FR: 2 points -> 3 points, largest difference 3 at 50"));
}

TEST(Diff, FindsTheSameCurveListedFromItsOtherEnd) {
  EXPECT_THAT(lines_of_profiles({"0 50", "100 40"}, {"100 40", "0 50"}), IsEmpty());
  EXPECT_THAT(lines_of_profiles({"0 50", "100 40"}, {"100 42", "0 50"}),
              ElementsAre("~ Flow-1.FR: 2 points -> 2 points, largest difference 2 at 100"));
}

TEST(Diff, ComparesPointsOfWhatIsNoCurveOneByOne) {
  EXPECT_THAT(lines_of_profiles({"50 1", "50 9", "50 2"}, {"50 1", "50 8", "50 2"}),
              ElementsAre("~ Flow-1.FR-2: 50 9 -> 50 8"));
  EXPECT_THAT(lines_of_profiles({"0 nan", "100 40"}, {"0 nan", "100 41"}),
              ElementsAre("~ Flow-1.FR-2: 100 40 -> 100 41"));
  EXPECT_THAT(lines_of_profiles({"0 nan", "100 40"}, {"0 NAN", "100 40.0"}), IsEmpty());
  EXPECT_THAT(lines_of_profiles({"-1e300 5", "1e300 6"}, {"-1e300 5", "1e300 7"}),
              ElementsAre("~ Flow-1.FR-2: 1e300 6 -> 1e300 7"));
}

TEST(Diff, ComparesThePointsWhereAskedTo) {
  const Tolerances points{.points = true};
  EXPECT_THAT(lines_of_profiles({"0 50", "100 40"}, {"0 50", "50 45", "100 40"}, points),
              ElementsAre("~ Flow-1.FRSet: 2 -> 3", "~ Flow-1.FR-2: 100 40 -> 50 45",
                          "+ Flow-1.FR-3: 100 40"));
}

TEST(Diff, TellsAProfileThatOneFileAloneHas) {
  EXPECT_THAT(lines(profile({"0 50", "100 40"}), "[Flow-1]\n"),
              ElementsAre("- Flow-1.FR: 2 points"));
  EXPECT_THAT(lines("[Flow-1]\n", profile({"0 50"})), ElementsAre("+ Flow-1.FR: 1 point"));
  EXPECT_THAT(lines(profile({}), profile({"0 50"})),
              ElementsAre("~ Flow-1.FR: 0 points -> 1 point"));
  EXPECT_THAT(lines(profile({}), "[Flow-1]\n"), ElementsAre("- Flow-1.FRSet: 0"));
}

TEST(Diff, TellsPointsBeyondTheirCountAsEntries) {
  const std::string three = profile({"0 50", "50 60", "100 40"});
  const std::string two = "[Flow-1]\nFRSet = 2\nFR-1 = 0 50\nFR-2 = 50 60\nFR-3 = 100 40\n";
  EXPECT_THAT(lines(two, two + "FR-4 = 1 2\n"), ElementsAre("+ Flow-1.FR-4: 1 2"));
  EXPECT_THAT(lines(three, two),
              ElementsAre("~ Flow-1.FR: 3 points -> 2 points, largest difference 20 at 100"));
  EXPECT_THAT(lines(two, three),
              ElementsAre("~ Flow-1.FR: 2 points -> 3 points, largest difference 20 at 100"));
}

TEST(Diff, TellsPointsOfAProfileThatIsNotWholeAsEntries) {
  EXPECT_THAT(lines("[Flow-1]\nFRSet = 3\nFR-1 = 0 50\nFR-2 = 50 60\n",
                    "[Flow-1]\nFRSet = 3\nFR-1 = 0 50\nFR-2 = 50 61\n"),
              ElementsAre("~ Flow-1.FR-2: 50 60 -> 50 61"));
  EXPECT_THAT(lines("[Flow-1]\nFR-1 = 0 50\n", "[Flow-1]\nFRSet = 1\nFR-1 = 0 50\n"),
              ElementsAre("+ Flow-1.FRSet: 1"));
  EXPECT_THAT(lines("[Flow-1]\nFRSet = x\nFR-1 = 0 50\n", "[Flow-1]\nFRSet = 2000000000\n"),
              ElementsAre("~ Flow-1.FRSet: x -> 2000000000", "- Flow-1.FR-1: 0 50"));
}

TEST(Diff, AppliesTheTolerancesToCurves) {
  EXPECT_THAT(
      lines_of_profiles({"0 50", "100 40"}, {"0 50", "50 45.4", "100 40"}, {.relative = 0.01}),
      IsEmpty());
  // What the tolerance lets pass at 0 is more than what it does not at 100.
  EXPECT_THAT(lines_of_profiles({"0 5000", "100 1"}, {"0 5010", "100 2"}, {.relative = 0.01}),
              ElementsAre(HasSubstr("largest difference 1 at 100")));
}

TEST(Diff, TellsControlPointsAndSingleNumbersOneByOne) {
  EXPECT_THAT(
      lines("[GateValve-1]\nGCSet = 2\nGC-1 = 0\t1\t1\nGC-2 = 6.5\t0\t2\t118\n",
            "[GateValve-1]\nGCSet = 3\nGC-1 = 0.0 1 1\nGC-2 = 6.50 0 2 119\nGC-3 = 8 1 4\n"),
      ElementsAre("~ GateValve-1.GCSet: 2 -> 3", "~ GateValve-1.GC-2: 6.5 0 2 118 -> 6.50 0 2 119",
                  "+ GateValve-1.GC-3: 8 1 4"));
  EXPECT_THAT(lines("[RamPosition]\nRP_IPSet = 2\nRP_IP-1 = 100\nRP_IP-2 = 35.25\n",
                    "[RamPosition]\nRP_IPSet = 2\nRP_IP-1 = 100.0\nRP_IP-2 = 35\n"),
              ElementsAre("~ RamPosition.RP_IP-2: 35.25 -> 35"));
}

TEST(Diff, ComparesPositionalLinesByPosition) {
  const std::string header = "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n";
  EXPECT_THAT(lines(header + "2\tCavity face\t1\n1 = 0\t60\n1 = 10\t64.5\n",
                    header + "2 Cavity face 1\n1=0.0 60\n1 = 10 64.50\n"),
              IsEmpty());
  EXPECT_THAT(lines(header + "1\tCavity face\t1\n1 = 0\t60\n",
                    header + "1\tCavity face\t2\n1 = 0\t61\n1 = 10\t60\n"),
              ElementsAre("~ SURFACE ELEMENT BOUNDARY CONDITION NAME.#1: 1 Cavity face 1 -> 1 "
                          "Cavity face 2",
                          "~ SURFACE ELEMENT BOUNDARY CONDITION NAME.#2: 1 = 0 60 -> 1 = 0 61",
                          "+ SURFACE ELEMENT BOUNDARY CONDITION NAME.#3: 1 = 10 60"));
  EXPECT_THAT(lines(header + "1 = 0 60\n", header + "2 = 0 60\n", {.absolute = 5}),
              ElementsAre(HasSubstr("1 = 0 60 -> 2 = 0 60")));
}

TEST(Diff, ShowsEachDifferenceInOneLine) {
  EXPECT_THAT(lines_of_values("Unit", "Time", "a b", "a\tb"),
              ElementsAre("~ Unit.Time: a b -> a\\tb"));
  EXPECT_THAT(lines_of_values("Unit", "Time", "", "sec"), ElementsAre("~ Unit.Time: \"\" -> sec"));
  EXPECT_THAT(lines_of_values("Unit", "Time", "a\rb", "c"), ElementsAre("~ Unit.Time: a\\rb -> c"));
}

// Every file of the test data.
std::vector<std::string> data_files() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(data_path(""))) {
    if (entry.path().extension() == ".pro") {
      files.push_back(bytes_of(entry.path().string()));
    }
  }
  std::ranges::sort(files);
  return files;
}

constexpr Tolerances kPoints{.points = true};

TEST(Diff, FindsNothingBetweenAFileAndItself) {
  ASSERT_GT(data_files().size(), 20U);
  for (const std::string& file : data_files()) {
    EXPECT_THAT(lines(file, file), IsEmpty());
    EXPECT_THAT(lines(file, file, kPoints), IsEmpty());
  }
}

// The value with its numbers spelled anew, where its encoding has numbers.
std::string respelled(const qelpro::Entries& entries, const FileEntry& entry) {
  const qelpro::TypedValue typed = qelpro::typed_value(entries, entry);
  const std::string text(entry.value);
  if (typed.key == nullptr || typed.unread ||
      qelpro::fields_of_encoding(typed.key->encoding->name).empty()) {
    return text;
  }
  const bool has_reals = typed.key->encoding->read.size() <= 3 &&
                         std::ranges::all_of(typed.key->encoding->read, [](const auto& field) {
                           return field.kind == qel::Kind::real;
                         });
  if (has_reals && text.find_first_not_of("0123456789. \t-") == std::string::npos) {
    std::string result;
    for (std::size_t at = text.find_first_not_of(" \t"); at < text.size();) {
      const std::size_t end = std::min(text.find_first_of(" \t", at), text.size());
      result += (result.empty() ? "" : "\t ") + text.substr(at, end - at) + "e000";
      at = std::min(text.find_first_not_of(" \t", end), text.size());
    }
    return result;
  }
  return text.find_first_not_of("0123456789") == std::string::npos ? "+0" + text : text;
}

// The same sections and entries in another order and spelling.
std::string shuffled(const std::string& contents, std::mt19937& random) {
  const SectionedText document(contents);
  const Entries entries(document);
  std::vector<std::string> sections;
  for (const qelpro::TextSection& section : document.sections()) {
    if (section.repeated) {
      continue;
    }
    const bool is_positional = qel::is_positional(section.name);
    std::vector<std::string> own;
    for (const FileEntry& entry : entries.of(section)) {
      own.push_back(is_positional ? std::string(document.line(entry.line).whole)
                                  : entry.key + "\t=  " + respelled(entries, entry));
    }
    if (!is_positional) {
      std::ranges::shuffle(own, random);
    }
    std::string text = "\r\n" + std::string(section.name) + " # words\r\n";
    for (const std::string& line : own) {
      text += (is_positional ? "" : "; a comment\r\n\r\n") + line + "\r\n";
    }
    sections.push_back(text);
  }
  std::ranges::shuffle(sections, random);
  std::string result;
  for (const std::string& section : sections) {
    result += section;
  }
  return result;
}

TEST(Diff, FindsNothingInAnotherOrderAndSpelling) {
  std::mt19937 random(20261122);
  int changed = 0;
  for (const std::string& file : data_files()) {
    const std::string other = shuffled(file, random);
    changed += other != file ? 1 : 0;
    EXPECT_THAT(lines(file, other), IsEmpty()) << file;
    EXPECT_THAT(lines(other, file, kPoints), IsEmpty()) << file;
  }
  EXPECT_GT(changed, 20);
}

TEST(Diff, FindsEveryValueThatIsChanged) {
  int changes = 0;
  for (const std::string& file : data_files()) {
    const SectionedText document(file);
    const Entries entries(document);
    for (const FileEntry& entry : entries.all()) {
      if (document.line(entry.line).goes_on) {
        continue;
      }
      const auto begin = static_cast<std::size_t>(entry.value.data() - document.contents().data());
      std::string other = file;
      // A digit becomes another one, or a letter goes behind a text.
      const std::size_t digit = entry.value.find_last_of("0123456789");
      if (digit != std::string_view::npos) {
        char& character = other[begin + digit];
        character = character == '9' ? '8' : static_cast<char>(character + 1);
      } else if (!entry.value.empty()) {
        other.insert(begin + entry.value.size(), "x");
      } else {
        continue;
      }
      ++changes;
      EXPECT_THAT(lines(file, other, kPoints), Not(IsEmpty()))
          << text_of(entries.address_of(entry)) << " = " << entry.value;
    }
  }
  EXPECT_GT(changes, 500);
}

TEST(Diff, FindsEveryPointThatIsMoved) {
  for (const std::string& file : data_files()) {
    const SectionedText document(file);
    const Entries entries(document);
    for (const qelpro::Profile& profile : qelpro::profiles_of(entries)) {
      for (const qelpro::ProfilePoint& point : profile.points) {
        if (!profile.kind.is_curve() || point.number > profile.promised) {
          continue;
        }
        std::string other = file;
        other.insert(
            static_cast<std::size_t>(point.entry->value.data() - document.contents().data()) +
                point.entry->value.size(),
            "7");
        EXPECT_THAT(lines(file, other), ElementsAre(HasSubstr("~ " + profile.address())))
            << point.entry->key;
      }
    }
  }
}

Outcome diff(const std::vector<std::string>& arguments) {
  std::vector<std::string> all = {"diff"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return run(QELPRO_TOOL_PATH, all);
}

TEST(Diff, AnswersWithItsExitStatus) {
  const Scratch scratch;
  const std::string a = scratch.file("[Cool]\nCoolTime = 15\n", "a.pro");
  const std::string b = scratch.file("[Cool]\nCoolTime = 15.0\n", "b.pro");
  const std::string c = scratch.file("[Cool]\nCoolTime = 16\n", "c.pro");
  EXPECT_EQ(diff({a, b}).status, 0);
  EXPECT_EQ(diff({a, b}).out, "");
  EXPECT_EQ(diff({a, c}).status, 1);
  EXPECT_EQ(diff({a, c}).out, "~ Cool.CoolTime: 15 -> 16\n");
  EXPECT_EQ(diff({a, c, "--absolute", "1"}).status, 0);
  EXPECT_EQ(diff({a, c, "--tolerance=0.1"}).status, 0);
  EXPECT_EQ(diff({a, scratch.path("missing.pro")}).status, 3);
  for (const std::vector<std::string>& wrong : {std::vector<std::string>{a},
                                                {a, b, c},
                                                {"-", "-"},
                                                {a, b, "--tolerance", "-1"},
                                                {a, b, "--absolute", "nan"},
                                                {a, b, "--color", "red"}}) {
    const Outcome outcome = diff(wrong);
    EXPECT_EQ(outcome.status, 2) << wrong.back();
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
  }
}

TEST(Diff, ColorsWhereAskedTo) {
  const Scratch scratch;
  const std::string a = scratch.file("[Cool]\nCoolTime = 15\n[Gone]\n", "a.pro");
  const std::string b = scratch.file("[Cool]\nCoolTime = 16\nOpenTime = 5\n", "b.pro");
  EXPECT_EQ(diff({a, b, "--color=always"}).out,
            "~ Cool.CoolTime: \x1b[1;31m15\x1b[0m -> \x1b[32m16\x1b[0m\n\x1b[1;31m- [Gone]\x1b[0m\n"
            "\x1b[32m+ Cool.OpenTime: 5\x1b[0m\n");
  EXPECT_THAT(diff({a, b}).out, Not(HasSubstr("\x1b")));
  EXPECT_THAT(diff({a, b, "--color=never"}).out, Not(HasSubstr("\x1b")));
}

TEST(Diff, PrintsJson) {
  const Scratch scratch;
  const std::string a =
      scratch.file("[Cool]\nCoolTime = 15\n" + profile({"0 50"}) + "[Gone]\n", "a.pro");
  const std::string b =
      scratch.file("[Cool]\nCoolTime = 16.50\n" + profile({"0 50", "100 40"}), "b.pro");
  EXPECT_EQ(diff({a, a, "--json"}).out, "[]\n");
  const Outcome outcome = diff({a, b, "--json"});
  EXPECT_EQ(outcome.status, 1);
  std::string dense = outcome.out;
  std::erase_if(dense, [](char c) { return c == ' ' || c == '\n'; });
  EXPECT_EQ(dense,
            "[{\"change\":\"changed\",\"section\":\"Cool\",\"key\":\"CoolTime\",\"before\":15.0,"
            "\"after\":16.50},{\"change\":\"changed\",\"section\":\"Flow-1\",\"profile\":\"FR\","
            "\"before\":[[0.0,50.0]],\"after\":[[0.0,50.0],[100.0,40.0]],\"largest_difference\":"
            "10.0,\"at\":100.0},{\"change\":\"removed\",\"section\":\"Gone\"}]");
}

}  // namespace
