#include "support/naive_document.h"

#include <algorithm>
#include <vector>

#include "support/line_break.h"

namespace qelpro_test::naive {
namespace {

struct Line {
  std::size_t start = 0;
  std::size_t end = 0;
  std::string text;
};

// The lines from an offset on.
std::vector<Line> lines(const std::string& bytes, std::size_t from = 0);

// Behind a byte order mark.
std::size_t start_of_lines(const std::string& bytes) {
  return bytes.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
}

bool is_one_of(char c, const std::string& set) { return set.find(c) != std::string::npos; }

std::string strip_front(const std::string& text, const std::string& set) {
  const std::size_t at = text.find_first_not_of(set);
  return at == std::string::npos ? "" : text.substr(at);
}

std::string strip_back(const std::string& text, const std::string& set) {
  return text.substr(0, text.find_last_not_of(set) + 1);
}

std::string token_of(const std::string& line) {
  return line.substr(0, line.find_first_of(" \t=\n"));
}

// A line's value: as it is, or with everything up to the first "=" made blank.
std::string value_of(std::string line, bool by_key) {
  if (by_key) {
    bool seen = false;
    for (char& c : line) {
      const bool equals = c == '=';
      if (!seen) {
        c = ' ';
      }
      seen = seen || equals;
    }
    if (!seen) {
      return "";
    }
  }
  return strip_back(strip_front(line, " "), " \t\n");
}

// A last line without a line break: an end mark there is none of its text.
std::string without_mark(const std::string& last_line) {
  const std::string text = strip_back(last_line, " \x1A");
  return last_line.find('\x1A', text.size()) != std::string::npos ? text : last_line;
}

// What the file holds besides the blanks and end marks at its end.
std::string contents_of(const std::string& bytes) {
  return bytes.find('\n') == std::string::npos ? without_mark(bytes) : strip_back(bytes, " \x1A");
}

std::string line_break_of(const std::string& contents) {
  const std::size_t at = contents.find('\n');
  if (at == std::string::npos) {
    return native("\n");
  }
  return at > 0 && contents[at - 1] == '\r' ? "\r\n" : "\n";
}

bool is_name(const std::string& text) {
  return !text.empty() &&
         std::none_of(text.begin(), text.end(), [](char c) { return is_one_of(c, " \t=\r\n"); });
}

bool too_long(const std::string& line) { return line.size() + 1 > 4095; }

std::string padded(const std::string& key, const std::string& value) {
  std::string line = key;
  while (line.size() < 20) {
    line += ' ';
  }
  return line + " = " + value;
}

// Refusals that need no look at the file.
bool bad(const std::string& section, const std::string& key, const std::string& value, int index) {
  const bool by_key = index < 0;
  const std::string line = by_key ? key + " = " + value : value;
  const bool names_fit = by_key
                             ? is_name(key) && key[0] != '[' && is_name(section) &&
                                   section.size() > 1 && section[0] == '[' && section.back() == ']'
                             : is_name(section) && section[0] == '[';
  return !names_fit || too_long(section) || index == 0 ||
         value.find_first_of("\r\n\x1A") != std::string::npos ||
         key.find('\x1A') != std::string::npos || section.find('\x1A') != std::string::npos ||
         closes_a_section(line) || too_long(line);
}

// The file after a store: never shorter than it was. What stood after its contents stays, where
// they do not reach.
void put_back(std::string& bytes, std::string contents) {
  while (contents.size() < contents_of(bytes).size()) {
    contents += ' ';
  }
  bytes = contents + (contents.size() < bytes.size() ? bytes.substr(contents.size()) : "");
}

// Puts lines into the contents at an offset; after a last line without a line break, one is
// written first.
std::string with_lines(const std::string& contents, std::size_t at,
                       const std::vector<std::string>& added) {
  std::string text;
  if (at == contents.size() && !contents.empty() && contents.back() != '\n') {
    text += line_break_of(contents);
  }
  for (const std::string& line : added) {
    text += line + line_break_of(contents);
  }
  return contents.substr(0, at) + text + contents.substr(at);
}

std::string with_section(const std::string& contents, const std::string& header,
                         const std::string& line) {
  const std::string line_break = line_break_of(contents);
  return contents + line_break + header + line_break + line + line_break;
}

// The number of the line that a plain scan takes for the section's header; the number of lines
// where there is none.
std::size_t header_of(const std::vector<Line>& list, const std::string& section) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (!section.empty() && token_of(list[i].text) == section &&
        (section[0] != '[' || closes_a_section(list[i].text))) {
      return i;
    }
  }
  return list.size();
}

