#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "blocks/catalogue.h"
#include "check/check.h"
#include "members/every_member.h"
#include "support/in_c_locale.h"
#include "support/scratch.h"

// Where no error is found, every member of the reader that gives typed values gives what stands in
// the file. The file is read here by rules of its own, written for this.

namespace qelpro_test {
namespace {

constexpr int kMostNumber = 3;

// The file as it stands: sections in brackets, "key = value", the first of each.
using Section = std::map<std::string, std::string>;
struct Plain {
  std::map<std::string, Section> sections;
  std::vector<std::string> positional;
};

std::string trimmed(const std::string& text, const char* blanks = " \t") {
  const std::size_t first = text.find_first_not_of(blanks);
  return first == std::string::npos ? ""
                                    : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

Plain plainly(const std::string& contents) {
  Plain plain;
  std::istringstream lines(contents);
  std::string name;
  for (std::string line; std::getline(lines, line);) {
    line = line.substr(0, line.find_last_not_of('\r') + 1);
    if (!line.empty() && line.front() == '[' && line.find(']') != std::string::npos) {
      const bool is_new = !plain.sections.contains(line.substr(0, line.find(']') + 1));
      name = is_new ? line.substr(0, line.find(']') + 1) : "";
      plain.sections[name];
      continue;
    }
    if (name.starts_with("[SURFACE")) {
      plain.positional.push_back(trimmed(line));
      continue;
    }
    const std::size_t equals = line.find('=');
    const std::string key = line.substr(0, line.find_first_of(" \t="));
    const bool is_comment =
        line.starts_with(";") || line.starts_with("#") || line.starts_with("//");
    if (!name.empty() && equals != std::string::npos && !key.empty() && !is_comment) {
      plain.sections[name].try_emplace(key, trimmed(line.substr(equals + 1)));
    }
  }
  return plain;
}

std::vector<std::string> words_of(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> words;
  for (std::string word; in >> word;) {
    words.push_back(word);
  }
  return words;
}

// The number that begins a word; what stands behind it only where `is_last`.
std::optional<Value> number_in(const std::string& word, char letter, bool is_last) {
  char* end = nullptr;
  const double real = in_c_locale([&] { return std::strtod(word.c_str(), &end); });
  const bool is_whole_word = *end == '\0';
  if (end == word.c_str() || (!is_whole_word && !is_last)) {
    return std::nullopt;
  }
  if (letter == 'd') {
    return Value(real);
  }
  const long long integer = std::strtoll(word.c_str(), &end, 10);
  if (end == word.c_str() || (is_whole_word && real != static_cast<double>(integer)) ||
      integer != static_cast<int>(integer)) {
    return std::nullopt;
  }
  return Value(static_cast<int>(integer));
}

using Values = std::optional<std::vector<Value>>;

Values numbers_in(const std::vector<std::string>& words, const std::string& letters) {
  std::vector<Value> values;
  for (std::size_t at = 0; at < letters.size(); ++at) {
    const auto value = at < words.size()
                           ? number_in(words[at], letters[at], at + 1 == letters.size())
                           : std::nullopt;
    if (!value) {
      return std::nullopt;
    }
    values.push_back(*value);
  }
  return values;
}

Values with_name(Values before, const std::string& name, const Values& behind) {
  if (!before || !behind) {
    return std::nullopt;
  }
  before->emplace_back(name);
  before->insert(before->end(), behind->begin(), behind->end());
  return before;
}

std::vector<std::string> split(std::string text, char separator) {
  std::vector<std::string> pieces;
  std::istringstream in(text + separator);
  for (std::string piece; std::getline(in, piece, separator);) {
    pieces.push_back(piece);
  }
  return pieces;
}

// Numbers with any one character between them.
std::vector<std::string> sizes_in(const std::string& text) {
  std::vector<std::string> sizes;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789.+-eE", at), text.size());
    sizes.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return sizes;
}

// What the outputs of an encoding are to be; nothing where the text does not hold them all.
Values values_in(const std::string& text, const std::string& encoding, const std::string& outputs) {
  const std::vector<std::string> words = words_of(text);
  const auto has = [&](const char* begin) { return encoding.starts_with(begin); };
  if (encoding == "text") {
    return std::vector<Value>{text};
  }
  if (has("pair of sizes") || has("triple of sizes")) {
    return numbers_in(sizes_in(text), outputs);
  }
  if (has("integer, or a sum") && text.find('+', 1) != std::string::npos) {
    const auto both = numbers_in(split(text, '+'), "ii");
    return both ? Values(std::vector<Value>{std::get<int>((*both)[0]) + std::get<int>((*both)[1])})
                : std::nullopt;
  }
  if (has("gate control point")) {
    Values values = numbers_in(words, "dii");
    const int mode = values ? std::get<int>((*values)[2]) : 0;
    if (values && outputs.size() == 4) {
      if (mode == 1 || mode == 4) {
        values->emplace_back(-1);
      } else if (mode == 2 || mode == 3) {
        return numbers_in(words, outputs);
      } else {
        return std::nullopt;  // no mode: what stands there has no meaning
      }
    }
    return values;
  }
  if (has("coolant")) {
    return words.size() < 8
               ? std::nullopt
               : with_name(numbers_in({words.begin(), words.begin() + 5}, "ddddi"), words[5],
                           numbers_in({words.begin() + 6, words.end()}, "di"));
  }
  if (has("mold base") || has("mold metal")) {
    if (words.size() < 7) {
      return std::nullopt;
    }
    const std::size_t begin = text.find_first_not_of(
        " \t", text.find(words[2], text.find(words[1], words[0].size()) + words[1].size()) +
                   words[2].size());
    std::size_t end = text.size();
    for (int word = 0; word < 3; ++word) {
      end = text.find_last_not_of(" \t", text.find_last_of(" \t", end - 1)) + 1;
    }
    return with_name(numbers_in({words.begin(), words.begin() + 3}, "ddd"),
                     text.substr(begin, end - begin),
                     numbers_in({words.end() - 3, words.end()}, "ddd"));
  }
  if (has("integer and name in double quotes")) {
    const std::size_t open = text.find('"');
    const std::size_t close = text.rfind('"');
    return open == close ? std::nullopt
                         : with_name(numbers_in(words, "i"),
                                     text.substr(open + 1, close - open - 1), std::vector<Value>());
  }
  if (has("name in double quotes and angle")) {
    const std::vector<std::string> pieces = split(text, '"');
    return pieces.size() < 3 ? std::nullopt : numbers_in(words_of(pieces[2]), "d");
  }
  if (has("part insert") || has("mold insert")) {
    // Tabs tell the fields; without them they are words, which this leaves alone.
    const std::vector<std::string> pieces = split(text, '\t');
    if (pieces.size() != outputs.size() || (outputs.size() == 3 && words.size() != 3)) {
      return std::nullopt;
    }
    return with_name(numbers_in({pieces[0]}, "i"), pieces[1],
                     numbers_in({pieces.begin() + 2, pieces.end()}, outputs.substr(2)));
  }
  return numbers_in(words, outputs);
}

std::string with_number(std::string pattern, int number) {
  const std::size_t percent = pattern.find('%');
  if (percent == std::string::npos) {
    return pattern;
  }
  return pattern.replace(percent, pattern.find('d', percent) - percent + 1, std::to_string(number));
}

// Whether a member reads the other of two keys, by a setting elsewhere.
bool is_of_other_key(const Plain& plain, const std::string& member, const std::string& key) {
  const bool is_by_setting = member == "CoolChannelX_ReadControlPointSetting" ||
                             member == "MoldPreheat_CoolChannelX_ReadControlPointSetting";
  if (!is_by_setting) {
    return false;
  }
  const auto section = plain.sections.find(member.starts_with("Mold") ? "[MoldPreheat]" : "[Cool]");
  const auto type = section == plain.sections.end() ? Section::const_iterator()
                                                    : section->second.find("ControlType");
  const bool is_by_pressure = section != plain.sections.end() && type != section->second.end() &&
                              std::atoi(type->second.c_str()) == 1;
  return is_by_pressure != key.starts_with("TCPP");
}

// A member of the reader with the row that it serves.
struct Served {
  const qel::SectionInfo* section;
  const qel::KeyInfo* key;
  const ReaderMember* member;
};

std::string outputs_of(const ReaderMember& member) {
  std::string outputs;
  std::ranges::copy_if(member.arguments, std::back_inserter(outputs),
                       [](char letter) { return letter >= 'a'; });
  return outputs;
}

std::string letters_of(const qel::KeyInfo& key) {
  std::string letters;
  for (const qel::FieldArgument& field : key.encoding->read) {
    letters += field.kind == qel::Kind::integer ? 'i' : field.kind == qel::Kind::real ? 'd' : 't';
  }
  return letters;
}

std::vector<Served> served_rows() {
  std::vector<Served> rows;
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    for (const qel::KeyInfo& key : section->keys) {
      for (const ReaderMember& member : reader_members()) {
        const bool is_named = std::ranges::any_of(
            key.readers, [&](const char* name) { return name != nullptr && member.name == name; });
        const bool is_angle = member.name == "PartInsertContactAngle_ReadAngle" &&
                              member.arguments == "dI" && key.text == std::string("%d");
        if (is_named && (is_angle || outputs_of(member) == letters_of(key)) &&
            !section->keys[0].encoding->type.ends_with("PositionalHeader")) {
          rows.push_back({section, &key, &member});
        }
      }
    }
  }
  return rows;
}

bool has_several_encodings(const Served& row) {
  return std::ranges::count_if(row.section->keys, [&](const qel::KeyInfo& key) {
           return std::string_view(key.text) == row.key->text;
         }) > 1;
}

std::vector<Value> outputs_among(const ReaderMember& member, const std::vector<Value>& values) {
  std::vector<Value> outputs;
  for (std::size_t at = 0; at < values.size(); ++at) {
    if (member.arguments[at] >= 'a') {
      outputs.push_back(values[at]);
    }
  }
  return outputs;
}

// How many values were compared.
int compare(const Served& row, const Plain& plain, CQELPROReader_Manipulator& reader) {
  int compared = 0;
  for (const std::vector<int>& numbers : number_sets(*row.member, kMostNumber)) {
    const bool is_numbered_section = qel::is_numbered(row.section->name);
    const int point = numbers.empty() ? 0 : numbers.front();
    const std::string section =
        with_number(row.section->name, is_numbered_section ? numbers.back() : 0);
    const std::string key = with_number(row.key->text, point);
    if (is_of_other_key(plain, row.member->name, row.key->text)) {
      continue;
    }
    std::vector<Value> values = values_for(*row.member, numbers, "untouched");
    const bool done = row.member->read(reader, values);
    const auto in_section = plain.sections.find(section);
    if (in_section == plain.sections.end() || !in_section->second.contains(key)) {
      EXPECT_FALSE(done) << row.member->name << " " << section << " " << key;
      continue;
    }
    const std::string& text = in_section->second.at(key);
    const Values expected = values_in(text, row.key->encoding->name, outputs_of(*row.member));
    const bool is_size =
        std::string_view(row.key->encoding->name).find("of sizes") != std::string_view::npos &&
        text.find_first_of("0123456789") == 0;
    if (!expected && has_several_encodings(row) && !is_size) {
      continue;  // another member reads it
    }
    ++compared;
    EXPECT_TRUE(done) << row.member->name << " " << section << " " << key;
    EXPECT_TRUE(expected.has_value() ||
                std::string_view(row.key->encoding->name).starts_with("gate"))
        << section << " " << key << " = " << text;
    if (expected) {
      EXPECT_EQ(outputs_among(*row.member, values), *expected)
          << row.member->name << " " << section << " " << key << " = " << text;
    }
  }
  return compared;
}

// Header lines up to the first line with a "=" behind a number, then the settings of each.
int compare_positional(const Plain& plain, const std::string& path) {
  CQELPROReader_Manipulator reader;
  if (plain.positional.empty() || !reader.SetFilePath(path.c_str())) {
    return 0;
  }
  std::vector<std::string> headers;
  for (const std::string& line : plain.positional) {
    if (line.empty() || line.find('=') != std::string::npos) {
      break;
    }
    headers.push_back(line);
  }
  int compared = 0;
  std::size_t at = headers.size();
  for (std::size_t condition = 1; condition <= headers.size(); ++condition) {
    const int count = std::atoi(headers[condition - 1].c_str());
    for (int setting = 1; setting <= count; ++setting, ++at) {
      double a = -1;
      double b = -1;
      if (at >= plain.positional.size()) {
        ADD_FAILURE() << "settings are missing";
        return compared;
      }
      const std::string& line = plain.positional[at];
      // A fresh one: a line that was found by its position is found again by any.
      CQELPROReader_Manipulator one;
      EXPECT_TRUE(one.SetFilePath(path.c_str()));
      EXPECT_TRUE(one.MoldTemperatureBCX_ReadBCSetting(a, b, setting, static_cast<int>(condition),
                                                       static_cast<int>(headers.size())))
          << line;
      const Values expected = numbers_in(words_of(line.substr(line.find('=') + 1)), "dd");
      EXPECT_EQ(expected, Values(std::vector<Value>{a, b})) << line;
      ++compared;
    }
  }
  return compared;
}

class Mutation {
 public:
  Mutation(unsigned int seed, std::vector<std::string> lines)
      : random_(seed), lines_(std::move(lines)) {}

