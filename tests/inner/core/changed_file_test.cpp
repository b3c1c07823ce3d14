#include <random>

#include "inner/core/document_fixture.h"

// A reading session whose file is changed by others.

namespace qelpro_test {
namespace {

class ChangedFile : public Document {
 protected:
  void store(const char* section, const char* key, const char* value) {
    CQELPROIO writing;
    ASSERT_TRUE(writing.SetFilePath(path.c_str(), CQELPROIO::kWriting));
    ASSERT_EQ(writing.SetValue(section, key, value, kByKey), kDone);
  }
};

TEST_F(ChangedFile, IsReadAsItStandsNowWhereItsLinesMoved) {
  read(
      "[Material]\nMaterial = a\n[Flow-1]\nFillTime = 1\nMeltTemp = 2\n[Flow-2]\nFillTime = "
      "3\nMeltTemp = 4\n");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1");
  EXPECT_EQ(look(document, "[Flow-1]", "MeltTemp"), "2");
  EXPECT_EQ(look(document, "[Flow-2]", "MeltTemp"), "4");
  store("[Material]", "Material", "one with a longer name");
  EXPECT_EQ(look(document, "[Flow-1]", "MeltTemp"), "2");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1");
  EXPECT_EQ(look(document, "[Flow-2]", "FillTime"), "3");
  store("[Flow-1]", "MeltTemp", "200");
  EXPECT_EQ(look(document, "[Flow-2]", "MeltTemp"), "4");
  EXPECT_EQ(look(document, "[Flow-1]", "MeltTemp"), "200");
}

TEST_F(ChangedFile, AnswersAKeyThatWasAddedWhileItWasRead) {
  read("[A]\nx = 1\n[B]\ny = 2\n");
  EXPECT_EQ(look(document, "[A]", "new"), "-2");
  EXPECT_EQ(look(document, "[B]", "y"), "2");
  store("[A]", "new", "3");
  store("[C]", "z", "4");
  EXPECT_EQ(look(document, "[A]", "new"), "3");
  EXPECT_EQ(look(document, "[C]", "z"), "4");
  EXPECT_EQ(look(document, "[B]", "y"), "2");
}

TEST_F(ChangedFile, AgreesWithAFreshSessionAtAnyMoment) {
  std::mt19937 random(7);
  const auto below = [&random](unsigned limit) { return random() % limit; };
  const auto section = [&] { return "[Flow-" + std::to_string(1 + below(4)) + "]"; };
  const auto key = [&] { return "K" + std::to_string(below(6)); };
  for (int trial = 0; trial < 150; ++trial) {
    CQELPROIO reading;
    std::string contents;
    for (int line = 0; line < 20; ++line) {
      contents += below(4) == 0 ? section() + "\n" : key() + " = " + std::to_string(line) + "\n";
    }
    make(contents);
    ASSERT_TRUE(reading.SetFilePath(path.c_str(), CQELPROIO::kReading));
    for (int step = 0; step < 40; ++step) {
      if (below(4) == 0) {
        CQELPROIO writing;
        ASSERT_TRUE(writing.SetFilePath(path.c_str(), CQELPROIO::kWriting));
        // Values that no other line has: what a lookup yields tells where it was.
        const std::string value = std::string(below(9), 'v') + std::to_string(trial * 100 + step);
        writing.SetValue(section().c_str(), key().c_str(), value.c_str(), kByKey);
      }
      CQELPROIO fresh;
      ASSERT_TRUE(fresh.SetFilePath(path.c_str(), CQELPROIO::kReading));
      const std::string wanted_section = section();
      const std::string wanted_key = key();
      ASSERT_EQ(look(reading, wanted_section.c_str(), wanted_key.c_str()),
                look(fresh, wanted_section.c_str(), wanted_key.c_str()))
          << "trial " << trial << ", step " << step << ", " << wanted_section << ' ' << wanted_key
          << " in\n"
          << bytes_of(path);
    }
  }
}

// What another program does is seen by what stands where lines were learnt.

TEST_F(ChangedFile, IsReadRightWhereAnotherSectionsLineCameToStandWhereALineStood) {
  read("[Project]\nMaterial             = abc\n[Flow-1]\nFillTime = 1\n[Flow-2]\nFillTime = 2\n");
  EXPECT_EQ(look(document, "[Flow-2]", "FillTime"), "2");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1");
  // Longer by just what one section takes.
  put_bytes(path,
            "[Project]\nMaterial             = abc1234567890123456789012\n[Flow-1]\nFillTime = "
            "1\n[Flow-2]\nFillTime = 2\n");
  EXPECT_EQ(look(document, "[Flow-2]", "FillTime"), "2");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1");
}

TEST_F(ChangedFile, IsReadRightWhereHeadersWereExchanged) {
  read("[Flow-1]\nFillTime = 1\n[Flow-2]\nFillTime = 2\n");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1");
  EXPECT_EQ(look(document, "[Flow-2]", "FillTime"), "2");
  put_bytes(path, "[Flow-2]\nFillTime = 1\n[Flow-1]\nFillTime = 2\n");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "2");
  EXPECT_EQ(look(document, "[Flow-2]", "FillTime"), "1");
  put_bytes(path, "[Flow-2]\nFillTime = 1\n[Flow-3]\nFillTime = 2\n");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "-2");
}

TEST_F(ChangedFile, LosesALineFoundByPositionWithItsHeader) {
  read("\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1 Top 5\n1 Side 7\n");
  EXPECT_EQ(look(document, "[SURFACE", "", 2), "1 Side 7");
  put_bytes(path, "\n[XURFACE ELEMENT BOUNDARY CONDITION NAME]\n1 Top 5\n1 Side 7\n");
  EXPECT_EQ(look(document, "[SURFACE", "", 2), "-2");
}

TEST_F(ChangedFile, IsReadRightFarAfterItsHeader) {
  std::string points;
  for (int point = 1; point <= 400; ++point) {
    points += "FR-" + std::to_string(point) + " = " + std::to_string(point) + "\n";
  }
  read("[Flow-1]\n" + points + "[Flow-2]\n" + points);
  EXPECT_EQ(look(document, "[Flow-1]", "FR-400"), "400");
  EXPECT_EQ(look(document, "[Flow-1]", "FR-1"), "1");
  put_bytes(path, "[Flow-3]\n" + points + "[Flow-1]\nFR-400 = 7\n");
  EXPECT_EQ(look(document, "[Flow-1]", "FR-400"), "7");
  EXPECT_EQ(look(document, "[Flow-1]", "FR-1"), "-2");
}

TEST_F(ChangedFile, IsReadAsItStandsNowWhereItsPathIsOpenedAgain) {
  read("[Project]\nMaterial             = abc\n[Flow-1]\nFillTime = 1\n");
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1");
  store("[Project]", "Material", "abcdefgh");
  ASSERT_TRUE(document.SetFilePath(path.c_str(), CQELPROIO::kReading));
  EXPECT_EQ(look(document, "[Flow-1]", "FillTime"), "1");
}

}  // namespace
}  // namespace qelpro_test
