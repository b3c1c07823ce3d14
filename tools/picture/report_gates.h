#pragma once

#include "picture/report_page.h"

namespace qelpro {

/// The gates of all files as timelines, from their start and end times in [GateCTL] and from the
/// control points of their valves.
void write_gate_timelines(ReportPage& page, const std::vector<SectionGroup>& times,
                          const std::vector<SectionGroup>& valves);

}  // namespace qelpro
