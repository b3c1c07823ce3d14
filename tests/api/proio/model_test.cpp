#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/support.h"
#include "support/line_break.h"

// The object against a second, naive reading of its text rules: the whole file in memory, cut into
// lines.

namespace qelpro_test {
namespace {

constexpr const char* kDate = "0000/00/00 00:00:00";

std::string with_plain_dates(const std::string& text) {
  static const std::regex date("[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}");
  return std::regex_replace(text, date, kDate);
}

// -1 for a text that does not begin with a number, blanks apart.
int leading_number(const std::string& text) {
  static const std::regex number("[ \\t\n]*([+-]?[0-9]+)[^]*");
  std::smatch match;
  return std::regex_match(text, match, number) ? std::stoi(match[1]) : -1;
}

class Model {
 public:
  explicit Model(std::string contents) : text_(std::move(contents)) {}

  void set(const std::string& section, const std::string& key, const std::string& value) {
    write(section, key, 0, entry(key, value));
    write("[FileHeader]", "Date", 0, entry("Date", kDate));
  }
  void set_line(int position, const std::string& line) {
    write("[SURFACE", "", position, line + "\n");
    write("[FileHeader]", "Date", 0, entry("Date", kDate));
  }
  [[nodiscard]] std::optional<std::string> get(const std::string& section,
                                               const std::string& key) const {
    const auto [found, line] = find(section, key, 0);
    if (!line) {
      return std::nullopt;
    }
    const std::size_t equals = line->text.find('=');
    if (equals == std::string::npos) {
      return "";
    }
    const std::string after = line->text.substr(equals + 1);
    return after.substr(std::min(after.find_first_not_of(' '), after.size()));
  }
  [[nodiscard]] std::optional<std::string> line(int position) const {
    const auto found = find("[SURFACE", "", position).second;
    return found ? std::optional<std::string>(found->text) : std::nullopt;
  }
  // After the names of as many conditions as the summary tells, and the points of the conditions
  // before.
  [[nodiscard]] int line_of_point(int condition, int point, bool& named) const {
    named = after_header("[SURFACE", false).has_value();
    int position =
        std::max(leading_number(get("[Summary]", "TotalNodeBC").value_or("0")), 0) + point;
    for (int k = 1; k < condition; ++k) {
      const auto name = line(k);
      named = named && name;
      position += name ? std::max(leading_number(*name), 0) : 0;
    }
    return position;
  }
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  struct Line {
    std::size_t start;
    std::size_t end;
    std::string text;  // with its line feed
    bool begins;       // where a line begins, and no long one goes on
  };

  // Without the blanks after the last line break, and without what ends a file for other programs.
  [[nodiscard]] std::size_t contents_end() const {
    std::size_t end = text_.size();
    while (end > 0 && (text_[end - 1] == ' ' || text_[end - 1] == '\x1A')) {
      --end;
    }
    return end > 0 && text_[end - 1] == '\n' ? end
                                             : std::min(text_.find('\x1A', end), text_.size());
  }

  [[nodiscard]] std::vector<Line> lines() const {
    std::vector<Line> all;
    const std::string contents = text_.substr(0, contents_end());
    for (std::size_t at = 0; at < contents.size();) {
      const std::size_t end =
          std::min({contents.find('\n', at), contents.size() - 1, at + 126}) + 1;
      all.push_back({at, end, contents.substr(at, end - at), at == 0 || contents[at - 1] == '\n'});
      at = end;
    }
    return all;
  }

  static std::string leading_word(const std::string& line) {
    return line.substr(0, line.find_first_of("\t\n ="));
  }

  static bool begins_section(const Line& line) {
    static const std::regex word_in_brackets(R"(\[[^ \t=\n]*\](\n?|[ \t]+([^= \t][^]*)?))");
    static const std::regex all_in_brackets(R"(\[[^]*\][ \t]*\n?)");
    return line.begins &&
           (std::regex_match(line.text, word_in_brackets) ||
            std::regex_match(line.text, all_in_brackets) || leading_word(line.text) == "[SURFACE");
  }

