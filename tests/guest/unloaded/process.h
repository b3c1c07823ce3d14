#pragma once

#include <cstddef>
#include <string>

/// What the host asks of the operating system.
namespace unloaded {

using UseEachClass = int (*)(const char* folder);

/// A plug-in, loaded while this lives.
class Plugin {
 public:
  explicit Plugin(const std::string& path);
  Plugin(const Plugin&) = delete;
  Plugin& operator=(const Plugin&) = delete;
  ~Plugin();

  [[nodiscard]] UseEachClass use() const { return use_; }

 private:
  void* handle_;
  UseEachClass use_;
};

/// Runs it on a thread with as little stack as hosts give: 32 KB, or the least that the system has.
bool on_small_stack(UseEachClass use, const char* folder);

struct Held {
  std::size_t memory = 0;  ///< In bytes: what the process has for itself.
  std::size_t files = 0;   ///< Open descriptors, or handles.
  std::size_t keys = 0;    ///< Of thread-local data that are still to be had.
};
Held held_now();

/// What a cycle may leave behind, in bytes: of the platform's, not of the libraries.
extern const double kStaysBehind;

bool is_engine_loaded();

}  // namespace unloaded
