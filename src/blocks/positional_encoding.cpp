#include "blocks/positional_encoding.h"

#include <string_view>

#include "blocks/words.h"
#include "text/thread_buffers.h"

namespace qel {

void PositionalHeader::scan(const char* text, int& first, char*& name, int& second) {
  NameBuffer& buffer = thread_buffers().boundary_condition;
  constexpr const char* kSeparators = " \t\n";
  fields::clear(first, second);
  const std::vector<std::string> words = split(text, kSeparators);
  if (words.size() < 4) {
    std::string word;
    fields::scan(text, first, word, second);
    name = buffer.keep(word);
    return;
  }
  fields::scan(words.front().c_str(), first);
  fields::scan(words.back().c_str(), second);
  std::string_view middle(text);
  middle.remove_prefix(middle.find_first_not_of(kSeparators));
  middle.remove_prefix(middle.find_first_of(kSeparators));
  middle.remove_prefix(middle.find_first_not_of(kSeparators));
  middle.remove_suffix(middle.size() - middle.find_last_not_of(kSeparators) - 1);
  middle.remove_suffix(middle.size() - middle.find_last_of(kSeparators));
  middle.remove_suffix(middle.size() - middle.find_last_not_of(kSeparators) - 1);
  name = buffer.keep(middle);
}

}  // namespace qel
