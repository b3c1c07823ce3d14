#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/read_access.h"

namespace qel {

/// A reading session's file. Every read reads the file; bytes that are those of an earlier read
/// which no store disturbed are as good as that one's, and ask the system nothing more. So it keeps
/// a copy of what was read, of one state of the file: where anything is new, the whole read is
/// looked at as `read_steadily` says, and where the file has changed, the copy goes.
class SteadyFile final : public platform::ReadAccess {
 public:
  explicit SteadyFile(platform::ReadAccess& file) : file_(file) {}

  /// Another file is read from now on.
  void forget();

  std::int64_t size() override { return file_.size(); }
  std::int64_t read_at(std::int64_t offset, char* to, std::size_t count) override;

  bool begins_read() override;
  platform::ReadEnd ends_read() override;
  void lock_for_read() override;
  void unlock_after_read() override { file_.unlock_after_read(); }

 private:
  static constexpr std::size_t kPage = 4096;
  static constexpr std::int64_t kMostPages = 1024;  // what stands behind them is always new

  enum class State : char {
    unknown,
    fresh,  // of the read that is under way
    known,
  };
  struct Page {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;  // less than a page's where the file ends in it
    State state = State::unknown;
  };

  [[nodiscard]] bool knows(std::int64_t offset, std::size_t count) const;
  std::int64_t compared(std::int64_t offset, const char* bytes, std::int64_t got,
                        std::size_t asked);
  Page* new_page(std::int64_t number);
  std::int64_t read_pages(std::int64_t offset, char* to, std::size_t count);
  void drop_copy();

  platform::ReadAccess& file_;
  std::vector<Page> pages_;
  std::vector<std::int64_t> fresh_;  // the numbers of such pages
  bool has_copy_ = false;            // of some page
  bool is_locked_ = false;
  bool met_new_ = false;    // bytes of which there is no copy
  bool met_other_ = false;  // bytes that are not those of the copy
};

}  // namespace qel
