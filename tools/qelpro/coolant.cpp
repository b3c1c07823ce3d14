#include <QELPROEngine/CQELPCSInterpolator.h>

#include <array>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "command_line.h"
#include "commands.h"
#include "json/json_text.h"
#include "output.h"
#include "reference/coolant_table.h"
#include "system/failure.h"

namespace qelpro {

namespace {

struct CoolantRequest {
  std::string file;
  int coolant = 0;
  std::vector<double> temperatures;
};

[[noreturn]] void refuse(const std::string& why) {
  throw Failure(kUsage, "coolant: " + why + "; see qelpro coolant --help");
}

std::string own_file() {
  std::array<char, 4096> path{};
  if (!g_GetCurrentUserPSCFilePath(path.data(), static_cast<unsigned int>(path.size()))) {
    refuse("no folder of settings is known for this user: name a coolant settings file");
  }
  return path.data();
}

void take_table(const CoolantArguments& arguments, CoolantRequest& request) {
  constexpr double kMostRows = 1e6;
  for (const auto& [given, name] : {std::pair(arguments.from.has_value(), "--from"),
                                    std::pair(arguments.to.has_value(), "--to"),
                                    std::pair(arguments.step.has_value(), "--step")}) {
    if (!given) {
      refuse(std::string("--table needs --from, --to and --step: ") + name + " is missing");
    }
  }
  if (!(*arguments.step > 0)) {
    refuse("--step must be above 0");
  }
  const double rows = std::floor((*arguments.to - *arguments.from) / *arguments.step + 1e-9);
  if (!(rows >= 0)) {
    refuse("--to must not be below --from");
  }
  if (rows > kMostRows) {
    refuse("--step is too small: the table would have more than a million rows");
  }
  request.coolant = *arguments.table;
  for (int row = 0; row <= static_cast<int>(rows); ++row) {
    request.temperatures.push_back(*arguments.from + row * *arguments.step);
  }
}

// The last two words are the coolant and the temperature.
void take_point(std::vector<std::string>& words, CoolantRequest& request) {
  if (words.size() < 2) {
    refuse(words.empty()
               ? "ID and TEMPERATURE are missing; or give --table"
               : "TEMPERATURE is missing behind \"" + words.back() + "\"; or give --table");
  }
  constexpr std::size_t kWords = 3;
  if (words.size() > kWords) {
    refuse("\"" + words[kWords] + "\" is one word too many");
  }
  double temperature = 0;
  int coolant = 0;
  // A file's name and a number: the number is the coolant, as far as one can tell.
  if (words.size() == 2 && !reads_as(words.front(), coolant)) {
    refuse(reads_as(words.back(), coolant)
               ? "TEMPERATURE is missing behind \"" + words.back() + "\"; or \"" + words.front() +
                     "\" is no coolant's identifier"
               : "\"" + words.front() + "\" is no coolant's identifier: give a whole number");
  }
  if (!reads_as(words.back(), temperature)) {
    refuse("\"" + words.back() + "\" is no temperature");
  }
  words.pop_back();
  if (!reads_as(words.back(), request.coolant)) {
    refuse("\"" + words.back() + "\" is no coolant's identifier: give a whole number");
  }
  words.pop_back();
  request.temperatures.push_back(temperature);
}

CoolantRequest coolant_request_of(const CoolantArguments& arguments) {
  CoolantRequest request;
  std::vector<std::string> words = arguments.words;
  if (arguments.table) {
    take_table(arguments, request);
  } else {
    take_point(words, request);
  }
  if (words.size() > 1) {
    refuse("\"" + words[1] + "\" is one word too many");
  }
  request.file = words.empty() ? own_file() : words.front();
  return request;
}

std::string in_columns(const std::vector<double>& numbers) {
  std::ostringstream line;
  line.imbue(std::locale::classic());
  for (const double number : numbers) {
    line << (line.tellp() == 0 ? "" : "\t") << number;
  }
  return line.str() + "\n";
}

}  // namespace

int run_coolant(const CoolantArguments& arguments) {
  const CoolantRequest request = coolant_request_of(arguments);
  CoolantTable coolants(request.file);
  Json rows = Json::array();
  for (const double temperature : request.temperatures) {
    const auto [p1, p2, p3, p4] = coolants.properties(request.coolant, temperature);
    if (arguments.json) {
      rows.push_back({{"temperature", temperature}, {"properties", {p1, p2, p3, p4}}});
    } else {
      answer() << (arguments.table ? in_columns({temperature, p1, p2, p3, p4})
                                   : in_columns({p1, p2, p3, p4}));
    }
  }
  if (arguments.json) {
    write_json(answer(), arguments.table ? rows : rows.front());
    answer() << '\n';
  }
  return kDone;
}

}  // namespace qelpro
