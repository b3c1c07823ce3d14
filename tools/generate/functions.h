#pragma once

#include <string_view>

#include "blocks/destination.h"

/// The function that takes a value for such a destination in a load; empty where nothing does.
std::string_view function_of(const qel::Destination& destination);
