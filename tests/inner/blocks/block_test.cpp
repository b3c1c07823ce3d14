#include "blocks/block.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <iterator>
#include <string>

#include "api/session.h"
#include "support/line_break.h"
#include "support/scratch.h"

namespace {

using namespace qel;
using namespace qelpro_test;

class Block : public CQELPROBlockIOBase {
 public:
  using CQELPROBlockIOBase::CQELPROBlockIOBase;
  using CQELPROBlockIOBase::document;
  using CQELPROBlockIOBase::name;
};

constexpr Key<Integer> kCount{"FRSet", {}, {}, "a count"};
constexpr Key<Real> kTime{"FillTime", {}, {}, "a time"};
constexpr Key<Text> kNote{"Note", {}, {}, "a note"};
constexpr Key<RealPair> kPoint{"FR-%d", {}, {}, "a point"};
constexpr Key<RealTriple> kDirection{"OpenDirection", {}, {}, "a direction"};
constexpr Key<IntegerPair> kCodes{"FlowCTL-%d", {}, {}, "two codes"};

constexpr qel::Result kDone = qel::Result::done;
constexpr qel::Result kNoOpen = qel::Result::no_open;
constexpr qel::Result kNoFile = qel::Result::no_file;
constexpr qel::Result kAbsent = qel::Result::absent;

// Stands for an encoding of several fields with a text among them: it prints what it is given.
struct Compound : qel::Text {
  static constexpr const char* kName = "compound";
  static constexpr std::size_t kLimit = kCompoundLimit;
};
constexpr Key<Compound> kCompound{"Coolant-1", {}, {}, "several fields"};

TEST(Block, BearsTheNameOfItsConstructor) {
  const Block block("[Cure-%d]");
  EXPECT_STREQ(block.name(), "[Cure-%d]");
  EXPECT_EQ(block.document(), nullptr);
}

TEST(Block, TakesAnotherNameWholly) {
  Block block("[MoldTemperatureBC-%d]");
  block.SetSectionName("[SURFACE");
  EXPECT_STREQ(block.name(), "[SURFACE");
  for (std::size_t i = std::string("[SURFACE").size(); i < 256; ++i) {
    ASSERT_EQ(block.name()[i], '\0') << "nothing of the old name is left, at " << i;
  }
}

TEST(Block, CutsItsNameAt255Characters) {
  const std::string name(300, 'x');
  Block block(name.c_str());
  EXPECT_EQ(block.name(), name.substr(0, 255));
  block.SetSectionName(name.substr(0, 255).c_str());
  EXPECT_EQ(block.name(), name.substr(0, 255));
  block.SetSectionName(name.substr(0, 256).c_str());
  EXPECT_EQ(block.name(), name.substr(0, 255));
}

TEST(NumberedName, HasTheNumberInThePlaceOfItsPattern) {
  EXPECT_EQ(NumberedName("[Flow-%ld]", 7).str(), "[Flow-7]");
  EXPECT_EQ(NumberedName("[Cure-%d]", -2147483647 - 1).str(), "[Cure--2147483648]");
  EXPECT_EQ(NumberedName("FR-%d", 0).str(), "FR-0");
}

TEST(NumberedName, IsAPatternWithoutAPlaceAsItStands) {
  for (const std::string pattern : {"[Unit]", "", "[100%]", "d%", "%"}) {
    const NumberedName name(pattern, 7);
    EXPECT_EQ(name.str(), pattern);
  }
}

TEST(NumberedName, HasRoomForTheLongestPatternAndTheLongestNumber) {
  const std::string front(253, 'x');
  EXPECT_EQ(NumberedName(front + "%d", -2147483647 - 1).str(), front + "-2147483648");
  EXPECT_EQ(NumberedName("%d" + front, -2147483647 - 1).str(), "-2147483648" + front);
  EXPECT_EQ(NumberedName(front + "ab", 1).str(), front + "ab");
}

TEST(Block, AttachesAnyDocumentButNull) {
  Block block("[Unit]");
  CQELPROIO first;
  CQELPROIO second;
  EXPECT_FALSE(block.AttachDocument(nullptr));
  EXPECT_EQ(block.document(), nullptr);
  EXPECT_TRUE(block.AttachDocument(&first));
  EXPECT_TRUE(block.AttachDocument(&first)) << "twice is harmless";
  EXPECT_FALSE(block.AttachDocument(nullptr));
  EXPECT_EQ(block.document(), &first);
  EXPECT_TRUE(block.AttachDocument(&second));
  EXPECT_EQ(block.document(), &second);
}

TEST(Block, YieldsNoFileWithoutADocument) {
  Block block("[Flow-%ld]");
  int count = 7;
  double x = 8;
  double y = 9;
  char* text = nullptr;
  EXPECT_EQ(block.Read(kCount, in_section(1), count), kNoFile);
  EXPECT_EQ(block.Read(kPoint, at_point(1, 1), x, y), kNoFile);
  EXPECT_EQ(block.Read(kNote, {}, text), kNoFile);
  EXPECT_EQ(block.Write(kCount, in_section(1), 3), kNoFile);
  EXPECT_EQ(block.Write(kPoint, at_point(1, 1), 1.0, 2.0), kNoFile);
  EXPECT_EQ(block.Write(kNote, {}, "note"), kNoFile);
  EXPECT_EQ(count, 7);
  EXPECT_EQ(x, 8);
  EXPECT_EQ(y, 9);
  EXPECT_EQ(text, nullptr);
}

// A block over a document of its own.
struct Attached {
  Attached(const char* section, const std::string& path, int mode) : block(section) {
    EXPECT_TRUE(document.SetFilePath(path.c_str(), mode));
    EXPECT_TRUE(block.AttachDocument(&document));
  }
  CQELPROIO document;
  Block block;
};

Attached reading(const char* section, const std::string& path) {
  return {section, path, CQELPROIO::kReading};
}
Attached writing(const char* section, const std::string& path) {
  return {section, path, CQELPROIO::kWriting};
}

TEST(Block, PassesOnWhatTheDocumentYields) {
  const Scratch scratch;
  Block block("[Flow-%ld]");
  CQELPROIO unnamed;
  ASSERT_TRUE(block.AttachDocument(&unnamed));
  int count = 7;
  EXPECT_EQ(block.Read(kCount, in_section(1), count), kNoFile);
  EXPECT_EQ(block.Write(kCount, in_section(1), 3), kNoFile);

  Attached absent = reading("[Flow-%ld]", scratch.file("[Flow-1]\nFRSet = 3\n"));
  EXPECT_EQ(absent.block.Read(kCount, in_section(2), count), kAbsent);
  EXPECT_EQ(count, 7);
}

TEST(Block, YieldsNoOpenWhenTheFileIsGone) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFRSet = 3\n");
  Attached over = writing("[Flow-%ld]", path);
  ASSERT_EQ(std::remove(path.c_str()), 0);
  int count = 7;
  EXPECT_EQ(over.block.Read(kCount, in_section(1), count), kNoOpen);
  EXPECT_EQ(count, 7);
}

