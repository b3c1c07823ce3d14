#pragma once

#include <string>

/// The module of Python that declares what a simulator's process has, with its types and what it
/// means.
std::string python_items();
