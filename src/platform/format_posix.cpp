#include <clocale>
#include <cstdio>

#include "platform/format.h"

namespace qel::platform {
namespace {

// The thread's locale with the numbers of the "C" locale, put back at the end of the scope. There
// may be no memory for one.
class CNumbers {
 public:
  CNumbers() : previous_(::uselocale(nullptr)) {
    locale_t base = ::duplocale(previous_);
    if (base != nullptr) {
      own_ = ::newlocale(LC_NUMERIC_MASK, "C", base);
      if (own_ == nullptr) {
        ::freelocale(base);
      } else {
        ::uselocale(own_);
      }
    }
  }
  ~CNumbers() {
    ::uselocale(previous_);
    if (own_ != nullptr) {
      ::freelocale(own_);
    }
  }
  CNumbers(const CNumbers&) = delete;
  CNumbers& operator=(const CNumbers&) = delete;

  [[nodiscard]] bool is_set() const { return own_ != nullptr; }

 private:
  locale_t previous_;
  locale_t own_ = nullptr;
};

}  // namespace

std::optional<std::string> format(const char* format, std::va_list arguments) {
  const CNumbers numbers;
  if (!numbers.is_set()) {
    return std::nullopt;
  }
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(
      nullptr, 0, format, again);  // NOLINT(clang-analyzer-valist.Uninitialized): va_copy sets it
  va_end(again);
  if (length < 0) {
    return std::nullopt;
  }
  std::string text(static_cast<std::size_t>(length), '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, arguments);
  return text;
}

}  // namespace qel::platform
