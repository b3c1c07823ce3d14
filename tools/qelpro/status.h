#pragma once

#include <string>

/// The exit statuses of the tool.
enum Status : int { kDone = 0, kNotFound = 1, kUsage = 2, kFileError = 3 };

/// Writes "qelpro: message" to stderr and gives the status back.
int fail(Status status, const std::string& message);

/// Where an entry is, for a message: file, section and key.
std::string place(const std::string& file, const std::string& section, const std::string& key);

/// The section's name with its brackets, which may be left out on the command line.
std::string with_brackets(const std::string& section);

/// Why a file cannot be used, in the operating system's words; empty when it is a regular file that can be read.
std::string why_unreadable(const std::string& file);
