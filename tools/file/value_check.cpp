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

using Complaint = std::optional<ValueFault>;

constexpr const char* kBlanks = " \t\n\v\f\r";
// What the encodings take for the end of a word.
constexpr const char* kWordBlanks = " \t\n";
// The names that are read stand in buffers of that size.
constexpr std::size_t kLongestName = 255;

Complaint not_read(std::string text) { return ValueFault{Fault::not_read, std::move(text)}; }

Complaint in_front(const std::string& where, Complaint complaint) {
  if (complaint) {
    complaint->text.insert(0, where);
  }
  return complaint;
}

Complaint name_of_length(std::size_t length) {
  return length <= kLongestName
             ? Complaint()
             : not_read("the name is longer than " + std::to_string(kLongestName) +
                        " characters, and its rest is not read");
}

bool is_digit(char character) { return character >= '0' && character <= '9'; }

/// Walks over the fields of a text as a scan format does.
class Fields {
 public:
  explicit Fields(std::string_view text) : text_(text), at_(text_.c_str()) {}

  Complaint integer() {
    std::int64_t wide = 0;
    int value = 0;
    const char* probe = at_;
    const bool is_apart = stands_apart();
    ++field_;
    if (!qel::platform::scan_int(at_, value)) {
      return missing("a whole number");
    }
    qel::platform::scan_int64(probe, wide);
    if (wide < std::numeric_limits<int>::min() || wide > std::numeric_limits<int>::max()) {
      return not_read("field " + std::to_string(field_) + " is a whole number beyond 32 bits");
    }
    last_ = value;
    last_field_ = 'd';
    return is_apart ? Complaint() : not_apart();
  }

  /// A number that is dropped, and may be missing.
  Complaint further_integer() {
    return at_[std::strspn(at_, kBlanks)] == '\0' ? Complaint() : integer();
  }

  Complaint real() {
    double value = 0;
    const bool is_apart = stands_apart();
    skip_blanks();
    const char* const begin = at_;
    ++field_;
    if (!qel::platform::scan_real(at_, value)) {
      return missing("a number");
    }
    const std::string_view read(begin, static_cast<std::size_t>(at_ - begin));
    if (std::isinf(value) && read.find_first_of("0123456789") != std::string_view::npos) {
      return ValueFault{Fault::too_large,
                        "field " + std::to_string(field_) + " is a number that is too large"};
    }
    if (!std::isfinite(value) && !infinite_) {
      infinite_ = ValueFault{Fault::not_finite, "field " + std::to_string(field_) + ", " +
                                                    in_quotes(read) + ", is no finite number"};
    }
    last_field_ = 'f';
    return is_apart ? Complaint() : not_apart();
  }

  /// A real of decimal digits: a "0" before an "x" is a number of its own.
  Complaint size() {
    skip_blanks();
    const char* digit = at_ + (*at_ == '-' || *at_ == '+' ? 1 : 0);
    if (digit[0] == '0' && (digit[1] == 'x' || digit[1] == 'X')) {
      ++field_;
      at_ = digit + 1;
      last_field_ = 's';
      return {};
    }
    return real();
  }

  Complaint word() {
    std::string value;
    const bool is_apart = stands_apart();
    ++field_;
    last_field_ = 'w';
    if (!qel::platform::scan_word(at_, value)) {
      return missing("a word");
    }
    return is_apart ? name_of_length(value.size()) : not_apart();
  }

  Complaint separator() {
    last_field_ = 'c';
    return *at_ != '\0' ? (++at_, Complaint())
                        : ValueFault{Fault::missing_field, "the separator is missing"};
  }

  Complaint equals() {
    skip_blanks();
    return *at_ == '=' ? separator() : lacking("the \"=\" is missing");
  }

  Complaint quotes() {
    ++field_;
    const char* const open = std::strchr(at_, '"');
    const char* const close = open != nullptr ? std::strchr(open + 1, '"') : nullptr;
    if (close == nullptr) {
      return lacking("the name between double quotes is missing");
    }
    at_ = close + 1;
    last_field_ = 'q';
    return name_of_length(static_cast<std::size_t>(close - open) - 1);
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
    const char* const after = at_;
    skip_blanks();
    if (*at_ == '\0') {
      return {};
    }
    const bool comma = *at_ == ',' && at_ != text_.c_str() && is_digit(at_[1]);
    const bool goes_on = at_ == after;
    Fault fault = Fault::text_behind;
    if (goes_on && comma && last_field_ != 'd') {
      fault = Fault::decimal_comma;
    } else if (goes_on && last_field_ == 'd' && (comma || is_other_number())) {
      fault = Fault::not_read;
    }
    return ValueFault{
        fault, in_quotes(at_) + " is not read" + (comma ? ": the decimal point is \".\"" : "")};
  }

  /// The first real that is none of finite size, though it is read.
  [[nodiscard]] const Complaint& infinite() const { return infinite_; }

 private:
  void skip_blanks() { at_ += std::strspn(at_, kBlanks); }

