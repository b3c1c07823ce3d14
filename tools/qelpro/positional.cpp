#include "positional.h"

#include <QELPROEngine/CQELPROReader_Manipulator.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include "blocks/catalogue.h"
#include "document_text.h"

using Json = nlohmann::ordered_json;

namespace {

Json line_of(const std::string& name, const char* meaning, Json values) {
  return {{"key", name}, {"known", true}, {"meaning", meaning}, {"values", std::move(values)}};
}

// How many lines of the section come before its first setting line, or before the next section.
int header_line_count(const std::string& file) {
  const std::string text = contents_of(file);
  int count = -1;
  for (const TextLine& line : lines_of(text)) {
    if (count >= 0 && (is_header(line.text) || line.text.find('=') != std::string_view::npos || line.text.empty())) {
      break;
    }
    if (count >= 0 || line.text == kPositionalSection) {
      ++count;
    }
  }
  return std::max(count, 0);
}

}  // namespace

Json positional_lines(const std::string& file) {
  int number = 0;
  const qel::SectionInfo* section = qel::find_section(kPositionalSection, number);
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen(file.c_str(), "rb"), &std::fclose);
  std::FILE* lent = stream.get();
  CQELPROReader_Manipulator reader;
  Json lines = Json::array();
  if (!reader.SetFilePtr(lent)) {
    return lines;
  }
  const int headers = header_line_count(file);
  std::vector<int> counts;
  for (int line = 1; line <= headers; ++line) {
    int first = 0;
    char* name = nullptr;
    int second = 0;
    if (!reader.MoldTemperatureBCX_ReadBC(first, name, second, line)) {
      break;
    }
    counts.push_back(first);
    lines.push_back(line_of("line " + std::to_string(line), section->keys[0]->meaning, {first, name != nullptr ? Json(name) : Json(), second}));
  }
  for (std::size_t index = 0; index < counts.size(); ++index) {
    const int condition = static_cast<int>(index) + 1;
    for (int setting = 1; setting <= counts[index]; ++setting) {
      double a = 0;
      double b = 0;
      if (!reader.MoldTemperatureBCX_ReadBCSetting(a, b, setting, condition, headers)) {
        return lines;
      }
      lines.push_back(line_of("condition " + std::to_string(condition) + ", setting " + std::to_string(setting), section->keys[1]->meaning, {a, b}));
    }
  }
  return lines;
}
