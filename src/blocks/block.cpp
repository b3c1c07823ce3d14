#include "blocks/block.h"

#include <algorithm>
#include <charconv>
#include <cstring>

using qel::NumberedName;
using qel::Result;

// Walks over the few characters of a pattern: to search and copy its parts one by one costs a call
// for each. A text without a place for a number is handed on where it stands.
NumberedName::NumberedName(std::string_view pattern, int number)
    : name_(pattern.substr(0, kLongestPattern)) {
  const char* at = name_.data();
  const char* const after = at + name_.size();
  char* end = text_;
  for (; at != after && *at != '%'; ++at) {
    *end++ = *at;
  }
  for (; at != after && *at != 'd'; ++at) {
  }
  if (at == after) {
    return;
  }
  if (number >= 0 && number <= 9) {
    *end++ = static_cast<char>('0' + number);
  } else {
    end = std::to_chars(end, end + kNumber, number).ptr;
  }
  for (++at; at != after; ++at) {
    *end++ = *at;
  }
  name_ = {text_, static_cast<std::size_t>(end - text_)};
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