// Whether a line holds a value under the key when it is cut at "=" and carriage returns and its
// first piece is trimmed.
bool names_key(const std::string& line, const std::string& key) {
  std::vector<std::string> pieces;
  bool open = false;
  for (const char c : line) {
    if (is_one_of(c, "=\r\n")) {
      open = false;
    } else if (open) {
      pieces.back() += c;
    } else {
      pieces.emplace_back(1, c);
      open = true;
    }
  }
  return pieces.size() >= 2 && strip_back(strip_front(pieces[0], " "), " ") == key;
}

int insert_line(std::string& bytes, const std::string& section, const std::string& key,
                const std::string& line) {
  const std::string contents = contents_of(bytes);
  const std::vector<Line> list = lines(contents);
  const std::size_t header = header_of(list, section);
  if (header == list.size()) {
    if (!closes_a_section(section)) {
      return kRefused;
    }
    put_back(bytes, with_section(contents, section, line));
    return kDone;
  }
  std::size_t at = contents.size();
  for (std::size_t i = header + 1; i < list.size(); ++i) {
    if (closes_a_section(list[i].text) || names_key(list[i].text, key)) {
      at = list[i].start;
      break;
    }
  }
  put_back(bytes, with_lines(contents, at, {line}));
  return kDone;
}

std::vector<Line> lines(const std::string& bytes, std::size_t from) {
  std::vector<Line> list;
  std::size_t at = from == 0 ? start_of_lines(bytes) : from;
  bool in_long_line = false;
  while (at < bytes.size()) {
    if (!in_long_line && bytes.find_first_not_of(" \x1A", at) == std::string::npos) {
      break;
    }
    Line line;
    line.start = at;
    const std::size_t line_break = bytes.find('\n', at);
    const bool returns =
        line_break != std::string::npos && line_break > at && bytes[line_break - 1] == '\r';
    std::size_t text_end =
        line_break == std::string::npos ? bytes.size() : line_break - (returns ? 1 : 0);
    const bool ended = line_break != std::string::npos && text_end - at < 4095;
    if (!ended) {
      text_end = std::min(bytes.size(), at + 4095);
    }
    line.text = bytes.substr(at, text_end - at);
    if (!ended && text_end == bytes.size() && line_break == std::string::npos) {
      line.text = without_mark(line.text);
    }
    at = ended ? line_break + 1 : text_end;
    in_long_line = !ended;
    line.end = at;
    line.text = line.text.substr(0, line.text.find('\0'));
    list.push_back(line);
  }
  return list;
}

}  // namespace

bool closes_a_section(const std::string& line) {
  const std::string text = strip_back(line, " \t\n");
  if (text.size() >= 2 && text.find('[') == 0 && text.rfind(']') == text.size() - 1) {
    return true;
  }
  const std::size_t close = std::min(line.find("] "), line.find("]\t"));
  if (line.find('[') != 0 || close == std::string::npos || line.find('=') < close) {
    return false;
  }
  const std::string words = strip_front(line.substr(close + 1), " \t");
  return words.empty() || words[0] != '=';
}

Answer plain(const std::string& bytes, const std::string& section, const std::string& key,
             int index) {
  const std::vector<Line> list = lines(bytes);
  int position = 0;
  for (std::size_t i = header_of(list, section) + 1; i < list.size(); ++i) {
    ++position;
    if (index < 0 ? (!key.empty() && token_of(list[i].text) == key) : index == position) {
      return {kDone, value_of(list[i].text, index < 0)};
    }
  }
  return {};
}

Answer once(const std::string& bytes, const std::string& section, const std::string& key) {
  bool inside = false;
  for (const Line& line : lines(bytes)) {
    if (closes_a_section(line.text)) {
      if (inside) {
        return {};
      }
      inside = token_of(line.text) == section;
    } else if (inside && !key.empty() && token_of(line.text) == key) {
      return {kDone, value_of(line.text, true)};
    }
  }
  return {};
}

Answer whole_text(const std::string& bytes, const std::string& section, const std::string& key) {
  const std::string stripped = " \t\f\v\n\r";
  if (section.empty() || key.empty()) {
    return {0, ""};
  }
  bool inside = false;
  std::size_t next = 0;
  const std::string text = without_mark(bytes.substr(start_of_lines(bytes)));
  for (std::size_t at = 0; at < text.size(); at = next) {
    next = std::min(text.find('\n', at), text.size() - 1) + 1;
    std::string line = text.substr(at, next - at);
    line = line.substr(0, std::min({line.find("\r\n"), line.find('\n'), line.find('\0')}));
    const std::size_t equals = line.find('=');
    if (!inside) {
      inside = line.find(section) != std::string::npos;
    } else if (equals != std::string::npos && strip_back(line.substr(0, equals), stripped) == key) {
      const std::string value = strip_front(strip_back(line.substr(equals + 1), stripped), " ");
      return value.size() < 4096 ? Answer{kDone, value} : Answer{0, ""};
    }
  }
  return {0, ""};
}