  // The lines from after the section's header to the next header, or all of the file's where
  // `whole`; none without the section.
  [[nodiscard]] std::optional<std::vector<Line>> after_header(const std::string& section,
                                                              bool whole) const {
    std::vector<Line> all = lines();
    const auto header = std::find_if(all.begin(), all.end(), [&](const Line& line) {
      return leading_word(line.text) == section;
    });
    if (header == all.end()) {
      return std::nullopt;
    }
    return std::vector<Line>(
        header + 1, whole ? all.end() : std::find_if(header + 1, all.end(), begins_section));
  }

  [[nodiscard]] std::pair<bool, std::optional<Line>> find(const std::string& section,
                                                          const std::string& key,
                                                          int position) const {
    const auto after = after_header(section, position <= 0);
    if (!after) {
      return {false, std::nullopt};
    }
    int counter = 1;
    for (const Line& line : *after) {
      if (position > 0 ? counter++ == position : leading_word(line.text) == key) {
        return {true, line};
      }
    }
    return {true, std::nullopt};
  }

  // Where the section's lines end, the empty ones at its end left out where asked for.
  [[nodiscard]] std::size_t end_of(const std::string& section, bool without_empty_lines) const {
    std::vector<Line> all = *after_header(section, false);
    std::size_t end = all.empty() ? after_header(section, true)->empty()
                                        ? contents_end()
                                        : after_header(section, true)->front().start
                                  : all.back().end;
    for (; without_empty_lines && !all.empty() && all.back().begins &&
           all.back().text.find_first_not_of(" \t\n") == std::string::npos;
         all.pop_back()) {
      end = all.back().start;
    }
    return end;
  }

  void write(const std::string& section, const std::string& key, int position,
             const std::string& line) {
    const std::string old_text = text_;
    const std::size_t old_end = contents_end();
    const auto [found, old_line] = find(section, key, position);
    const std::string header =
        "\n" + (position > 0 ? std::string("[SURFACE ELEMENT BOUNDARY CONDITION NAME]") : section) +
        "\n";
    const bool block_is_last =
        after_header("[SURFACE", false) && end_of("[SURFACE", false) == contents_end();
    std::size_t at = contents_end();
    std::size_t end = at;
    std::string written = line;
    if (old_line) {
      at = old_line->start;
      end = std::min(text_.find('\n', old_line->end - 1), contents_end() - 1) + 1;
    } else if (!found) {
      written = header + line;
    } else if (position > 0) {
      at = end = end_of(section, false);
    } else if (block_is_last && end_of(section, false) < at) {
      at = end = end_of(section, true);
    } else if (block_is_last) {
      written = header + line;
    }
    if (written == line && at > 0 && at == contents_end() && text_[at - 1] != '\n') {
      written = "\n" + line;
    }
    text_.resize(old_end);
    text_.replace(at, end - at, written);
    text_.resize(std::max(text_.size(), old_end), ' ');
    text_ += old_text.substr(std::min(text_.size(), old_text.size()));
  }

  std::string text_;
};

class Walk {
 public:
  explicit Walk(unsigned seed) : random_(seed) {}

  std::string contents() {
    static const char* const kPieces[] = {"[Flow-1]\n",
                                          "[Flow-2]\n",
                                          "[Machine]\n",
                                          "FillTime = 1\n",
                                          "FillTime=2\n",
                                          "Remark = any\n",
                                          "\n",
                                          "FR-1 = 1\t2\n",
                                          " FillTime = 3\n",
                                          "FillTime\n",
                                          "[FileHeader]\n",
                                          "Date = x\n",
                                          "x\n",
                                          "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n",
                                          "1\tTop\n",
                                          "     ",
                                          "Remark = no break",
                                          "[Flow-1] # first\n",
                                          "[Machine] = 5\n",
                                          "[A HEADER OF WORDS]\n",
                                          "[Last]\t\n",
                                          "[SURFACE\n",
                                          "\x1A"};
    std::string text;
    for (int i = pick(12); i > 0; --i) {
      text += kPieces[pick(static_cast<int>(std::size(kPieces)))];
      if (pick(15) == 0) {
        text += std::string(static_cast<std::size_t>(pick(300)), 'y') + "\n";
      }
    }
    // A file without a line break gets the platform's own, and the model knows but one.
    return text.find('\n') == std::string::npos && native("\n") != "\n" ? "\n" + text : text;
  }

