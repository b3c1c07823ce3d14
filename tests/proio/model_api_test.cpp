#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "proio/support.h"
#include "support/line_break.h"

// The object against a second, naive reading of its text rules: the whole file in memory, cut into lines.

namespace qelpro_test {
namespace {

constexpr const char* kDate = "0000/00/00 00:00:00";

std::string with_plain_dates(const std::string& text) {
  static const std::regex date("[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}");
  return std::regex_replace(text, date, kDate);
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
  [[nodiscard]] std::optional<std::string> get(const std::string& section, const std::string& key) const {
    const auto [found, line] = find(section, key, 0);
    if (!line) {
      return std::nullopt;
    }
    const std::size_t equals = line->text.find('=');
    if (equals == std::string::npos) {
      return "";
    }
    const std::string behind = line->text.substr(equals + 1);
    return behind.substr(std::min(behind.find_first_not_of(' '), behind.size()));
  }
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  struct Line {
    std::size_t start;
    std::size_t end;
    std::string text;  // with its line feed
  };

  // Without the blanks behind the last line break.
  [[nodiscard]] std::size_t contents_end() const {
    const std::size_t last = text_.find_last_not_of(' ');
    return last != std::string::npos && text_[last] == '\n' ? last + 1 : text_.size();
  }

  [[nodiscard]] std::vector<Line> lines() const {
    std::vector<Line> all;
    const std::string contents = text_.substr(0, contents_end());
    for (std::size_t at = 0; at < contents.size();) {
      const std::size_t end = std::min({contents.find('\n', at), contents.size() - 1, at + 126}) + 1;
      all.push_back({at, end, contents.substr(at, end - at)});
      at = end;
    }
    return all;
  }

  static std::string leading_word(const std::string& line) { return line.substr(0, line.find_first_of("\t\n =")); }

  [[nodiscard]] std::pair<bool, std::optional<Line>> find(const std::string& section, const std::string& key, int position) const {
    bool found = false;
    int counter = 1;
    for (const Line& line : lines()) {
      if (!found) {
        found = leading_word(line.text) == section;
      } else if (position > 0 ? counter++ == position : leading_word(line.text) == key) {
        return {true, line};
      }
    }
    return {found, std::nullopt};
  }

  void write(const std::string& section, const std::string& key, int position, const std::string& line) {
    const std::size_t old_size = text_.size();
    const auto [found, old_line] = find(section, key, position);
    text_.resize(contents_end());
    if (old_line) {
      text_.replace(old_line->start, old_line->end - old_line->start, line);
    } else {
      if (!found) {
        text_ += "\n" + (position > 0 ? std::string("[SURFACE ELEMENT BOUNDARY CONDITION NAME]") : section) + "\n";
      } else if (text_.back() != '\n') {
        text_ += "\n";
      }
      text_ += line;
    }
    text_.resize(std::max(text_.size(), old_size), ' ');
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
                                          "Remark = no break"};
    std::string text;
    for (int i = pick(12); i > 0; --i) {
      text += kPieces[pick(17)];
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
      switch (walk.pick(6)) {
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
          std::string name(static_cast<std::size_t>(1 + walk.pick(20)), 'n');
          ASSERT_TRUE(object.SetBCCountName(line, 7, name.data()));
          model.set_line(line, "7\t" + name);
          break;
        }
        case 4: {
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
          ASSERT_EQ(time, expected && !expected->empty() && *expected != "\n" ? std::stod(*expected) : -1);
          found += done ? 1 : 0;
          break;
        }
      }
      ASSERT_EQ(with_plain_dates(bytes_of(path)), with_plain_dates(model.text())) << "after step " << step << " from " << contents;
    }
  }
  EXPECT_GT(found, 1000) << "the reads have something to find";
}

}  // namespace
}  // namespace qelpro_test
