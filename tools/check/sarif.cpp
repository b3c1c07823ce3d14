#include "check/sarif.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "check/rules.h"

namespace qelpro {
namespace {

constexpr const char* kVersion = "2.1.0";
constexpr const char* kSchema = "https://json.schemastore.org/sarif-2.1.0.json";

Json descriptor_of(const Rule& rule) {
  return {{"id", rule.code},
          {"shortDescription", {{"text", rule.finds}}},
          {"defaultConfiguration", {{"level", name_of(rule.severity)}}}};
}

std::size_t index_of(const std::string& code) {
  const auto found =
      std::ranges::find_if(rules(), [&](const Rule& rule) { return rule.code == code; });
  return static_cast<std::size_t>(found - rules().begin());
}

Json result_of(const Finding& finding) {
  const Json region = {{"startLine", finding.line}, {"startColumn", finding.column}};
  const Json location = {
      {"physicalLocation",
       {{"artifactLocation", {{"uri", uri_of(finding.file)}}}, {"region", region}}}};
  return {{"ruleId", finding.code},
          {"ruleIndex", index_of(finding.code)},
          {"level", name_of(finding.severity)},
          {"message", {{"text", finding.message}}},
          {"locations", Json::array({location})}};
}

// Those that stand for themselves in a path.
bool is_plain(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         (character >= '0' && character <= '9') ||
         std::string_view("-._~/").find(character) != std::string_view::npos;
}

}  // namespace

std::string uri_of(const std::string& path) {
  const bool has_drive = path.size() > 2 && path[1] == ':' && (path[2] == '/' || path[2] == '\\');
  std::string uri = path.starts_with('/') ? "file://" : "";
  if (has_drive) {
    uri = "file:///" + path.substr(0, 2);
  }
  for (const char character : std::string_view(path).substr(has_drive ? 2 : 0)) {
    if (is_plain(character)) {
      uri += character;
    } else if (has_drive && character == '\\') {
      uri += '/';
    } else {
      std::array<char, 4> escape{};
      std::snprintf(escape.data(), escape.size(), "%%%02X",
                    static_cast<unsigned int>(static_cast<unsigned char>(character)));
      uri += escape.data();
    }
  }
  return uri;
}

Json sarif_of(const std::vector<Finding>& findings, const std::string& version) {
  Json descriptors = Json::array();
  for (const Rule& rule : rules()) {
    descriptors.push_back(descriptor_of(rule));
  }
  Json results = Json::array();
  for (const Finding& finding : findings) {
    results.push_back(result_of(finding));
  }
  const Json driver = {{"name", "qelpro"}, {"version", version}, {"rules", descriptors}};
  return {{"version", kVersion},
          {"$schema", kSchema},
          {"runs", Json::array({{{"tool", {{"driver", driver}}}, {"results", results}}})}};
}

}  // namespace qelpro
