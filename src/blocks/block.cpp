#include "blocks/block.h"

#include <algorithm>
#include <charconv>
#include <cstring>

using qel::NumberedName;
using qel::Result;

NumberedName::NumberedName(std::string_view pattern, int number) {
  const std::size_t percent = pattern.find('%');
  const std::size_t letter =
      percent == std::string_view::npos ? percent : pattern.find('d', percent);
  const bool has_place = letter != std::string_view::npos;
  char* end = text_ + pattern.copy(text_, has_place ? percent : kLongestPattern);
  if (has_place) {
    end = std::to_chars(end, end + kNumber, number).ptr;
    end += pattern.copy(end, kLongestPattern - letter, letter + 1);
  }
  size_ = static_cast<std::size_t>(end - text_);
}

void CQELPROBlockIOBase::SetSectionName(const char* name) {
  const std::size_t length = std::min(std::strlen(name), kNameSize - 1);
  std::memmove(new_name_, name, length);
  std::memset(new_name_ + length, 0, kNameSize - length);
  name_ = new_name_;
}

bool CQELPROBlockIOBase::AttachDocument(CQELPROIO* document) {
  if (document == nullptr) {
    return false;
  }
  document_ = document;
  return true;
}

qel::Result CQELPROBlockIOBase::FindText(const char* key, qel::Place place, char*& text) {
  if (document_ == nullptr) {
    return Result::no_file;
  }
  const NumberedName section(name_, place.section);
  const NumberedName entry(key, place.point);
  const qel::ValueBuffer value = qel::ValueBuffer::of_thread();
  const Result result = document_->LookUp({section.str(), entry.str()}, value);
  if (result == Result::done) {
    text = value.text;
  }
  return result;
}

qel::Result CQELPROBlockIOBase::StoreText(const char* key, qel::Place place,
                                          const std::string& text, std::size_t limit) {
  if (document_ == nullptr) {
    return Result::no_file;
  }
  if (text.size() >= limit) {
    return Result::no_open;
  }
  const NumberedName section(name_, place.section);
  const NumberedName entry(key, place.point);
  return document_->SetValue(section.str(), entry.str(), text, qel::Target::kByKey);
}
