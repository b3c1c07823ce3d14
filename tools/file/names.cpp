#include "file/names.h"

#include <algorithm>
#include <string_view>

#include "file/address.h"
#include "system/failure.h"
#include "system/visible.h"
#include "text/sectioned_text.h"
#include "text/text.h"

namespace qelpro {

namespace text = qel::text;

namespace {

constexpr char kEndOfText = '\x1A';

void check_name(const std::string& kind, const std::string& name) {
  if (name.find('\0') != std::string::npos) {
    refuse_usage(kind + " " + in_quotes(name) + ": a name holds no character 0, where texts end");
  }
  if (name.find_first_of(" \t") != std::string::npos) {
    refuse_usage(kind + " " + in_quotes(name) + ": a name holds no blank and no tab");
  }
  if (name.find('=') != std::string::npos) {
    refuse_usage(kind + " " + in_quotes(name) + ": a name holds no \"=\"");
  }
  if (name.find_first_of("\r\n") != std::string::npos) {
    refuse_usage(kind + " " + in_quotes(name) + ": a name holds no line break");
  }
  if (name.find(kEndOfText) != std::string::npos) {
    refuse_usage(kind + " " + in_quotes(name) +
                 ": a name holds no character 0x1A, where other programs end the file");
  }
}

void check_value(const std::string& value) {
  if (value.find('\0') != std::string::npos) {
    refuse_usage("the value holds a character 0, where texts end");
  }
  if (value.find_first_of("\r\n") != std::string::npos) {
    refuse_usage("the value holds a line break: it is one line");
  }
  if (value.find(kEndOfText) != std::string::npos) {
    refuse_usage("the value holds a character 0x1A, where other programs end the file");
  }
}

void check_length(std::size_t length) {
  if (length + 1 > text::kLongestLine) {
    refuse_usage("line too long: it would have " + std::to_string(length + 1) +
                 " characters with its line break, of which the engine reads " +
                 std::to_string(text::kLongestLine));
  }
}

}  // namespace

std::string section_name(const std::string& argument) {
  const bool opened = !argument.empty() && argument.front() == '[';
  const bool closed = !argument.empty() && argument.back() == ']';
  if (argument.empty() || argument == "[]") {
    refuse_usage("section \"" + argument + "\": the name is empty");
  }
  if (opened != closed || argument == "[") {
    refuse_usage("section " + in_quotes(argument) + ": give both brackets, or none");
  }
  return opened ? argument : "[" + argument + "]";
}

std::string header_of(const std::string& section) {
  const std::string name = with_brackets(section);
  const std::string_view positional = text::first_token(text::kPositionalHeader).substr(1);
  return section == positional || qel::is_positional(name) ? std::string(text::kPositionalHeader)
                                                           : name;
}

void check_entry(const std::string& section, const std::string& key, const std::string& value) {
  check_name("section", section);
  if (key.empty()) {
    refuse_usage("the key is empty");
  }
  check_name("key", key);
  if (key.front() == '[') {
    refuse_usage("key " + in_quotes(key) + ": a key that begins with \"[\" reads as a section");
  }
  if (key.front() == ';' || key.front() == '#' || key.substr(0, 2) == "//") {
    refuse_usage("key " + in_quotes(key) + ": a line that begins so is a comment");
  }
  check_value(value);
  check_length(std::max(text::padded_entry(key, value).size(), section.size()));
}

void check_positional_line(const std::string& position, const std::string& line) {
  if (position_of(position) == 0) {
    refuse_usage("key " + in_quotes(position) +
                 ": its lines have a position and no key: #1, #2, ...");
  }
  check_value(line);
  if (text::index_value(line).empty()) {
    refuse_usage("a line that is empty is none: unset removes it");
  }
  if (text::is_header(line)) {
    refuse_usage("the line " + in_quotes(line) + " reads as a section");
  }
  check_length(line.size());
}

}  // namespace qelpro
