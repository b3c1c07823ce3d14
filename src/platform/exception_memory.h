#pragma once

namespace qel::platform {

/// Makes sure that exceptions can be thrown on this thread. What the C++ library keeps of a thread
/// for them ends the program where there is no memory for it: it is asked for where some was there
/// a moment ago. False where there was none.
bool prepare_exception_memory();

}  // namespace qel::platform