  // Whether a blank tells a number or word from the one before it. Without one they scan, too:
  // "4+2" as 4 and 2.
  [[nodiscard]] bool stands_apart() const {
    return last_field_ == '\0' || last_field_ == 'c' || last_field_ == 'q' ||
           std::strchr(kBlanks, *at_) != nullptr;
  }
  [[nodiscard]] Complaint not_apart() const {
    return not_read("no blank stands in front of field " + std::to_string(field_));
  }

  // What follows a whole number directly makes another number of it: ".5", "e3".
  [[nodiscard]] bool is_other_number() const {
    const bool has_fraction = *at_ == '.' && at_[1 + std::strspn(at_ + 1, "0")] != '\0' &&
                              is_digit(at_[1 + std::strspn(at_ + 1, "0")]);
    const bool has_exponent =
        (*at_ == 'e' || *at_ == 'E') &&
        is_digit(at_[1 + static_cast<std::size_t>(at_[1] == '+' || at_[1] == '-')]) &&
        is_digit(at_[1 + std::strspn(at_ + 1, "+-0")]);
    return has_fraction || has_exponent;
  }

  // A value of several fields lacks one of them, or a value of one is none.
  Complaint lacking(std::string text) const {
    return ValueFault{field_ <= 1 ? Fault::not_read : Fault::missing_field, std::move(text)};
  }

  Complaint missing(const std::string& what) {
    const bool comma = *at_ == ',' && is_digit(at_[1]) && last_field_ != 'd';
    skip_blanks();
    const std::string field = "field " + std::to_string(field_) + ", " + what + ", ";
    if (*at_ == '\0') {
      return lacking(field_ == 1 ? what + " is missing" : field + "is missing");
    }
    const std::string_view word(at_, std::strcspn(at_, kBlanks));
    return ValueFault{field_ > 1 && comma ? Fault::decimal_comma : Fault::not_read,
                      field + "does not begin with " + in_quotes(word) +
                          (field_ > 1 && comma ? ": the decimal point is \".\"" : "")};
  }

  std::string text_;
  const char* at_;
  int field_ = 0;
  int last_ = 0;
  char last_field_ = '\0';  // what was read last, as a letter of `read_field`
  Complaint infinite_;
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
  Complaint complaint = fields.end();
  return complaint ? complaint : fields.infinite();
}

// Where the name of a material is read: from the first place of its first word to the last place of
// its last one, wherever that is.
bool is_where_it_is_read(std::string_view text, std::string_view name) {
  const std::size_t first = std::min(name.find_first_of(kWordBlanks), name.size());
  const std::size_t last = name.find_last_of(kWordBlanks) + 1;
  return text.find(name.substr(0, first)) == static_cast<std::size_t>(name.data() - text.data()) &&
         text.rfind(name.substr(last)) ==
             static_cast<std::size_t>(name.data() - text.data()) + last;
}

// The text without so many words in front and behind.
std::string_view between_words(std::string_view text, int in_front, int behind) {
  const auto skip = [](std::size_t at, std::size_t none) {
    return at == std::string_view::npos ? none : at;
  };
  for (int word = 0; word < in_front; ++word) {
    text.remove_prefix(skip(text.find_first_not_of(kWordBlanks), text.size()));
    text.remove_prefix(skip(text.find_first_of(kWordBlanks), text.size()));
  }
  text.remove_prefix(skip(text.find_first_not_of(kWordBlanks), text.size()));
  for (int word = 0; word < behind; ++word) {
    text = text.substr(0, text.find_last_not_of(kWordBlanks) + 1);
    text = text.substr(0, text.find_last_of(kWordBlanks) + 1);
  }
  return text.substr(0, text.find_last_not_of(kWordBlanks) + 1);
}

// Three reals, a name of one or more words, three reals.
Complaint material(std::string_view text) {
  constexpr std::size_t kWordsWithOneName = 7;
  const std::vector<std::string> words = qel::split(text, kWordBlanks);
  if (words.size() <= kWordsWithOneName) {
    return read_fields(text, "fffwfff");
  }
  const std::size_t count = words.size();
  for (const std::size_t word :
       {std::size_t{0}, std::size_t{1}, std::size_t{2}, count - 3, count - 2, count - 1}) {
    if (Complaint complaint = read_fields(words[word], "f")) {
      return in_front("word " + std::to_string(word + 1) + ": ", std::move(complaint));
    }
  }
  const std::string_view name = between_words(text, 3, 3);
  return is_where_it_is_read(text, name)
             ? name_of_length(name.size())
             : not_read("a word of the name " + in_quotes(name) +
                        " occurs outside it too, and more than the name is read for it");
}

