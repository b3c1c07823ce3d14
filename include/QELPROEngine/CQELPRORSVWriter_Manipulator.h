#pragma once

#include "QELPROEngine/export.h"

/// Set aside for a later writer; it does nothing.
class QELPROENGINE_API CQELPRORSVWriter_Manipulator {
 public:
  CQELPRORSVWriter_Manipulator();
  /// Does nothing.
  CQELPRORSVWriter_Manipulator(const CQELPRORSVWriter_Manipulator& other);
  /// Does nothing.
  CQELPRORSVWriter_Manipulator& operator=(const CQELPRORSVWriter_Manipulator& other);
  virtual ~CQELPRORSVWriter_Manipulator();
};