  int pick(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

 private:
  std::mt19937 random_;
};

TEST(SelfContainedObject, AgreesWithANaiveModel) {
  const Scratch scratch;
  int found = 0;
  for (unsigned sequence = 0; sequence < 3000; ++sequence) {
    SCOPED_TRACE(sequence);
    Walk walk(sequence);
    const std::string contents = walk.contents();
    std::string path = scratch.file(contents);
    Model model(contents);
    CPROIO_Manipulator object;
    object.SetFilePath(path.data());
    for (int step = 0; step < 8; ++step) {
      const int stage = 1 + walk.pick(2);
      const std::string flow = "[Flow-" + std::to_string(stage) + "]";
      switch (walk.pick(9)) {
        case 0: {
          const int time = walk.pick(100000);
          ASSERT_TRUE(object.SetFillTime(time / 8, stage));
          model.set(flow, "FillTime", std::to_string(time / 8));
          break;
        }
        case 1: {
          std::string remark(static_cast<std::size_t>(walk.pick(200)), 'r');
          ASSERT_TRUE(object.SetMachineRemark(remark.data()));
          model.set("[Machine]", "Remark", remark);
          break;
        }
        case 2: {
          const int point = 1 + walk.pick(3);
          ASSERT_TRUE(object.SetFRProfile(point, 1, 2, stage));
          model.set(flow, "FR-" + std::to_string(point), "1\t2");
          break;
        }
        case 3: {
          const int line = 1 + walk.pick(4);
          if (walk.pick(3) == 0) {
            int count = -1;
            char* read = nullptr;
            const auto expected = model.line(line);
            ASSERT_EQ(object.GetBCCountName(line, count, read), expected.has_value());
            ASSERT_EQ(count, expected ? leading_number(*expected) : -1);
            break;
          }
          std::string name(static_cast<std::size_t>(1 + walk.pick(20)), 'n');
          ASSERT_TRUE(object.SetBCCountName(line, 7, name.data()));
          model.set_line(line, "7\t" + name);
          break;
        }
        case 4: {
          const int count = walk.pick(3);
          ASSERT_TRUE(object.SetBoundaryConditionNo(count));
          model.set("[Summary]", "TotalNodeBC", std::to_string(count));
          break;
        }
        case 5: {
          const int condition = 1 + walk.pick(2);
          const int point = 1 + walk.pick(3);
          bool named = false;
          const int line = model.line_of_point(condition, point, named);
          ASSERT_TRUE(object.SetBCProfile(condition, point, 3, 4));
          model.set_line(line, std::to_string(point) + " = 3\t4");
          break;
        }
        case 6: {
          const int condition = 1 + walk.pick(2);
          const int point = 1 + walk.pick(3);
          bool named = false;
          const auto expected = model.line(model.line_of_point(condition, point, named));
          double x = -1;
          double y = -1;
          const bool done = object.GetBCProfile(condition, point, x, y);
          ASSERT_EQ(done, named && expected);
          if (done && expected->substr(1) == " = 3\t4\n") {
            ASSERT_EQ(x, 3);
            ASSERT_EQ(y, 4);
            ++found;
          }
          break;
        }
        case 7: {
          char* text = nullptr;
          const bool done = object.GetMachineRemark(text);
          const auto expected = model.get("[Machine]", "Remark");
          ASSERT_EQ(done, expected.has_value());
          if (done) {
            ASSERT_EQ(text, expected->substr(0, 127));
            ++found;
          }
          break;
        }
        default: {
          double time = -1;
          const bool done = object.GetFillTime(time, stage);
          const auto expected = model.get(flow, "FillTime");
          ASSERT_EQ(done, expected.has_value());
          ASSERT_EQ(time, expected && !expected->empty() && *expected != "\n" ? std::stod(*expected)
                                                                              : -1);
          found += done ? 1 : 0;
          break;
        }
      }
      ASSERT_EQ(with_plain_dates(bytes_of(path)), with_plain_dates(model.text()))
          << "after step " << step << " from " << contents;
    }
  }
  EXPECT_GT(found, 1000) << "the reads have something to find";
}

}  // namespace
}  // namespace qelpro_test
