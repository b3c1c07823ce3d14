#include "own_section.h"

#include <QELPROEngine/CQELPROReader_Manipulator.h>
#include <QELPROEngine/CQELPROWriter_Manipulator.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <stdexcept>
#include <string_view>

#include "document_text.h"

namespace {

using Path = std::filesystem::path;

std::optional<std::string> value_of(CQELPROReader_Manipulator& reader, const std::string& section, const std::string& key) {
  char* value = nullptr;
  return reader.ReadString(section.c_str(), key.c_str(), value, nullptr, 0) ? std::optional<std::string>(value) : std::nullopt;
}

// The value in the section itself.
std::optional<std::string> own_value(const std::string& file, const std::string& section, const std::string& key) {
  CQELPROReader_Manipulator reader;
  return reader.SetFilePath(file.c_str()) ? value_of(reader, section, key) : std::nullopt;
}

// The value that the engine's store would replace: it searches on into later sections, as a read through a stream does.
std::optional<std::string> value_in_reach(const std::string& file, const std::string& section, const std::string& key) {
  std::FILE* stream = std::fopen(file.c_str(), "rb");
  CQELPROReader_Manipulator reader;
  if (!reader.SetFilePtr(stream)) {
    return std::nullopt;
  }
  auto value = value_of(reader, section, key);
  std::fclose(stream);
  return value;
}

// A file that is gone at the end of the scope.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::string_view contents) {
    std::random_device random;
    std::FILE* stream = nullptr;
    for (int attempt = 0; stream == nullptr && attempt < 100; ++attempt) {
      path_ = std::filesystem::temp_directory_path() / ("qelpro-" + std::to_string(random()) + ".pro");
      stream = std::fopen(path_.string().c_str(), "wbx");
    }
    if (stream == nullptr) {
      throw std::runtime_error("cannot make a temporary file");
    }
    const bool whole = std::fwrite(contents.data(), 1, contents.size(), stream) == contents.size();
    if (std::fclose(stream) != 0 || !whole) {
      throw std::runtime_error("cannot write a temporary file");
    }
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  [[nodiscard]] const Path& path() const { return path_; }

 private:
  Path path_;
};

// Where a section stands in the file's text: from its header to the next header. `reached` is the line that the engine's
// store takes for its header.
struct Span {
  std::size_t begin = std::string::npos;
  std::size_t end = 0;
  std::size_t reached = std::string::npos;
};

Span find_section(std::string_view text, std::string_view section) {
  Span span;
  span.end = text.size();
  for (const TextLine& line : lines_of(text)) {
    if (span.begin != std::string::npos && is_header(line.text)) {
      span.end = line.begin;
      break;
    }
    if (first_token(line.text) == section) {
      span.reached = std::min(span.reached, line.begin);
      if (is_header(line.text)) {
        span.begin = line.begin;
      }
    }
  }
  return span;
}

// Puts the new section in the place of the old one. What the file grows by is written first: when there is no room for
// it, no old byte has been touched.
std::string splice(const std::string& file, const std::string& whole_text, const Span& span, const std::string& new_section) {
  std::string whole = whole_text.substr(0, span.begin) + new_section + whole_text.substr(span.end);
  whole.resize(std::max(whole.size(), whole_text.size()), ' ');
  std::fstream stream(file, std::ios::in | std::ios::out | std::ios::binary);
  const auto put = [&stream, &whole](std::size_t from, std::size_t to) {
    stream.seekp(static_cast<std::streamoff>(from));
    stream.write(whole.data() + from, static_cast<std::streamsize>(to - from));
    return static_cast<bool>(stream.flush());
  };
  if (!stream) {
    return "cannot be opened for writing";
  }
  if (!put(whole_text.size(), whole.size())) {
    stream.close();
    std::error_code ignored;
    std::filesystem::resize_file(file, whole_text.size(), ignored);
    return "no room for it";
  }
  return put(span.begin, whole_text.size()) ? "" : "cannot be written";
}

bool write(const std::string& file, const std::string& section, const std::string& key, const std::string& value) {
  CQELPROWriter_Manipulator writer;
  return writer.SetFilePath(file.c_str()) && writer.WriteString(section.c_str(), key.c_str(), value.c_str());
}

constexpr const char* kRefused =
    "not stored: the file cannot be written, or the section, the key or the value could not be read back (names hold no blank, tab or \"=\", "
    "values no line break)";

// Lets the engine store into a file that holds nothing but the section.
std::string store_in_section_alone(const std::string& file, const std::string& text, const Span& span, const std::string& section,
                                   const std::string& key, const std::string& value) {
  const std::string old_section = text.substr(span.begin, span.end - span.begin);
  const TemporaryFile alone(old_section);
  if (!write(alone.path().string(), section, key, value)) {
    return kRefused;
  }
  std::string new_section = contents_of(alone.path().string());
  if (span.end != text.size()) {
    new_section.resize(new_section.find_last_of('\n') + 1);  // blanks that a shorter value left
  }
  return splice(file, text, span, new_section);
}

}  // namespace

std::string store_in_own_section(const std::string& file, const std::string& section, const std::string& key, const std::string& value) {
  const std::string text = contents_of(file);
  const Span span = find_section(text, section);
  const bool same_header = span.begin == span.reached;
  if (same_header && own_value(file, section, key).has_value() == value_in_reach(file, section, key).has_value()) {
    return write(file, section, key, value) ? "" : kRefused;
  }
  if (span.begin == std::string::npos) {
    return "the section's header is followed by other text";
  }
  return store_in_section_alone(file, text, span, section, key, value);
}
