#include "core/document.h"

#include <string_view>
#include <utility>

#include "core/scan_value.h"
#include "platform/steady_read.h"
#include "text/text.h"

using qel::Entry;
using qel::Line;
using qel::LineScanner;
using qel::LookupRoom;
using qel::Result;
using qel::Store;
using qel::Target;
using qel::ValueBuffer;
using qel::platform::OsFile;
using qel::platform::RandomAccess;
using qel::platform::read_steadily;
using qel::platform::ReadAccess;

namespace {

Result deliver(bool failed, const std::optional<Line>& line, const Target& target,
               const ValueBuffer& value) {
  if (failed) {
    return Result::no_open;
  }
  // A line on the file's first byte counts as not found; only a lookup by index that resumes at a
  // header gets there.
  if (!line || line->start == 0) {
    return Result::absent;
  }
  const std::string_view text =
      target.by_key() ? qel::text::entry_value(line->text) : qel::text::index_value(line->text);
  return value.put(text) ? Result::done : Result::no_open;
}

// A lookup that scans the file from its beginning. The names asked for may stand where the value
// goes, which therefore is put there last.
template <class Find>
Result look_up_in(ReadAccess& file, const Target& target, const ValueBuffer& value, Find find) {
  std::optional<LineScanner> lines;
  const std::optional<Line> line = read_steadily(file, [&] {
    lines.emplace(file, 0);
    return find(*lines, target);
  });
  return deliver(lines->failed(), line, target, value);
}

bool open_or_create(OsFile& file, const char* path) {
  return file.open_for_update(path) || file.create(path);
}

// Runs a store on a file that was opened for it, and counts a failing close as a failing store.
template <class Work>
Result store_into(OsFile& file, Work work) {
  Store store(file);
  const Result result = work(store);
  return file.close() ? result : Result::no_open;
}

// Runs a store on a file that stays open, and that no other store works on meanwhile.
template <class Work>
Result store_into_held(RandomAccess& file, Work work) {
  struct Unlocking {
    RandomAccess& file;
    ~Unlocking() { file.unlock(); }
  };
  if (!file.lock()) {
    return Result::no_open;
  }
  const Unlocking unlocking{file};
  Store store(file);
  return work(store);
}

}  // namespace

CQELPROIO::~CQELPROIO() {
  if (file_.is_open() && stream_ != nullptr) {
    std::fclose(stream_);
  }
}

RandomAccess& CQELPROIO::held() {
  if (lent_ != nullptr) {
    return *lent_;
  }
  return file_;
}

// A session's own file, with what it read before; a file that gives way to others is scanned alone.
ReadAccess& CQELPROIO::held_for_reading() {
  if (lent_ != nullptr) {
    return *lent_;
  }
  return steady_;
}

void CQELPROIO::release_held() {
  lent_.reset();
  if (stream_ != nullptr) {
    std::fclose(stream_);
    stream_ = nullptr;
  }
  file_.close();
}

// Whether the path is the one that was read last: its offsets are looked at again, as in one
// session.
bool CQELPROIO::is_read_again(const char* path) const {
  return path_ != nullptr && path_copy_ == path;
}

bool CQELPROIO::is_read_again(const wchar_t* path) const {
  return wide_path_ != nullptr && wide_path_copy_ == path;
}

void CQELPROIO::forget_lent() {
  if (lent_ != nullptr) {
    lent_.reset();
    stream_ = nullptr;
  }
}

void CQELPROIO::remember(const char* path, std::string& copy) {
  path_copy_.swap(copy);
  path_ = path;
  wide_path_ = nullptr;
}

void CQELPROIO::remember(const wchar_t* path, std::wstring& copy) {
  wide_path_copy_.swap(copy);
  wide_path_ = path;
  path_ = nullptr;
}

template <class Character>
bool CQELPROIO::open(const Character* path, int mode) {
  if (path == nullptr) {
    return false;
  }
  std::basic_string<Character> copy(
      path);  // before anything is changed: there may be no memory for it
  if (mode == kWriting) {
    OsFile file;
    if constexpr (std::is_same_v<Character, char>) {
      if (!open_or_create(file, path)) {
        return false;
      }
    } else if (!file.open_for_update(path)) {
      return false;
    }
    if (!file.close()) {
      return false;
    }
    forget_lent();
    remember(path, copy);
    // A file that the document itself opened stays in use; one that was closed gives way to the
    // path.
    attached_ = indexed_ = holds_file();
    return true;
  }
  forget_lent();
  release_held();
  steady_.forget();
  if (!file_.open_for_reading(path)) {
    return false;
  }
  attached_ = indexed_ = true;
  if (!is_read_again(path)) {
    index_.begin_file();
    seen_changes_ = file_.change_count();
  } else if (file_.identity() != read_identity_) {
    index_.forget();  // another file stands under the path now
  }
  read_identity_ = file_.identity();
  remember(path, copy);
  return true;
}

