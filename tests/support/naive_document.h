#pragma once

#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <tuple>

/// The rules of process files once more, written as plainly as they can be said: the whole file in
/// memory, a list of its lines, nothing clever. The engine has to agree with it byte for byte.
namespace qelpro_test::naive {

inline constexpr int kDone = 1;
inline constexpr int kRefused = 0;
inline constexpr int kAbsent = -2;

struct Answer {
  int result = kAbsent;
  std::string text;
  bool operator==(const Answer& other) const = default;
};

inline void PrintTo(const Answer& answer, std::ostream* out) {
  *out << answer.result << " \"" << answer.text << '"';
}

/// A line "[...]", whatever blanks follow, or one with words after its brackets. An entry of an odd
/// key has a "=" there.
bool closes_a_section(const std::string& line);

/// The lookups of one reading document, over one file after another.
class Reading {
 public:
  Answer look(const std::string& bytes, const std::string& section, const std::string& key,
              int index);

 private:
  // Lines found by position are known apart from those of keys, so that neither changes what the
  // other yields.
  using Name = std::tuple<bool, std::string, std::string>;

  std::map<std::string, std::size_t> sections_;
  std::map<Name, std::size_t> lines_;
};

/// Every lookup of a lent stream and of a writing document.
Answer plain(const std::string& bytes, const std::string& section, const std::string& key,
             int index);
/// A one-shot lookup by path.
Answer once(const std::string& bytes, const std::string& section, const std::string& key);
/// The lookup over the whole text.
Answer whole_text(const std::string& bytes, const std::string& section, const std::string& key);

/// Each changes the bytes as the store of its kind changes the file, and yields its result.
int store(std::string& bytes, const std::string& section, const std::string& key,
          const std::string& given, int index, bool may_insert);
int insert(std::string& bytes, const std::string& section, const std::string& key,
           const std::string& given);
int replace(std::string& bytes, const std::string& section, const std::string& key,
            const std::string& given);

/// What a lookup yields of a value that was stored.
std::string read_back(const std::string& given);

}  // namespace qelpro_test::naive
