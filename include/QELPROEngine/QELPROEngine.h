#pragma once

/// @file
/// Everything that the library exports.

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "QELPROEngine/CQELMachineIdentification.h"
#include "QELPROEngine/CQELPCSInterpolator.h"
#include "QELPROEngine/CQELPRORSVReader_Manipulator.h"
#include "QELPROEngine/CQELPRORSVWriter_Manipulator.h"
#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "QELPROEngine/CQELPROWriter_Manipulator.h"
#include "QELPROEngine/CQELProcessData_Manipulator.h"
#include "QELPROEngine/CQELProcessValueReader.h"
#include "QELPROEngine/CQEL_ProcessAdapter.h"
#include "QELPROEngine/QELPRO_MMM_MECHANICAL.h"
#include "QELPROEngine/version.h"
