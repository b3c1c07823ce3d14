#pragma once

namespace CLI {
class App;
}

/// One function a command: it declares the command's arguments and, when the command is given, runs
/// it and sets the exit status that the program ends with.
void add_new(CLI::App& app, int& status);
void add_get(CLI::App& app, int& status);
void add_set(CLI::App& app, int& status);
void add_show(CLI::App& app, int& status);
void add_process(CLI::App& app, int& status);
void add_machines(CLI::App& app, int& status);
void add_coolant(CLI::App& app, int& status);
