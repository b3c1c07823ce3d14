#pragma once

#include "QELPROEngine/export.h"

/// The library's version number, 9103.
QELPROENGINE_API int GetPRODLLVersion();
