#pragma once

#include "blocks/encoding.h"

/// Encodings with a name among their fields. A name that is read stands in a buffer of the thread,
/// one for each of these encodings, until the next reading of the same kind; it is cut at 255
/// characters. Names are written as they are given, also those that do not read back: one with
/// blanks where the reading takes one word, an empty one among fields that blanks separate.
namespace qel {

/// "%lf %lf %lf %lf %d %s %lf %d", written with tabs. Clears its outputs, the name to null; the
/// name is one word.
struct CoolantLine {
  static constexpr const char* kName = "coolant (four reals, integer, word, real, integer)";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, double, double, double, int, char*, double, int>;
  static constexpr Argument kArguments[] = {
      {"p1", "the four properties"},    {"p2", "the four properties"},
      {"p3", "the four properties"},    {"p4", "the four properties"},
      {"system", "the coolant system"}, {"name", "the name"},
      {"f7", "the diameter"},           {"f8", "the channel group"}};
  static constexpr const char* kReading = "What the text lacks is 0, the name null.";
  static constexpr const char* kWriting =
      "The name is written as it is given. One that is empty or holds a blank is stored, though "
      "the reader then yields one word, and wrong fields after it.";
  static void scan(const char* text, double& p1, double& p2, double& p3, double& p4, int& system,
                   char*& name, double& f7, int& f8);
  static std::string print(double p1, double p2, double p3, double p4, int system, const char* name,
                           double f7, int f8) {
    return fields::print("\t", p1, p2, p3, p4, system, name, f7, f8);
  }
};

/// Three reals, a name that may hold blanks, three reals. Clears its outputs.
///
/// With fewer than eight words the name is one word. Otherwise the outer words are the reals, and
/// the name reaches from the first place where its first word stands in the text to the last place
/// where its last word stands: a first word that also occurs in a number before it moves the name's
/// begin there.
struct MaterialLine {
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<double, double, double, char*, double, double, double>;
  static constexpr Argument kArguments[] = {
      {"f1", "three reals"}, {"f2", "three reals"}, {"f3", "three reals"}, {"name", "the name"},
      {"f5", "three reals"}, {"f6", "three reals"}, {"f7", "three reals"}};
  static constexpr const char* kReading =
      "A line of fewer than eight words has a name of one word. What the text lacks is 0.";
  static constexpr const char* kWriting =
      "The name is written as it is given. An empty one is stored, though the reader then takes a "
      "number for it.";
  static std::string print(double f1, double f2, double f3, const char* name, double f5, double f6,
                           double f7) {
    return fields::print("\t", f1, f2, f3, name, f5, f6, f7);
  }
};
struct MoldbaseLine : MaterialLine {
  static constexpr const char* kName = "mold base (three reals, name, three reals)";
  static void scan(const char* text, double& f1, double& f2, double& f3, char*& name, double& f5,
                   double& f6, double& f7);
};
struct MoldMetalLine : MaterialLine {
  static constexpr const char* kName = "mold metal (three reals, name, three reals)";
  static void scan(const char* text, double& f1, double& f2, double& f3, char*& name, double& f5,
                   double& f6, double& f7);
};

/// "%d" and the text between the first and the last double quote, written "%d\t\"%s\"". Clears its
/// outputs.
struct IntegerAndQuotedName {
  static constexpr const char* kName = "integer and name in double quotes";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<int, char*>;
  static constexpr Argument kArguments[] = {{"number", "the integer"}, {"name", "the name"}};
  static constexpr const char* kReading =
      "The name is all between the first and the last double quote. What the text lacks is 0.";
  static constexpr const char* kWriting = "The name is put in double quotes.";
  static void scan(const char* text, int& number, char*& name);
  static std::string print(int number, const char* name) {
    return fields::print_one(number) + "\t\"" + name + "\"";
  }
};

/// "%d %s %lf", written with tabs. Clears its outputs. A name with blanks yields its first word,
/// and no temperature; an empty one between two tabs, before a number, yields an empty text, and so
/// does one before an empty temperature and a number.
struct InsertLine {
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<int, char*, double>;
  static constexpr Argument kArguments[] = {
      {"id", "the identifier"}, {"name", "the name"}, {"temperature", "the temperature"}};
  static constexpr const char* kReading =
      "Of a name with blanks it hands out the first word, and the temperature is 0. A name that is "
      "empty between two tabs is an empty text. What the text lacks is 0.";
  static constexpr const char* kWriting =
      "The name is written whole, blanks and all, and may be empty. The reader's form of four "
      "outputs gives its words back, one blank between them, where the temperature without its "
      "fraction is above `insert`; otherwise it takes the temperature for the fourth field, and "
      "the name's last word for the temperature. The other form gives the first word back, and of "
      "a name with blanks no temperature. An empty name reads back empty.";
  static std::string print(int id, const char* name, double temperature) {
    return fields::print("\t", id, name, temperature);
  }
};
struct PartInsertLine : InsertLine {
  static constexpr const char* kName = "part insert (integer, word, real)";
  static void scan(const char* text, int& id, char*& name, double& temperature);
};
struct MoldInsertLine : InsertLine {
  static constexpr const char* kName = "mold insert (integer, word, real)";
  static void scan(const char* text, int& id, char*& name, double& temperature);
};

/// Identifier, name with blanks, temperature and an optional integer. Clears its outputs, the name
/// to null.
///
/// Four pieces between single tabs are the four fields, whatever is empty: an empty name is an
/// empty text. Three of which the second is empty and the third a number are the fields of an
/// insert without a name; the fourth field is the insert's number then. Otherwise tabs in a row
/// count as one, and four pieces are the four fields again. Otherwise words count: the last one is
/// the fourth field where it is an integer not above the insert's own number, and the temperature
/// where it is above; the fourth field is the insert's number then. A line whose last word is no
/// integer gives its words as the name, and nothing else.
struct InsertLineOfFour {
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<int, char*, double, int>;
  static constexpr Argument kArguments[] = {{"id", "the identifier"},
                                            {"name", "the name"},
                                            {"temperature", "the temperature"},
                                            {"fourth", "the fourth field"}};
  static constexpr const char* kReading =
      "Four pieces between tabs are the four fields, whatever is empty; three of which the second "
      "is empty and the third a number leave out the fourth, which is `insert` then. Otherwise a "
      "last word that is an integer not above `insert` is the fourth field, and one above it the "
      "temperature; the fourth is `insert` then. What the text lacks is 0.";
};
struct PartInsertLineOfFour : InsertLineOfFour {
  static constexpr const char* kName = "part insert (integer, name, real, integer)";
  static void scan(const char* text, int insert, int& id, char*& name, double& temperature,
                   int& fourth);
};
struct MoldInsertLineOfFour : InsertLineOfFour {
  static constexpr const char* kName = "mold insert (integer, name, real, integer)";
  static void scan(const char* text, int insert, int& id, char*& name, double& temperature,
                   int& fourth);
};

/// The name between the first two double quotes and the angle after it, written "\"%s\"\t%g". A
/// text without two quotes holds neither.
struct ContactAngle {
  static constexpr const char* kName = "name in double quotes and angle";
  static constexpr std::size_t kLimit = kCompoundLimit;
  using Values = std::tuple<std::string, double>;
  static constexpr Argument kArguments[] = {{"name", "the name"}, {"angle", "the angle"}};
  static bool scan(const char* text, std::string& name, double& angle);
  static std::string print(const char* name, double angle) {
    return std::string("\"") + name + "\"\t" + fields::print_one(angle);
  }
};

}  // namespace qel
