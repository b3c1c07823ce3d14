#include "page.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <variant>
#include <vector>

#include "blocks/catalogue.h"
#include "blocks/encoding.h"
#include "blocks/inlet_source.h"
#include "encodings.h"
#include "functions.h"
#include "proio/dialect.h"
#include "refdata/bounded_lines.h"
#include "refdata/machine_bank.h"
#include "text/text.h"

namespace {

using Print = std::function<void(std::ostream&)>;

std::string contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error(path + " cannot be opened");
  }
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<const qel::KeyInfo*> keys_of(const qel::SectionInfo& section) {
  std::vector<const qel::KeyInfo*> keys;
  for (const qel::KeyInfo& key : section.keys) {
    keys.push_back(&key);
  }
  return keys;
}

// A cell of a table ends at "|".
std::string cell(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '\t') {
      result += "<tab>";
    } else {
      result += c == '|' ? "\\|" : std::string(1, c);
    }
  }
  return result;
}

std::string code(std::string_view text) { return "`" + cell(text) + "`"; }

std::string members(const qel::Members& names, const std::string& object = {}) {
  std::set<std::string_view> listed;
  std::string result;
  for (const char* name : names) {
    if (name != nullptr && listed.insert(name).second) {
      result += (result.empty() ? "" : ", ") + code(object + name);
    }
  }
  return result;
}

std::string together(std::initializer_list<std::string> parts) {
  std::string result;
  for (const std::string& part : parts) {
    result += (result.empty() || part.empty() ? "" : ", ") + part;
  }
  return result;
}

// The adapter's members that read begin with "Get".
std::string with_adapter(const qel::Members& own, const qel::KeyInfo& key, bool reading) {
  qel::Members adapter{};
  std::copy_if(key.details.adapter.begin(), key.details.adapter.end(), adapter.begin(),
               [reading](const char* name) {
                 return name != nullptr &&
                        (std::string_view(name).substr(0, 3) == "Get") == reading;
               });
  return together({members(own), members(adapter, "CQEL_ProcessAdapter::")});
}

std::string loader(const qel::KeyInfo& key) {
  return is_somewhere(key.details.loader) ? code(function_of(key.details.loader)) : "";
}

void print_sections(std::ostream& to) {
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    to << "\n### `" << section->name << "`\n\n"
       << cell(section->subject)
       << "\n\n| key | value | encoding | read by | written by | older object | loader "
          "|\n|---|---|---|---|---|---|---|\n";
    for (const qel::KeyInfo* key : keys_of(*section)) {
      to << "| " << code(key->text) << " | " << cell(key->meaning) << " | " << key->encoding->name
         << " | "
         << together({with_adapter(key->readers, *key, true),
                      members(key->details.value_reader, "CQELProcessValueReader::")})
         << " | " << with_adapter(key->writers, *key, false) << " | " << members(key->details.older)
         << " | " << loader(*key) << " |\n";
    }
  }
}

void print_encodings(std::ostream& to) {
  to << "| encoding | read as | what the text does not supply | such as | written by a member "
        "|\n|---|---|---|---|---|\n";
  std::set<std::string_view> told;
  for (const EncodingText& encoding : encodings()) {
    told.insert(encoding.name);
    to << "| " << encoding.name << " | " << cell(encoding.read) << " | " << encoding.absent << " | "
       << code(encoding.example) << " | " << (encoding.written ? "yes" : "no") << " |\n";
  }
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    for (const qel::KeyInfo* key : keys_of(*section)) {
      if (!told.contains(key->encoding->name)) {
        throw std::runtime_error(std::string("nothing is told about the encoding ") +
                                 key->encoding->name);
      }
    }
  }
}

bool is_point(const qel::KeyInfo& key) {
  return key.encoding->name == std::string_view(qel::RealPair::kName);
}