TEST(Block, PutsTheNumberIntoItsName) {
  const Scratch scratch;
  const std::string path = scratch.file(
      "[Flow-1]\nFRSet = 1\n[Flow-2]\nFRSet = 2\n[Flow-0]\nFRSet = 10\n[Flow--1]\nFRSet = "
      "-1\n[Flow-2-Skin2nd]\nFRSet = 22\n");
  Attached flow = reading("[Flow-%ld]", path);
  Attached skin = reading("[Flow-%ld-Skin2nd]", path);
  const auto count_of = [](Attached& attached, int number) {
    int count = 77;
    EXPECT_EQ(attached.block.Read(kCount, in_section(number), count), kDone) << number;
    return count;
  };
  EXPECT_EQ(count_of(flow, 2), 2);
  EXPECT_EQ(count_of(flow, 1), 1);
  EXPECT_EQ(count_of(flow, 0), 10);
  EXPECT_EQ(count_of(flow, -1), -1);
  EXPECT_EQ(count_of(skin, 2), 22);
  int count = 77;
  EXPECT_EQ(skin.block.Read(kCount, in_section(1), count), kAbsent)
      << "the plain filling section does not stand in";
}

TEST(Block, PutsThePointNumberIntoTheKey) {
  const Scratch scratch;
  Attached cure = reading(
      "[Cure-%d]",
      scratch.file("[Cure-1]\nFR-3 = 1 1\n[Cure-2]\nFR-2 = 2 2\nFR-3 = 3 30\nFR-30 = 4 4\n"));
  double x = 0;
  double y = 0;
  EXPECT_EQ(cure.block.Read(kPoint, at_point(3, 2), x, y), kDone);
  EXPECT_EQ(x, 3);
  EXPECT_EQ(y, 30);
  EXPECT_EQ(cure.block.Read(kPoint, at_point(1, 2), x, y), kAbsent);
}

TEST(Block, NumberOfASectionWithoutAPatternIsDropped) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Attached over = writing("[FlowCTL]", path);
  EXPECT_EQ(over.block.Write(kCount, in_section(5), 2), kDone);
  EXPECT_EQ(bytes_of(path), native("\n[FlowCTL]\nFRSet                = 2\n"));
}

