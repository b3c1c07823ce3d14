#pragma once

#include <cstdio>

/// The standard streams of the tool.
namespace qelpro {

/// To be called first. A stream that the caller closed gets a place of its own where nothing can be
/// written or read, so that no file that is opened later is taken for it; and a limit on the sizes
/// of files becomes an error of the write instead of a signal.
void prepare_streams();

bool is_terminal(std::FILE* stream);
/// How many columns the terminal has; 0 where the stream is none, or nobody knows.
int terminal_columns(std::FILE* stream);

/// Ends the program as one whose reader has gone: without a message.
[[noreturn]] void end_without_reader();

}  // namespace qelpro
