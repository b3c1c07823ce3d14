#include "core/scan_value.h"

#include <algorithm>

#include "text/text.h"

namespace qel {

std::optional<std::string_view> scan_value(platform::RandomAccess& file, std::string_view section,
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
  std::string_view rest = text::without_end_mark(contents);
  for (bool in_section = false; !rest.empty();) {
    std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    line = line.substr(0, line.find('\0'));
    if (!in_section) {
      in_section = line.find(section) != std::string_view::npos;
      continue;
    }
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos &&
        text::trim_end(line.substr(0, equals), kStripped) == key) {
      std::string_view value = text::trim_end(line.substr(equals + 1), kStripped);
      value.remove_prefix(std::min(value.find_first_not_of(' '), value.size()));
      return value;
    }
  }
  return std::nullopt;
}

}  // namespace qel
