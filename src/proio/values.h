#pragma once

#include <string_view>

#include "blocks/scan_and_print.h"
#include "proio/scratch.h"

/// The values of one text, such as the two reals of a profile point: fields, and what the object
/// hands out in buffers.
namespace qel::proio {

/// A value that is one word of text, handed out in a buffer of its own.
struct Word {
  char*& text;
  Buffer Scratch::*buffer;
};

inline bool scan_one(const char*& at, const Word& value) {
  std::string_view word;
  if (!platform::scan_word(at, word)) {
    return false;
  }
  value.text = (scratch().*value.buffer).keep(word);
  return true;
}

/// Takes values until the text supplies no more; the rest keep their values.
template <class... Values>
void scan_values(const char* text, Values&&... values) {
  fields::scan(text, values...);
}

/// A text by itself is the whole value.
inline void scan_values(char* text, char*& value) { value = text; }

template <class Value>
void clear_value(Value& value) {
  value = Value{};
}
inline void clear_value(Word& value) { value.text = nullptr; }

}  // namespace qel::proio
