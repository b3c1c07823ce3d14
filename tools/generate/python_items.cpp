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

std::string type_of(qel::Kind kind) {
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
  return wrapped("\"\"\"" + text + "\"\"\"", kIndent);
}

std::string class_of(const std::string& name, const std::string& what,
                     const std::vector<Item>& items, std::string_view prefix) {
  std::string text = "\n\nclass " + name + ":\n" + docstring(what);
  for (const Item& item : items) {
    if (item.name.starts_with(prefix)) {
      const qel::SectionInfo* section = nullptr;
      text += "\n    " + item.name.substr(prefix.size()) + ": " + type_of(item.kind) + " | None\n" +
              docstring(keys_told(item, section));
    }
  }
  return text;
}

std::string attributes_of(const std::vector<List>& lists) {
  std::string text;
  for (const List& list : lists) {
    const bool is_profile = list.type == "QELG_Profile";
    std::string name = list.title;
    std::replace(name.begin(), name.end(), ' ', '_');
    text +=
        "\n    " + name + ": npt.NDArray[np.float64]\n" +
        docstring("The " + list.title + (is_profile ? ", of shape (n, 2)." : ", of shape (n,)."));
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
  return std::string(kHead) + class_of("MachineItems", "The machine.", process_items(), kMachine) +
         class_of("HeatTransferItems", "The heat transfer.", process_items(), kHeatTransfer) +
         class_of("ProcessItems", "The whole process.",
                  without(process_items(), {kMachine, kHeatTransfer}), "") +
         attributes_of(process_lists()) + class_of("InletItems", "An inlet.", inlet_items(), "") +
         attributes_of(inlet_lists());
}
