#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qelpro {

/// Many files of a folder that do not exist yet. Each is made whole or not at all, as by `NewFile`;
/// to wait for the disk once for all of them is what makes it fast.
class NewFiles {
 public:
  explicit NewFiles(std::string folder);
  NewFiles(const NewFiles&) = delete;
  NewFiles& operator=(const NewFiles&) = delete;
  /// What was not published is gone.
  ~NewFiles();

  /// How many may be held at once while so many threads do the same.
  static std::size_t most_at_once(std::size_t threads);

  void add(const std::string& name, std::string_view contents);
  /// Gives the files their names. One of that name that is there is left alone, and a `Failure`.
  void publish();

 private:
  struct Held;
  std::string folder_;
  std::unique_ptr<Held> held_;
};

}  // namespace qelpro
