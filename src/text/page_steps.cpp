#include "text/page_steps.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "text/page_layout.h"

namespace qel {
namespace {

constexpr std::size_t kMostWays = 8;

// A larger file than any simulation has is not held in memory three times.
constexpr std::size_t kMostMoved = std::size_t{1} << 20U;

std::size_t page_of(std::size_t offset) { return offset / kPageSize; }

// Lines that change, on the way from the old ones to the new ones: with empty lines behind them,
// what follows moves less far.
std::string with_empty_lines(std::string_view lines, std::size_t count) {
  std::string text(lines);
  return text.append(count, '\n');
}

std::size_t pages_of(std::string_view text) { return (text.size() + kPageSize - 1) / kPageSize; }

// The text with a line of blanks behind it, up to a size. The text in between, whose pages end in
// the middle of a line, never is the end of the file then: a file that does not end in a line break
// has no next one.
std::string with_room(std::string_view now, std::size_t size) {
  std::string text(now);
  text.resize(size, ' ');
  text.back() = '\n';
  return text;
}

class Steps {
 public:
  explicit Steps(const LineChange& change)
      : change_(change), at_(page_of(change.begin) * kPageSize), old_end_(change.end) {}

  // False where there is no way.
  bool go() {
    const std::size_t old_size = change_.end - change_.begin;
    const std::size_t new_size = change_.lines.size();
    left_ = std::max(old_size, new_size) - std::min(old_size, new_size);
    std::size_t way = left_;
    for (std::size_t ways = 0; ways < kMostWays;) {
      const std::string lines = lines_after(way);
      std::string text = contents_with(lines);
      const std::size_t begin = change_.begin - at_;
      const auto shift = static_cast<std::ptrdiff_t>(way);
      const PageLayout layout({change_.contents.substr(0, at_), text, begin, begin + lines.size(),
                               grows() ? shift : -shift, old_end_ > change_.begin});
      if (layout.nearer()) {
        if (*layout.nearer() >= way) {
          return false;
        }
        way = *layout.nearer();
        continue;
      }
      std::optional<std::string> between = layout.text();
      if (!between) {
        return false;
      }
      if (std::string_view now = now_there();
          pages_of(text) > pages_of(now) && !layout.ends_in_positions()) {
        texts_.push_back(with_room(now, text.size()));
      }
      texts_.push_back(*std::move(between));
      texts_.push_back(std::move(text));
      old_end_ = change_.begin + lines.size();
      left_ -= way;
      if (left_ == 0) {
        return true;
      }
      ++ways;
      way = left_;
    }
    return false;
  }

  [[nodiscard]] PageSteps result() && {
    return {at_, std::move(texts_), change_.lines.size() != change_.end - change_.begin};
  }

 private:
  [[nodiscard]] bool grows() const { return change_.lines.size() > change_.end - change_.begin; }

  // What stands there when the next text goes over it.
  [[nodiscard]] std::string_view now_there() const {
    return texts_.empty() ? change_.contents.substr(at_) : std::string_view(texts_.back());
  }

  // The lines that change, when those behind them have gone so much of the way that is left.
  [[nodiscard]] std::string lines_after(std::size_t way) const {
    if (!grows() || way == left_) {
      return with_empty_lines(change_.lines, left_ - way);
    }
    const std::string_view now =
        change_.contents.substr(change_.begin, change_.end - change_.begin);
    return with_empty_lines(now, old_end_ - change_.end + way);
  }

  // Up to the end of the page in which the change ends, where nothing moves.
  [[nodiscard]] std::string contents_with(std::string_view lines) const {
    const std::size_t old_size = change_.contents.size() - at_;
    const bool moves = change_.lines.size() != change_.end - change_.begin;
    const std::size_t end =
        moves ? change_.contents.size()
              : std::min((page_of(change_.end - 1) + 1) * kPageSize, change_.contents.size());
    std::string text;
    text.reserve(old_size + lines.size());
    text.append(change_.contents, at_, change_.begin - at_)
        .append(lines)
        .append(change_.contents, change_.end, end - change_.end);
    if (moves && text.size() < old_size) {
      text.append(old_size - text.size(), ' ');
    }
    return text;
  }

  const LineChange& change_;
  std::size_t at_;
  std::size_t old_end_;  // of the lines that change, as the last text has them
  std::size_t left_ = 0;
  std::vector<std::string> texts_;
};

bool is_whole(std::string_view lines) { return lines.empty() || lines.back() == '\n'; }

// Whether all that changes stands in one page.
bool fits_a_page(const LineChange& change) {
  const std::string_view old = change.contents.substr(change.begin, change.end - change.begin);
  const auto [first, unused] =
      std::mismatch(old.begin(), old.end(), change.lines.begin(), change.lines.end());
  const std::size_t begin = change.begin + static_cast<std::size_t>(first - old.begin());
  if (old.size() != change.lines.size()) {
    const std::size_t size = change.contents.size() - old.size() + change.lines.size();
    return page_of(begin) == page_of(std::max(size, change.contents.size()) - 1);
  }
  const auto last = std::mismatch(old.rbegin(), old.rend(), change.lines.rbegin()).first;
  const std::size_t end = change.begin + static_cast<std::size_t>(old.rend() - last);
  return end <= begin || page_of(begin) == page_of(end - 1);
}

}  // namespace

PageSteps page_steps(const LineChange& change) {
  if (fits_a_page(change) || change.contents.size() - change.begin > kMostMoved ||
      !is_whole(change.contents) || !is_whole(change.lines)) {
    return {};
  }
  Steps steps(change);
  return steps.go() ? std::move(steps).result() : PageSteps{};
}

}  // namespace qel
