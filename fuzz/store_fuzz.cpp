#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "support.h"

// Any file and a sequence of stores. A store that fails changes no byte; one that succeeds is read
// back, and changes no other line.

using qelpro_fuzz::fail;

namespace {

std::vector<std::string> lines_of(std::string contents) {
  contents.erase(contents.find_last_not_of(" \x1A") + 1);  // padding
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < contents.size();) {
    std::size_t end = std::min(contents.find('\n', at), contents.size());
    std::string line = contents.substr(at, end - at);
    if (!line.empty() && line.back() == '\r') {
      line.pop_back();
    }
    lines.push_back(line);
    at = end + 1;
  }
  return lines;
}

// What is left of two lists of lines without what they begin and end with alike.
void drop_common_ends(std::vector<std::string>& a, std::vector<std::string>& b) {
  while (!a.empty() && !b.empty() && a.back() == b.back()) {
    a.pop_back();
    b.pop_back();
  }
  std::size_t same = 0;
  while (same < a.size() && same < b.size() && a[same] == b[same]) {
    ++same;
  }
  a.erase(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(same));
  b.erase(b.begin(), b.begin() + static_cast<std::ptrdiff_t>(same));
}

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \t\r\n") + 1);
  text.erase(0, text.find_first_not_of(' '));
  return text;
}

std::optional<std::string> read(CQELPROReader_Manipulator& reader, const std::string& section,
                                const std::string& key) {
  char buffer[8192];
  char* value = nullptr;
  return reader.ReadString(section.c_str(), key.c_str(), value, buffer, sizeof buffer)
             ? std::optional<std::string>(value)
             : std::nullopt;
}

std::optional<std::string> read_by_path(const char* path, const std::string& section,
                                        const std::string& key) {
  CQELPROReader_Manipulator reader;
  reader.SetFilePath(path);
  return read(reader, section, key);
}

std::optional<std::string> read_by_stream(const char* path, const std::string& section,
                                          const std::string& key) {
  std::FILE* stream = std::fopen(path, "r");
  std::optional<std::string> text;
  {
    CQELPROReader_Manipulator reader;
    reader.SetFilePtr(stream);
    text = read(reader, section, key);
  }
  std::fclose(stream);
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kLongestFile = 3000;  // so that no line is longer than a line may be
  FuzzedDataProvider input(data, size);
  const char* const sections[] = {"[A]", "[B-1]", "[SURFACE", "[Flow-1]"};
  const char* const keys[] = {"x", "y", "GC-1", "GC-10"};
  const int count = input.ConsumeIntegralInRange(1, 6);
  struct Store {
    std::string section, key, value;
  };
  std::vector<Store> sequence;
  for (int i = 0; i < count; ++i) {
    Store store;
    store.section = input.ConsumeBool() ? std::string(input.PickValueInArray(sections))
                                        : input.ConsumeRandomLengthString(12);
    store.key = input.ConsumeBool() ? std::string(input.PickValueInArray(keys))
                                    : input.ConsumeRandomLengthString(12);
    store.value = input.ConsumeRandomLengthString(40);
    for (std::string* text : {&store.section, &store.key, &store.value}) {
      text->resize(std::strlen(text->c_str()));
    }
    sequence.push_back(store);
  }
  std::string contents = input.ConsumeRemainingBytesAsString();
  contents.resize(std::min(contents.size(), kLongestFile));
  const char* path = qelpro_fuzz::file_with(contents);
  CQELPROWriter_Manipulator writer;
  if (!writer.SetFilePath(path)) {
    fail("a file was not opened");
  }
  for (const Store& store : sequence) {
    const std::string before = qelpro_fuzz::bytes_of_file();
    const bool done =
        writer.WriteString(store.section.c_str(), store.key.c_str(), store.value.c_str());
    const std::string after = qelpro_fuzz::bytes_of_file();
    if (!done) {
      if (after != before) {
        fail("a store that failed changed the file");
      }
      continue;
    }
    if (after.size() < before.size()) {
      fail("a store made the file shorter");
    }
    // Where a line that is no header begins with the section's name, or a later section holds the
    // key, the store lands there and the plain scan of a lent stream finds it.
    const std::string expected = trimmed(store.value);
    if (read_by_path(path, store.section, store.key) != expected &&
        read_by_stream(path, store.section, store.key) != expected) {
      fail("a store was not read back: " + store.section + " | " + store.key + " | " + store.value +
           "\nfile before:\n" + before + "\nfile after:\n" + after);
    }
    std::vector<std::string> old_lines = lines_of(before);
    std::vector<std::string> new_lines = lines_of(after);
    drop_common_ends(old_lines, new_lines);
    if (old_lines.size() > 1 || new_lines.size() > 3) {
      fail("a store changed other lines: " + store.section + " | " + store.key + " | " +
           store.value + "\nfile before:\n" + before + "\nfile after:\n" + after);
    }
  }
  return 0;
}
