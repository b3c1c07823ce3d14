#pragma once

#include "proio/scratch.h"

namespace qel::proio {

/// The header of a numbered section by its kind in `CPROIO_Manipulator::BLOCK`, "[Flow-2]"; empty
/// for a kind that there is not.
char* block_name(int number, int kind, Buffer& to);

/// A numbered key by its kind in `CPROIO_Manipulator::KEY`, "FR-3"; empty for a kind that there is
/// not.
char* key_name(int number, int kind, Buffer& to);

}  // namespace qel::proio
