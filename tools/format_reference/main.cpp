// Prints docs/format.md, the reference of the process file, from the catalogue.

#include <iostream>
#include <string>
#include <string_view>

#include "blocks/catalogue.h"

namespace {

constexpr const char* kIntroduction = R"(<!-- Made by `./dev docs` from the catalogue in src/blocks. Change the catalogue, not this file. -->

# The process file

A process file is plain text. A line such as `[Unit]` begins a section; a line such as `FillTime = 1.5` is an entry of it. A
line holds at most 4095 characters. Keys are matched exactly, in upper and lower case; a line that begins with a blank is no
entry. Of two sections of one name, and of two entries of one key, the first counts.

`%d` in a section's name is the number of an inlet, a channel, a valve and so on; `%d` in a key is the number of a point or a
row. Both count from 1. The reading and writing members are those of `CQELPROReader_Manipulator` and
`CQELPROWriter_Manipulator`; entries without a member are read with `ReadString` and written with `WriteString`.

Reals are written with six significant digits. The file's units are fixed: sec, oC, MPa, cc and cc/sec; where a quantity has
none of them the file states no unit.
)";

// A cell of a table ends at "|".
std::string cell(std::string_view text) {
  std::string result;
  for (const char c : text) {
    result += c == '|' ? "\\|" : std::string(1, c);
  }
  return result;
}

std::string members(const qel::Members& names) {
  std::string result;
  std::string_view last;
  for (const char* name : names) {
    if (name != nullptr && name != last) {
      result += (result.empty() ? "`" : ", `") + std::string(name) + "`";
      last = name;
    }
  }
  return result;
}

void print(const qel::SectionInfo& section) {
  std::cout << "\n## `" << section.name << "`\n\n"
            << cell(section.subject) << "\n\n| key | value | encoding | read by | written by |\n|---|---|---|---|---|\n";
  for (std::size_t index = 0; index < section.key_count; ++index) {
    const qel::KeyInfo& key = *section.keys[index];
    std::cout << "| `" << cell(key.text) << "` | " << cell(key.meaning) << " | " << key.encoding << " | " << members(key.readers) << " | "
              << members(key.writers) << " |\n";
  }
}

}  // namespace

int main() {
  std::cout << kIntroduction;
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    print(*section);
  }
}
