#pragma once

#include <cstddef>

namespace qel::platform {

/// How much each thread has.
inline constexpr std::size_t kThreadMemory = std::size_t{12} * 1024;

/// The calling thread's memory, zero at first: the same for as long as the thread lives and the
/// library stays loaded. Null where there is none, which is a result here: what the compiler's
/// `thread_local` cannot have ends the program, where the library was loaded after the thread
/// began.
///
/// A thread that has it can throw exceptions, too: what the C++ library keeps of a thread for them
/// is the same kind of memory, and is asked for here, where there is some.
void* thread_memory() noexcept;

}  // namespace qel::platform