  std::string contents() {
    const int changes = 1 + pick(6);
    for (int change = 0; change < changes; ++change) {
      make_one();
    }
    std::string contents;
    for (const std::string& line : lines_) {
      contents += line + "\n";
    }
    return contents;
  }

 private:
  int pick(std::size_t count) {
    return static_cast<int>(std::uniform_int_distribution<std::size_t>(0, count - 1)(random_));
  }
  std::string& any_line() { return lines_[static_cast<std::size_t>(pick(lines_.size()))]; }

  static const std::vector<std::string>& values() {
    static const std::vector<std::string> all = {"1",
                                                 "-3",
                                                 "0",
                                                 "1.5",
                                                 "1,5",
                                                 "abc",
                                                 "",
                                                 "1.5abc",
                                                 "2.0",
                                                 "2.5",
                                                 "1e3",
                                                 "+4",
                                                 ".5",
                                                 "-.5e-3",
                                                 "nan",
                                                 "inf",
                                                 "1e999",
                                                 "5000000000",
                                                 "0 1",
                                                 "0\t1",
                                                 "0  \t 2 3",
                                                 "0,5 2",
                                                 "1;2",
                                                 "1 2 3 4 5",
                                                 "4+2",
                                                 "4+",
                                                 "500x600",
                                                 "500 x 600",
                                                 "5x6x7",
                                                 "500",
                                                 "1 2 3 Steel 4 5 6",
                                                 "1\t2\t3\tSteel P20 X\t4\t5\t6",
                                                 "1\t2\t31\t1 Steel X\t4\t5\t6",
                                                 "1 2 3 4 5 6 7 8 9",
                                                 "3 \"Base A\"",
                                                 "3 \"Base",
                                                 "\"Group\" 35",
                                                 "\"Group 35",
                                                 "3\tPin\t80",
                                                 "3\tPin A\t80\t1",
                                                 "3\tPin 7\t1",
                                                 "3\t\t80",
                                                 "3\tPin\t80\t1",
                                                 "1 2 3 4 1 Water 8 1",
                                                 "1 2 3 4 1 Hot Water 8 1",
                                                 "0 1 1",
                                                 "0 1 2",
                                                 "0 1 2 3",
                                                 "0 1 4 9",
                                                 "0 1 7",
                                                 "0 1 7 8",
                                                 "0.5 1 60 8 1",
                                                 "0.5 1 60 8",
                                                 "5000 (W/m^2.K)",
                                                 "8 1",
                                                 "8",
                                                 "8 x"};
    return all;
  }

