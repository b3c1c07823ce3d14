#include "file/near.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "blocks/key.h"
#include "platform/number.h"

namespace qelpro {
namespace {

constexpr std::string_view kDigits = "0123456789";

// A set of the characters but for digits, a few of which share a place.
std::uint64_t letters_of(std::string_view name) {
  std::uint64_t letters = 0;
  for (const char character : name) {
    const bool is_digit = character >= '0' && character <= '9';
    letters |= is_digit ? 0 : std::uint64_t{1} << (static_cast<unsigned char>(character) % 64U);
  }
  return letters;
}

// Whether more letters are in one than so many changes take away.
bool has_more(std::uint64_t letters, std::uint64_t others) {
  std::uint64_t more = letters & ~others;
  for (std::size_t change = 0; change < NearNames::kMost; ++change) {
    more &= more - (more != 0 ? 1 : 0);
  }
  return more != 0;
}

// Letters of ASCII, whatever the program's locale is.
char in_lower_case(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                              : character;
}

// The number that stands in a name, or 1.
std::string number_like(std::string_view name) {
  const std::size_t first = name.find_first_of(kDigits);
  const std::string digits(first == std::string_view::npos ? std::string_view("1")
                                                           : name.substr(first));
  return qel::platform::print_int(std::max(qel::platform::to_int(digits.c_str()), 1));
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

void NearNames::add(std::string_view pattern) {
  const std::string_view before = qel::prefix_of(pattern);
  const bool is_numbered = before.size() < pattern.size();
  const std::string_view behind =
      is_numbered ? pattern.substr(pattern.find('d', before.size()) + 1) : std::string_view();
  patterns_.push_back({before, behind, is_numbered, letters_of(before) | letters_of(behind)});
}

std::string NearNames::near(std::string_view name) const {
  const std::uint64_t letters = letters_of(name);
  const std::string number = number_like(name);
  std::size_t nearest = kMost + 1;
  std::string found;
  for (const Pattern& pattern : patterns_) {
    const std::size_t size =
        pattern.before.size() + pattern.behind.size() + (pattern.is_numbered ? number.size() : 0);
    if (size > name.size() + kMost || name.size() > size + kMost) {
      continue;
    }
    const bool is_far = has_more(letters, pattern.letters) || has_more(pattern.letters, letters);
    if (is_far && size != name.size()) {
      continue;
    }
    std::string known(pattern.before);
    known.append(pattern.is_numbered ? number : std::string()).append(pattern.behind);
    std::size_t distance = is_far ? kMost + 1 : edit_distance(name, known, kMost);
    if (distance >= std::min(known.size(), name.size())) {
      distance = kMost + 1;  // nothing of the name is left
    }
    if (distance > kMost && is_same_but_for_capitals(known, name)) {
      distance = kMost;
    }
    if (distance < nearest) {
      nearest = distance;
      found = std::move(known);
    }
  }
  return found;
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
  const int number = qel::platform::to_int(number_like(like).c_str());
  return with_number(pattern, number);
}

}  // namespace qelpro
