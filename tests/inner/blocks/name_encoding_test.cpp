#include "blocks/name_encoding.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace qel;

// The fields of a line in one text, so that a failure shows them all; "none" stands for a null
// name.
template <class Line>
std::string fields_of_four(const char* text, int insert) {
  int id = -7;
  char* name = nullptr;
  double temperature = -7;
  int fourth = -7;
  Line::scan(text, insert, id, name, temperature, fourth);
  const std::string shown = name != nullptr ? "'" + std::string(name) + "'" : "none";
  return fields::print(" ", id, shown.c_str(), temperature, fourth);
}

template <class Line>
std::string fields_of_three(const char* text) {
  int id = -7;
  char* name = nullptr;
  double temperature = -7;
  Line::scan(text, id, name, temperature);
  const std::string shown = name != nullptr ? "'" + std::string(name) + "'" : "none";
  return fields::print(" ", id, shown.c_str(), temperature);
}

template <class Line>
class InsertEncodingOfFour : public testing::Test {};
using LinesOfFour = testing::Types<PartInsertLineOfFour, MoldInsertLineOfFour>;
TYPED_TEST_SUITE(InsertEncodingOfFour, LinesOfFour);

TYPED_TEST(InsertEncodingOfFour, TakesFourPiecesBetweenSingleTabsWhateverIsEmpty) {
  EXPECT_EQ(fields_of_four<TypeParam>("3\tCore  Pin\t80\t2", 1), "3 'Core  Pin' 80 2");
  EXPECT_EQ(fields_of_four<TypeParam>("\tCore Pin\t80\t1", 1), "0 'Core Pin' 80 1");
  EXPECT_EQ(fields_of_four<TypeParam>("\t\t80\t1", 1), "0 '' 80 1");
  EXPECT_EQ(fields_of_four<TypeParam>("3\t\t\t9", 1), "3 '' 0 9");
  EXPECT_EQ(fields_of_four<TypeParam>("3\tCore Pin\t80\t", 5), "3 'Core Pin' 80 0");
  EXPECT_EQ(fields_of_four<TypeParam>("\t\t\t", 5), "0 '' 0 0");
}

TYPED_TEST(InsertEncodingOfFour, TakesThreePiecesWithAnEmptyNameBeforeANumber) {
  EXPECT_EQ(fields_of_four<TypeParam>("7\t\t1", 2), "7 '' 1 2");
  EXPECT_EQ(fields_of_four<TypeParam>("7\t  \t80.5", 2), "7 '' 80.5 2");
  EXPECT_EQ(fields_of_four<TypeParam>("7\t\tPin 80", 2), "7 'Pin' 80 2");
  EXPECT_EQ(fields_of_four<TypeParam>("7\tPin\t80", 2), "7 'Pin' 80 2");
}

TYPED_TEST(InsertEncodingOfFour, TakesTabsInARowForOneWhereThePiecesAreMoreThanFour) {
  EXPECT_EQ(fields_of_four<TypeParam>("3\t\tPin A\t80\t2", 1), "3 'Pin A' 80 2");
  EXPECT_EQ(fields_of_four<TypeParam>("\t3\tPin A\t80\t2", 1), "3 'Pin A' 80 2");
}

template <class Line>
class InsertEncoding : public testing::Test {};
using Lines = testing::Types<PartInsertLine, MoldInsertLine>;
TYPED_TEST_SUITE(InsertEncoding, Lines);

TYPED_TEST(InsertEncoding, HasNoNameBeforeANumberOrAnEmptyTemperature) {
  EXPECT_EQ(fields_of_three<TypeParam>("3\t\t80"), "3 '' 80");
  EXPECT_EQ(fields_of_three<TypeParam>("3\t\t80\t2"), "3 '' 80");
  EXPECT_EQ(fields_of_three<TypeParam>("3\t\t\t9"), "3 '' 0");
  EXPECT_EQ(fields_of_three<TypeParam>("\t\t80\t1"), "0 '' 80");
}

TYPED_TEST(InsertEncoding, TakesTheWordAfterTabsThatOnlyAlignTheFields) {
  EXPECT_EQ(fields_of_three<TypeParam>("3\t\tPin\t80"), "3 'Pin' 80");
  EXPECT_EQ(fields_of_three<TypeParam>("3\t\t\tPin"), "3 'Pin' 0");
}

}  // namespace