// The key that counts the points: its text stands before that of the points.
void print_profiles(std::ostream& to) {
  to << "| section | count | points | the two numbers |\n|---|---|---|---|\n";
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    const char* count = nullptr;
    for (const qel::KeyInfo* key : keys_of(*section)) {
      if (is_point(*key)) {
        const std::string_view meaning = key->meaning;
        to << "| " << code(section->name) << " | " << (count != nullptr ? code(count) : "none")
           << " | " << code(key->text) << " | " << cell(meaning.substr(meaning.find(": ") + 2))
           << " |\n";
      }
      const std::string_view text = key->text;
      const bool counts = text.size() > 3 && (text.substr(text.size() - 3) == "Set" ||
                                              text.find("_Section") != std::string_view::npos);
      count = counts ? key->text : count;
    }
  }
}

// The items that the values of several keys of an inlet's stages go to, in the order in which the
// loader asks for the keys.
void print_shared(std::ostream& to) {
  std::vector<qel::InletItem> order;
  std::map<qel::InletItem, std::string> keys;
  std::map<qel::InletItem, int> counts;
  for (const qel::SectionInfo* stage : qel::kInlets.stages()) {
    for (const qel::KeyInfo& key : stage->keys) {
      if (const auto* item = std::get_if<qel::InletItem>(&key.details.loader)) {
        std::string& listed = keys[*item];
        listed += (listed.empty() ? "" : ", then ") + code(key.text) + " of " + code(stage->name);
        if (++counts[*item] == 2) {
          order.push_back(*item);
        }
      }
    }
  }
  to << "| item of the simulator's process | keys, the last one that is there wins |\n|---|---|\n";
  for (const qel::InletItem item : order) {
    to << "| " << code(function_of(item)) << " | " << keys[item] << " |\n";
  }
}

void print_older_alone(std::ostream& to) {
  to << "| section | keys |\n|---|---|\n";
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    std::set<std::string_view> others;
    for (const qel::KeyInfo* key : keys_of(*section)) {
      if (key->readers.front() != nullptr || key->writers.front() != nullptr ||
          is_somewhere(key->details.loader)) {
        others.insert(key->text);
      }
    }
    std::string listed;
    for (const qel::KeyInfo* key : keys_of(*section)) {
      listed += !others.contains(key->text) ? (listed.empty() ? "" : ", ") + code(key->text) : "";
    }
    if (!listed.empty()) {
      to << "| " << code(section->name) << " | " << listed << " |\n";
    }
  }
}

Print figure(std::size_t value) {
  return [value](std::ostream& to) { to << value; };
}

Print file(const std::string& path) {
  return [path](std::ostream& to) { to << contents(path); };
}

}  // namespace

void print_page(const std::string& folder, std::ostream& to) {
  const std::map<std::string, Print> parts = {
      {"SECTIONS", print_sections},
      {"ENCODINGS", print_encodings},
      {"PROFILES", print_profiles},
      {"SHARED", print_shared},
      {"OLDER_ALONE", print_older_alone},
      {"EXAMPLE", file(folder + "/example.pro")},
      {"LINE", figure(qel::text::kLongestLine)},
      {"COMPOUND", figure(qel::kCompoundLimit - 1)},
      {"OLDER_LINE", figure(qel::proio::kDialect.longest_line)},
      {"REFERENCE_LINE", figure(qel::refdata::BoundedLines::kLongestLine)},
      {"BANK_VERSION", figure(qel::refdata::kBankVersion)},
  };
  const std::string text = contents(folder + "/format.md.in");
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t mark = std::min(text.find('@', at), text.size());
    to << text.substr(at, mark - at);
    if (mark == text.size()) {
      break;
    }
    const std::size_t end = text.find('@', mark + 1);
    const auto part =
        end != std::string::npos ? parts.find(text.substr(mark + 1, end - mark - 1)) : parts.end();
    if (part == parts.end()) {
      throw std::runtime_error("format.md.in: no such part behind " + text.substr(mark, 20));
    }
    part->second(to);
    // A part of several lines ends its own last line.
    at = end + 1;
    if (at < text.size() && text[at] == '\n' && (mark == 0 || text[mark - 1] == '\n')) {
      ++at;
    }
  }
}
