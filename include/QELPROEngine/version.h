#pragma once

/// @file
/// The version of the library that a program runs with.

#include "QELPROEngine/export.h"

/// The library's version number, 9103.
QELPROENGINE_API int GetPRODLLVersion();
