#include "json/json_input.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "system/failure.h"

namespace qelpro {
namespace {

// The parser takes no text that is no UTF-8, and no lone surrogate. A byte travels through it as
// this character and two digits, the character itself as the character and no digits.
constexpr std::string_view kMark = "\xF4\x8F\xBF\xBF";
constexpr std::string_view kMarkItself = "\xF4\x8F\xBF\xBF--";
constexpr int kHex = 16;

// What the four digits behind "\u" say.
std::optional<unsigned int> unit_of_escape(std::string_view text) {
  constexpr std::size_t kLength = 6;
  unsigned int unit = 0;
  if (text.size() < kLength || text.substr(0, 2) != "\\u") {
    return {};
  }
  const auto parsed = std::from_chars(text.data() + 2, text.data() + kLength, unit, kHex);
  return parsed.ptr == text.data() + kLength ? std::optional(unit) : std::nullopt;
}

bool is_high(std::optional<unsigned int> unit) { return unit && *unit >= 0xD800 && *unit < 0xDC00; }
bool is_low(std::optional<unsigned int> unit) { return unit && *unit >= 0xDC00 && *unit < 0xE000; }
bool is_byte(std::optional<unsigned int> unit) {
  return unit && *unit >= 0xDC80 && *unit <= 0xDCFF;
}

// The parser gives a number with the decimal point of the program's locale.
std::string with_point(std::string digits) {
  const std::size_t point = digits.find_first_not_of("+-0123456789eE");
  if (point != std::string::npos) {
    digits[point] = '.';
  }
  return digits;
}

std::string with_marks(std::string_view text) {
  constexpr std::size_t kEscape = 6;
  constexpr const char* kDigits = "0123456789abcdef";
  std::string marked;
  marked.reserve(text.size());
  while (!text.empty()) {
    const std::size_t plain = std::min(text.find_first_of("\\\xF4"), text.size());
    marked += text.substr(0, plain);
    text.remove_prefix(plain);
    const std::optional<unsigned int> unit = unit_of_escape(text);
    const std::optional<unsigned int> next =
        is_high(unit) ? unit_of_escape(text.substr(kEscape)) : std::nullopt;
    std::size_t taken = std::min<std::size_t>(text.size(), text.starts_with("\\") ? 2 : 1);
    if (text.starts_with(kMark)) {
      marked += kMarkItself;
      taken = kMark.size();
    } else if (is_low(next) && unit == 0xDBFFU && next == 0xDFFFU) {
      marked += kMarkItself;
      taken = 2 * kEscape;
    } else if (is_low(next)) {
      taken = 2 * kEscape;
      marked += text.substr(0, taken);
    } else if (is_byte(unit)) {
      marked += kMark;
      marked += {kDigits[(*unit & 0xF0U) >> 4U], kDigits[*unit & 0xFU]};
      taken = kEscape;
    } else {
      marked += text.substr(0, taken);
    }
    text.remove_prefix(taken);
  }
  return marked;
}

std::string without_marks(std::string_view text) {
  std::string plain;
  for (std::size_t mark = text.find(kMark); mark != std::string_view::npos;
       mark = text.find(kMark)) {
    plain += text.substr(0, mark);
    text.remove_prefix(mark);
    if (text.starts_with(kMarkItself)) {
      plain += kMark;
    } else {
      unsigned int byte = 0;
      const char* const digits = text.data() + kMark.size();
      std::from_chars(digits, digits + 2, byte, kHex);
      plain += static_cast<char>(byte);
    }
    text.remove_prefix(kMarkItself.size());
  }
  return plain.append(text);
}

/// Builds the value while the text is read.
class Builder : public nlohmann::json_sax<Json> {
 public:
  Builder(std::string name, std::string_view text) : file_(std::move(name)), text_(text) {}

  Json take() { return std::move(root_); }

  bool null() override { return put(nullptr); }
  bool boolean(bool value) override { return put(value); }
  bool number_integer(number_integer_t value) override { return put(value); }
  bool number_unsigned(number_unsigned_t value) override { return put(value); }
  bool number_float(number_float_t /*value*/, const string_t& text) override {
    return put(number_of_text(with_point(text)));
  }
  bool string(string_t& value) override { return put(without_marks(value)); }
  bool binary(binary_t& /*value*/) override { return false; }
  bool start_object(std::size_t /*count*/) override { return open(Json::object()); }
  bool start_array(std::size_t /*count*/) override { return open(Json::array()); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }
  bool key(string_t& name) override {
    std::string plain = without_marks(name);
    if (!open_.back().names.insert(plain).second) {
      throw Failure(kFileError,
                    at(file_, "an object has the name \"" + plain +
                                  "\" twice, and one of the two would be lost: leave one out"));
    }
    open_.back().name = std::move(plain);
    return true;
  }
  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const nlohmann::detail::exception& error) override {
    const std::string_view before = text_.substr(0, position);
    const auto line = static_cast<std::size_t>(std::ranges::count(before, '\n')) + 1;
    constexpr int kOverflow = 406;
    if (error.id == kOverflow) {
      throw Failure(kUsage, at(Where{file_, line, "", ""}, "a number is too large"));
    }
    const std::string what = error.what();
    const std::size_t words = what.find("column");
    throw Failure(kFileError, at(Where{file_, line, "", ""},
                                 "no JSON" + (words != std::string::npos
                                                  ? ": " + what.substr(what.find(": ", words) + 2)
                                                  : std::string(": ") + what)));
  }

 private:
  struct Open {
    Json value;
    std::string name;
    std::unordered_set<std::string> names;
  };

  bool open(Json value) {
    open_.push_back({std::move(value), {}, {}});
    return true;
  }
  bool put(Json value) {
    if (open_.empty()) {
      root_ = std::move(value);
    } else if (open_.back().value.is_array()) {
      open_.back().value.push_back(std::move(value));
    } else {
      append_member(open_.back().value, open_.back().name, std::move(value));
    }
    return true;
  }
  bool close() {
    Json value = std::move(open_.back().value);
    open_.pop_back();
    return put(std::move(value));
  }

  std::string file_;
  std::string_view text_;
  std::vector<Open> open_;
  Json root_;
};

}  // namespace

Json parse_json(const std::string& name, std::string_view text) {
  const std::string marked = with_marks(text);
  Builder builder(name, marked);
  Json::sax_parse(marked, &builder);
  return builder.take();
}

}  // namespace qelpro
