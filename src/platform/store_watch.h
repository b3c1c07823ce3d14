#pragma once

#include <cstdint>

namespace qel::platform {

/// By what a file that somebody writes to differs from what it was.
struct FileStamp {
  std::int64_t size = -1;
  std::int64_t modified = 0;  ///< In nanoseconds, as `changed`.
  std::int64_t changed = 0;

  bool operator==(const FileStamp&) const = default;
};

/// How a read ended.
enum class ReadEnd {
  undisturbed,  ///< Nobody stored meanwhile.
  outdated,     ///< Somebody stored since an earlier read that this one relied on: look anew.
  disturbed,    ///< Somebody stored meanwhile.
};

/// Tells the reads of one open file whether a store ran beside them.
///
/// A store holds its lock from before it reads until it has written all, and its writes move the
/// file's stamp. So a read asks for the lock once when it begins, and looks at the stamp when it
/// has ended: a store that was under way is seen by the one, a later one by the other. As long as
/// the stamp stays the next read need not ask again.
///
/// A stamp that is younger than the clock it is taken from ticks may stay through a store (Linux
/// before 6.13, many network drives). Then a read asks for the lock at its end, too; what such a
/// read does not see is a store that begins and ends while it reads.
class StoreWatch {
 public:
  /// The file's stamp, from somebody who looked anyway. The lock has not been asked for since.
  void note(const FileStamp& stamp) {
    stamp_ = stamp;
    state_ = State::noted;
  }

  /// False while a store is under way.
  bool begins_read(std::intptr_t handle);
  /// Undisturbed, too, where a file system knows neither locks nor times.
  ReadEnd ends_read(std::intptr_t handle);
  /// Whether a read that finds the same bytes as an undisturbed one needs no proof: the file has
  /// one state as long as reads end undisturbed.
  [[nodiscard]] bool lasts() const { return state_ == State::quiet; }

  /// Keeps stores out for a read that met one. Where a store does not end it goes without.
  void lock(std::intptr_t handle);
  void unlock(std::intptr_t handle);

 private:
  enum class State {
    unknown,
    noted,  // the stamp is known
    asked,  // no store was under way since then; the stamp is young
    quiet,  // the same, and no later store leaves the stamp as it is
  };
  FileStamp stamp_;
  State state_ = State::unknown;
  bool relies_on_earlier_ = false;
  bool is_locked_ = false;
};

}  // namespace qel::platform
