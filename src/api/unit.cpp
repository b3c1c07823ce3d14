#include "api/forward.h"

// [Unit]

void CQELPROWriter_Manipulator::WriteUnitBlock() {
  // Every entry is written, whatever becomes of those before it.
  for (std::size_t number = 0; session_ != nullptr && number < CQELPROBlockIOUnit::kUnits;
       ++number) {
    qel::attempt([&] { return qel::is_done(session_->unit.WriteUnit(number)); });
  }
}