bool CQELPROIO::SetFilePath(const char* path, int mode) { return open(path, mode); }

bool CQELPROIO::SetFilePath(const wchar_t* path, int mode) { return open(path, mode); }

bool CQELPROIO::SetFilePtr(std::FILE*& stream) {
  if (stream == nullptr || !qel::platform::CallerStream::is_of_this_runtime(stream)) {
    return false;
  }
  auto lent = std::make_unique<qel::platform::CallerStream>(stream);
  if (file_.is_open()) {
    release_held();
  }
  stream_ = stream;
  lent_ = std::move(lent);
  attached_ = true;
  indexed_ = false;
  path_ = nullptr;
  wide_path_ = nullptr;
  return true;
}

bool CQELPROIO::GetFilePtr(std::FILE*& stream) {
  if (!holds_file()) {
    return false;
  }
  if (stream_ == nullptr) {
    stream_ = file_.duplicate_as_stream();
  }
  stream = stream_;
  return stream_ != nullptr;
}

void CQELPROIO::CloseFile() { release_held(); }

bool CQELPROIO::open_path(OsFile& file) const {
  return wide_path_ != nullptr ? file.open_for_reading(wide_path_copy_.c_str())
                               : file.open_for_reading(path_copy_.c_str());
}

bool CQELPROIO::open_path_for_store(OsFile& file) const {
  return wide_path_ != nullptr ? file.open_for_store(wide_path_copy_.c_str())
                               : file.open_or_create_for_store(path_copy_.c_str());
}

qel::Result CQELPROIO::GetValue(std::string_view section, std::string_view key, char*& value,
                                int index) {
  const ValueBuffer buffer = ValueBuffer::of_thread();
  const Result result = LookUp({section, key, index}, buffer);
  if (result == Result::done) {
    value = buffer.text;
  }
  return result;
}

// The held file, or the path's, which `own` opens.
Result CQELPROIO::choose_file(OsFile& own, ReadAccess*& file) {
  if (attached_) {
    file = &held_for_reading();
    return holds_file() ? Result::done : Result::no_file;
  }
  file = &own;
  if (path_ == nullptr && wide_path_ == nullptr) {
    return Result::no_file;
  }
  return open_path(own) ? Result::done : Result::no_open;
}

qel::Result CQELPROIO::LookUp(const Target& target, const ValueBuffer& value) {
  if (indexed_ && file_.is_open()) {
    LookupRoom room;
    if (const std::uint32_t changes = file_.change_count(); changes != seen_changes_) {
      index_.forget();
      seen_changes_ = changes;
    }
    const std::uint64_t learnt = index_.learnt();
    const std::optional<Line> line = read_steadily(
        steady_, [&] { return find_indexed(steady_, target, index_, room); },
        [&] {
          if (index_.learnt() != learnt) {
            index_.forget();  // lines may not stand where a disturbed look saw them
          }
        });
    return deliver(room.failed(), line, target, value);
  }
  OsFile own;
  ReadAccess* file = nullptr;
  const Result chosen = choose_file(own, file);
  if (chosen != Result::done) {
    return chosen;
  }
  return look_up_in(*file, target, value, qel::find_plainly);
}

// Runs work on the lines after the section's first header, after `begin`. What is absent because
// the file could not be read on is a failure of the file.
template <class Work>
Result CQELPROIO::scan_section(std::string_view section, const std::function<void()>& begin,
                               Work work) {
  OsFile own;
  ReadAccess* file = nullptr;
  const Result chosen = choose_file(own, file);
  if (chosen != Result::done) {
    return chosen;
  }
  return read_steadily(*file, [&] {
    begin();
    LineScanner lines(*file, 0);
    Line line;
    const Result result =
        find_plain_header(lines, section, line) ? work(lines, line) : Result::absent;
    return lines.failed() && result != Result::done ? Result::no_open : result;
  });
}

