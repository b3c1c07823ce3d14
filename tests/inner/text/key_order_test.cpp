#include "text/key_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

TEST(KeyOrder, IsThatOfTheirCharactersAndThenOfTheirPlaces) {
  std::mt19937 random(1);
  qel::KeyOrder order;
  for (int round = 0; round < 300; ++round) {
    std::vector<std::string> texts(random() % 40);
    for (std::string& text : texts) {
      text.assign(random() % 12, 'a');
      if (!text.empty()) {
        text[random() % text.size()] = "ab\x80\0"[random() % 4];
      }
    }
    const std::vector<std::string_view> keys(texts.begin(), texts.end());
    std::vector<std::size_t> expected(keys.size());
    std::iota(expected.begin(), expected.end(), std::size_t{0});
    std::stable_sort(expected.begin(), expected.end(),
                     [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    const auto found = order.of(keys);
    EXPECT_EQ(std::vector<std::size_t>(found.begin(), found.end()), expected);
  }
}

}  // namespace
