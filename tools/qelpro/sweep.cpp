#include "study/sweep.h"

#include <filesystem>
#include <optional>
#include <random>

#include "commands.h"
#include "output.h"
#include "progress.h"
#include "system/failure.h"
#include "system/files.h"
#include "system/interruption.h"

namespace qelpro {
namespace {

// The seed of a sample: the one that was given, that of the study which is completed, or one that
// is drawn, and told.
std::uint64_t seed_for(const SweepArguments& arguments) {
  if (!arguments.sample) {
    return 0;
  }
  if (arguments.seed) {
    return *arguments.seed;
  }
  if (arguments.resume) {
    if (const std::optional<std::uint64_t> seed = seed_of_manifest(arguments.folder)) {
      return *seed;
    }
  }
  const std::uint64_t seed = std::random_device()();
  complain("the seed is " + std::to_string(seed) + "; --seed " + std::to_string(seed) +
           " draws the same values again");
  return seed;
}

void print_manifest(const Study& study, bool json) {
  if (json) {
    study.write_json(answer());
  } else {
    study.write_csv(answer());
  }
}

Existing existing_of(const SweepArguments& arguments) {
  return arguments.overwrite ? Existing::overwrite
         : arguments.resume  ? Existing::complete
                             : Existing::refuse;
}

}  // namespace

int run_sweep(const SweepArguments& arguments) {
  if (arguments.folder.empty() && !arguments.dry_run) {
    throw Failure(kUsage, "sweep: -o FOLDER is missing; see qelpro sweep --help");
  }
  std::vector<Setting> settings;
  for (const std::string& text : arguments.settings) {
    settings.push_back(setting_of(text));
  }
  std::string contents = read_file(arguments.file);
  const Study study(arguments.file, std::move(contents),
                    {std::move(settings), arguments.sample, seed_for(arguments), arguments.force});
  if (!arguments.dry_run) {
    const Interruption interruption;
    Progress progress(study.size(), "files");
    const std::uint64_t made =
        make_files(study, arguments.folder, existing_of(arguments), [&](std::uint64_t done) {
          progress.show(done);
          return !interruption.is_asked_for();
        });
    progress.clear();
    if (made != study.size()) {
      complain("interrupted: " + std::to_string(made) + " of " + std::to_string(study.size()) +
               " files are there; --resume makes the others");
      return kFileError;
    }
  }
  if (arguments.json || arguments.dry_run) {
    print_manifest(study, arguments.json);
  }
  return kDone;
}

}  // namespace qelpro
