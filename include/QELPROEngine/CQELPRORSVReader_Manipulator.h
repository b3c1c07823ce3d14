#pragma once

#include "QELPROEngine/export.h"

/// Set aside for a later reader; it does nothing.
class QELPROENGINE_API CQELPRORSVReader_Manipulator {
 public:
  CQELPRORSVReader_Manipulator();
  /// Does nothing.
  CQELPRORSVReader_Manipulator(const CQELPRORSVReader_Manipulator& other);
  /// Does nothing.
  CQELPRORSVReader_Manipulator& operator=(const CQELPRORSVReader_Manipulator& other);
  virtual ~CQELPRORSVReader_Manipulator();
};
