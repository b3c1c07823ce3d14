#include "blocks/name_encoding.h"

#include <cstring>
#include <string_view>

#include "blocks/words.h"
#include "text/thread_buffers.h"

namespace qel {
namespace {

// The tokens in front of and after the name, and the stretch of the text that is the name.
void scan_material(const char* text, NameBuffer& buffer, double& f1, double& f2, double& f3,
                   char*& name, double& f5, double& f6, double& f7) {
  fields::clear(f1, f2, f3, name, f5, f6, f7);
  const std::vector<std::string> words = split(text, " \t\n");
  const std::size_t count = words.size();
  if (count < 8) {
    std::string word;
    fields::scan(text, f1, f2, f3, word, f5, f6, f7);
    name = buffer.keep(word);
    return;
  }
  fields::scan(words[0].c_str(), f1);
  fields::scan(words[1].c_str(), f2);
  fields::scan(words[2].c_str(), f3);
  fields::scan(words[count - 3].c_str(), f5);
  fields::scan(words[count - 2].c_str(), f6);
  fields::scan(words[count - 1].c_str(), f7);
  const std::string_view whole(text);
  const std::string& last_word = words[count - 4];
  const std::size_t begin = whole.find(words[3]);
  const std::size_t end = whole.rfind(last_word) + last_word.size();
  name = buffer.keep(whole.substr(begin, end - begin));
}

constexpr std::size_t kInsertFields = 4;

bool is_blank(const std::string& piece) {
  return piece.find_first_not_of(' ') == std::string::npos;
}

// A number and no more, blanks around it aside.
bool is_number(const std::string& piece) {
  const char* at = piece.c_str();
  double number = 0;
  return fields::scan_one(at, number) && at[std::strspn(at, " ")] == '\0';
}

// Whether an insert's name was left out: nothing but blanks stands between two tabs, and the next
// piece is a temperature, or is left out as well before the fourth field. Where a word stands
// there, the tabs only align the fields.
bool has_no_name(const std::vector<std::string>& pieces) {
  if (pieces.size() < 3 || !is_blank(pieces[1])) {
    return false;
  }
  return is_number(pieces[2]) ||
         (pieces.size() == kInsertFields && is_blank(pieces[2]) && is_number(pieces[3]));
}

void scan_insert(const char* text, NameBuffer& buffer, int& id, char*& name, double& temperature) {
  fields::clear(id, temperature);
  std::string word;
  const std::vector<std::string> pieces = pieces_of(text, '\t');
  if (has_no_name(pieces)) {
    fields::scan(pieces[0].c_str(), id);
    fields::scan(pieces[2].c_str(), temperature);
  } else {
    fields::scan(text, id, word, temperature);
  }
  name = buffer.keep(word);
}

// The pieces between tabs where they are an insert's fields, none where the fields are words: all
// four, whatever is empty; without those the four that are not empty, the other tabs only aligning
// them; or three, where the name alone is left out.
std::vector<std::string> insert_pieces(const char* text) {
  std::vector<std::string> pieces = pieces_of(text, '\t');
  if (pieces.size() == kInsertFields ||
      (pieces.size() == kInsertFields - 1 && has_no_name(pieces))) {
    return pieces;
  }
  pieces = split(text, "\t");
  if (pieces.size() != kInsertFields) {
    pieces.clear();
  }
  return pieces;
}

void scan_insert_of_four(const char* text, NameBuffer& buffer, int insert, int& id, char*& name,
                         double& temperature, int& fourth) {
  fields::clear(id, name, temperature, fourth);
  const std::vector<std::string> pieces = insert_pieces(text);
  if (!pieces.empty()) {
    const bool has_fourth = pieces.size() == kInsertFields;
    fields::scan(pieces[0].c_str(), id);
    fields::scan(pieces[2].c_str(), temperature);
    if (has_fourth) {
      fields::scan(pieces[3].c_str(), fourth);
    } else {
      fourth = insert;
    }
    name = buffer.keep(has_fourth ? pieces[1] : std::string());
    return;
  }
  std::vector<std::string> words = split(text, " \t");
  if (!words.empty() && fields::scan(words.back().c_str(), fourth)) {
    if (fourth > insert) {
      fourth = insert;
    } else {
      words.pop_back();
    }
    if (!words.empty()) {
      fields::scan(words.back().c_str(), temperature);
      words.pop_back();
    }
    if (!words.empty()) {
      fields::scan(words.front().c_str(), id);
      words.erase(words.begin());
    }
  }
  if (!words.empty()) {
    name = buffer.keep(join(words, " "));
  }
}

}  // namespace

void CoolantLine::scan(const char* text, double& p1, double& p2, double& p3, double& p4,
                       int& system, char*& name, double& f7, int& f8) {
  NameBuffer& buffer = thread_buffers().coolant;
  fields::clear(p1, p2, p3, p4, system, name, f7, f8);
  std::string word;
  fields::scan(text, p1, p2, p3, p4, system, word, f7, f8);
  if (!word.empty()) {
    name = buffer.keep(word);
  }
}

void MoldbaseLine::scan(const char* text, double& f1, double& f2, double& f3, char*& name,
                        double& f5, double& f6, double& f7) {
  NameBuffer& buffer = thread_buffers().moldbase;
  scan_material(text, buffer, f1, f2, f3, name, f5, f6, f7);
}

void MoldMetalLine::scan(const char* text, double& f1, double& f2, double& f3, char*& name,
                         double& f5, double& f6, double& f7) {
  NameBuffer& buffer = thread_buffers().mold_metal;
  scan_material(text, buffer, f1, f2, f3, name, f5, f6, f7);
}

void IntegerAndQuotedName::scan(const char* text, int& number, char*& name) {
  NameBuffer& buffer = thread_buffers().quoted;
  number = 0;
  fields::scan(text, number);
  const std::string_view whole(text);
  const std::size_t first = whole.find('"');
  const std::size_t last = whole.rfind('"');
  name =
      buffer.keep(first == last ? std::string_view{} : whole.substr(first + 1, last - first - 1));
}

void PartInsertLine::scan(const char* text, int& id, char*& name, double& temperature) {
  NameBuffer& buffer = thread_buffers().part_insert;
  scan_insert(text, buffer, id, name, temperature);
}

void MoldInsertLine::scan(const char* text, int& id, char*& name, double& temperature) {
  NameBuffer& buffer = thread_buffers().mold_insert;
  scan_insert(text, buffer, id, name, temperature);
}

void PartInsertLineOfFour::scan(const char* text, int insert, int& id, char*& name,
                                double& temperature, int& fourth) {
  NameBuffer& buffer = thread_buffers().part_insert_of_four;
  scan_insert_of_four(text, buffer, insert, id, name, temperature, fourth);
}

void MoldInsertLineOfFour::scan(const char* text, int insert, int& id, char*& name,
                                double& temperature, int& fourth) {
  NameBuffer& buffer = thread_buffers().mold_insert_of_four;
  scan_insert_of_four(text, buffer, insert, id, name, temperature, fourth);
}

bool ContactAngle::scan(const char* text, std::string& name, double& angle) {
  const char* open = std::strchr(text, '"');
  const char* close = open != nullptr ? std::strchr(open + 1, '"') : nullptr;
  if (close == nullptr) {
    return false;
  }
  name.assign(open + 1, close);
  angle = platform::to_real(close + 1);
  return true;
}

}  // namespace qel
