#include "text/page_steps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "core/lookup.h"
#include "core/store.h"
#include "text/line_scanner.h"
#include "text/text.h"

// A program may be killed while the operating system writes for it, between any two pages. The file
// that it leaves then has every entry as it was, or as it was to become.

namespace qel {
namespace {

// Keeps the bytes as they were after every page that was written.
class StoppingFile final : public platform::RandomAccess {
 public:
  explicit StoppingFile(std::string contents) : bytes_(std::move(contents)) {}

  std::int64_t size() override { return static_cast<std::int64_t>(bytes_.size()); }
  std::int64_t read_at(std::int64_t offset, char* to, std::size_t count) override {
    return static_cast<std::int64_t>(bytes_.copy(to, count, static_cast<std::size_t>(offset)));
  }
  bool write_at(std::int64_t offset, const char* from, std::size_t count) override {
    auto at = static_cast<std::size_t>(offset);
    while (count > 0) {
      const std::size_t part = std::min(count, kPageSize - at % kPageSize);
      bytes_.resize(std::max(bytes_.size(), at + part));
      bytes_.replace(at, part, from, part);
      states_.push_back(bytes_);
      at += part;
      from += part;
      count -= part;
    }
    return true;
  }
  bool reserve(std::int64_t, std::int64_t) override { return true; }
  bool truncate(std::int64_t size) override {
    bytes_.resize(static_cast<std::size_t>(size));
    states_.push_back(bytes_);
    return true;
  }
  bool flush() override { return true; }

  [[nodiscard]] const std::string& bytes() const { return bytes_; }
  [[nodiscard]] const std::vector<std::string>& states() const { return states_; }

