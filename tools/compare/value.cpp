#include "compare/value.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <variant>
#include <vector>

#include "file/value_check.h"

namespace qelpro {
namespace {

constexpr std::string_view kDigits = "0123456789";

bool is_same(const qel::Field& before, const qel::Field& after, const Tolerances& tolerances) {
  const auto* const real = std::get_if<double>(&before);
  const auto* const other = std::get_if<double>(&after);
  return real != nullptr && other != nullptr ? is_same(*real, *other, tolerances) : before == after;
}

bool have_same_fields(const TypedValue& before, const TypedValue& after,
                      const Tolerances& tolerances) {
  return std::ranges::equal(
      before.fields, after.fields,
      [&](const qel::Field& a, const qel::Field& b) { return is_same(a, b, tolerances); });
}

std::vector<std::string_view> words_of(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\v\f\r";
  std::vector<std::string_view> words;
  for (std::size_t at = text.find_first_not_of(kBlanks); at != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(kBlanks, at), text.size());
    words.push_back(text.substr(at, end - at));
    at = text.find_first_not_of(kBlanks, end);
  }
  return words;
}

// A decimal number that is nothing else.
struct Number {
  double value = 0;
  bool is_negative = false;
  std::optional<std::string_view> digits;  // of a whole number, without zeros in front
};

std::optional<Number> number_of(std::string_view word) {
  Number number;
  if (word.starts_with('-') || word.starts_with('+')) {
    number.is_negative = word.front() == '-';
    word.remove_prefix(1);
  }
  const std::size_t first = word.starts_with('.') ? 1 : 0;
  if (word.size() == first || kDigits.find(word[first]) == std::string_view::npos) {
    return std::nullopt;
  }
  const char* const end = word.data() + word.size();
  const auto read = std::from_chars(word.data(), end, number.value);
  if (read.ec != std::errc() || read.ptr != end) {
    return std::nullopt;
  }
  if (word.find_first_not_of(kDigits) == std::string_view::npos) {
    number.digits = word.substr(std::min(word.find_first_not_of('0'), word.size()));
  }
  if (number.is_negative) {
    number.value = -number.value;
  }
  return number;
}

// Whole numbers are compared digit by digit unless they stand where reals do.
bool are_same_numbers(const Number& before, const Number& after, const Tolerances& tolerances,
                      bool are_reals) {
  if (!are_reals && before.digits && after.digits) {
    return before.digits == after.digits &&
           (before.is_negative == after.is_negative || before.digits->empty());
  }
  return is_same(before.value, after.value, tolerances);
}

bool is_same_word(std::string_view before, std::string_view after, const Tolerances& tolerances,
                  bool are_reals) {
  if (before == after) {
    return true;
  }
  const std::optional<Number> number = number_of(before);
  const std::optional<Number> other = number_of(after);
  return number && other && are_same_numbers(*number, *other, tolerances, are_reals);
}

bool have_same_words(std::string_view before, std::string_view after, const Tolerances& tolerances,
                     bool are_reals) {
  return std::ranges::equal(words_of(before), words_of(after),
                            [&](std::string_view a, std::string_view b) {
                              return is_same_word(a, b, tolerances, are_reals);
                            });
}

bool are_numbers(std::string_view text) {
  return std::ranges::all_of(words_of(text),
                             [](std::string_view word) { return number_of(word).has_value(); });
}

// What no field has of a text that is read whole: a number that is dropped, a note.
bool have_same_rest(std::string_view kinds, std::string_view before, std::string_view after,
                    const Tolerances& tolerances) {
  constexpr bool kAreReals = true;
  if (kinds.find('e') != std::string_view::npos) {
    return have_same_words(before.substr(0, before.find('=')), after.substr(0, after.find('=')), {},
                           !kAreReals);
  }
  if (kinds.find_first_of("onq") == std::string_view::npos) {
    return true;
  }
  return have_same_words(before, after, tolerances, kinds.find('f') != std::string_view::npos);
}

// Some sizes are served as texts and as numbers, the texts first: they are the same where the
// numbers are.
bool are_same_in_other_encoding(const ComparedValue& before, const ComparedValue& after,
                                const Tolerances& tolerances) {
  const TypedValue& typed = before.typed;
  const std::string old_text(before.text);
  const std::string new_text(after.text);
  return before.section != nullptr &&
         std::ranges::any_of(before.section->keys, [&](const qel::KeyInfo& row) {
           const int number = typed.number;
           return std::string_view(row.text) == typed.key->text &&
                  !fields_of_encoding(row.encoding->name).empty() &&
                  !unread_part(row, old_text, number) && !unread_part(row, new_text, number) &&
                  have_same_fields(
                      {&row, number, row.encoding->fields(old_text.c_str(), number), {}},
                      {&row, number, row.encoding->fields(new_text.c_str(), number), {}},
                      tolerances);
         });
}

}  // namespace

bool is_same(const ComparedValue& before, const ComparedValue& after,
             const Tolerances& tolerances) {
  constexpr std::string_view kNul("\0", 1);
  if (before.text == after.text) {
    return true;
  }
  if (before.text.find(kNul) != std::string_view::npos ||
      after.text.find(kNul) != std::string_view::npos) {
    return false;
  }
  constexpr bool kAreReals = true;
  const TypedValue& typed = before.typed;
  if (typed.key == nullptr || after.typed.key == nullptr) {
    return typed.key == after.typed.key && are_numbers(before.text) && are_numbers(after.text) &&
           have_same_words(before.text, after.text, tolerances, !kAreReals);
  }
  const std::string_view kinds = fields_of_encoding(typed.key->encoding->name);
  if (kinds.empty()) {
    return are_same_in_other_encoding(before, after, tolerances);
  }
  if (typed.key->encoding != after.typed.key->encoding ||
      !have_same_fields(typed, after.typed, tolerances)) {
    return false;
  }
  if (typed.unread || after.typed.unread) {
    return have_same_words(before.text, after.text, tolerances,
                           kinds.find('f') != std::string_view::npos);
  }
  return have_same_rest(kinds, before.text, after.text, tolerances);
}

}  // namespace qelpro
