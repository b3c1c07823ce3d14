#pragma once

#include "blocks/block.h"

/// [GateCTL]: when each gate is open.
namespace qel::gate_ctl {

inline constexpr char kSection[] = "[GateCTL]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"AutoShutOffValveGateEOP",
                 {"GateCTL_ReadAutoShutOffValveGateEOP"},
                 {},
                 "1 where valve gates shut at the end of packing"},
    Key<Real>{"ST-%d",
              {"GateCTL_ReadStartTime"},
              {"GateCTL_WriteStartTime"},
              "the start time of a gate, when it opens, in sec",
              {.number = {"gate", "the gate"},
               .older = {"GetValveGateStartTime", "SetValveGateStartTime"},
               .adapter = {"SetGateCTL_Time"}}},
    Key<Real>{"ET-%d",
              {"GateCTL_ReadEndTime"},
              {"GateCTL_WriteEndTime"},
              "the end time of a gate, when it closes, in sec",
              {.number = {"gate", "the gate"},
               .older = {"GetValveGateEndTime", "SetValveGateEndTime"},
               .adapter = {"SetGateCTL_Time"}}},
};

inline constexpr SectionInfo kInfo{kSection, "GateCTL", "when each gate is open", kKeys};

}  // namespace qel::gate_ctl

using CQELPROBlockIOGateCTL = qel::SectionBlock<qel::gate_ctl::kInfo>;
