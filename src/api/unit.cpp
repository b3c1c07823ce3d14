#include "api/forward.h"

// [Unit]

void CQELPROWriter_Manipulator::WriteUnitBlock() {
  if (session_ != nullptr) {
    session_->unit.WriteUnits();
  }
}
