#pragma once

/// Marks what the shared library exports; everything else in it is hidden. Whoever links the static
/// library defines QELPROENGINE_STATIC, as its CMake target and pkg-config do.
#if defined(QELPROENGINE_STATIC)
#define QELPROENGINE_API
#elif defined(_WIN32)
#if defined(QELPROENGINE_BUILDING)
#define QELPROENGINE_API __declspec(dllexport)
#else
#define QELPROENGINE_API __declspec(dllimport)
#endif
#else
#define QELPROENGINE_API __attribute__((visibility("default")))
#endif