 private:
  std::string bytes_;
  std::vector<std::string> states_;
};

using Values = std::map<std::string, std::string>;

// What lookups of every key in every section find: those that end with the section, and those that
// go on behind it.
Values values_in(const std::string& bytes) {
  Values values;
  std::vector<std::pair<std::string, std::string>> found;  // every header, with "", and every entry
  std::set<std::string> headers;
  std::string section;
  LineScanner lines(bytes);
  for (Line line; lines.next(line);) {
    const std::string token(text::first_token(line.text));
    if (text::is_header(line.text)) {
      const bool is_first = headers.insert(token).second;
      section = is_first ? token : std::string();
      if (is_first) {
        values[token] = "is there";
        found.emplace_back(token, "");
      }
    } else if (!token.empty()) {
      found.emplace_back(token, text::entry_value(line.text));
      if (!section.empty()) {
        values.emplace(section + token, found.back().second);
      }
    }
  }
  Values behind;
  std::for_each(found.rbegin(), found.rend(), [&](const auto& entry) {
    if (!headers.contains(entry.first)) {
      behind[entry.first] = entry.second;
      return;
    }
    for (const auto& [key, value] : behind) {
      values[entry.first + key + " or behind"] = value;
    }
  });
  return values;
}

std::string found_in(const Values& values, const std::string& name) {
  const auto found = values.find(name);
  return found != values.end() ? found->second : "(absent)";
}

struct Kind {
  bool padded;
  std::string line_break;
  std::size_t padding;
};

// There is a text in between only where the last line has its line break, behind which may be
// padding.
bool ends_in_line_break(const std::string& bytes) {
  const std::size_t last = bytes.find_last_not_of(' ');
  return last != std::string::npos && bytes[last] == '\n';
}

class PageSteps : public testing::TestWithParam<Kind> {};

std::string key_of(std::mt19937& random) { return "Key" + std::to_string(random() % 40); }

std::string file_of(std::mt19937& random, const Kind& kind, std::size_t size) {
  std::string text;
  for (int section = 1; text.size() < size; ++section) {
    text += kind.line_break + "[Flow-" + std::to_string(section) + "]" + kind.line_break;
    for (auto count = random() % 30; count > 0; --count) {
      if (random() % 16 == 0) {
        text += (random() % 2 == 0 ? "Remark of   somebody" : "  = nobody's") + kind.line_break;
      }
      const std::string key = key_of(random);
      const std::string value(1 + random() % 12, static_cast<char>('a' + random() % 26));
      text += (kind.padded ? text::padded_entry(key, value) : text::plain_entry(key, value)) +
              kind.line_break;
    }
  }
  return text + std::string(kind.padding, ' ');
}

TEST_P(PageSteps, LeaveEveryEntryOldOrNewAfterEveryPage) {
  std::mt19937 random(static_cast<unsigned>(GetParam().padding + GetParam().line_break.size()));
  const int rounds = std::getenv("QELPRO_LOAD") != nullptr ? 3000 : 60;
  int stops = 0;
  for (int round = 0; round < rounds; ++round) {
    const std::string old = file_of(random, GetParam(), 1000 + random() % 20000);
    const std::string section = "[Flow-" + std::to_string(1 + random() % 20) + "]";
    const std::string key = key_of(random);
    const std::string value(1 + random() % 14, '#');
    StoppingFile file(old);
    Store store(file);
    const Entry entry{{section, key}, value};
    const bool drops_padding = random() % 4 == 0;
    const Result result = drops_padding ? store.replace(entry) : store.set(entry, true);
    ASSERT_EQ(result, Result::done);
    const std::size_t end = file.bytes().find_last_not_of(' ') + 1;
    ASSERT_EQ(file.bytes().size(), drops_padding ? end : std::max(old.size(), end)) << round;
    const Values before = values_in(old);
    const Values after = values_in(file.bytes());
    Values all = before;
    all.insert(after.begin(), after.end());
    bool is_whole = true;
    for (const std::string& state : file.states()) {
      ++stops;
      EXPECT_TRUE(ends_in_line_break(state)) << "round " << round << ": the next store has no way";
      const Values values = values_in(state);
      all.insert(values.begin(), values.end());
      for (const auto& [name, unused] : all) {
        const std::string found = found_in(values, name);
        if (is_whole && found != found_in(before, name) && found != found_in(after, name)) {
          is_whole = false;
          EXPECT_TRUE(false) << "round " << round << ": " << name << " is " << found << ", was "
                             << found_in(before, name) << ", is to be " << found_in(after, name)
                             << "; store " << section << key << " = " << value << " of "
                             << file.states().size() << " stops";
        }
      }
    }
  }
  std::cout << "[ measured ] " << stops << " stops\n";
  EXPECT_GT(stops, rounds);
}

// Where the text's last page comes or goes, no page in front of it is left as the last one.
TEST(PageStepsOverTheEnd, LeaveAFileThatEndsInALineBreak) {
  constexpr std::size_t kLonger = 20;
  for (std::size_t size = 2 * kPageSize - kLonger; size <= 2 * kPageSize + kLonger; ++size) {
    std::string old = "[Flow-1]\n" + text::padded_entry("Key1", std::string(30, 'a')) + "\n";
    while (old.size() + 100 < size) {
      old += text::padded_entry("Key" + std::to_string(old.size()), "v") + "\n";
    }
    old += "Last=" + std::string(size - old.size() - 6, 'v') + "\n";
    for (const std::size_t length : {30 + kLonger, 30 - kLonger}) {
      for (const bool drops_padding : {false, true}) {
        StoppingFile file(old);
        Store store(file);
        const std::string value(length, '#');
        const Entry entry{{"[Flow-1]", "Key1"}, value};
        ASSERT_EQ(drops_padding ? store.replace(entry) : store.set(entry, true), Result::done);
        EXPECT_GT(file.states().size(), 3U) << size << ": in one write";
        for (const std::string& state : file.states()) {
          EXPECT_TRUE(ends_in_line_break(state)) << size << " bytes, a value of " << length;
          const Values values = values_in(state);
          EXPECT_TRUE(found_in(values, "[Flow-1]Key1") == value ||
                      found_in(values, "[Flow-1]Key1") == std::string(30, 'a'));
          EXPECT_EQ(found_in(values, "[Flow-1]Last"), found_in(values_in(old), "[Flow-1]Last"));
        }
      }
    }
  }
}

// A line of blanks would be one more line of a section whose lines have a position.
TEST(PageStepsOverTheEnd, PutNoLineBehindASectionOfPositions) {
  const auto steps_before = [](const std::string& header) {
    const std::string first = text::padded_entry("Key1", "a") + "\n";
    std::string contents = "[Flow-1]\n" + first;
    while (contents.size() + 100 < kPageSize) {
      contents += text::padded_entry("Key" + std::to_string(contents.size()), "v") + "\n";
    }
    const std::string last = header + "\n1 2\n";
    contents += "Last=" + std::string(kPageSize - contents.size() - 6 - last.size(), 'v') + "\n";
    contents += last;
    const std::string longer = text::padded_entry("Key1", std::string(90, 'a')) + "\n";
    const std::size_t begin = contents.find("Key1");
    return page_steps({contents, begin, begin + first.size(), longer}).texts;
  };
  const auto has_room = [](const std::string& text) { return text.ends_with(" \n"); };
  const auto other = steps_before("[Flow-2]");
  EXPECT_EQ(std::ranges::count_if(other, has_room), 1);
  const auto positions = steps_before(std::string(text::kPositionalHeader));
  EXPECT_FALSE(positions.empty());
  EXPECT_EQ(std::ranges::count_if(positions, has_room), 0);
}

INSTANTIATE_TEST_SUITE_P(Files, PageSteps,
                         testing::Values(Kind{true, "\n", 0}, Kind{true, "\r\n", 0},
                                         Kind{true, "\n", 100}));

}  // namespace
}  // namespace qel
