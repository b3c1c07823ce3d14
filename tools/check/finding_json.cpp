#include "check/finding_json.h"

namespace qelpro {

Json json_of(const Finding& finding) {
  return {{"file", finding.file},       {"line", finding.line},
          {"column", finding.column},   {"severity", name_of(finding.severity)},
          {"code", finding.code},       {"message", finding.message},
          {"section", finding.section}, {"key", finding.key},
          {"hint", finding.hint}};
}

}  // namespace qelpro
