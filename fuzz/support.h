#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace qelpro_fuzz {

/// A file of the process's own, which holds the bytes of one input after the other. Made in
/// $TMPDIR; best on a memory disk.
const char* file_with(std::string_view contents);
std::string bytes_of_file();

inline std::string_view text_of(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Ends the run with a message, so that the input is kept.
[[noreturn]] void fail(const std::string& message);
[[noreturn]] void fail(std::initializer_list<std::string_view> parts);

}  // namespace qelpro_fuzz
