#pragma once

#include <string>
#include <vector>

#include "blocks/key.h"

/// An item of the simulator: a value of the whole process, or of an inlet.
struct Item {
  std::string object;  ///< The class that has it.
  std::string parameter;
  qel::Kind kind;
  std::string name;
  qel::Destination destination;
};
const std::vector<Item>& process_items();
const std::vector<Item>& inlet_items();

/// The keys that go to the item, and what they hold. `section` is that of the first of them. Throws
/// where no row goes to it.
std::string keys_told(const Item& item, const qel::SectionInfo*& section);

/// The header of the simulator's items with the region of their declarations renewed. Throws where
/// the header has no such region, or no row goes to an item.
std::string with_items(const std::string& header);
