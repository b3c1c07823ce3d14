#include <algorithm>
#include <string>
#include <utility>

#include "compare/difference.h"
#include "system/visible.h"

namespace qelpro {
namespace {

using Kind = Difference::Kind;
using Of = Difference::Of;

// In one line, and fields apart by a blank.
std::string shown(const std::string& text) {
  std::string line = visible(text.substr(std::min(text.find_first_not_of(" \t"), text.size())),
                             Controls::line_breaks);
  std::ranges::replace(line, '\t', ' ');
  return line.empty() ? "\"\"" : line;
}

// Two that would look the same are shown with their tabs.
std::pair<std::string, std::string> shown(const std::string& before, const std::string& after) {
  std::pair<std::string, std::string> texts(shown(before), shown(after));
  if (texts.first == texts.second && before != after) {
    texts = {visible(before, Controls::all), visible(after, Controls::all)};
  }
  return texts;
}

}  // namespace

const char* word_of(Kind kind) {
  return kind == Kind::changed ? "changed" : kind == Kind::added ? "added" : "removed";
}

DifferenceText text_of(const Difference& difference) {
  const bool is_section = difference.of == Of::section;
  const std::string address = is_section
                                  ? with_brackets(difference.address.section)
                                  : visible(text_of(difference.address), Controls::line_breaks);
  switch (difference.kind) {
    case Kind::removed:
      return {"- " + address + (is_section ? "" : ": " + shown(difference.before)), "", "", "", ""};
    case Kind::added:
      return {"+ " + address + (is_section ? "" : ": " + shown(difference.after)), "", "", "", ""};
    case Kind::changed:
      break;
  }
  const auto [before, after] = shown(difference.before, difference.after);
  return {"~ " + address + ": ", before, " -> ", after,
          difference.remark.empty() ? "" : ", " + difference.remark};
}

std::string line_of(const Difference& difference) {
  const DifferenceText text = text_of(difference);
  return text.head + text.before + text.between + text.after + text.tail;
}

Json json_of(const Difference& difference) {
  Json json = {{"change", word_of(difference.kind)}, {"section", difference.address.section}};
  if (difference.of == Of::section) {
    return json;
  }
  json[difference.of == Of::profile ? "profile" : "key"] = difference.address.key;
  if (difference.typed_before) {
    json["before"] = *difference.typed_before;
  }
  if (difference.typed_after) {
    json["after"] = *difference.typed_after;
  }
  if (difference.largest) {
    json["largest_difference"] = difference.largest->difference;
    json["at"] = difference.largest->at;
  }
  return json;
}

}  // namespace qelpro