qel::Result CQELPROIO::VisitLines(std::string_view section, int count,
                                  const std::function<void()>& begin,
                                  const std::function<void(std::string_view)>& visit) {
  return scan_section(section, begin, [&](LineScanner& lines, Line& line) {
    for (int position = 1; position <= count; ++position) {
      if (!lines.next(line) || qel::text::is_header(line.text)) {
        return Result::absent;
      }
      visit(qel::text::index_value(line.text));
    }
    return Result::done;
  });
}

qel::Result CQELPROIO::VisitEntries(
    std::string_view section, const std::function<void()>& begin,
    const std::function<bool(std::string_view key, std::string_view value)>& visit) {
  return scan_section(section, begin, [&](LineScanner& lines, Line& line) {
    while (lines.next(line)) {
      if (!visit(qel::text::first_token(line.text), qel::text::entry_value(line.text))) {
        return Result::done;
      }
    }
    return lines.failed() ? Result::no_open : Result::done;
  });
}

qel::Result CQELPROIO::ReadOnce(std::string_view section, std::string_view key,
                                const ValueBuffer& value) {
  const Target target{section, key};
  if (path_ != nullptr) {
    OsFile file;
    if (!file.open_for_reading(path_copy_.c_str())) {
      return Result::no_open;
    }
    return look_up_in(file, target, value, qel::find_in_section);
  }
  return holds_file() ? look_up_in(held_for_reading(), target, value, qel::find_plainly)
                      : Result::no_file;
}

qel::Result CQELPROIO::SetValue(std::string_view section, std::string_view key,
                                std::string_view value, int index) {
  const Entry entry{{section, key, index}, value};
  if (is_refused(entry)) {
    return Result::no_open;
  }
  if (attached_) {
    if (!holds_file()) {
      return Result::no_file;
    }
    const Result result =
        store_into_held(held(), [&](Store& store) { return store.set(entry, false); });
    return result == Result::absent ? InsertValue(own_path(), section, key, value) : result;
  }
  if (path_ == nullptr && wide_path_ == nullptr) {
    return Result::no_file;
  }
  OsFile file;
  if (!open_path_for_store(file)) {
    return Result::no_open;
  }
  // A new key of an existing section needs the narrow path.
  const bool may_insert = path_ != nullptr;
  const Result result =
      store_into(file, [&](Store& store) { return store.set(entry, may_insert); });
  return result == Result::absent ? Result::no_open : result;
}

qel::Result CQELPROIO::WriteOnce(std::string_view section, std::string_view key,
                                 std::string_view value) {
  const Entry entry{{section, key}, value};
  if (is_refused(entry)) {
    return Result::no_open;
  }
  if (path_ != nullptr) {
    OsFile file;
    if (!file.open_or_create_for_store(path_copy_.c_str())) {
      return Result::no_open;
    }
    return store_into(file, [&](Store& store) { return store.set(entry, true); });
  }
  if (!holds_file()) {
    return Result::no_file;
  }
  const Result result =
      store_into_held(held(), [&](Store& store) { return store.set(entry, false); });
  return result == Result::absent ? Result::no_open : result;
}

qel::Result CQELPROIO::InsertValue(const char* path, std::string_view section, std::string_view key,
                                   std::string_view value) {
  const Entry entry{{section, key}, value};
  OsFile file;
  if (path == nullptr || is_refused(entry) || !file.open_for_store(path)) {
    return Result::no_open;
  }
  return store_into(file, [&](Store& store) { return store.insert(entry); });
}

qel::Result CQELPROIO::ReplaceValue(std::string_view section, std::string_view key,
                                    std::string_view value) {
  const Entry entry{{section, key}, value};
  OsFile file;
  if (path_ == nullptr || is_refused(entry) || !file.open_for_store(path_copy_.c_str())) {
    return Result::no_open;
  }
  return store_into(file, [&](Store& store) { return store.replace(entry); });
}

bool CQELPROIO::ScanValue(const char* path, std::string_view section, std::string_view key,
                          const ValueBuffer& value) {
  OsFile file;
  if (path == nullptr || !file.open_for_reading(path)) {
    return false;
  }
  std::string contents;
  const std::optional<std::string_view> text =
      read_steadily(file, [&] { return qel::scan_value(file, section, key, contents); });
  return text && value.put(*text);
}
