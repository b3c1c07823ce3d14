#pragma once

/// What the program without C++ calls of the plug-in.
#pragma GCC visibility push(default)
extern "C" {
/// Makes objects over a process file, on the thread that loads the library; 1 when that was done.
int prepare_members(char* path);
/// Lets them go.
void drop_members();
/// How many kinds of first use there are.
int kinds_of_use();
/// What a kind is.
const char* name_of_use(int kind);
/// 1 when the member did what it should, 0 when it said that it could not, -1 when it did
/// something else.
int use_members(int kind);
}
#pragma GCC visibility pop
