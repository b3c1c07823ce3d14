#pragma once

#include "blocks/flow_x.h"

/// [Flow-%ld-Skin2nd]
namespace qel::co_injection_flow_x {

inline constexpr char kSection[] = "[Flow-%ld-Skin2nd]";

}  // namespace qel::co_injection_flow_x

class CQELPROBlockIOCoInjectionFlowX : public CQELPROBlockIOFlowX {
 public:
  CQELPROBlockIOCoInjectionFlowX() { SetSectionName(qel::co_injection_flow_x::kSection); }
};
