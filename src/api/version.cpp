#include "QELPROEngine/version.h"

int GetPRODLLVersion() { return 9103; }
