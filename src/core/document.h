#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/lookup.h"
#include "core/result.h"
#include "core/steady_file.h"
#include "core/store.h"
#include "core/value_buffer.h"
#include "platform/caller_stream.h"
#include "platform/os_file.h"

/// The document over one process file.
///
/// Every lookup reads the file and every store changes it before it returns; what a reading session
/// keeps of the contents only tells whether what it reads has changed.
/// Results are 1 done, 0 the file cannot be opened (or a store was refused), -1 no file, -2
/// section, key or line not there.
class CQELPROIO {
 public:
  CQELPROIO() = default;
  CQELPROIO(const CQELPROIO&) = delete;
  CQELPROIO& operator=(const CQELPROIO&) = delete;
  virtual ~CQELPROIO();

  static constexpr int kReading = 0;
  static constexpr int kWriting = 1;

  /// Reading (any mode but 1) holds the file open and keeps an index of offsets that later files do
  /// not clear. Writing holds nothing: every store opens the path again. A wide path never creates
  /// a file. A lent stream is forgotten and stays open.
  virtual bool SetFilePath(const wchar_t* path, int mode);
  virtual bool SetFilePath(const char* path, int mode);

  /// Lends a stream that the caller keeps. Lookups scan it from the top.
  virtual bool SetFilePtr(std::FILE*& stream);
  virtual bool GetFilePtr(std::FILE*& stream);

  /// Closes the held stream, whoever opened it. Lookups and stores answer -1 from then on, until
  /// the next open.
  virtual void CloseFile();

  /// The value of a key (index below 0) or the index-th line of a section, in a buffer that the
  /// thread's next lookup overwrites. Only a result of 1 touches the pointer.
  virtual qel::Result GetValue(std::string_view section, std::string_view key, char*& value,
                               int index);

  /// The same, put into a buffer. A value that does not fit yields 0 and leaves the buffer alone.
  qel::Result LookUp(const qel::Target& target, const qel::ValueBuffer& value);

  /// Hands the first `count` lines of a section to `visit`, trimmed, in one scan whatever the
  /// document's mode is. -2 when there are fewer: the section ends at the next header. A scan that
  /// met a store begins again, after `begin`, as the first one does.
  qel::Result VisitLines(std::string_view section, int count, const std::function<void()>& begin,
                         const std::function<void(std::string_view)>& visit);

  /// Whether a lookup by key is a plain scan, which goes on into later sections, rather than one
  /// through the index.
  [[nodiscard]] bool scans_plainly() const { return !indexed_; }
  /// Hands each line that a plain scan for a key of the section passes to `visit`, the first token
  /// and the value, until it yields false. It begins as `VisitLines` does.
  qel::Result VisitEntries(
      std::string_view section, const std::function<void()>& begin,
      const std::function<bool(std::string_view key, std::string_view value)>& visit);

  /// Stores the value of a key (index below 0) or the index-th line of a section.
  qel::Result SetValue(std::string_view section, std::string_view key, std::string_view value,
                       int index);
  qel::Result InsertValue(const char* path, std::string_view section, std::string_view key,
                          std::string_view value);
  qel::Result ReplaceValue(std::string_view section, std::string_view key, std::string_view value);

  /// A lookup of its own kind: the section's name may stand anywhere in a line, and the search goes
  /// on into later sections. False, too, for a value that does not fit the buffer.
  bool ScanValue(const char* path, std::string_view section, std::string_view key,
                 const qel::ValueBuffer& value);

  /// The caller's own pointer, or null when the file was given by a wide path or a stream.
  [[nodiscard]] const char* narrow_path() const { return path_; }
  /// The document's own copy of the narrow path, or null where `narrow_path` is null.
  [[nodiscard]] const char* own_path() const {
    return path_ != nullptr ? path_copy_.c_str() : nullptr;
  }

  /// A lookup by key that neither uses nor extends the index of offsets, over the path or the held
  /// stream.
  qel::Result ReadOnce(std::string_view section, std::string_view key,
                       const qel::ValueBuffer& value);
  /// A store by path, or into the held stream where there is none.
  qel::Result WriteOnce(std::string_view section, std::string_view key, std::string_view value);

 private:
  template <class Character>
  bool open(const Character* path, int mode);
  void remember(const char* path, std::string& copy);
  void remember(const wchar_t* path, std::wstring& copy);
  void release_held();
  void forget_lent();
  [[nodiscard]] bool is_read_again(const char* path) const;
  [[nodiscard]] bool is_read_again(const wchar_t* path) const;
  [[nodiscard]] bool holds_file() const { return file_.is_open() || lent_ != nullptr; }
  qel::platform::RandomAccess& held();
  qel::platform::ReadAccess& held_for_reading();
  qel::Result choose_file(qel::platform::OsFile& own, qel::platform::ReadAccess*& file);
  template <class Work>
  qel::Result scan_section(std::string_view section, const std::function<void()>& begin, Work work);
  bool open_path(qel::platform::OsFile& file) const;
  bool open_path_for_store(qel::platform::OsFile& file) const;

  const char* path_ = nullptr;
  const wchar_t* wide_path_ = nullptr;
  std::string path_copy_;
  std::wstring wide_path_copy_;
  qel::SectionIndex index_;
  // Of the file that was opened for reading last.
  std::uint64_t read_identity_ = 0;
  // What this program had written to that file when the index was last right.
  std::uint32_t seen_changes_ = 0;
  qel::platform::OsFile file_;  // opened by this document for reading
  qel::SteadyFile steady_{file_};
  std::unique_ptr<qel::platform::CallerStream> lent_;
  std::FILE* stream_ = nullptr;  // the lent stream, or one handed out over `file_`
  bool attached_ = false;
  bool indexed_ = false;
};
