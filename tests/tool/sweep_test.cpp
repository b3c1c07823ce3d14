#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/run.h"
#include "support/scratch.h"

// `sweep`: the files of a parameter study.

namespace {

using namespace qelpro_test;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::ordered_json;

const std::string kFile =
    "[Flow-1]\r\nFillTime = 1.0  \r\n; kept\r\n[Pack-1]\r\nPackTime = 3\r\n[Pack-2]\r\nPackTime = "
    "3\r\n";

Outcome sweep(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "sweep");
  return run(QELPRO_TOOL_PATH, arguments);
}

struct Sweep : testing::Test {
  Scratch scratch;
  std::string file = scratch.file(kFile, "base.pro");
  std::string folder = scratch.path("study");
};

TEST_F(Sweep, MakesEveryCombinationAndKeepsEveryOtherByte) {
  const Outcome outcome = sweep(
      {file, "--set", "Flow-1.FillTime=0.5:1.5:0.5", "--set", "Pack-*.PackTime=4,6", "-o", folder});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(names_in(folder),
            (std::vector<std::string>{"base-0001.pro", "base-0002.pro", "base-0003.pro",
                                      "base-0004.pro", "base-0005.pro", "base-0006.pro",
                                      "manifest.csv", "manifest.json"}));
  EXPECT_EQ(bytes_of(folder + "/base-0004.pro"),
            "[Flow-1]\r\nFillTime = 1  \r\n; kept\r\n[Pack-1]\r\nPackTime = 6\r\n[Pack-2]\r\n"
            "PackTime = 6\r\n");
  EXPECT_EQ(bytes_of(folder + "/manifest.csv"),
            "file,Flow-1.FillTime,Pack-1.PackTime,Pack-2.PackTime\n"
            "base-0001.pro,0.5,4,4\nbase-0002.pro,0.5,6,6\nbase-0003.pro,1,4,4\n"
            "base-0004.pro,1,6,6\nbase-0005.pro,1.5,4,4\nbase-0006.pro,1.5,6,6\n");
  EXPECT_EQ(bytes_of(file), kFile);
}

TEST_F(Sweep, ManifestIsJsonOfTypedValues) {
  const Outcome outcome =
      sweep({file, "--set", "Flow-1.FillTime=0.5,2.50", "--set", "Flow-1.FR-1=0 50,0 60", "--set",
             "Own.Key=a\"b,c", "-o", folder, "--json"});
  ASSERT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out, bytes_of(folder + "/manifest.json"));
  const Json manifest = Json::parse(outcome.out);
  EXPECT_EQ(manifest["source"]["file"], "base.pro");
  EXPECT_EQ(manifest["source"]["bytes"], kFile.size());
  EXPECT_EQ(manifest["samples"], nullptr);
  EXPECT_EQ(manifest["seed"], nullptr);
  EXPECT_EQ(manifest["settings"][0], Json::parse(R"({"set": "Flow-1.FillTime", "values": "0.5,2.50",
                            "addresses": ["Flow-1.FillTime"]})"));
  ASSERT_EQ(manifest["files"].size(), 8U);
  EXPECT_EQ(manifest["files"][7], Json::parse(R"({"file": "base-0008.pro",
                            "values": {"Flow-1.FillTime": 2.5, "Flow-1.FR-1": [0.0, 60.0],
                                       "Own.Key": "c"}})"));
  EXPECT_THAT(bytes_of(folder + "/manifest.csv"),
              HasSubstr("\nbase-0001.pro,0.5,0 50,\"a\"\"b\"\n"));
  EXPECT_THAT(bytes_of(folder + "/base-0008.pro"), HasSubstr("[Own]\r\nKey                  = c"));
}

TEST_F(Sweep, PrintsTheManifestAndWritesNothingOnADryRun) {
  const Outcome csv = sweep({file, "--set", "Flow-1.FillTime=1,2", "--dry-run"});
  EXPECT_EQ(csv.status, 0) << csv.err;
  EXPECT_EQ(csv.out, "file,Flow-1.FillTime\nbase-0001.pro,1\nbase-0002.pro,2\n");
  const Outcome json =
      sweep({file, "--set", "Flow-1.FillTime=1,2", "--dry-run", "--json", "-o", folder});
  EXPECT_EQ(Json::parse(json.out)["files"].size(), 2U);
  EXPECT_FALSE(exists(folder));
}