TEST(Block, WritesEveryEncoding) {
  const Scratch scratch;
  const std::string path = scratch.path();
  Attached over = writing("[Flow-%ld]", path);
  EXPECT_EQ(over.block.Write(kCount, in_section(2), -5), kDone);
  EXPECT_EQ(over.block.Write(kTime, in_section(2), 0.1), kDone);
  EXPECT_EQ(over.block.Write(kPoint, at_point(2, 2), 0.5, 30.0), kDone);
  EXPECT_EQ(over.block.Write(kDirection, in_section(2), 0.0, -1.0, 1e-7), kDone);
  EXPECT_EQ(over.block.Write(kNote, in_section(2), "two words"), kDone);
  EXPECT_EQ(bytes_of(path), native("\n[Flow-2]\nFRSet                = -5\nFillTime = 0.1\nFR-2 = "
                                   "0.5\t30\nOpenDirection = 0\t-1\t1e-007\nNote = two words\n"));
}

TEST(Block, ReadsEveryEncoding) {
  const Scratch scratch;
  Attached over =
      reading("[Flow-%ld]",
              scratch.file("[Flow-2]\nFRSet = 3\nFillTime = 1.5 sec\nFR-2 = 0.5 30\nOpenDirection "
                           "= 0 -1 0.5\nNote = two words \nFlowCTL-4 = 1\n"));
  int count = 0;
  double x = 0;
  double y = 0;
  double z = 0;
  char* text = nullptr;
  EXPECT_EQ(over.block.Read(kCount, in_section(2), count), kDone);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(over.block.Read(kTime, in_section(2), x), kDone);
  EXPECT_EQ(x, 1.5);
  EXPECT_EQ(over.block.Read(kPoint, at_point(2, 2), x, y), kDone);
  EXPECT_EQ(x, 0.5);
  EXPECT_EQ(y, 30);
  EXPECT_EQ(over.block.Read(kDirection, in_section(2), x, y, z), kDone);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, -1);
  EXPECT_EQ(z, 0.5);
  EXPECT_EQ(over.block.Read(kNote, in_section(2), text), kDone);
  EXPECT_STREQ(text, "two words");
  int second = 9;
  EXPECT_EQ(over.block.Read(kCodes, at_point(4, 2), count, second), kDone);
  EXPECT_EQ(count, 1);
  EXPECT_EQ(second, 0);
}

TEST(Block, ValueThatDoesNotScanIsAFoundOne) {
  const Scratch scratch;
  Attached over =
      reading("[Flow-%ld]", scratch.file("[Flow-1]\nFRSet = many\nFillTime =\nFR-1 = 5 x\nFR-2 = "
                                         "x\nFlowCTL-1 = x\nOpenDirection\n"));
  int count = 7;
  int second = 9;
  double x = 8;
  double y = 9;
  double z = 10;
  EXPECT_EQ(over.block.Read(kCount, in_section(1), count), kDone);
  EXPECT_EQ(count, 7);
  EXPECT_EQ(over.block.Read(kTime, in_section(1), x), kDone);
  EXPECT_EQ(x, 8);
  EXPECT_EQ(over.block.Read(kPoint, at_point(2, 1), x, y), kDone);
  EXPECT_EQ(x, 8);
  EXPECT_EQ(y, 9);
  EXPECT_EQ(over.block.Read(kPoint, at_point(1, 1), x, y), kDone);
  EXPECT_EQ(x, 5) << "partly set";
  EXPECT_EQ(y, 9);
  EXPECT_EQ(over.block.Read(kDirection, in_section(1), x, y, z), kDone)
      << "without a \"=\" the value is empty";
  EXPECT_EQ(z, 10);
  EXPECT_EQ(over.block.Read(kCodes, at_point(1, 1), count, second), kDone);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(second, 0);
}

TEST(Block, CountAndPointsAreIndependent) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFRSet = 1\nFR-1 = 1 10\nFR-2 = 2 20\n");
  {
    Attached over = writing("[Flow-%ld]", path);
    EXPECT_EQ(over.block.Write(kCount, in_section(1), 0), kDone);
    EXPECT_EQ(over.block.Write(kPoint, at_point(7, 1), 7.0, 70.0), kDone);
  }
  EXPECT_EQ(bytes_of(path),
            "[Flow-1]\nFRSet                = 0\nFR-1 = 1 10\nFR-2 = 2 20\nFR-7 = 7\t70\n");
  Attached over = reading("[Flow-%ld]", path);
  double x = 0;
  double y = 0;
  EXPECT_EQ(over.block.Read(kPoint, at_point(2, 1), x, y), kDone)
      << "points behind the count are read when asked for";
  EXPECT_EQ(x, 2);
}

