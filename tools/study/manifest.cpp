#include <filesystem>

#include "file/typed.h"
#include "json/json_text.h"
#include "study/study.h"
#include "system/own_path.h"

namespace qelpro {
namespace {

std::string quoted(const std::string& field) {
  if (field.find_first_of("\",\r\n") == std::string::npos) {
    return field;
  }
  std::string text = "\"";
  for (const char character : field) {
    text += character == '"' ? "\"\"" : std::string(1, character);
  }
  return text + "\"";
}

// FNV-1a of 64 bits.
std::string checksum(const std::string& contents) {
  constexpr std::uint64_t kPrime = 0x100000001B3U;
  constexpr int kDigits = 16;
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char character : contents) {
    hash = (hash ^ static_cast<unsigned char>(character)) * kPrime;
  }
  std::string text;
  for (int digit = 0; digit < kDigits; ++digit, hash >>= 4U) {
    text.insert(text.begin(), "0123456789abcdef"[hash & 0xFU]);
  }
  return text;
}

std::string json_text(const Json& value, std::size_t indent = 0) {
  TextSink sink;
  write_json(sink, value, indent);
  return std::move(sink.text());
}

// A value as the catalogue types it.
Json typed(const Address& address, const std::string& value) {
  return json_of(typed_value(known_section(address.section), address.key, value), value);
}

}  // namespace

void Study::write_csv(Sink& output) const {
  output << "file";
  for (const Target& target : targets_) {
    for (const Address& address : target.addresses) {
      output << "," << quoted(text_of(address));
    }
  }
  output << "\n";
  for (std::uint64_t index = 0; index < size(); ++index) {
    output << quoted(file_name(index));
    for (std::size_t range = 0; range < targets_.size(); ++range) {
      const std::string value = quoted(plan_.value(index, range));
      for (std::size_t column = 0; column < targets_[range].addresses.size(); ++column) {
        output << "," << value;
      }
    }
    output << "\n";
  }
}

void Study::write_json(Sink& output) const {
  constexpr std::size_t kIndent = 2;
  const Json source = {{"file", text_of(own_path(file_).filename())},
                       {"bytes", document_.contents().size()},
                       {"fnv1a64", checksum(document_.contents())}};
  Json settings = Json::array();
  for (std::size_t range = 0; range < targets_.size(); ++range) {
    const Setting& setting = request_.settings[range];
    Json addresses = Json::array();
    for (const Address& address : targets_[range].addresses) {
      addresses.push_back(text_of(address));
    }
    settings.push_back(
        {{"set", setting.address}, {"values", setting.text}, {"addresses", std::move(addresses)}});
  }
  output << "{\n  \"source\": " << json_text(source, kIndent)
         << ",\n  \"settings\": " << json_text(settings, kIndent)
         << ",\n  \"samples\": " << (request_.samples ? std::to_string(*request_.samples) : "null")
         << ",\n  \"seed\": " << (request_.samples ? std::to_string(request_.seed) : "null")
         << ",\n  \"files\": [";
  // Piece by piece, a line a file: there may be very many.
  for (std::uint64_t index = 0; index < size(); ++index) {
    output << (index == 0 ? "\n    " : ",\n    ") << "{\"file\": " << json_text(file_name(index))
           << ", \"values\": {";
    bool is_first = true;
    for (std::size_t range = 0; range < targets_.size(); ++range) {
      const std::string value = plan_.value(index, range);
      for (const Address& address : targets_[range].addresses) {
        output << (is_first ? "" : ", ") << json_text(text_of(address)) << ": "
               << json_text(typed(address, value), 2 * kIndent);
        is_first = false;
      }
    }
    output << "}}";
  }
  output << "\n  ]\n}\n";
}

}  // namespace qelpro
