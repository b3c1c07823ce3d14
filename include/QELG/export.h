#pragma once

/// Marks what the shared library exports; everything else in it is hidden.
#if defined(_WIN32)
#if defined(QELG_BUILDING)
#define QELG_API __declspec(dllexport)
#else
#define QELG_API __declspec(dllimport)
#endif
#else
#define QELG_API __attribute__((visibility("default")))
#endif
