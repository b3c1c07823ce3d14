#include "text/file_image.h"

#include <cstring>

namespace qel {

bool FileImage::load(platform::RandomAccess& file, std::int64_t size) {
  if (size < 0) {
    return false;
  }
  size_ = static_cast<std::size_t>(size);
  memory_.reset(new char[kRoom + size_ + kRoom]);
  begin_ = memory_.get() + kRoom;
  return file.read_at(0, begin_, size_) == size;
}

void FileImage::cover(Covered& covered, char* at, std::string_view text) {
  covered.at = at;
  covered.bytes.assign(at, text.size());
  std::memcpy(at, text.data(), text.size());
}

std::string_view FileImage::compose(std::string_view before, std::size_t from, std::size_t to,
                                    std::string_view behind) {
  if (before.size() > kRoom || behind.size() > kRoom) {
    copy_.reserve(before.size() + (to - from) + behind.size());
    return copy_.assign(before).append(bytes(), from, to - from).append(behind);
  }
  cover(before_, begin_ + from - before.size(), before);
  cover(behind_, begin_ + to, behind);
  return {before_.at, before.size() + (to - from) + behind.size()};
}

void FileImage::restore() {
  for (Covered* covered : {&behind_, &before_}) {
    if (covered->at != nullptr) {
      std::memcpy(covered->at, covered->bytes.data(), covered->bytes.size());
      covered->at = nullptr;
    }
  }
}

}  // namespace qel