TEST_F(Sweep, DrawsAndTellsASeedWhereNoneIsGiven) {
  const std::vector<std::string> arguments = {
      file, "--set", "Flow-1.FillTime=0.5:1.5", "--sample", "20", "--dry-run", "--json"};
  const Outcome drawn = sweep(arguments);
  ASSERT_EQ(drawn.status, 0) << drawn.err;
  const Json manifest = Json::parse(drawn.out);
  EXPECT_EQ(manifest["samples"], 20);
  const std::string seed = manifest["seed"].dump();
  EXPECT_EQ(drawn.err,
            "qelpro: the seed is " + seed + "; --seed " + seed + " draws the same values again\n");
  std::vector<std::string> again = arguments;
  again.insert(again.end(), {"--seed", seed});
  EXPECT_EQ(sweep(again).out, drawn.out);
  EXPECT_EQ(sweep(again).err, "");
  EXPECT_NE(sweep(arguments).out, drawn.out);
}

TEST_F(Sweep, ChecksEveryValueAsSetDoesBeforeTheFirstFile) {
  const auto refused = [&](const std::vector<std::string>& more, int status,
                           const std::string& what) {
    std::vector<std::string> arguments = {file, "-o", folder};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Outcome outcome = sweep(arguments);
    EXPECT_EQ(outcome.status, status) << what;
    EXPECT_THAT(outcome.err, AllOf(StartsWith("qelpro: "), HasSubstr(what)));
    EXPECT_FALSE(exists(folder)) << what;
  };
  refused({"--set", "Flow-1.FillTime=1,2,3s"}, 2, "[Flow-1] FillTime: \"3s\"");
  refused({"--set", "FlowCTL.VPSwitchCtrl=0:5", "--sample", "3", "--seed", "1"}, 2, "VPSwitchCtrl");
  refused({"--set", "Nothing*.Key=1"}, 1, "Nothing*.Key");
  refused({"--set", "Flow-1=1"}, 2, "KEY is missing");
  refused({"--set", "Flow-1.FillTime"}, 2, "ADDRESS=VALUES");
  refused({"--set", "Flow-1.FillTime=1:2"}, 2, "--sample");
  refused({"--set", "Flow-1.FillTime=1:2:-1"}, 2, "Flow-1.FillTime");
  refused({"--set", "Flow-1.FillTime=1", "--set", "Flow-?.FillTime=2"}, 2, "set twice");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "0"}, 2, "--sample");
  refused({"--set", "Flow-1.FillTime=1", "--seed", "3"}, 2, "--sample");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "0"}, 2,
          "\"0\" is no whole number from 1 on");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "3", "--seed", "-4"}, 2,
          "\"-4\" is no whole");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "3", "--seed", "99999999999999999999"}, 2,
          "is no whole number");
  refused({"--set", "Flow-1.FillTime=1", "--resume", "--overwrite"}, 2, "--overwrite");
  refused({"--set", "Flow-1.FillTime=1:10000001:1"}, 2, "10000001 files");
  refused({}, 2, "--set");
  const Outcome no_folder = sweep({file, "--set", "Flow-1.FillTime=1"});
  EXPECT_EQ(no_folder.status, 2);
  EXPECT_THAT(no_folder.err, HasSubstr("-o FOLDER is missing"));
  EXPECT_EQ(sweep({file, "--set", "Flow-1.FillTime=1,3s", "--force", "-o", folder}).status, 0);
  EXPECT_EQ(names_in(folder).size(), 4U);
}

TEST_F(Sweep, LeavesAFolderThatHoldsOneOfItsFilesAsItIs) {
  for (const std::string name : {"base-0002.pro", "manifest.csv", "manifest.json"}) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directory(folder);
    put_bytes(folder + "/" + name, "mine");
    const Outcome outcome = sweep({file, "--set", "Flow-1.FillTime=1,2,3", "-o", folder});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_THAT(outcome.err,
                AllOf(HasSubstr(name), HasSubstr("--resume"), HasSubstr("--overwrite")));
    EXPECT_EQ(names_in(folder), std::vector<std::string>{name});
    EXPECT_EQ(bytes_of(folder + "/" + name), "mine");
  }
  // Other files are nobody's business, and none of the study's are those beyond it.
  std::filesystem::remove_all(folder);
  std::filesystem::create_directory(folder);
  put_bytes(folder + "/base-0004.pro", "mine");
  put_bytes(folder + "/other-0001.pro", "mine");
  EXPECT_EQ(sweep({file, "--set", "Flow-1.FillTime=1,2,3", "-o", folder}).status, 0);
  EXPECT_EQ(bytes_of(folder + "/base-0004.pro"), "mine");
  const std::string no_folder = scratch.file("mine", "no_folder");
  const Outcome outcome = sweep({file, "--set", "Flow-1.FillTime=1", "-o", no_folder});
  EXPECT_EQ(outcome.status, 3);
  EXPECT_EQ(bytes_of(no_folder), "mine");
}

