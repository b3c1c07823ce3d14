#pragma once

/// Marks what the shared library exports; everything else in it is hidden.
#if defined(_WIN32)
#if defined(QELPROENGINE_BUILDING)
#define QELPROENGINE_API __declspec(dllexport)
#else
#define QELPROENGINE_API __declspec(dllimport)
#endif
#else
#define QELPROENGINE_API __attribute__((visibility("default")))
#endif
