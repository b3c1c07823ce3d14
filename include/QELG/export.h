#pragma once

/// @file
/// What the shared library exports.

/// @def QELG_API
/// Marks what the shared library exports; everything else in it is hidden. Whoever links the static
/// library defines QELG_STATIC, as its CMake target and pkg-config do.
#if defined(QELG_STATIC)
#define QELG_API
#elif defined(_WIN32)
#if defined(QELG_BUILDING)
#define QELG_API __declspec(dllexport)
#else
#define QELG_API __declspec(dllimport)
#endif
#else
#define QELG_API __attribute__((visibility("default")))
#endif
