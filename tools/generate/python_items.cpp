#include "python_items.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "items.h"
#include "lines.h"

namespace {

constexpr std::string_view kHead =
    R"("""What a simulator's process has. Made by "./dev generate" from src/qelg/items.inc."""

from __future__ import annotations

from typing import TYPE_CHECKING

if TYPE_CHECKING:
    import numpy as np
    import numpy.typing as npt
)";

constexpr const char* kQuotes = R"(""")";

struct List {
  std::string type;
  std::string title;
};

const std::vector<List>& process_lists() {
  static const std::vector<List> lists = {
#define QELG_PROCESS_LIST(type, name, title) {#type, title},
#include "qelg/items.inc"
  };
  return lists;
}

const std::vector<List>& inlet_lists() {
  static const std::vector<List> lists = {
#define QELG_INLET_LIST(type, name, title) {#type, title},
#include "qelg/items.inc"
  };
  return lists;
}

std::string python_type(qel::Kind kind) {
  switch (kind) {
    case qel::Kind::integer:
      return "int";
    case qel::Kind::real:
      return "float";
    default:
      return "str";
  }
}

std::string docstring(const std::string& text) {
  constexpr const char* kIndent = "   ";  // and a blank
  return wrapped(kQuotes + text + kQuotes, kIndent);
}

struct Attribute {
  std::string name;
  std::string type;
  std::string meaning;
};

std::vector<Attribute> values_of(const std::vector<Item>& items, std::string_view prefix) {
  std::vector<Attribute> attributes;
  for (const Item& item : items) {
    if (item.name.starts_with(prefix)) {
      const qel::SectionInfo* section = nullptr;
      attributes.push_back({item.name.substr(prefix.size()), python_type(item.kind) + " | None",
                            keys_told(item, section)});
    }
  }
  return attributes;
}

std::vector<Attribute> arrays_of(const std::vector<List>& lists) {
  std::vector<Attribute> attributes;
  for (const List& list : lists) {
    std::string name = list.title;
    std::replace(name.begin(), name.end(), ' ', '_');
    const std::string shape = list.type == "QELG_Profile" ? "(n, 2)" : "(n,)";
    attributes.push_back(
        {name, "npt.NDArray[np.float64]", "The " + list.title + ", of shape " + shape + "."});
  }
  return attributes;
}

// A line of the list that help() prints: an editor shows the attribute's own text instead.
std::string list_item(const Attribute& attribute) {
  constexpr std::string_view kBullet = "    - ";
  return wrapped("``" + attribute.name + "``: " + attribute.meaning, "     ")
      .replace(0, kBullet.size(), kBullet);
}

std::string class_of(const std::string& name, const std::string& what,
                     std::vector<Attribute> attributes, const std::vector<Attribute>& arrays = {}) {
  attributes.insert(attributes.end(), arrays.begin(), arrays.end());
  std::string text = "\n\nclass " + name + ":\n    " + kQuotes + what + "\n\n";
  for (const Attribute& attribute : attributes) {
    text += list_item(attribute);
  }
  text += std::string("    ") + kQuotes + "\n";
  for (const Attribute& attribute : attributes) {
    text += "\n    " + attribute.name + ": " + attribute.type + "\n" + docstring(attribute.meaning);
  }
  return text;
}

std::vector<Item> without(const std::vector<Item>& items,
                          const std::vector<std::string_view>& prefixes) {
  std::vector<Item> rest;
  for (const Item& item : items) {
    if (std::none_of(prefixes.begin(), prefixes.end(),
                     [&item](std::string_view prefix) { return item.name.starts_with(prefix); })) {
      rest.push_back(item);
    }
  }
  return rest;
}

}  // namespace

std::string python_items() {
  constexpr std::string_view kMachine = "machine_";
  constexpr std::string_view kHeatTransfer = "HTC_";
  return std::string(kHead) +
         class_of("MachineItems", "The machine.", values_of(process_items(), kMachine)) +
         class_of("HeatTransferItems", "The heat transfer.",
                  values_of(process_items(), kHeatTransfer)) +
         class_of("ProcessItems", "The whole process.",
                  values_of(without(process_items(), {kMachine, kHeatTransfer}), ""),
                  arrays_of(process_lists())) +
         class_of("InletItems", "An inlet.", values_of(inlet_items(), ""),
                  arrays_of(inlet_lists()));
}
