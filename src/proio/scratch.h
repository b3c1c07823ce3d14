#pragma once

#include "text/thread_buffers.h"

namespace qel::proio {

/// A text of at most 127 characters; what does not fit is cut.
using Buffer = ShortBuffer;

/// The buffers that text results point into, shared by all objects of a thread.
using Scratch = decltype(ThreadBuffers::older);

/// Throws std::bad_alloc where the thread has no memory.
inline Scratch& scratch() { return thread_buffers().older; }

}  // namespace qel::proio