TEST_F(Sweep, OverwritesWhereItIsTold) {
  ASSERT_EQ(sweep({file, "--set", "Flow-1.FillTime=1,2,3", "-o", folder}).status, 0);
  EXPECT_EQ(sweep({file, "--set", "Flow-1.FillTime=7,8", "-o", folder, "--overwrite"}).status, 0);
  EXPECT_THAT(bytes_of(folder + "/base-0002.pro"), HasSubstr("FillTime = 8"));
  EXPECT_THAT(bytes_of(folder + "/base-0003.pro"), HasSubstr("FillTime = 3"));
  EXPECT_EQ(bytes_of(folder + "/manifest.csv"),
            "file,Flow-1.FillTime\nbase-0001.pro,7\nbase-0002.pro,8\n");
}

TEST_F(Sweep, ResumesItsOwnStudyAlone) {
  const std::vector<std::string> arguments = {
      file, "--set", "Flow-1.FillTime=1:2", "--sample", "9", "-o", folder, "--resume"};
  // The first time there is nothing to resume; then the seed is the one that was drawn.
  ASSERT_EQ(sweep(arguments).status, 0);
  const std::string manifest = bytes_of(folder + "/manifest.json");
  const std::string third = bytes_of(folder + "/base-0003.pro");
  std::filesystem::remove(folder + "/base-0003.pro");
  std::filesystem::remove(folder + "/manifest.csv");
  const auto kept = std::filesystem::last_write_time(folder + "/base-0001.pro");
  const Outcome resumed = sweep(arguments);
  EXPECT_EQ(resumed.status, 0);
  EXPECT_EQ(resumed.err, "");
  EXPECT_EQ(bytes_of(folder + "/base-0003.pro"), third);
  EXPECT_EQ(bytes_of(folder + "/manifest.json"), manifest);
  EXPECT_TRUE(exists(folder + "/manifest.csv"));
  EXPECT_EQ(std::filesystem::last_write_time(folder + "/base-0001.pro"), kept);

  std::filesystem::remove(folder + "/base-0003.pro");
  const auto refused = [&](std::vector<std::string> more, const std::string& what) {
    more.insert(more.begin(), file);
    more.insert(more.end(), {"-o", folder, "--resume"});
    const Outcome outcome = sweep(more);
    EXPECT_EQ(outcome.status, 3) << what;
    EXPECT_THAT(outcome.err, HasSubstr(what));
    EXPECT_FALSE(exists(folder + "/base-0003.pro"));
  };
  refused({"--set", "Flow-1.FillTime=1:3", "--sample", "9"}, "\"settings\"");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "8"}, "\"samples\"");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "9", "--seed", "1"}, "\"seed\"");
  put_bytes(folder + "/base-0001.pro", "changed");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "9"}, "base-0001.pro");
  std::filesystem::remove(folder + "/base-0001.pro");
  put_bytes(file, kFile + "new = 1\r\n");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "9"}, "\"source\"");
  put_bytes(file, kFile);
  std::filesystem::remove(folder + "/manifest.json");
  refused({"--set", "Flow-1.FillTime=1:2", "--sample", "9", "--seed", "1"}, "is missing");
}

TEST_F(Sweep, HasMoreDigitsWhereThereAreMoreFiles) {
  const Outcome outcome = sweep({file, "--set", "Flow-1.FillTime=1:10000:1", "--dry-run"});
  EXPECT_THAT(outcome.out, HasSubstr("\nbase-00001.pro,1\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\nbase-10000.pro,10000\n"));
}

// The program is told by its help what it does; each command shows one line that one may copy.
TEST(Help, HasAnExampleOfEveryCommand) {
  const Outcome all = run(QELPRO_TOOL_PATH, {"complete", "--", ""});
  const std::string help = run(QELPRO_TOOL_PATH, {"--help"}).out;
  int count = 0;
  for (std::size_t at = 0; at < all.out.size();) {
    const std::size_t end = all.out.find('\n', at);
    std::string command = all.out.substr(at, end - at);
    command.erase(command.find_last_not_of('\r') + 1);
    at = end + 1;
    ++count;
    EXPECT_THAT(help, HasSubstr("\n  " + command + " "));
    const Outcome outcome = run(QELPRO_TOOL_PATH, {command, "--help"});
    EXPECT_EQ(outcome.status, 0) << command;
    EXPECT_THAT(outcome.out, HasSubstr("Example: ")) << command;
    EXPECT_THAT(outcome.out.substr(outcome.out.find("Example: ")), HasSubstr("qelpro " + command))
        << command;
  }
  EXPECT_GE(count, 10);
}

}  // namespace
