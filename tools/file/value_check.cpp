#include "file/value_check.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include "blocks/catalogue.h"
#include "blocks/compound_encoding.h"
#include "blocks/name_encoding.h"
#include "blocks/positional_encoding.h"
#include "blocks/words.h"
#include "system/visible.h"

namespace qelpro {

namespace {

using Complaint = std::optional<std::string>;

constexpr const char* kBlanks = " \t\n\v\f\r";

/// Walks over the fields of a text as a scan format does.
class Fields {
 public:
  explicit Fields(std::string_view text) : text_(text), at_(text_.c_str()) {}

  Complaint integer() {
    std::int64_t wide = 0;
    int value = 0;
    const char* probe = at_;
    ++field_;
    if (!qel::platform::scan_int(at_, value)) {
      return missing("a whole number");
    }
    qel::platform::scan_int64(probe, wide);
    if (wide < std::numeric_limits<int>::min() || wide > std::numeric_limits<int>::max()) {
      return "field " + std::to_string(field_) + " is a whole number beyond 32 bits";
    }
    last_ = value;
    return {};
  }

  /// A number that is dropped, and may be missing.
  Complaint further_integer() {
    skip_blanks();
    return *at_ == '\0' ? Complaint() : integer();
  }

  Complaint real() {
    double value = 0;
    skip_blanks();
    const char* const begin = at_;
    ++field_;
    if (!qel::platform::scan_real(at_, value)) {
      return missing("a number");
    }
    if (std::isinf(value) && std::string_view(begin, static_cast<std::size_t>(at_ - begin))
                                     .find_first_of("0123456789") != std::string_view::npos) {
      return "field " + std::to_string(field_) + " is a number that is too large";
    }
    return {};
  }

  /// A real of decimal digits: a "0" before an "x" is a number of its own.
  Complaint size() {
    skip_blanks();
    const char* digit = at_ + (*at_ == '-' || *at_ == '+' ? 1 : 0);
    if (digit[0] == '0' && (digit[1] == 'x' || digit[1] == 'X')) {
      ++field_;
      at_ = digit + 1;
      return {};
    }
    return real();
  }

  Complaint word() {
    std::string value;
    ++field_;
    return qel::platform::scan_word(at_, value) ? Complaint() : missing("a word");
  }

  Complaint separator() {
    return *at_ != '\0' ? (++at_, Complaint()) : Complaint("the separator is missing");
  }

  Complaint equals() {
    skip_blanks();
    return *at_ == '=' ? separator() : Complaint("the \"=\" is missing");
  }

  Complaint quotes() {
    ++field_;
    const char* const open = std::strchr(at_, '"');
    const char* const close = open != nullptr ? std::strchr(open + 1, '"') : nullptr;
    if (close == nullptr) {
      return "the name between double quotes is missing";
    }
    at_ = close + 1;
    return {};
  }

  /// A text in parentheses, which is passed over on purpose.
  Complaint note() {
    skip_blanks();
    if (*at_ == '(') {
      at_ += std::strlen(at_);
    }
    return {};
  }

  /// The last number read is one of two.
  [[nodiscard]] bool last_is(int one, int other) const { return last_ == one || last_ == other; }

  Complaint end() {
    skip_blanks();
    if (*at_ == '\0') {
      return {};
    }
    const bool comma = *at_ == ',' && at_ != text_.c_str() && at_[1] >= '0' && at_[1] <= '9';
    return in_quotes(at_) + " is not read" + (comma ? ": the decimal point is \".\"" : "");
  }

 private:
  void skip_blanks() { at_ += std::strspn(at_, kBlanks); }

  Complaint missing(const std::string& what) {
    skip_blanks();
    const std::string field = "field " + std::to_string(field_) + ", " + what + ", ";
    if (*at_ == '\0') {
      return field_ == 1 ? what + " is missing" : field + "is missing";
    }
    return field + "does not begin with " +
           in_quotes(std::string_view(at_, std::strcspn(at_, kBlanks)));
  }

