#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qel {

/// A file's contents at one moment, for work that asks for very many keys of it. Its answers are those of one-shot raw reads.
class Snapshot {
 public:
  /// False when the file cannot be read.
  bool load(const char* path);

  [[nodiscard]] bool has_section(std::string_view section) const { return sections_.find(std::string(section)) != sections_.end(); }

  [[nodiscard]] std::optional<std::string_view> value(std::string_view section, std::string_view key) const;

  struct Numbered {
    int number;
    std::string_view value;
  };
  /// The numbers from 1 to `most` of the sections whose names are the pattern with a number in the place of "%d", ascending.
  [[nodiscard]] std::vector<int> numbered_sections(std::string_view pattern, int most) const;

  /// The entries of the section whose keys are the prefix and a number from 1 to `most`, in ascending order.
  [[nodiscard]] std::vector<Numbered> numbered(std::string_view section, std::string_view prefix, int most) const;

 private:
  std::string contents_;
  std::unordered_map<std::string, std::int64_t> sections_;  // where the line behind the header begins
};

}  // namespace qel
