#include "blocks/words.h"

#include <algorithm>

namespace qel {

std::string_view take_word(std::string_view& text, std::string_view separators) {
  text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
  const std::string_view word = text.substr(0, text.find_first_of(separators));
  text.remove_prefix(word.size());
  return word;
}

std::vector<std::string> split(std::string_view text, std::string_view separators) {
  std::vector<std::string> pieces;
  for (std::string_view word = take_word(text, separators); !word.empty();
       word = take_word(text, separators)) {
    pieces.emplace_back(word);
  }
  return pieces;
}

std::vector<std::string> pieces_of(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  for (;;) {
    const std::size_t end = std::min(text.find(separator), text.size());
    pieces.emplace_back(text.substr(0, end));
    if (end == text.size()) {
      return pieces;
    }
    text.remove_prefix(end + 1);
  }
}

std::string join(const std::vector<std::string>& words, std::string_view separator) {
  std::string text;
  for (const std::string& word : words) {
    if (!text.empty()) {
      text += separator;
    }
    text += word;
  }
  return text;
}

}  // namespace qel
