#pragma once

#include <cstddef>
#include <utility>
#include <variant>

#include "text/line_scanner.h"

namespace qel {

/// Where a lookup keeps what it reads: the line that it finds is valid while this lives and nothing
/// else is begun in it.
class LookupRoom {
 public:
  static constexpr std::size_t kGlance = 4096;

  /// Room for `kGlance` bytes, which hold nothing yet.
  char* glance() { return kept_.emplace<Glance>().text; }

  /// A scanner made of the arguments.
  template <class... Arguments>
  LineScanner& scan(Arguments&&... arguments) {
    return kept_.emplace<LineScanner>(std::forward<Arguments>(arguments)...);
  }
  /// The one that was begun last.
  [[nodiscard]] LineScanner& lines() { return *std::get_if<LineScanner>(&kept_); }

  /// Whether the file could not be read on.
  [[nodiscard]] bool failed() const {
    const auto* const lines = std::get_if<LineScanner>(&kept_);
    return lines != nullptr && lines->failed();
  }

 private:
  struct Glance {
    // Nothing is written there before it is read; a default constructor would be asked for zeros.
    Glance() {}  // NOLINT(modernize-use-equals-default)
    char text[kGlance];
  };
  std::variant<Glance, LineScanner> kept_;
};

}  // namespace qel
