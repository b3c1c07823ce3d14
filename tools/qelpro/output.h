#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "system/sink.h"

namespace qelpro {

/// The answer of a command, on its way to standard output.
///
/// Pipes and files get the bytes as they are; a terminal gets control characters as visible
/// escapes. What cannot be written is a `Failure`, except that a reader who has gone ends the
/// program quietly.
class Output : public Sink {
 public:
  Output();
  void put(std::string_view text) override;
  /// The same, but for what a terminal is to obey.
  void put_escape(std::string_view escape);

  /// Only after this is it known that everything was written.
  void finish();

 private:
  void flush();
  void settle();

  bool to_terminal_;
  std::string pending_;  // as it was put
  std::string settled_;  // as it is to be written, before what is pending
};

Output& answer();

/// Puts an answer into the file that the user names, whole or not at all, or to standard output
/// where there is none or it is "-". A `Failure` of usage where it is one of the files that were
/// read: those are somebody's work.
void write_answer(const std::optional<std::string>& file, const std::vector<std::string>& read,
                  const std::function<void(Sink&)>& write);

}  // namespace qelpro
