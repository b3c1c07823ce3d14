#include "core/scan_value.h"

#include "text/line_scanner.h"
#include "text/text.h"

namespace qel {

std::optional<std::string_view> scan_value(platform::ReadAccess& file, std::string_view section,
                                           std::string_view key, std::string& contents) {
  constexpr std::string_view kStripped = " \t\f\v\n\r";
  const std::int64_t size = file.size_in_memory();
  if (size < 0) {
    return std::nullopt;
  }
  contents.resize(static_cast<std::size_t>(size));
  if (file.read_at(0, contents.data(), contents.size()) != size || section.empty() || key.empty()) {
    return std::nullopt;
  }
  const bool may_hold_nul = contents.find('\0') != std::string::npos;
  LineScanner lines(contents, 0, may_hold_nul, {.longest_line = text::kAnyLength});
  bool in_section = false;
  for (Line line; lines.next(line);) {
    if (!in_section) {
      in_section = line.text.find(section) != std::string_view::npos;
      continue;
    }
    const std::size_t equals = line.text.find('=');
    if (equals != std::string_view::npos &&
        text::trim_end(line.text.substr(0, equals), kStripped) == key) {
      return text::trim_end(text::untrimmed_value(line.text), kStripped);
    }
  }
  return std::nullopt;
}

}  // namespace qel
