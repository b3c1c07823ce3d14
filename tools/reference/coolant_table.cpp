#include "reference/coolant_table.h"

#include <vector>

#include "reference/reference_text.h"
#include "system/engine_file.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {
namespace {

std::string description_of(const ListedCoolant& coolant) {
  return std::to_string(coolant_identifier(coolant.number)) + " ([Coolant-" +
         std::to_string(coolant.number) + "]" + (coolant.name.empty() ? "" : ", " + coolant.name) +
         (coolant.has_rows ? "" : ", without \"DataCount\"") + ")";
}

}  // namespace

CoolantTable::CoolantTable(const std::string& file) : file_(file), contents_(read_file(file)) {
  const EngineFile engine_file(file, contents_);
  if (!tables_.LoadDataFromFile(engine_file.path().c_str())) {
    throw Failure(kFileError, at(file, "cannot be loaded: out of memory, or changed meanwhile"));
  }
}

std::array<double, 4> CoolantTable::properties(int coolant, double argument) {
  std::array<double, 4> properties{};
  auto& [p1, p2, p3, p4] = properties;
  if (!tables_.InterpolateCoolantProperties(coolant, argument, p1, p2, p3, p4)) {
    fail_to_find(coolant);
  }
  return properties;
}

void CoolantTable::fail_to_find(int coolant) const {
  const std::vector<ListedCoolant> coolants = coolants_of(contents_);
  std::string what = "coolant " + std::to_string(coolant) + ": not found";
  if (coolant >= 3 && coolant <= 5) {
    what += ": 3, 4 and 5 identify no coolant";
  }
  for (const ListedCoolant& listed : coolants) {
    if (coolant_identifier(listed.number) == coolant) {
      what += ": its section holds no \"DataCount\" above 0";
      break;
    }
  }
  std::string there;
  for (const ListedCoolant& listed : coolants) {
    there += (there.empty() ? "" : ", ") + description_of(listed);
  }
  throw Failure(kNotFound, at(file_, what + (there.empty() ? "; the file has no coolant"
                                                           : "; there are " + there)));
}

}  // namespace qelpro
