#include <CLI/CLI.hpp>
#include <charconv>
#include <cstdint>
#include <memory>
#include <string>
#include <system_error>

#include "arguments/add.h"
#include "commands.h"

namespace qelpro {

namespace {

// The parser itself takes "-4" for a very large number, and one of too many digits for another.
CLI::Validator is_whole_number(std::uint64_t least) {
  const auto check = [least](const std::string& text) {
    std::uint64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number);
    return parsed.ec == std::errc() && parsed.ptr == end && number >= least
               ? std::string()
               : "\"" + text + "\" is no whole number from " + std::to_string(least) + " on";
  };
  return {check, ""};
}

}  // namespace

void add_sweep(CLI::App& app, const char* name, int& status) {
  auto arguments = std::make_shared<SweepArguments>();
  CLI::App* command = app.add_subcommand(
      name, "Make the files of a parameter study: a process file with other values each time");
  command->add_option("FILE", arguments->file, "The process file; - is standard input")->required();
  command
      ->add_option("--set", arguments->settings,
                   "What an entry takes: V1,V2,V3 or FROM:TO:STEP, and with --sample FROM:TO; may "
                   "be given several times")
      ->type_name("ADDRESS=VALUES")
      ->allow_extra_args(false)
      ->required();
  command
      ->add_option("-o,--output", arguments->folder,
                   "The folder that takes the files; it is made where it is not there")
      ->type_name("FOLDER");
  CLI::Option* sample = command
                            ->add_option("--sample", arguments->sample,
                                         "Draw so many files by a Latin hypercube, and do not make "
                                         "every combination")
                            ->type_name("N")
                            ->check(is_whole_number(1));
  command
      ->add_option("--seed", arguments->seed,
                   "The seed of the sample; the same one draws the same values everywhere")
      ->type_name("S")
      ->check(is_whole_number(0))
      ->needs(sample);
  CLI::Option* resume = command->add_flag("--resume", arguments->resume,
                                          "Make what is missing of this very study in the folder");
  command->add_flag("--overwrite", arguments->overwrite, "Replace files that are there already")
      ->excludes(resume);
  command->add_flag("--dry-run", arguments->dry_run, "Print the manifest, and write nothing");
  command->add_flag("--force", arguments->force,
                    "Take a value too that the key's encoding does not read back whole");
  command->add_flag("--json", arguments->json, "Print the manifest as JSON");
  command->footer(
      "Every combination of the values is a file, the last --set the fastest. An ADDRESS may be a "
      "pattern: every entry that it\nmatches takes the value. manifest.csv and manifest.json in "
      "the folder tell which file has which values.\n"
      "Example: qelpro sweep Default.pro --set Flow-1.FillTime=0.5:1.5:0.25 --set "
      "'Pack-*.PackTime=4,6,8' -o study");
  command->callback([arguments, &status] { status = run_sweep(*arguments); });
}

}  // namespace qelpro
