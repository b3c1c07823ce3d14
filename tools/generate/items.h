#pragma once

#include <string>

/// The header of the simulator's items with the region of their declarations renewed. Throws where
/// the header has no such region, or no row goes to an item.
std::string with_items(const std::string& header);