  void make_one() {
    std::string& line = any_line();
    const std::size_t equals = line.find('=');
    switch (pick(14)) {
      case 0:
      case 1:
      case 2:
      case 3:
      case 4:
        if (equals != std::string::npos) {
          line = line.substr(0, equals + 2) +
                 values()[static_cast<std::size_t>(pick(values().size()))];
        }
        break;
      case 5:
        lines_.erase(lines_.begin() + pick(lines_.size()));
        break;
      case 6: {
        const std::string copy = line;
        lines_.insert(lines_.begin() + pick(lines_.size()), copy);
        break;
      }
      case 7:
        std::swap(line, any_line());
        break;
      case 8:
        line.insert(0, pick(2) == 0 ? " " : ";");
        break;
      case 9:
        if (!line.empty()) {
          line[static_cast<std::size_t>(pick(line.size()))] = "x1=[] \t."[pick(8)];
        }
        break;
      case 10:
        line += pick(2) == 0 ? "\r" : " behind";
        break;
      case 11:
        if (!line.empty()) {
          line.erase(static_cast<std::size_t>(pick(line.size())), 1);
        }
        break;
      case 12:
        line.resize(line.size() + (pick(8) == 0 ? 5000 : 0), 'y');
        break;
      default:
        line += pick(8) == 0 ? std::string(1, '\0') : "";
        break;
    }
  }

