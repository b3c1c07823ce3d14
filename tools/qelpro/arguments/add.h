#pragma once

namespace CLI {
class App;
}

/// Each declares the command of that name with its arguments and, when it is given, runs it and
/// hands out its exit status.
namespace qelpro {

void add_check(CLI::App& app, const char* name, int& status);
void add_completion(CLI::App& app, const char* name, int& status);
void add_coolant(CLI::App& app, const char* name, int& status);
void add_diff(CLI::App& app, const char* name, int& status);
void add_explain(CLI::App& app, const char* name, int& status);
void add_export(CLI::App& app, const char* name, int& status);
void add_get(CLI::App& app, const char* name, int& status);
void add_import(CLI::App& app, const char* name, int& status);
void add_list(CLI::App& app, const char* name, int& status);
void add_machines(CLI::App& app, const char* name, int& status);
void add_new(CLI::App& app, const char* name, int& status);
void add_plot(CLI::App& app, const char* name, int& status);
void add_process(CLI::App& app, const char* name, int& status);
void add_report(CLI::App& app, const char* name, int& status);
void add_set(CLI::App& app, const char* name, int& status);
void add_show(CLI::App& app, const char* name, int& status);
void add_sweep(CLI::App& app, const char* name, int& status);
void add_unset(CLI::App& app, const char* name, int& status);

}  // namespace qelpro
