#include "file/address.h"

#include <gmock/gmock.h>

#include "system/failure.h"

namespace {

using namespace qelpro;
using testing::ElementsAre;

std::vector<Address> addresses_of(const std::vector<std::string>& words) {
  std::vector<Address> addresses;
  for (const Request& request : requests_of(words)) {
    addresses.push_back(request.addresses.empty() ? Address{request.argument, ""}
                                                  : request.addresses.front());
  }
  return addresses;
}

TEST(Addresses, AreOneWordWithADotOrTwoWords) {
  EXPECT_THAT(addresses_of({"Flow-1.FillTime"}), ElementsAre(Address{"Flow-1", "FillTime"}));
  EXPECT_THAT(addresses_of({"Flow-1", "FillTime"}), ElementsAre(Address{"Flow-1", "FillTime"}));
  EXPECT_THAT(addresses_of({"[Flow-1]", "Fill.Time"}), ElementsAre(Address{"Flow-1", "Fill.Time"}));
  EXPECT_THAT(addresses_of({"[A.b]", "c"}), ElementsAre(Address{"A.b", "c"}));
  EXPECT_THAT(addresses_of({"Unit.Time", "Flow-1", "FRSet", "A.b"}),
              ElementsAre(Address{"Unit", "Time"}, Address{"Flow-1", "FRSet"}, Address{"A", "b"}));
  EXPECT_THAT(addresses_of({"Flow-*"}), ElementsAre(Address{"Flow-*", ""}));
}

TEST(Addresses, MayBeReadAtEveryDot) {
  EXPECT_THAT(requests_of({"A.b.c"}).front().addresses,
              ElementsAre(Address{"A", "b.c"}, Address{"A.b", "c"}));
}

TEST(Addresses, WithoutAKeyOrASectionAreRefused) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{"Flow-1"},
                                                {"Flow-1", ""},
                                                {""},
                                                {".x"},
                                                {"x."},
                                                {"[Flow-1", "x"},
                                                {"[]", "x"},
                                                {"[Flow-1]"}}) {
    EXPECT_THROW(requests_of(words), Failure) << words.front();
  }
}

TEST(Addresses, OfLinesThatHaveAPosition) {
  EXPECT_EQ(position_of("#3"), 3);
  for (const char* key : {"#", "#0", "#03", "3", "#3x", "#-1", "#99999999999"}) {
    EXPECT_EQ(position_of(key), 0) << key;
  }
}

TEST(Patterns, MatchTheWholeText) {
  struct Row {
    const char* pattern;
    const char* text;
    bool matches;
  };
  for (const Row& row : {Row{"*", "", true},
                         {"*", "A.b", true},
                         {"Flow-*.FillTime", "Flow-12.FillTime", true},
                         {"Flow-*.FillTime", "Flow-12.FillTimes", false},
                         {"Flow-?.x", "Flow-1.x", true},
                         {"Flow-?.x", "Flow-12.x", false},
                         {"Flow-[12].x", "Flow-2.x", true},
                         {"Flow-[12].x", "Flow-3.x", false},
                         {"Flow-[1-3].x", "Flow-3.x", true},
                         {"Flow-[!1-3].x", "Flow-4.x", true},
                         {"Flow-[!1-3].x", "Flow-2.x", false},
                         {"[]]", "]", true},
                         {"[!]]", "x", true},
                         {"[a-]", "-", true},
                         {"[ab", "[ab", true},
                         {"*a*b*c", "xxaxxbxxc", true},
                         {"*a*b*c", "xxaxxbxx", false},
                         {"a", "A", false},
                         {"", "", true},
                         {"", "a", false},
                         {"a**", "a", true}}) {
    EXPECT_EQ(matches_pattern(row.pattern, row.text), row.matches)
        << row.pattern << " and " << row.text;
  }
}

// Each "*" is tried again from the last one alone: the time grows with the product of the lengths.
TEST(Patterns, OfManyStarsEnd) {
  std::string pattern;
  for (int star = 0; star < 500; ++star) {
    pattern += "*a";
  }
  EXPECT_FALSE(matches_pattern(pattern + "b", std::string(4000, 'a')));
}

}  // namespace
