#include "functions.h"

#include <cstddef>

namespace {

constexpr std::string_view name_of(std::monostate /*nothing*/) { return {}; }

constexpr std::string_view name_of(qel::ProcessItem item) {
  constexpr std::string_view names[] = {
#define QELG_PROCESS_ITEM(kind, name) std::string_view("set_process_" #name),
#include "qelg/items.inc"
  };
  return names[static_cast<std::size_t>(item)];
}

constexpr std::string_view name_of(qel::ProcessList list) {
  constexpr std::string_view names[] = {
#define QELG_PROCESS_LIST(type, name, title) std::string_view("Get" #name "_mod"),
#include "qelg/items.inc"
  };
  return names[static_cast<std::size_t>(list)];
}

constexpr std::string_view name_of(qel::InletItem item) {
  constexpr std::string_view names[] = {
#define QELG_INLET_ITEM(kind, name) std::string_view("set_process_" #name),
#include "qelg/items.inc"
  };
  return names[static_cast<std::size_t>(item)];
}

constexpr std::string_view name_of(qel::InletList list) {
  constexpr std::string_view names[] = {
#define QELG_INLET_LIST(type, name, title) std::string_view("Get" #name "_mod"),
#include "qelg/items.inc"
  };
  return names[static_cast<std::size_t>(list)];
}

constexpr std::string_view name_of(qel::InletCount /*count*/) { return "AppendFlowPackProcess"; }

}  // namespace

std::string_view function_of(const qel::Destination& destination) {
  return std::visit([](auto where) { return name_of(where); }, destination);
}
