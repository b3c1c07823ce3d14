#include <QELPROEngine/CQELPCSInterpolator.h>

#include <CLI/CLI.hpp>
#include <array>
#include <cmath>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "commands.h"
#include "status.h"

namespace {

using Json = nlohmann::ordered_json;

struct Arguments {
  std::vector<std::string> words;  // [FILE] ID TEMPERATURE, or [FILE] with --table
  std::optional<int> table;
  std::optional<double> from;
  std::optional<double> to;
  std::optional<double> step;
  bool json = false;
};

struct Request {
  std::string file;
  int coolant = 0;
  std::vector<double> temperatures;
};

// Nothing, with a message in `why`, where the arguments make no request.
std::optional<Request> request_of(const Arguments& arguments, std::string& why) {
  constexpr double kMostRows = 1e6;
  Request request;
  std::size_t words = arguments.words.size();
  if (arguments.table) {
    if (!arguments.from || !arguments.to || !arguments.step) {
      why = "--table needs --from, --to and --step";
      return std::nullopt;
    }
    const double rows = std::floor((*arguments.to - *arguments.from) / *arguments.step + 1e-9);
    if (!(*arguments.step > 0) || !(rows >= 0) || rows > kMostRows) {
      why = "--from, --to and --step give no table: the step must be above 0, and --to not below --from";
      return std::nullopt;
    }
    request.coolant = *arguments.table;
    for (int row = 0; row <= static_cast<int>(rows); ++row) {
      request.temperatures.push_back(*arguments.from + row * *arguments.step);
    }
  } else {
    double temperature = 0;
    if (words < 2 || !CLI::detail::lexical_cast(arguments.words[words - 2], request.coolant) ||
        !CLI::detail::lexical_cast(arguments.words[words - 1], temperature)) {
      why = "give a coolant's identifier and a temperature, or --table";
      return std::nullopt;
    }
    request.temperatures.push_back(temperature);
    words -= 2;
  }
  if (words > 1) {
    why = "too many arguments";
    return std::nullopt;
  }
  if (words == 1) {
    request.file = arguments.words.front();
    return request;
  }
  std::array<char, 4096> path{};
  if (!g_GetCurrentUserPSCFilePath(path.data(), static_cast<unsigned int>(path.size()))) {
    why = "no folder of settings is known for this user: name a coolant settings file";
    return std::nullopt;
  }
  request.file = path.data();
  return request;
}

int coolant(const Arguments& arguments) {
  std::string why;
  const std::optional<Request> request = request_of(arguments, why);
  if (!request) {
    return fail(kUsage, "coolant: " + why);
  }
  CQELPCSInterpolator tables;
  if (!tables.LoadDataFromFile(request->file.c_str())) {
    return fail(kFileError, request->file + ": " + why_unreadable(request->file));
  }
  Json rows = Json::array();
  for (const double temperature : request->temperatures) {
    double p1 = 0;
    double p2 = 0;
    double p3 = 0;
    double p4 = 0;
    if (!tables.InterpolateCoolantProperties(request->coolant, temperature, p1, p2, p3, p4)) {
      return fail(kNotFound, request->file + ": coolant " + std::to_string(request->coolant) + ": not found");
    }
    if (arguments.json) {
      rows.push_back({{"temperature", temperature}, {"properties", {p1, p2, p3, p4}}});
    } else if (arguments.table) {
      std::cout << temperature << '\t' << p1 << '\t' << p2 << '\t' << p3 << '\t' << p4 << '\n';
    } else {
      std::cout << p1 << '\t' << p2 << '\t' << p3 << '\t' << p4 << '\n';
    }
  }
  if (arguments.json) {
    std::cout << (arguments.table ? rows : rows.front()).dump(2) << '\n';
  }
  return kDone;
}

}  // namespace

void add_coolant(CLI::App& app, int& status) {
  auto arguments = std::make_shared<Arguments>();
  CLI::App* command = app.add_subcommand("coolant", "Print the four properties of a coolant at a temperature, or a table of them");
  command
      ->add_option("FILE ID TEMPERATURE", arguments->words,
                   "The coolant settings file (the user's own where it is left out), the coolant's identifier, the temperature")
      ->expected(0, 3);
  command->add_option("--table", arguments->table, "The coolant whose properties are printed as a table, a row a temperature")->type_name("ID");
  command->add_option("--from", arguments->from, "The table's first temperature")->type_name("T");
  command->add_option("--to", arguments->to, "The temperature that the table does not exceed")->type_name("T");
  command->add_option("--step", arguments->step, "The step between two temperatures")->type_name("D");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->callback([arguments, &status] { status = coolant(*arguments); });
}
