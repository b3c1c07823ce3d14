#include "items.h"

#include <stdexcept>
#include <string_view>
#include <vector>

#include "blocks/catalogue.h"
#include "functions.h"
#include "lines.h"

namespace {

constexpr std::string_view kItemsBegin =
    "// Made by \"./dev generate\" from src/qelg/items.inc and the rows of src/blocks.\n"
    "// clang-format off\n";
constexpr std::string_view kItemsEnd = "// clang-format on\n";

std::string type_of(qel::Kind kind) {
  switch (kind) {
    case qel::Kind::integer:
      return "unsigned int";
    case qel::Kind::real:
      return "double";
    default:
      return "const char*";
  }
}

// "head(first, second);", the second below the first where the line is too long.
std::string declaration(const std::string& head, const std::string& first,
                        const std::string& second) {
  std::string line = head + "(" + first + ", " + second + ");\n";
  if (line.size() - 1 <= kColumns) {
    return line;
  }
  const std::string aligned = head + "(" + first + ",";
  return aligned.size() <= kColumns
             ? aligned + "\n" + std::string(head.size() + 1, ' ') + second + ");\n"
             : head + "(\n    " + first + ", " + second + ");\n";
}

std::string declarations(const Item& item) {
  const std::string object = item.object + "& " + item.parameter;
  const std::string type = type_of(item.kind);
  return declaration("QELG_API void set_process_" + item.name, object, type + " value") +
         wrapped("What `set_process_" + item.name +
                     "` stored; false, `value` untouched, while nothing was.",
                 "///") +
         declaration("QELG_API bool get_process_" + item.name, "const " + object, type + "& value");
}

std::string region_of(const std::vector<Item>& items) {
  std::string region;
  const qel::SectionInfo* last = nullptr;
  for (const Item& item : items) {
    const qel::SectionInfo* section = nullptr;
    const std::string told = keys_told(item, section);
    if (section != last) {
      region +=
          "\n" + wrapped(std::string(section->name) + ": " + section->subject + ".", "//") + "\n";
      last = section;
    }
    region += wrapped(told, "///") + declarations(item);
  }
  return region;
}

}  // namespace

const std::vector<Item>& process_items() {
  static const std::vector<Item> items = {
#define QELG_PROCESS_ITEM(kind, name) \
  {"QELG_SimulatorProcess", "process", qel::Kind::kind, #name, qel::ProcessItem::name},
#include "qelg/items.inc"
  };
  return items;
}

const std::vector<Item>& inlet_items() {
  static const std::vector<Item> items = {
#define QELG_INLET_ITEM(kind, name) \
  {"QELG_SimulatorFlowPackProcess", "inlet", qel::Kind::kind, #name, qel::InletItem::name},
#include "qelg/items.inc"
  };
  return items;
}

std::string keys_told(const Item& item, const qel::SectionInfo*& section) {
  std::string told;
  for (const qel::SectionInfo* each : qel::Catalogue()) {
    // A section that nothing but a load takes has the keys of another.
    for (const qel::KeyInfo& key :
         each->block != nullptr ? each->keys : std::span<const qel::KeyInfo>{}) {
      if (key.details.loader == item.destination) {
        section = told.empty() ? each : section;
        told += (told.empty() ? "" : " Or ") + std::string(each->name) + " \"" + key.text +
                "\": " + key.meaning + ".";
      }
    }
  }
  if (told.empty()) {
    throw std::runtime_error("no row goes to " + item.name);
  }
  return told;
}

std::string with_items(const std::string& header) {
  const std::size_t begin = header.find(kItemsBegin);
  const std::size_t end = header.find(kItemsEnd);
  if (begin == std::string::npos || end == std::string::npos) {
    throw std::runtime_error("a header without the region of the items");
  }
  return header.substr(0, begin) + std::string(kItemsBegin) + "\n// Items of the whole process.\n" +
         region_of(process_items()) + "\n// Items of one inlet.\n" + region_of(inlet_items()) +
         "\n" + header.substr(end);
}
