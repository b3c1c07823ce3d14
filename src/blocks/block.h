#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "blocks/encoding.h"
#include "blocks/key.h"
#include "core/document.h"

namespace qel {

/// The name of a section or a key: the number stands in the place of the pattern's "%d" or "%ld"; a
/// text without one stays as it is. The pattern outlives the name.
class NumberedName {
 public:
  static constexpr std::size_t kLongestPattern = 255;

  NumberedName(std::string_view pattern, int number);
  NumberedName(const NumberedName&) = delete;
  NumberedName& operator=(const NumberedName&) = delete;

  [[nodiscard]] std::string_view str() const { return name_; }

 private:
  static constexpr std::size_t kNumber = 11;

  // Each reading member makes two: on the stack, without a need of memory.
  char text_[kLongestPattern + kNumber];
  std::string_view name_;
};

}  // namespace qel

/// The base of the section blocks: one object per section kind, which names its section and reads
/// and writes its keys through the session's document. A block keeps no values.
///
/// Every operation yields the document's result, or -1 while no document is attached.
class CQELPROBlockIOBase {
 public:
  /// The name outlives the block, as a literal does.
  explicit CQELPROBlockIOBase(const char* section) : name_(section) {
    if (std::strlen(section) >= kNameSize) {
      CQELPROBlockIOBase::SetSectionName(section);
    }
  }
  CQELPROBlockIOBase(const CQELPROBlockIOBase&) = delete;
  CQELPROBlockIOBase& operator=(const CQELPROBlockIOBase&) = delete;
  virtual ~CQELPROBlockIOBase() = default;

  /// Renames the block for the rest of the session. A name is cut at 255 characters.
  virtual void SetSectionName(const char* name);

  /// False for null, which leaves the block as it is.
  virtual bool AttachDocument(CQELPROIO* document);

  /// Looks the key up and scans its value. How much of it scans does not count: a value that was
  /// found is a success.
  template <class Encoding, class... Values>
  qel::Result Read(const char* key, qel::Place place, Values&... values) {
    char* text = nullptr;
    const qel::Result result = FindText(key, place, text);
    if (result == qel::Result::done) {
      qel::scan_together<Encoding>(text, place.point, values...);
    }
    return result;
  }

  template <class Encoding, class... Values>
  qel::Result Read(const qel::Key<Encoding>& key, qel::Place place, Values&... values) {
    return Read<Encoding>(key.text, place, values...);
  }

  template <class Encoding, class... Values>
  qel::Result Write(const char* key, qel::Place place, Values... values) {
    return StoreText(key, place, Encoding::print(values...), Encoding::kLimit);
  }
  template <class Encoding, class... Values>
  qel::Result Write(const qel::Key<Encoding>& key, qel::Place place, Values... values) {
    return Write<Encoding>(key.text, place, values...);
  }

 protected:
  /// The value text of a key, in the document's shared buffer.
  qel::Result FindText(const char* key, qel::Place place, char*& text);
  qel::Result StoreText(const char* key, qel::Place place, const std::string& text,
                        std::size_t limit);

  [[nodiscard]] CQELPROIO* document() const { return document_; }
  [[nodiscard]] const char* name() const { return name_; }

 private:
  static constexpr std::size_t kNameSize = qel::NumberedName::kLongestPattern + 1;

  // Most blocks keep their first, so that a session is made without a copy of each.
  const char* name_;
  char new_name_[kNameSize];  // without a value until then
  CQELPROIO* document_ = nullptr;
};

namespace qel {

/// The block of a section kind that is served key by key, and by nothing else.
template <const SectionInfo& info>
class SectionBlock : public CQELPROBlockIOBase {
 public:
  static constexpr const SectionInfo& kInfo = info;

  SectionBlock() : CQELPROBlockIOBase(info.name) {}
};

}  // namespace qel
