#pragma once

#include <cstdint>
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
  std::vector<std::string> words;  // addresses, patterns, pairs of section and key
  bool typed = false;
  std::optional<std::string> otherwise;
  bool json = false;
};

struct SetArguments {
  std::string file;
  std::vector<std::string> words;  // ADDRESS=VALUE, or SECTION KEY VALUE
  std::optional<std::string> from;
  bool force = false;
  bool dry_run = false;
};

struct UnsetArguments {
  std::string file;
  std::vector<std::string> words;
  bool dry_run = false;
};

struct ListArguments {
  std::string file;
  std::optional<std::string> pattern;
  bool sections = false;
  bool json = false;
};

struct ExportArguments {
  std::string file;
  std::optional<std::string> out;
  bool exact = false;
};

struct ImportArguments {
  std::string form;
  std::optional<std::string> out;
  std::optional<std::string> onto;
  bool force = false;
  bool dry_run = false;
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

struct CheckArguments {
  std::vector<std::string> files;
  std::vector<std::string> disabled;
  std::string color = "auto";
  bool strict = false;
  bool json = false;
  bool sarif = false;
  bool quiet = false;
};

struct SweepArguments {
  std::string file;
  std::vector<std::string> settings;
  std::string folder;
  std::optional<std::uint64_t> sample;
  std::optional<std::uint64_t> seed;
  bool resume = false;
  bool overwrite = false;
  bool dry_run = false;
  bool force = false;
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

struct DiffArguments {
  std::vector<std::string> words;  // A B, or the seven words of git, nine where a file got a name
  double relative = 0;
  double absolute = 0;
  bool points = false;
  bool json = false;
  std::string color = "auto";
};

struct ExplainArguments {
  std::vector<std::string> words;  // nothing, SECTION, SECTION.KEY, or SECTION KEY
  bool json = false;
};

struct CompletionArguments {
  std::string shell;
};

int run_new(const NewArguments& arguments);
int run_get(const GetArguments& arguments);
int run_set(const SetArguments& arguments);
int run_unset(const UnsetArguments& arguments);
int run_list(const ListArguments& arguments);
int run_export(const ExportArguments& arguments);
int run_import(const ImportArguments& arguments);
int run_show(const ShowArguments& arguments);
int run_process(const ProcessArguments& arguments);
int run_machines(const MachinesArguments& arguments);
int run_coolant(const CoolantArguments& arguments);
int run_check(const CheckArguments& arguments);
int run_completion(const CompletionArguments& arguments);
int run_sweep(const SweepArguments& arguments);
int run_report(const ReportArguments& arguments);
int run_plot(const PlotArguments& arguments);
int run_diff(const DiffArguments& arguments);
int run_explain(const ExplainArguments& arguments);

}  // namespace qelpro
