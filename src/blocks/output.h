#pragma once

#include "blocks/encoding.h"
#include "blocks/key.h"

/// [Output]: when results are put out. The older object alone serves it.
namespace qel::output {

inline constexpr char kSection[] = "[Output]";

inline constexpr Key<Integer> kTimeStep{"TimeStep",
                                        {},
                                        {},
                                        "how many time steps lie between two outputs",
                                        {.older = {"GetOutputTimeStep", "SetOutputTimeStep"}}};
inline constexpr Key<Real> kTimeFill{"TimeFill",
                                     {},
                                     {},
                                     "the time of output in filling, in sec",
                                     {.older = {"GetOutputTimeFill", "SetOutputTimeFill"}}};
inline constexpr Key<Real> kTimePack{"TimePack",
                                     {},
                                     {},
                                     "the time of output in packing, in sec",
                                     {.older = {"GetOutputTimePack", "SetOutputTimePack"}}};

inline constexpr const KeyInfo* kKeys[] = {&kTimeStep, &kTimeFill, &kTimePack};

inline constexpr SectionInfo kInfo{kSection, nullptr, "when results are put out", kKeys};

}  // namespace qel::output
