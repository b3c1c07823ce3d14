#pragma once

#include <string_view>
#include <type_traits>

#include "blocks/scan_and_print.h"
#include "proio/scratch.h"

/// The items of a value, such as the two reals of a profile point: fields, and what the object
/// hands out in buffers.
namespace qel::proio {

/// An item that is one word of text, handed out in a buffer of its own.
struct Word {
  char*& text;
  Buffer& buffer;
};

inline bool scan_one(const char*& at, const Word& item) {
  std::string_view word;
  if (!platform::scan_word(at, word)) {
    return false;
  }
  item.text = item.buffer.assign(word).text();
  return true;
}

/// Takes items until the text supplies no more; the rest keep their values.
template <class... Items>
void scan_items(const char* text, Items&&... items) {
  fields::scan(text, items...);
}

/// A text by itself is the whole value.
inline void scan_items(char* text, char*& item) { item = text; }

template <class Item>
void clear_item(Item& item) {
  item = Item{};
}
inline void clear_item(Word& item) { item.text = nullptr; }

template <class Item>
bool is_null(Item item) {
  if constexpr (std::is_pointer_v<Item>) {
    return item == nullptr;
  } else {
    return false;
  }
}

}  // namespace qel::proio
