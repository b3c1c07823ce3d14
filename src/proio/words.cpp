#include "proio/words.h"

#include <algorithm>

namespace qel::proio {

Words::Words(std::string_view text) {
  constexpr std::string_view kSeparators = " \t\n";
  while (count_ < words_.size()) {
    text.remove_prefix(std::min(text.find_first_not_of(kSeparators), text.size()));
    if (text.empty()) {
      break;
    }
    const std::size_t length = std::min(text.find_first_of(kSeparators), text.size());
    words_[count_++] = text.substr(0, length);
    text.remove_prefix(length);
  }
}

std::string_view Words::stretch(std::size_t first, std::size_t last) const {
  const char* begin = words_[first].data();
  const char* end = words_[last].data() + words_[last].size();
  return {begin, static_cast<std::size_t>(end - begin)};
}

}  // namespace qel::proio
