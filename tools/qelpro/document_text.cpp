#include "document_text.h"

#include <algorithm>
#include <fstream>
#include <sstream>

std::vector<TextLine> lines_of(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  std::vector<TextLine> lines;
  std::size_t at = text.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
    std::string_view line = text.substr(at, end - at);
    if (line.back() == '\n') {
      line.remove_suffix(1);
      if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
      }
    }
    lines.push_back({line, at, end});
    at = end;
  }
  return lines;
}

bool is_header(std::string_view line) {
  line = line.substr(0, line.find_last_not_of(" \t") + 1);
  return line.size() > 1 && line.front() == '[' && line.back() == ']';
}

std::string_view first_token(std::string_view line) { return line.substr(0, line.find_first_of(" \t=")); }

std::string contents_of(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream contents;
  contents << stream.rdbuf();
  return contents.str();
}
