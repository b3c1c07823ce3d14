#include "lines.h"

#include <algorithm>

std::string wrapped(const std::string& text, const std::string& start) {
  std::string result;
  std::string line = start;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    const std::string word = text.substr(at, end - at);
    if (line.size() + 1 + word.size() > kColumns) {
      result += line + "\n";
      line = start;
    }
    line += " " + word;
    at = end + 1;
  }
  return result + line + "\n";
}
