#include "check/near.h"

#include <algorithm>
#include <bit>
#include <vector>

#include "blocks/key.h"
#include "platform/number.h"

namespace qelpro {
namespace {

constexpr std::string_view kDigits = "0123456789";

// A set of the characters, a few of which share a place.
unsigned long long letters_of(std::string_view name) {
  unsigned long long letters = 0;
  for (const char character : name) {
    letters |= 1ULL << (static_cast<unsigned char>(character) % 64U);
  }
  return letters;
}

// Letters of ASCII, whatever the program's locale is.
char in_lower_case(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                              : character;
}

bool is_same_but_for_capitals(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, in_lower_case, in_lower_case);
}

}  // namespace

std::size_t edit_distance(std::string_view a, std::string_view b, std::size_t most) {
  if (a.size() > b.size()) {
    std::swap(a, b);
  }
  if (b.size() - a.size() > most) {
    return most + 1;
  }
  std::vector<std::size_t> before_last(a.size() + 1);
  std::vector<std::size_t> last(a.size() + 1);
  std::vector<std::size_t> row(a.size() + 1);
  for (std::size_t i = 0; i <= a.size(); ++i) {
    last[i] = i;
  }
  for (std::size_t j = 1; j <= b.size(); ++j) {
    row[0] = j;
    std::size_t least = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
      row[i] = std::min({last[i] + 1, row[i - 1] + 1,
                         last[i - 1] + static_cast<std::size_t>(a[i - 1] != b[j - 1])});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
        row[i] = std::min(row[i], before_last[i - 2] + 1);
      }
      least = std::min(least, row[i]);
    }
    if (least > most) {
      return most + 1;
    }
    std::swap(before_last, last);
    std::swap(last, row);
  }
  return std::min(last[a.size()], most + 1);
}

Nearest::Nearest(std::string_view wanted) : wanted_(wanted), letters_(letters_of(wanted)) {}

void Nearest::offer(std::string_view name) {
  if (name.size() > wanted_.size() + kMost || wanted_.size() > name.size() + kMost) {
    return;
  }
  // One change takes a letter away, brings one, or both.
  const bool may_be_near = std::popcount(letters_ & ~letters_of(name)) <= static_cast<int>(kMost) &&
                           std::popcount(letters_of(name) & ~letters_) <= static_cast<int>(kMost);
  std::size_t distance = may_be_near ? edit_distance(wanted_, name, kMost) : kMost + 1;
  if (distance >= std::min(name.size(), wanted_.size())) {
    distance = kMost + 1;  // nothing of the name is left
  }
  if (distance > kMost && is_same_but_for_capitals(name, wanted_)) {
    distance = kMost;
  }
  if (distance < distance_) {
    distance_ = distance;
    name_ = name;
  }
}

std::string with_number(std::string_view pattern, int number) {
  const std::size_t percent = pattern.find('%');
  if (percent == std::string_view::npos) {
    return std::string(pattern);
  }
  return std::string(pattern.substr(0, percent)) + qel::platform::print_int(number) +
         std::string(pattern.substr(pattern.find('d', percent) + 1));
}

std::string numbered_like(std::string_view pattern, std::string_view like) {
  if (!qel::is_numbered(pattern)) {
    return std::string(pattern);
  }
  const std::size_t first = like.find_first_of(kDigits);
  const std::string digits(first == std::string_view::npos ? std::string_view("1")
                                                           : like.substr(first));
  return with_number(pattern, std::max(qel::platform::to_int(digits.c_str()), 1));
}

}  // namespace qelpro
