#include <gmock/gmock.h>

#include <ostream>
#include <string>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "check/check.h"
#include "members/every_call.h"
#include "members/every_member.h"
#include "support/run.h"
#include "support/scratch.h"

// Nothing is found in what is sound: the samples, and what the library itself writes.

namespace qelpro_test {
namespace {

using qelpro::Finding;

std::vector<std::string> findings_in(const std::string& path) {
  std::vector<std::string> lines;
  for (const Finding& finding :
       qelpro::check_document(path, qelpro::SectionedText(bytes_of(path)))) {
    lines.push_back(std::to_string(finding.line) + " " + finding.code + " " + finding.message);
  }
  return lines;
}

TEST(CheckWritten, FindsNothingInTheSamples) {
  for (const char* name : {"injection_two_inlets.pro", "proio_default.pro",
                           "transfer_molding_curing.pro", "../../docs/example.pro"}) {
    EXPECT_THAT(findings_in(data_path(name)), testing::IsEmpty()) << name;
  }
}

// Its section of the core is one that nobody reads.
TEST(CheckWritten, FindsTheUnknownSectionOfTheCoInjectionAlone) {
  const auto findings = findings_in(data_path("co_injection_type_8.pro"));
  ASSERT_EQ(findings.size(), 1U) << testing::PrintToString(findings);
  EXPECT_THAT(findings.front(), testing::HasSubstr("P101 [Flow-1-Core]"));
}

TEST(CheckWritten, FindsNothingInANewFile) {
  const Scratch scratch;
  ASSERT_EQ(run(QELPRO_TOOL_PATH, {"new", scratch.path()}).status, 0);
  EXPECT_THAT(findings_in(scratch.path()), testing::IsEmpty());
}

// All integers are 1, so that every count is that of the one point and of the one section. Some
// members rename their block for the rest of a session: each has a session of its own.
TEST(CheckWritten, FindsNothingInWhatEveryMemberOfTheWriterWrites) {
  const Scratch scratch;
  const std::string path = scratch.file("");
  for (const WriterMember& member : writer_members()) {
    std::vector<Value> values;
    for (const char letter : member.arguments) {
      values.push_back(letter == 'i'   ? Value(1)
                       : letter == 'd' ? Value(1.5)
                                       : Value(std::string("Name")));
    }
    CQELPROWriter_Manipulator writer;
    ASSERT_TRUE(writer.SetFilePath(path.c_str()));
    EXPECT_TRUE(member.write(writer, values)) << member.name;
  }
  EXPECT_THAT(findings_in(path), testing::IsEmpty()) << bytes_of(path);
}

// The object stores a key that its section lacks behind the file's last line.
TEST(CheckWritten, FindsNothingInWhatTheOlderObjectWrites) {
  const Scratch scratch;
  const std::string path = scratch.file("");
  CPROIO_Manipulator object;
  std::string kept = path;
  object.SetFilePath(kept.data());
  ASSERT_TRUE(object.SetDefault());
  EXPECT_THAT(findings_in(path), testing::IsEmpty());
  const Around around{[] {}, [] {}};
  std::string name = "Water";
  int one = 1;
  for (const EveryCall<CPROIO_Manipulator>& call : object_calls()) {
    // These take a name of one word, or the number that they store by reference.
    if (call.name == "SetCoolant") {
      EXPECT_TRUE(object.SetCoolant(1, 1.5, 1.5, 1.5, 1.5, 1, name.data(), 1.5, 1));
      EXPECT_TRUE(object.SetCoolant(1, 1.5, 1.5, 1.5, 1.5, 1));
    } else if (call.name == "SetBCCountName") {
      EXPECT_TRUE(object.SetBCCountName(1, 1, name.data()));
    } else if (call.name == "SetCoolChannelTimeSet") {
      EXPECT_TRUE(object.SetCoolChannelTimeSet(1, one));
    } else if (call.name == "SetMPreheatCoolChannelTimeSet") {
      EXPECT_TRUE(object.SetMPreheatCoolChannelTimeSet(1, one));
    } else if (call.name.starts_with("Set") && call.name != "SetFilePath") {
      call.make(object, around);
    }
  }
  EXPECT_TRUE(object.SetFRSection(2, 1));  // the default document has two points
  EXPECT_TRUE(object.SetFRProfile(2, 100, 50, 1));
  EXPECT_THAT(findings_in(path), testing::IsEmpty()) << bytes_of(path);
}

// It puts a new key behind the last line, and finds it there.
TEST(CheckWritten, FindsNothingInPointsThatTheOlderObjectPutAtTheEnd) {
  const Scratch scratch;
  const std::string path = scratch.file("");
  CPROIO_Manipulator object;
  std::string kept = path;
  object.SetFilePath(kept.data());
  ASSERT_TRUE(object.SetTotalCoolantNo(1));
  ASSERT_TRUE(object.SetCoolTime(3));
  ASSERT_TRUE(object.SetCoolant(1, 1, 2, 3, 4, 1));
  const std::string contents = bytes_of(path);
  ASSERT_LT(contents.find("[Cool]"), contents.find("Coolant-1")) << contents;
  EXPECT_THAT(findings_in(path), testing::IsEmpty()) << bytes_of(path);
}

}  // namespace
}  // namespace qelpro_test