  std::string text_;
  const char* at_;
  int field_ = 0;
  int last_ = 0;
};

// What `Fields` reads for a letter.
Complaint read_field(Fields& fields, char kind) {
  switch (kind) {
    case 'd':
      return fields.integer();
    case 'o':
      return fields.further_integer();
    case 'f':
      return fields.real();
    case 's':
      return fields.size();
    case 'w':
      return fields.word();
    case 'c':
      return fields.separator();
    case 'e':
      return fields.equals();
    case 'q':
      return fields.quotes();
    case 'n':
      return fields.note();
    case 'g':  // the last integer of a gate's control point, which two modes have
      return fields.last_is(2, 3) ? fields.integer() : Complaint();
    default:
      return {};
  }
}

Complaint read_fields(std::string_view text, std::string_view kinds) {
  Fields fields(text);
  for (const char kind : kinds) {
    if (Complaint complaint = read_field(fields, kind)) {
      return complaint;
    }
  }
  return fields.end();
}

// Three reals, a name of one or more words, three reals.
Complaint material(std::string_view text) {
  constexpr std::size_t kWordsWithOneName = 7;
  const std::vector<std::string> words = qel::split(text, kBlanks);
  if (words.size() <= kWordsWithOneName) {
    return read_fields(text, "fffwfff");
  }
  const std::size_t count = words.size();
  for (const std::size_t word :
       {std::size_t{0}, std::size_t{1}, std::size_t{2}, count - 3, count - 2, count - 1}) {
    if (Complaint complaint = read_fields(words[word], "f")) {
      return "word " + std::to_string(word + 1) + ": " + *complaint;
    }
  }
  return {};
}

// An integer, a name of one or more words, an integer, which may be missing after a name of one
// word.
Complaint positional_header(std::string_view text) {
  const std::vector<std::string> words = qel::split(text, kBlanks);
  if (words.size() <= 3) {
    return read_fields(text, words.size() == 2 ? "dw" : "dwd");
  }
  if (Complaint complaint = read_fields(words.front(), "d")) {
    return "the first word: " + *complaint;
  }
  if (Complaint complaint = read_fields(words.back(), "d")) {
    return "the last word: " + *complaint;
  }
  return {};
}

std::vector<std::string> between_tabs(std::string_view text) {
  std::vector<std::string> pieces;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find('\t', begin), text.size());
    pieces.emplace_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return pieces;
}

// Integer, name and real. Where nothing but blanks stands between two tabs and a number after
// them, the name was left out.
Complaint insert_of_three(std::string_view text) {
  const std::vector<std::string> pieces = between_tabs(text);
  const bool has_no_name = pieces.size() >= 3 &&
                           pieces[1].find_first_not_of(' ') == std::string::npos &&
                           !read_fields(pieces[2], "f");
  return read_fields(text, has_no_name ? "df" : "dwf");
}

// Integer, name, real and integer between tabs; or words, the last of which is the integer or,
// above the insert's number, the real.
Complaint insert_of_four(std::string_view text, int insert) {
  const std::vector<std::string> pieces = between_tabs(text);
  constexpr std::size_t kPieces = 4;
  if (pieces.size() == kPieces) {
    for (const auto& [piece, kind] : {std::pair(0, "d"), std::pair(2, "f"), std::pair(3, "d")}) {
      if (Complaint complaint = read_fields(pieces[static_cast<std::size_t>(piece)], kind)) {
        return "piece " + std::to_string(piece + 1) + " between tabs: " + *complaint;
      }
    }
    return {};
  }
  std::vector<std::string> words = qel::split(text, " \t");
  if (words.size() < 3) {
    return "fields are missing";
  }
  if (const Complaint complaint = read_fields(words.back(), "d");
      !complaint && qel::platform::to_int(words.back().c_str()) <= insert) {
    words.pop_back();
  }
  if (const Complaint complaint = read_fields(words.back(), "f")) {
    return "the temperature: " + *complaint;
  }
  if (const Complaint complaint = read_fields(words.front(), "d")) {
    return "the identifier: " + *complaint;
  }
  return {};
}

// The fields of an encoding as letters of `read_field`; null where any text will do.
struct Row {
  std::string_view encoding;
  const char* kinds;
};
constexpr std::array kRows = {Row{qel::Text::kName, nullptr},
                              Row{qel::Integer::kName, "d"},
                              Row{qel::Real::kName, "f"},
                              Row{qel::IntegerPair::kName, "dd"},
                              Row{qel::FirstOfIntegerPair::kName, "do"},
                              Row{qel::RealPair::kName, "ff"},
                              Row{qel::RealTriple::kName, "fff"},
                              Row{qel::FourRealsAndInteger::kName, "ffffd"},
                              Row{qel::ControlPoint::kName, "fdffd"},
                              Row{qel::IntegerAndThreeReals::kName, "dfff"},
                              Row{qel::IntegerAndReal::kName, "df"},
                              Row{qel::SizePair::kName, "scs"},
                              Row{qel::SizeTriple::kName, "scscs"},
                              Row{qel::RealWithNote::kName, "fn"},
                              Row{qel::GatePoint::kName, "fddg"},
                              Row{qel::GatePointShort::kName, "fddg"},
                              Row{qel::CoolantLine::kName, "ffffdwfd"},
                              Row{qel::IntegerAndQuotedName::kName, "dq"},
                              Row{qel::ContactAngle::kName, "qf"},
                              Row{qel::PositionalSetting::kName, "deff"}};

bool is_material(std::string_view encoding) {
  return encoding == qel::MoldbaseLine::kName || encoding == qel::MoldMetalLine::kName;
}

bool is_insert_of_three(std::string_view encoding) {
  return encoding == qel::PartInsertLine::kName || encoding == qel::MoldInsertLine::kName;
}

bool is_insert_of_four(std::string_view encoding) {
  return encoding == qel::PartInsertLineOfFour::kName ||
         encoding == qel::MoldInsertLineOfFour::kName;
}

const Row* row_of(std::string_view encoding) {
  for (const Row& row : kRows) {
    if (row.encoding == encoding) {
      return &row;
    }
  }
  return nullptr;
}

}  // namespace

