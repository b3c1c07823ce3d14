#pragma once

#include <string>
#include <string_view>

namespace qelpro {

/// Who takes text, piece by piece: an answer, a file's contents.
class Sink {
 public:
  Sink() = default;
  Sink(const Sink&) = delete;
  Sink& operator=(const Sink&) = delete;
  virtual ~Sink() = default;

  virtual void put(std::string_view text) = 0;
  Sink& operator<<(std::string_view text) {
    put(text);
    return *this;
  }
  Sink& operator<<(char character) { return *this << std::string_view(&character, 1); }
};

/// Keeps it in memory.
class TextSink : public Sink {
 public:
  void put(std::string_view text) override { text_ += text; }
  [[nodiscard]] std::string& text() { return text_; }

 private:
  std::string text_;
};

}  // namespace qelpro
