#include "proio/words.h"

#include "blocks/words.h"

namespace qel::proio {

Words::Words(std::string_view text) {
  constexpr std::string_view kSeparators = " \t\n";
  for (std::string_view word = take_word(text, kSeparators);
       !word.empty() && count_ < words_.size(); word = take_word(text, kSeparators)) {
    words_[count_++] = word;
  }
}

std::string_view Words::stretch(std::size_t first, std::size_t last) const {
  const char* begin = words_[first].data();
  const char* end = words_[last].data() + words_[last].size();
  return {begin, static_cast<std::size_t>(end - begin)};
}

}  // namespace qel::proio