std::string_view fields_of_encoding(std::string_view encoding) {
  if (is_material(encoding)) {
    return "fffwfff";
  }
  if (is_insert_of_three(encoding)) {
    return "dwf";
  }
  if (is_insert_of_four(encoding)) {
    return "dwfd";
  }
  if (encoding == qel::PositionalHeader::kName) {
    return "dwd";
  }
  if (encoding == qel::ZoneCount::kName) {
    return "d";
  }
  const Row* row = row_of(encoding);
  return row != nullptr && row->kinds != nullptr ? row->kinds : "";
}

bool is_checked(std::string_view encoding) {
  return row_of(encoding) != nullptr || is_material(encoding) || is_insert_of_three(encoding) ||
         is_insert_of_four(encoding) || encoding == qel::ZoneCount::kName ||
         encoding == qel::PositionalHeader::kName;
}

std::optional<std::string> unread_part(const qel::KeyInfo& key, std::string_view text, int number) {
  const std::string_view encoding = key.encoding->name;
  if (is_material(encoding)) {
    return material(text);
  }
  if (is_insert_of_three(encoding)) {
    return insert_of_three(text);
  }
  if (is_insert_of_four(encoding)) {
    return insert_of_four(text, number);
  }
  if (encoding == qel::PositionalHeader::kName) {
    return positional_header(text);
  }
  if (encoding == qel::ZoneCount::kName) {
    return read_fields(text, text.find('+') != std::string_view::npos ? "dcd" : "d");
  }
  const Row* row = row_of(encoding);
  return row != nullptr && row->kinds != nullptr ? read_fields(text, row->kinds) : std::nullopt;
}

Reading reading_of(const qel::SectionInfo* section, std::string_view key, std::string_view text) {
  Reading reading;
  if (section == nullptr) {
    return reading;
  }
  reading.key = qel::find_key(*section, std::string(key).c_str(), reading.number);
  if (reading.key == nullptr) {
    return reading;
  }
  reading.unread = unread_part(*reading.key, text, reading.number);
  const std::string_view pattern = reading.key->text;
  for (std::size_t index = 0; reading.unread && index < section->keys.size(); ++index) {
    const qel::KeyInfo& other = section->keys[index];
    if (pattern == other.text && !unread_part(other, text, reading.number)) {
      reading.key = &other;
      reading.unread.reset();
    }
  }
  return reading;
}

std::optional<std::string> unread_part_of_integer(std::string_view text) {
  return read_fields(text, "d");
}

std::optional<std::string> unread_part_of_real(std::string_view text) {
  return read_fields(text, "f");
}

}  // namespace qelpro
