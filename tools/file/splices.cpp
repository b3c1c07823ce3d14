#include "file/splices.h"

#include <algorithm>

#include "text/text.h"

namespace qelpro {

namespace text = qel::text;

std::size_t end_of_lines(const SectionedText& document) {
  if (document.line_count() == 0) {
    return document.contents().find_last_not_of(text::kPadding) + 1;
  }
  const TextLine last = document.line(document.line_count() - 1);
  const bool has_line_break = document.contents()[last.end - 1] == '\n';
  return has_line_break ? last.end : last.begin + last.whole.find_last_not_of(text::kPadding) + 1;
}

Splices::Splices(const std::string& contents) : contents_(contents) {
  const std::size_t first = contents.find('\n');
  const bool has_return = first != std::string::npos && first > 0 && contents[first - 1] == '\r';
  line_break_ = has_return ? "\r\n" : "\n";
}

std::string Splices::apply() {
  std::ranges::stable_sort(splices_, {}, &Splice::begin);
  std::string result;
  std::size_t from = 0;
  for (const Splice& splice : splices_) {
    result.append(contents_, from, splice.begin - from);
    const bool begins_line =
        result.empty() || result.back() == '\n' || result == text::kByteOrderMark;
    result += (splice.is_lines && !begins_line ? line_break_ : "") + splice.text;
    from = splice.end;
  }
  return result.append(contents_, from);
}

}  // namespace qelpro
