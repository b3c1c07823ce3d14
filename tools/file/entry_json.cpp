#include "file/entry_json.h"

#include <type_traits>
#include <variant>

#include "text/text.h"

namespace qelpro {

namespace {

Json field_of(const qel::Field& field) {
  return std::visit(
      []<class Value>(const Value& value) {
        if constexpr (std::is_same_v<Value, std::monostate>) {
          return Json();
        } else {
          return Json(value);
        }
      },
      field);
}

}  // namespace

Json typed_entry(const std::string& key, const TextLine& line, const std::string& text,
                 const Reading& reading) {
  const qel::KeyInfo* known = reading.key;
  Json entry = {{"key", key}, {"line", line.number}, {"text", text}, {"known", known != nullptr}};
  std::string note = limit_of(line);
  if (known != nullptr) {
    entry["meaning"] = known->meaning;
    entry["encoding"] = known->encoding->name;
    Json values = Json::array();
    for (const qel::Field& field : known->encoding->fields(text.c_str(), reading.number)) {
      values.push_back(field_of(field));
    }
    entry["values"] = std::move(values);
    if (reading.unread && note.empty()) {
      note = *reading.unread;
    }
  }
  if (!note.empty()) {
    entry["note"] = note;
  }
  return entry;
}

}  // namespace qelpro
