#include "study/ranges.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "system/failure.h"

namespace qelpro {
namespace {

[[noreturn]] void refuse(std::string_view text, const std::string& what) {
  throw Failure(kUsage, "\"" + std::string(text) + "\": " + what);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) {
      return parts;
    }
    text.remove_prefix(end + 1);
  }
}

std::string_view without_blanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string_view::npos
             ? std::string_view()
             : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool looks_like_a_number(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789+-.eE") == std::string_view::npos &&
         text.find_first_of("0123456789") != std::string_view::npos;
}

std::uint64_t magnitude(std::int64_t number) {
  return number < 0 ? ~static_cast<std::uint64_t>(number) + 1 : static_cast<std::uint64_t>(number);
}

// part * width / parts, which may not fit on the way.
std::uint64_t share(std::uint64_t part, std::uint64_t width, std::uint64_t parts) {
  return part * (width / parts) + part * (width % parts) / parts;
}

}  // namespace

Range::Range(std::string_view text) {
  if (text.empty()) {
    refuse(text, "the values are missing: V1,V2,V3 or FROM:TO:STEP");
  }
  if (read_numbers(text)) {
    return;
  }
  for (const std::string_view part : split(text, ',')) {
    values_.emplace_back(without_blanks(part));
    if (values_.back().empty()) {
      refuse(text, "a value is missing beside a comma");
    }
  }
  count_ = values_.size();
}

Range::Range(std::vector<std::string> values) : count_(values.size()), values_(std::move(values)) {
  if (values_.empty()) {
    throw Failure(kUsage, "the values are missing");
  }
}

bool Range::read_numbers(std::string_view text) {
  const std::vector<std::string_view> parts = split(text, ':');
  if (parts.size() < 2 || parts.size() > 3 || !std::ranges::all_of(parts, looks_like_a_number)) {
    return false;
  }
  std::vector<Decimal> numbers;
  for (const std::string_view part : parts) {
    const std::optional<Decimal> number = decimal_of(part);
    if (!number) {
      refuse(text, "\"" + std::string(part) + "\" is no number that can be calculated with");
    }
    numbers.push_back(*number);
  }
  exponent_ = std::ranges::min(numbers, {}, &Decimal::exponent).exponent;
  const auto from = digits_at(numbers[0], exponent_);
  const auto to = digits_at(numbers[1], exponent_);
  const auto step = parts.size() == 3 ? digits_at(numbers[2], exponent_) : 0;
  if (!from || !to || !step) {
    refuse(text, "its numbers together have more digits than can be calculated with");
  }
  from_ = *from;
  to_ = *to;
  step_ = *step;
  is_continuous_ = parts.size() == 2;
  if (is_continuous_) {
    if (from_ == to_) {
      refuse(text, "a range that begins where it ends; give the one value alone");
    }
    return true;
  }
  if (step_ == 0 || (from_ < to_ && step_ < 0) || (from_ > to_ && step_ > 0)) {
    refuse(text, "the step does not lead from the first value to the last");
  }
  const std::uint64_t width = magnitude(to_ - from_);
  const std::uint64_t size = magnitude(step_);
  count_ = width / size + 1;
  // A step that was rounded ends beside the last value; that one is meant.
  constexpr std::uint64_t kRounding = 1'000'000'000;
  if (size - width % size <= size / kRounding) {
    ++count_;
  }
  return true;
}

std::string Range::value(std::uint64_t index) const {
  if (!values_.empty()) {
    return values_[index];
  }
  const std::uint64_t size = magnitude(step_);
  const std::uint64_t width = magnitude(to_ - from_);
  const std::uint64_t way = index * size;
  const std::uint64_t missing = way > width ? way - width : width - way;
  constexpr std::uint64_t kRounding = 1'000'000'000;
  if (index + 1 == count_ && missing <= size / kRounding) {
    return text_of(Decimal{to_, exponent_});
  }
  const auto signed_way = static_cast<std::int64_t>(way);
  return text_of(Decimal{step_ < 0 ? from_ - signed_way : from_ + signed_way, exponent_});
}

std::string Range::draw(std::uint64_t part, std::uint64_t parts, Generator& generator) const {
  if (!is_continuous_) {
    return value(share(part, count_, parts));
  }
  constexpr std::uint64_t kFinest = 10'000;
  std::int64_t from = from_;
  std::uint64_t width = magnitude(to_ - from_);
  int exponent = exponent_;
  while (width / parts < kFinest) {
    const auto finer_from = digits_at(Decimal{from, exponent}, exponent - 1);
    if (!finer_from || width > INT64_MAX / 40) {
      throw Failure(kUsage, "the range " + text_of(Decimal{from_, exponent_}) + ":" +
                                text_of(Decimal{to_, exponent_}) +
                                " is too narrow for so many values");
    }
    from = *finer_from;
    width *= 10;
    --exponent;
  }
  const std::uint64_t first = share(part, width, parts);
  const std::uint64_t drawn = first + generator.below(share(part + 1, width, parts) - first);
  const auto way = static_cast<std::int64_t>(drawn);
  return text_of(Decimal{to_ < from_ ? from - way : from + way, exponent});
}

}  // namespace qelpro
