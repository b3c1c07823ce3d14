#include "check/older_object.h"

#include <algorithm>
#include <string_view>

#include "proio/dialect.h"
#include "text/text.h"

namespace qelpro {

bool is_in_layout_of_older_object(const TextLine& line, const std::string& key) {
  return line.text.starts_with(qel::text::padded_entry(key, "", qel::proio::kDialect));
}

bool has_setter(const qel::KeyInfo& key) {
  return std::ranges::any_of(key.details.older, [](const char* member) {
    return member != nullptr && std::string_view(member).starts_with("Set");
  });
}

}  // namespace qelpro
