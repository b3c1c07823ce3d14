#pragma once

#include <string>

/// The text of a process file with that many inlets, each with its filling, packing and curing
/// stage and profiles of ten points: about 3 KB an inlet.
std::string generated_file(int inlets);

inline constexpr int kProfilePoints = 10;
