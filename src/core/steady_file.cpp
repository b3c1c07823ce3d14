#include "core/steady_file.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace qel {

using platform::ReadEnd;

void SteadyFile::forget() {
  pages_.clear();
  fresh_.clear();
  has_copy_ = false;
}

void SteadyFile::drop_copy() {
  for (Page& page : pages_) {
    page.state = State::unknown;
  }
  fresh_.clear();
  has_copy_ = false;
}

// As long as there is a copy, the file was as still at some time as it has to be now.
bool SteadyFile::begins_read() {
  for (const std::int64_t number : fresh_) {
    pages_[static_cast<std::size_t>(number)].state = State::unknown;
  }
  fresh_.clear();
  met_new_ = met_other_ = is_locked_ = false;
  return has_copy_ || file_.begins_read();
}

ReadEnd SteadyFile::ends_read() {
  if (!met_new_ && !met_other_) {
    return ReadEnd::undisturbed;
  }
  const ReadEnd end = file_.ends_read();
  if (end != ReadEnd::undisturbed || met_other_ || !file_.lasts()) {
    drop_copy();
    return end;
  }
  for (const std::int64_t number : fresh_) {
    pages_[static_cast<std::size_t>(number)].state = State::known;
  }
  has_copy_ = has_copy_ || !fresh_.empty();
  fresh_.clear();
  return end;
}

void SteadyFile::lock_for_read() {
  drop_copy();
  is_locked_ = true;
  file_.lock_for_read();
}

bool SteadyFile::knows(std::int64_t offset, std::size_t count) const {
  const auto first = static_cast<std::size_t>(offset) / kPage;
  const std::size_t last = (static_cast<std::size_t>(offset) + count - 1) / kPage;
  for (std::size_t number = first; number <= last; ++number) {
    if (number >= pages_.size() || pages_[number].state != State::known) {
      return false;
    }
    if (pages_[number].size < kPage) {
      return true;  // the file ends there
    }
  }
  return true;
}

// Looks at bytes of pages that are all known.
std::int64_t SteadyFile::compared(std::int64_t offset, const char* bytes, std::int64_t got,
                                  std::size_t asked) {
  if (got < 0) {
    met_new_ = true;
    return got;
  }
  auto at = static_cast<std::size_t>(offset);
  auto left = static_cast<std::size_t>(got);
  for (;;) {
    const Page& page = pages_[at / kPage];
    const std::size_t within = at % kPage;
    const std::size_t count = std::min(asked, page.size - std::min(page.size, within));
    if (count > left || std::memcmp(bytes, page.bytes.get() + within, count) != 0) {
      met_other_ = true;
      return got;
    }
    bytes += count;
    at += count;
    left -= count;
    asked -= count;
    if (asked == 0 || page.size < kPage) {
      break;  // the file ends there
    }
  }
  met_other_ = met_other_ || left != 0;
  return got;
}

// Null where no copy can be kept, or this read has one already. A read does not need its copy.
SteadyFile::Page* SteadyFile::new_page(std::int64_t number) try {
  if (number >= kMostPages) {
    return nullptr;
  }
  const auto index = static_cast<std::size_t>(number);
  if (index >= pages_.size()) {
    pages_.resize(index + 1);
  }
  Page& page = pages_[index];
  if (page.state != State::unknown) {
    return nullptr;
  }
  if (page.bytes == nullptr) {
    page.bytes.reset(new char[kPage]);
  }
  fresh_.push_back(number);
  page.state = State::fresh;
  return &page;
} catch (const std::bad_alloc&) {
  return nullptr;
}

// Reads the whole pages that a few bytes stand in: the next ones asked for stand there, too.
std::int64_t SteadyFile::read_pages(std::int64_t offset, char* to, std::size_t count) {
  std::size_t done = 0;
  for (bool ends = false; !ends && done < count;) {
    const std::int64_t at = offset + static_cast<std::int64_t>(done);
    const auto within = static_cast<std::size_t>(at) % kPage;
    const std::size_t in_page = std::min(count - done, kPage - within);
    Page* const page = new_page(at / static_cast<std::int64_t>(kPage));
    std::int64_t got = 0;
    if (page == nullptr) {
      got = file_.read_at(at, to + done, in_page);
      if (knows(at, in_page)) {
        compared(at, to + done, got, in_page);
      }
    } else {
      const std::int64_t whole =
          file_.read_at(at - static_cast<std::int64_t>(within), page->bytes.get(), kPage);
      if (whole < 0) {
        page->state = State::unknown;
        fresh_.pop_back();
        return -1;
      }
      page->size = static_cast<std::size_t>(whole);
      const std::size_t there = std::min(in_page, page->size - std::min(page->size, within));
      std::memcpy(to + done, page->bytes.get() + within, there);
      got = static_cast<std::int64_t>(there);
    }
    if (got < 0) {
      return -1;
    }
    done += static_cast<std::size_t>(got);
    ends = static_cast<std::size_t>(got) < in_page;
  }
  return static_cast<std::int64_t>(done);
}

// A long read is one of many lines, which costs more than to ask about it.
std::int64_t SteadyFile::read_at(std::int64_t offset, char* to, std::size_t count) {
  if (count > 0 && count <= kPage && !is_locked_) {
    if (knows(offset, count)) {
      return compared(offset, to, file_.read_at(offset, to, count), count);
    }
    met_new_ = true;
    return read_pages(offset, to, count);
  }
  met_new_ = true;
  return file_.read_at(offset, to, count);
}

}  // namespace qel
