#pragma once

#include <cstdint>

/// What keeps the stores of several programs into one file apart: a lock between processes, and
/// between handles of one, over a byte that no file reaches. Readers do not ask for it.
namespace qel::platform {

enum class LockAnswer {
  held,
  none,  ///< No locks there, or not for this handle: the store goes without.
  busy,  ///< Somebody else has held it for all the time that a store waits: some seconds.
};

/// Of the operating system's handle of an open file. A host that has locked the file itself counts
/// as nobody else.
LockAnswer lock_for_store(std::intptr_t handle);

void unlock_after_store(std::intptr_t handle);

/// Whether closing the file is all that it takes to give its lock back.
bool is_unlocked_by_closing();

}  // namespace qel::platform
