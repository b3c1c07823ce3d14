#pragma once

#include <string>
#include <string_view>

/// The answer of a command, on its way to standard output.
///
/// Pipes and files get the bytes as they are; a terminal gets control characters as visible
/// escapes. What cannot be written is a `Failure`, except that a reader who has gone ends the
/// program quietly.
class Output {
 public:
  Output();
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() = default;

  Output& operator<<(std::string_view text);
  Output& operator<<(char character) { return *this << std::string_view(&character, 1); }

  /// Only after this is it known that everything was written.
  void finish();

 private:
  void flush();

  bool to_terminal_;
  std::string pending_;
};

Output& answer();
