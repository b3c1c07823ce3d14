#pragma once

/// @file
/// What the shared library exports.

/// @def QELPROENGINE_API
/// Marks what the shared library exports; everything else in it is hidden. Whoever links the static
/// library defines QELPROENGINE_STATIC, as its CMake target and pkg-config do.
#if defined(QELPROENGINE_STATIC)
#define QELPROENGINE_API
#elif defined(_WIN32)
#if defined(QELPROENGINE_BUILDING)
// MinGW's g++ exports the type information of all classes that a file makes, unless it knows
// std::type_info before the first exported one.
#include <typeinfo>
#define QELPROENGINE_API __declspec(dllexport)
#else
#define QELPROENGINE_API __declspec(dllimport)
#endif
#else
#define QELPROENGINE_API __attribute__((visibility("default")))
#endif
