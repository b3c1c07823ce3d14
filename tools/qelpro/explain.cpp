#include "file/explain.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "commands.h"
#include "json/json_text.h"
#include "output.h"
#include "system/failure.h"

namespace qelpro {

namespace {

constexpr std::size_t kWidth = 80;

// Words in lines of that width. The first line begins at a column that is taken up to there by what
// stands in front of it; the others are indented to it.
class Column {
 public:
  explicit Column(std::size_t begin) : begin_(begin) {}

  void put(std::string_view name, std::string_view text) const {
    std::string line(name);
    if (line.size() + 1 > begin_ && !line.empty()) {
      answer() << line << '\n';
      line.clear();
    }
    line.resize(begin_, ' ');
    bool has_word = false;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = std::min(text.find(' ', at), text.size());
      const std::string_view word = text.substr(at, end - at);
      at = end + 1;
      if (has_word && line.size() + 1 + word.size() > kWidth) {
        answer() << line << '\n';
        line.assign(begin_, ' ');
        has_word = false;
      }
      line += (has_word ? " " : "") + std::string(word);
      has_word = true;
    }
    answer() << line << '\n';
  }

 private:
  std::size_t begin_;
};

// The column behind names of these lengths; longer ones have a line of their own.
std::size_t column_behind(const Json& list, const char* name, std::size_t indent) {
  constexpr std::size_t kMost = 28;
  std::size_t column = 0;
  for (const Json& item : list) {
    const std::size_t length = item[name].get_ref<const std::string&>().size() + indent + 2;
    column = length <= kMost ? std::max(column, length) : column;
  }
  return std::max<std::size_t>(column, indent + 2);
}

void print_sections(const Json& sections) {
  const Column column(column_behind(sections, "section", 0));
  for (const Json& section : sections) {
    column.put(plain_text(section["section"]), plain_text(section["subject"]));
  }
}

void print_head(const Json& section) {
  Column(0).put("", "[" + plain_text(section["section"]) + "]: " + plain_text(section["subject"]));
  if (section.contains("number")) {
    Column(0).put(
        "", "The number is that of " + plain_text(section["number"]["meaning"]) + ", from 1.");
  }
}

void print_keys(const Json& section) {
  answer() << '\n';
  const Column column(column_behind(section["keys"], "key", 2));
  for (const Json& key : section["keys"]) {
    column.put("  " + plain_text(key["key"]),
               plain_text(key["meaning"]) + " (" + plain_text(key["encoding"]) + ")");
  }
}

void print_fields(const char* name, const Json& fields) {
  const Column column(14);
  bool is_first = true;
  for (const Json& field : fields) {
    const std::string own = plain_text(field["name"]);
    const std::string words = plain_text(field["meaning"]);
    column.put(is_first ? "  " + std::string(name) : "",
               own + ": " + plain_text(field["kind"]) + (words == own ? "" : ", " + words));
    is_first = false;
  }
}

void print_list(const char* name, const Json& list) {
  const Column column(14);
  bool is_first = true;
  for (const Json& item : list) {
    column.put(is_first ? "  " + std::string(name) : "", plain_text(item));
    is_first = false;
  }
}

void print_codes(const Json& codes) {
  Json lines = Json::array();
  for (const Json& code : codes) {
    lines.push_back(plain_text(code["code"]) + " " + plain_text(code["meaning"]));
  }
  print_list("codes", lines);
}

// Under the name of their class.
void print_members(const Json& members) {
  const Column column(14);
  const Column indented(16);
  std::string last;
  for (const Json& member : members) {
    const std::string name = plain_text(member);
    const std::size_t colons = name.find("::");
    const std::string owner = name.substr(0, colons);
    if (owner != last) {
      column.put(last.empty() ? "  members" : "", owner);
      last = owner;
    }
    indented.put("", name.substr(colons + 2));
  }
}

void print_key(const Json& key) {
  const Column column(14);
  answer() << '\n' << plain_text(key["key"]) << '\n';
  Column(2).put("", plain_text(key["meaning"]));
  if (key.contains("unit")) {
    column.put("  unit", plain_text(key["unit"]));
  }
  column.put("  encoding", plain_text(key["encoding"]));
  print_fields("fields", key["fields"]);
  if (key.contains("written")) {
    print_fields("written as", key["written"]);
  }
  if (key.contains("codes")) {
    print_codes(key["codes"]);
  }
  if (key.contains("number")) {
    column.put("  number", plain_text(key["number"]["meaning"]) + ", from 1");
  }
  if (key.contains("counted_by")) {
    column.put("  counted by", plain_text(key["counted_by"]));
  }
  for (const char* const name : {"counts", "notes"}) {
    if (key.contains(name)) {
      print_list(name, key[name]);
    }
  }
  print_members(key["members"]);
}

}  // namespace

int run_explain(const ExplainArguments& arguments) {
  const Json sections = explain(arguments.words);
  if (arguments.json) {
    write_json(answer(), sections);
    answer() << '\n';
    return kDone;
  }
  if (arguments.words.empty()) {
    print_sections(sections);
    return kDone;
  }
  const Json& section = sections.front();
  print_head(section);
  if (asks_for_section(arguments.words)) {
    print_keys(section);
  } else {
    for (const Json& key : section["keys"]) {
      print_key(key);
    }
  }
  return kDone;
}

}  // namespace qelpro
