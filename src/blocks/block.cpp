#include "blocks/block.h"

#include <algorithm>
#include <cstring>

#include "platform/number.h"

using qel::numbered;
using qel::Result;

std::string qel::numbered(std::string_view pattern, int number) {
  const std::size_t percent = pattern.find('%');
  std::string text(pattern.substr(0, percent));
  if (percent != std::string_view::npos) {
    text += qel::platform::print_int(number);
    text += pattern.substr(pattern.find('d', percent) + 1);
  }
  return text;
}

void CQELPROBlockIOBase::SetSectionName(const char* name) {
  std::memset(name_, 0, kNameSize);
  std::memcpy(name_, name, std::min(std::strlen(name), kNameSize - 1));
}

bool CQELPROBlockIOBase::AttachDocument(CQELPROIO* document) {
  if (document == nullptr) {
    return false;
  }
  document_ = document;
  return true;
}

int CQELPROBlockIOBase::Find(const char* key, qel::Place place, char*& text) {
  if (document_ == nullptr) {
    return to_int(Result::no_file);
  }
  return document_->GetValue(numbered(name_, place.section).c_str(), numbered(key, place.point).c_str(), text, qel::Target::kByKey);
}

int CQELPROBlockIOBase::Store(const char* key, qel::Place place, const std::string& text, std::size_t limit) {
  if (document_ == nullptr) {
    return to_int(Result::no_file);
  }
  if (text.size() >= limit) {
    return to_int(Result::no_open);
  }
  return document_->SetValue(numbered(name_, place.section).c_str(), numbered(key, place.point).c_str(), text.c_str(), qel::Target::kByKey);
}