Answer Reading::look(const std::string& bytes, const std::string& section, const std::string& key,
                     int index) {
  const auto line_at = [&](std::size_t offset) -> Answer {
    const std::vector<Line> list = lines(bytes, offset);
    return offset == 0 || list.empty() ? Answer{}
                                       : Answer{kDone, value_of(list[0].text, index < 0)};
  };
  const Name name(index < 0, section, key);
  if (lines_.count(name) != 0) {
    return line_at(lines_[name]);
  }
  std::size_t from = 0;
  const bool resumes = sections_.count(section) != 0;
  if (resumes) {
    from = sections_[section];
  } else {
    for (const auto& [known, offset] : lines_) {
      from = std::max(from, offset);
    }
  }
  bool inside = resumes;
  bool first = true;
  int position = 0;
  for (const Line& line : lines(bytes, from)) {
    const bool own_header = resumes && first && closes_a_section(line.text);
    const bool header = closes_a_section(line.text) && !own_header;
    first = false;
    if (!inside) {
      if (header) {
        sections_.emplace(token_of(line.text), line.start);
        inside = token_of(line.text) == section;
      }
      continue;
    }
    if (header) {
      return {};
    }
    ++position;
    const bool found =
        index < 0 ? (!own_header && !key.empty() && token_of(line.text) == key) : index == position;
    if (!found && !own_header && is_name(token_of(line.text))) {
      lines_.emplace(Name(true, section, token_of(line.text)), line.start);
    }
    if (found) {
      lines_.emplace(name, line.start);
      return line.start == 0 ? Answer{} : Answer{kDone, value_of(line.text, index < 0)};
    }
  }
  return {};
}

int store(std::string& bytes, const std::string& section, const std::string& key,
          const std::string& given, int index, bool may_insert) {
  const std::string value = strip_back(given, "\r\n");
  if (bad(section, key, value, index)) {
    return kRefused;
  }
  const bool by_key = index < 0;
  const std::string line = by_key ? padded(key, value) : value;
  const std::string contents = contents_of(bytes);
  const std::vector<Line> list = lines(contents);
  const std::size_t header = header_of(list, section);
  if (header == list.size()) {
    const std::string created = by_key ? section : "[SURFACE ELEMENT BOUNDARY CONDITION NAME]";
    if (!closes_a_section(created) || too_long(line)) {
      return kRefused;
    }
    put_back(bytes, with_section(contents, created, line));
    return kDone;
  }
  int position = 0;
  for (std::size_t i = header + 1; i < list.size(); ++i) {
    ++position;
    if (!by_key && closes_a_section(list[i].text)) {
      put_back(bytes, with_lines(contents, list[i].start, {line}));
      return kDone;
    }
    if (by_key ? token_of(list[i].text) == key : index == position) {
      if (too_long(line)) {
        return kRefused;
      }
      put_back(bytes, contents.substr(0, list[i].start) + line + line_break_of(contents) +
                          contents.substr(list[i].end));
      return kDone;
    }
  }
  if (!by_key) {
    put_back(bytes, with_lines(contents, contents.size(), {line}));
    return kDone;
  }
  return may_insert ? insert_line(bytes, section, key, key + " = " + value) : kRefused;
}

int insert(std::string& bytes, const std::string& section, const std::string& key,
           const std::string& given) {
  const std::string value = strip_back(given, "\r\n");
  return bad(section, key, value, -1) ? kRefused
                                      : insert_line(bytes, section, key, key + " = " + value);
}

int replace(std::string& bytes, const std::string& section, const std::string& key,
            const std::string& given) {
  const std::string value = strip_back(given, "\r\n");
  if (bad(section, key, value, -1)) {
    return kRefused;
  }
  const std::string line = key + " = " + value;
  const std::string contents = contents_of(bytes);
  const std::vector<Line> list = lines(contents);
  const std::size_t header = header_of(list, section);
  std::string result;
  if (header == list.size()) {
    if (!closes_a_section(section)) {
      return kRefused;
    }
    result = with_section(contents, section, line);
  } else {
    result = with_lines(contents, contents.size(), {line});
    for (std::size_t i = header + 1; i < list.size(); ++i) {
      if (token_of(list[i].text) == key) {
        result = contents.substr(0, list[i].start) + line + line_break_of(contents) +
                 contents.substr(list[i].end);
        break;
      }
      if (list[i].text.find('[') != std::string::npos) {
        result = with_lines(contents, list[i].start, {line, ""});
        break;
      }
    }
  }
  if (result.back() != '\n') {
    result += line_break_of(contents);
  }
  bytes = result;
  return kDone;
}

std::string read_back(const std::string& given) {
  return value_of(strip_back(given, "\r\n"), false);
}

}  // namespace qelpro_test::naive