// An integer, a name of one or more words, an integer, which may be missing after a name of one
// word.
Complaint positional_header(std::string_view text) {
  const std::vector<std::string> words = qel::split(text, kWordBlanks);
  if (words.size() <= 3) {
    return read_fields(text, words.size() == 2 ? "dw" : "dwd");
  }
  if (Complaint complaint = read_fields(words.front(), "d")) {
    return in_front("the first word: ", std::move(complaint));
  }
  if (Complaint complaint = read_fields(words.back(), "d")) {
    return in_front("the last word: ", std::move(complaint));
  }
  return name_of_length(between_words(text, 1, 1).size());
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

Complaint insert_in_pieces(const std::vector<std::string>& pieces) {
  for (const auto& [piece, kind] : {std::pair(0, "d"), std::pair(2, "f"), std::pair(3, "d")}) {
    if (Complaint complaint = read_fields(pieces[static_cast<std::size_t>(piece)], kind)) {
      return in_front("piece " + std::to_string(piece + 1) + " between tabs: ",
                      std::move(complaint));
    }
  }
  return name_of_length(pieces[1].size());
}

// The last word is the integer or, above the insert's number, the real. Only its digits in front
// count.
Complaint insert_in_words(std::vector<std::string> words, int insert, bool has_temperature_last) {
  if (words.size() < 3) {
    return ValueFault{Fault::missing_field, "fields are missing"};
  }
  const char* last = words.back().c_str();
  int number = 0;
  if (!qel::platform::scan_int(last, number)) {
    return not_read("the last word, " + in_quotes(words.back()) +
                    ", begins with no digit, and all words are read as the name");
  }
  if (number <= insert) {
    if (has_temperature_last || *last != '\0') {
      return not_read("the last word, " + in_quotes(words.back()) +
                      ", is read as the fourth field: four pieces between tabs are read as they "
                      "stand");
    }
    words.pop_back();
  }
  if (Complaint complaint = read_fields(words.back(), "f")) {
    return in_front("the temperature: ", std::move(complaint));
  }
  if (Complaint complaint = read_fields(words.front(), "d")) {
    return in_front("the identifier: ", std::move(complaint));
  }
  std::size_t length = 0;
  for (std::size_t word = 1; word + 1 < words.size(); ++word) {
    length += words[word].size() + (word > 1 ? 1 : 0);
  }
  return name_of_length(length);
}

// Integer, name, real and integer between tabs; or words.
Complaint insert_of_four(std::string_view text, int insert) {
  constexpr std::size_t kPieces = 4;
  if (const std::vector<std::string> pieces = between_tabs(text); pieces.size() == kPieces) {
    return insert_in_pieces(pieces);
  }
  const std::vector<std::string> pieces = qel::split(text, "\t");
  return pieces.size() == kPieces
             ? insert_in_pieces(pieces)
             : insert_in_words(
                   qel::split(text, " \t"), insert,
                   pieces.size() == kPieces - 1 && qel::split(pieces.front(), " ").size() == 1);
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

std::optional<ValueFault> fault_of(const qel::KeyInfo& key, std::string_view text, int number) {
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

namespace {

std::optional<std::string> unread(Complaint complaint) {
  return complaint && complaint->fault != Fault::not_finite
             ? std::optional(std::move(complaint->text))
             : std::nullopt;
}

}  // namespace

std::optional<std::string> unread_part(const qel::KeyInfo& key, std::string_view text, int number) {
  return unread(fault_of(key, text, number));
}

bool read_plainly(const qel::KeyInfo& key, std::string_view text, std::vector<qel::Field>& fields) {
  constexpr std::size_t kLongest = 63;
  char copy[kLongest + 1];
  if (key.encoding->plain_fields == nullptr || text.size() > kLongest) {
    return false;
  }
  text.copy(copy, text.size());
  copy[text.size()] = '\0';
  return text.find('\0') == std::string_view::npos && key.encoding->plain_fields(copy, fields);
}

Reading reading_of(const qel::SectionInfo* section, std::string_view key, std::string_view text) {
  std::vector<qel::Field> fields;
  return reading_of(section, key, text, fields);
}

Reading reading_of(const qel::SectionInfo* section, std::string_view key, std::string_view text,
                   std::vector<qel::Field>& fields) {
  Reading reading;
  fields.clear();
  if (section == nullptr) {
    return reading;
  }
  reading.key = qel::find_key(*section, key, reading.number);
  if (reading.key == nullptr || read_plainly(*reading.key, text, fields)) {
    return reading;
  }
  fields.clear();
  reading.fault = fault_of(*reading.key, text, reading.number);
  const std::string_view pattern = reading.key->text;
  for (std::size_t index = 0; reading.fault && index < section->keys.size(); ++index) {
    const qel::KeyInfo& other = section->keys[index];
    if (pattern != other.text) {
      continue;
    }
    std::optional<ValueFault> fault = fault_of(other, text, reading.number);
    if (!fault) {
      reading.key = &other;
      reading.fault.reset();
    } else if (reading.fault->fault == Fault::text_behind && other.readers.front() != nullptr) {
      // What is behind one may be a field that another one misreads.
      reading.fault = std::move(fault);
    }
  }
  reading.unread = unread(reading.fault);
  return reading;
}

std::optional<std::string> unread_part_of_integer(std::string_view text) {
  return unread(read_fields(text, "d"));
}

std::optional<std::string> unread_part_of_real(std::string_view text) {
  return unread(read_fields(text, "f"));
}

}  // namespace qelpro
