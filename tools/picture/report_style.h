#pragma once

#include <string_view>

namespace qelpro {

/// How a report looks: on wide and on narrow screens, in light and dark (with the colours of the
/// pictures), and on paper.
std::string_view report_style();

}  // namespace qelpro
