#include "platform/line_break.h"

namespace qel::platform {

const std::string_view kLineBreak = "\r\n";

}  // namespace qel::platform
