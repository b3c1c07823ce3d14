#include "text/file_image.h"

#include <cstring>

namespace qel {

bool FileImage::load(platform::ReadAccess& file, std::int64_t size) {
  if (size < 0) {
    return false;
  }
  size_ = static_cast<std::size_t>(size);
  memory_.reset(new char[kReserve + size_ + kReserve]);
  begin_ = memory_.get() + kReserve;
  return file.read_at(0, begin_, size_) == size;
}

void FileImage::cover(Covered& covered, char* at, std::string_view text) {
  covered.at = at;
  covered.bytes.assign(at, text.size());
  std::memcpy(at, text.data(), text.size());
}

std::string_view FileImage::compose(std::string_view before, std::size_t from, std::size_t to,
                                    std::string_view after) {
  if (before.size() > kReserve || after.size() > kReserve) {
    copy_.reserve(before.size() + (to - from) + after.size());
    return copy_.assign(before).append(bytes(), from, to - from).append(after);
  }
  cover(before_, begin_ + from - before.size(), before);
  cover(after_, begin_ + to, after);
  return {before_.at, before.size() + (to - from) + after.size()};
}

void FileImage::restore() {
  for (Covered* covered : {&after_, &before_}) {
    if (covered->at != nullptr) {
      std::memcpy(covered->at, covered->bytes.data(), covered->bytes.size());
      covered->at = nullptr;
    }
  }
}

}  // namespace qel
