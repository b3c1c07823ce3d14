#pragma once

#include <optional>
#include <string>
#include <vector>

namespace qelpro {

/// One function a command, with what was given to it. Each yields the exit status that the program
/// ends with.

struct NewArguments {
  std::string file;
};

struct GetArguments {
  std::string file;
  std::string section;
  std::string key;
};

struct SetArguments {
  std::string file;
  std::string section;
  std::string key;
  std::string value;
  bool force = false;
};

struct ShowArguments {
  std::string file;
  std::optional<std::string> section;
  bool json = false;
};

struct ProcessArguments {
  std::string file;
  bool json = false;
};

struct MachinesArguments {
  std::string bank;
  std::optional<std::string> maker;
  bool json = false;
};

struct CoolantArguments {
  std::vector<std::string> words;  // [FILE] ID TEMPERATURE, or [FILE] with --table
  std::optional<int> table;
  std::optional<double> from;
  std::optional<double> to;
  std::optional<double> step;
  bool json = false;
};

struct ReportArguments {
  std::vector<std::string> files;
  std::optional<std::string> output;
};

struct PlotArguments {
  std::string file;
  std::vector<std::string> profiles;
  std::optional<std::string> output;
};

int run_new(const NewArguments& arguments);
int run_get(const GetArguments& arguments);
int run_set(const SetArguments& arguments);
int run_show(const ShowArguments& arguments);
int run_process(const ProcessArguments& arguments);
int run_machines(const MachinesArguments& arguments);
int run_coolant(const CoolantArguments& arguments);
int run_report(const ReportArguments& arguments);
int run_plot(const PlotArguments& arguments);

}  // namespace qelpro