TEST(Block, RefusesACompoundTextThatWouldNotFitItsBuffer) {
  const Scratch scratch;
  const std::string before = "[Coolant]\nCoolant-1 = 1\n";
  const std::string path = scratch.file(before);
  Attached over = writing("[Coolant]", path);
  EXPECT_EQ(over.block.Write(kCompound, {}, std::string(256, 'x').c_str()), kNoOpen);
  EXPECT_EQ(bytes_of(path), before);
  EXPECT_EQ(over.block.Write(kCompound, {}, std::string(255, 'x').c_str()), kDone);
  EXPECT_EQ(bytes_of(path), "[Coolant]\nCoolant-1            = " + std::string(255, 'x') + "\n");
}

TEST(Block, WritesATextUpToTheLongestLine) {
  const Scratch scratch;
  const std::string before = "[Coolant]\nNote = 1\n";
  const std::string path = scratch.file(before);
  Attached over = writing("[Coolant]", path);
  constexpr std::size_t kLongestValue = 4095 - 1 - 23;  // the line break, the padded key and " = "
  EXPECT_EQ(over.block.Write(kNote, {}, std::string(kLongestValue + 1, 'x').c_str()), kNoOpen);
  EXPECT_EQ(bytes_of(path), before);
  const std::string longest(kLongestValue, 'x');
  EXPECT_EQ(over.block.Write(kNote, {}, longest.c_str()), kDone);
  char* text = nullptr;
  EXPECT_EQ(over.block.Read(kNote, {}, text), kDone);
  EXPECT_EQ(text, longest);
}

TEST(Block, ScansLongValuesOfPointsWithoutHarm) {
  const Scratch scratch;
  Attached over = reading("[Flow-%ld]", scratch.file("[Flow-1]\nFR-1 = 1" + std::string(3000, ' ') +
                                                     "2" + std::string(900, 'x') + "\n"));
  double x = 0;
  double y = 0;
  EXPECT_EQ(over.block.Read(kPoint, at_point(1, 1), x, y), kDone);
  EXPECT_EQ(x, 1);
}

TEST(Block, TextsShareOneBuffer) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nNote = first\n[Flow-2]\nNote = second\n");
  Attached one = reading("[Flow-%ld]", path);
  Attached other = reading("[Flow-%ld]", path);
  char* first = nullptr;
  char* second = nullptr;
  EXPECT_EQ(one.block.Read(kNote, in_section(1), first), kDone);
  EXPECT_STREQ(first, "first");
  EXPECT_EQ(other.block.Read(kNote, in_section(2), second), kDone);
  EXPECT_STREQ(first, "second") << "the next read shows through the earlier pointer";
}

TEST(SectionBlocks, BearTheNamesOfTheirSections) {
  const char* const headers[] = {"[FileHeader]",
                                 "[CaeHeader]",
                                 "[Summary]",
                                 "[Unit]",
                                 "[FlowCTL]",
                                 "[Flow-3]",
                                 "[Pack-3]",
                                 "[Cure-3]",
                                 "[Cool]",
                                 "[CoolCTL]",
                                 "[Coolant]",
                                 "[CoolChannel-3]",
                                 "[VarCoolCTL]",
                                 "[GateCTL]",
                                 "[GateValve-3]",
                                 "[Machine]",
                                 "[Project]",
                                 "[RamPosition]",
                                 "[Moldbase]",
                                 "[MoldMetalMaterial]",
                                 "[SURFACE ELEMENT BOUNDARY CONDITION NAME]",
                                 "[GasF-3]",
                                 "[AdvancedSetting]",
                                 "[TransientInletConv]",
                                 "[MoldThermalBoundaryType]",
                                 "[ICPackage]",
                                 "[PartingSurface]",
                                 "[EjectCriteria]",
                                 "[PartInsertInitialTemperature]",
                                 "[MoldInsertInitialTemperature]",
                                 "[MoldbaseInfo]",
                                 "[MoldPreheat]",
                                 "[MPreheat_CoolChannel-3]",
                                 "[MicrocellularMolding]",
                                 "[FlowCTLInfo]",
                                 "[OFGateValve-3]",
                                 "[PartInsertContactAngle]",
                                 "[Flow-3-Skin2nd]"};
  CQELPROIOBase session;
  const auto blocks = session.Blocks();
  ASSERT_EQ(blocks.size(), std::size(headers));
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    SCOPED_TRACE(headers[i]);
    const Scratch scratch;
    const std::string path = scratch.file(std::string(headers[i]) + "\nFRSet = 5\n");
    ASSERT_TRUE(session.document().SetFilePath(path.c_str(), CQELPROIO::kWriting));
    ASSERT_TRUE(blocks[i]->AttachDocument(&session.document()));
    int count = 0;
    EXPECT_EQ(blocks[i]->Read(kCount, in_section(3), count), kDone);
    EXPECT_EQ(count, 5);
  }
}

}  // namespace
