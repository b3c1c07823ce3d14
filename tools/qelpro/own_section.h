#pragma once

#include <string>

/// Stores an entry into its own section of a process file, whatever other sections hold.
///
/// The engine's store replaces a key of a later section where the key's own section lacks it. There the section alone is
/// handed to the engine, and its new text put back into the file; every other byte stays.
///
/// Empty when done, otherwise why not; the file is what it was then.
std::string store_in_own_section(const std::string& file, const std::string& section, const std::string& key, const std::string& value);
