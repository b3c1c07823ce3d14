#pragma once

#include "blocks/encoding.h"
#include "blocks/key.h"

/// [Output]: when results are put out. The older object alone serves it.
namespace qel::output {

inline constexpr char kSection[] = "[Output]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"TimeStep",
                 {},
                 {},
                 "how many time steps lie between two outputs",
                 {.older = {"GetOutputTimeStep", "SetOutputTimeStep"}}},
    Key<Real>{"TimeFill",
              {},
              {},
              "the time of output in filling, in sec",
              {.older = {"GetOutputTimeFill", "SetOutputTimeFill"}}},
    Key<Real>{"TimePack",
              {},
              {},
              "the time of output in packing, in sec",
              {.older = {"GetOutputTimePack", "SetOutputTimePack"}}},
};

inline constexpr SectionInfo kInfo{kSection, nullptr, "when results are put out", kKeys};

}  // namespace qel::output
