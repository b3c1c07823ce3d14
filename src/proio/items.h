#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "proio/scratch.h"

/// The items of a value, such as the two reals of a profile point.
namespace qel::proio {

/// An item that is one word of text, handed out in a buffer of its own.
struct Word {
  char*& text;
  Buffer& buffer;
};

/// An item that is one character, behind any white space.
struct Symbol {
  char& character;
};

/// Each takes the next item of a text and goes on behind it, as a scan format does; where the text
/// holds none, the item keeps its value.
bool scan_item(const char*& at, int& item);
bool scan_item(const char*& at, double& item);
bool scan_item(const char*& at, const Word& item);
bool scan_item(const char*& at, const Symbol& item);

/// Takes items until the text supplies no more.
template <class... Items>
void scan_items(const char* text, Items&&... items) {
  static_cast<void>((scan_item(text, items) && ...));
}

/// A text by itself is the whole value.
inline void scan_items(char* text, char*& item) { item = text; }

inline void clear_item(int& item) { item = 0; }
inline void clear_item(double& item) { item = 0; }
inline void clear_item(const Word& item) { item.text = nullptr; }

std::string print_item(int item);
std::string print_item(double item);
std::string print_item(const char* item);

/// The items, tabs between them.
template <class First, class... Rest>
std::string print_items(First first, Rest... rest) {
  std::string text = print_item(first);
  (text.append("\t").append(print_item(rest)), ...);
  return text;
}

template <class Item>
bool is_null(Item item) {
  if constexpr (std::is_pointer_v<Item>) {
    return item == nullptr;
  } else {
    return false;
  }
}

}  // namespace qel::proio