  std::mt19937 random_;
  std::vector<std::string> lines_;
};

std::vector<std::vector<std::string>> sound_files() {
  std::vector<std::vector<std::string>> files;
  for (const char* name : {"injection_two_inlets.pro", "transfer_molding_curing.pro",
                           "co_injection_type_8.pro", "../../docs/example.pro"}) {
    std::string contents = bytes_of(data_path(name));
    std::erase(contents, '\r');
    files.push_back(split(contents.substr(0, contents.size() - 1), '\n'));
  }
  return files;
}

TEST(CheckProperty, WithoutAnErrorEveryMemberReadsWhatStandsInTheFile) {
  const std::vector<Served> rows = served_rows();
  ASSERT_GT(rows.size(), 200U);
  const auto files = sound_files();
  const Scratch scratch;
  int sound = 0;
  int compared = 0;
  constexpr unsigned int kFiles = 400;
  for (unsigned int seed = 0; seed < kFiles && !testing::Test::HasFailure(); ++seed) {
    const std::string contents = Mutation(seed, files[seed % files.size()]).contents();
    const auto findings = qelpro::check_document("", qelpro::SectionedText(contents));
    if (std::ranges::any_of(findings, [](const qelpro::Finding& finding) {
          return finding.severity == qelpro::Severity::error;
        })) {
      continue;
    }
    SCOPED_TRACE("seed " + std::to_string(seed));
    ++sound;
    const Plain plain = plainly(contents);
    const std::string path = scratch.file(contents);
    CQELPROReader_Manipulator reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    for (const Served& row : rows) {
      compared += compare(row, plain, reader);
    }
    compared += compare_positional(plain, path);
  }
  EXPECT_GT(sound, 50);
  EXPECT_GT(compared, 10000);
}

}  // namespace
}  // namespace qelpro_test
