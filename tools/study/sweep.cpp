#include "study/sweep.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <vector>

#include "json/json_input.h"
#include "system/failure.h"
#include "system/files.h"
#include "system/new_files.h"
#include "system/own_path.h"
#include "work/workers.h"

namespace qelpro {
namespace {

namespace fs = std::filesystem;

std::string in_folder(const std::string& folder, const std::string& name) {
  return text_of(own_path(folder) / name);
}

[[noreturn]] void fail(const std::string& name, const std::string& what) {
  throw Failure(kFileError, at(name, what));
}
[[noreturn]] void fail(const std::string& name, const std::string& what,
                       const std::error_code& error) {
  throw SystemFailure(name, what + error.message(), error.value());
}

/// What of a study stands in its folder.
struct Present {
  std::vector<bool> files;
  std::uint64_t file_count = 0;
  std::string first;  // the name of one of them
  bool json = false;
  bool csv = false;
};

Present look_into(const Study& study, const std::string& folder) {
  Present present;
  present.files.resize(study.size());
  if (!exists(folder)) {
    return present;
  }
  std::error_code error;
  if (!fs::is_directory(own_path(folder), error)) {
    throw SystemFailure(folder, "no folder, which the files need; name another one", ENOTDIR);
  }
  fs::directory_iterator names(own_path(folder), error);
  for (; !error && names != fs::directory_iterator(); names.increment(error)) {
    const std::string name = text_of(names->path().filename());
    const std::optional<std::uint64_t> index = study.index_of(name);
    present.json = present.json || name == kManifestJson;
    present.csv = present.csv || name == kManifestCsv;
    if (index) {
      present.files[*index] = true;
      ++present.file_count;
    }
    if ((index || name == kManifestJson || name == kManifestCsv) &&
        (present.first.empty() || name < present.first)) {
      present.first = name;
    }
  }
  if (error) {
    fail(folder, "cannot be read: ", error);
  }
  return present;
}

// Refuses to complete what is another study.
void check_same(const Study& study, const std::string& folder, const Present& present,
                const std::string& manifest, const SweepWatch& watch) {
  if (present.first.empty()) {
    return;
  }
  const std::string path = in_folder(folder, kManifestJson);
  if (!present.json) {
    fail(path, "is missing, so that nobody can tell what study \"" + present.first +
                   "\" belongs to; --overwrite makes all files anew");
  }
  const std::string old = read_file(path);
  if (old != manifest) {
    const Json theirs = parse_json(path, old);
    const Json ours = parse_json(path, manifest);
    std::string differs;
    for (const char* name : {"source", "settings", "samples", "seed"}) {
      if (!theirs.is_object() || !theirs.contains(name) || theirs[name] != ours[name]) {
        differs = name;
        break;
      }
    }
    fail(path, "belongs to another study" +
                   (differs.empty() ? "" : ": its \"" + differs + "\" is another one") +
                   "; name another folder, or --overwrite");
  }
  work_on_all_cores(
      study.size(), study.size(),
      [&](const Block& block) {
        for (std::uint64_t index = block.first; index < block.last; ++index) {
          const std::string file = in_folder(folder, study.file_name(index));
          if (present.files[index] && read_file(file) != study.contents(index)) {
            fail(file,
                 "is not what the study makes: it was changed, or belongs to another one; "
                 "take it away, or --overwrite");
          }
        }
      },
      [&](std::uint64_t /*done*/) { return watch(0); });
}

void check_room(const Study& study, const std::string& folder, std::uint64_t files,
                std::uint64_t manifests) {
  constexpr std::uint64_t kDiskBlock = 4096;
  fs::path place = own_path(folder.empty() ? "." : folder);
  std::error_code error;
  place = fs::absolute(place, error);
  while (!error && !fs::exists(place, error) && place.has_relative_path()) {
    place = place.parent_path();
  }
  const fs::space_info space = fs::space(place, error);
  if (error || space.available == static_cast<std::uintmax_t>(-1)) {
    return;
  }
  const std::uint64_t size = study.contents(study.size() - 1).size();
  const std::uint64_t needed =
      files * ((size + kDiskBlock - 1) / kDiskBlock * kDiskBlock) + manifests;
  if (needed > space.available) {
    throw SystemFailure(folder,
                        "no room: " + std::to_string(files) + " files need " +
                            std::to_string(needed) + " bytes, and " +
                            std::to_string(space.available) + " are free",
                        ENOSPC);
  }
}

template <class Write>
std::string text_by(const Write& write) {
  TextSink sink;
  write(sink);
  return std::move(sink.text());
}

}  // namespace

std::uint64_t make_files(const Study& study, const std::string& folder, Existing existing,
                         const SweepWatch& watch) {
  const Present present = look_into(study, folder);
  const std::string json = text_by([&](Sink& sink) { study.write_json(sink); });
  const std::string csv = text_by([&](Sink& sink) { study.write_csv(sink); });
  if (existing == Existing::refuse && !present.first.empty()) {
    throw SystemFailure(
        in_folder(folder, present.first),
        "exists already; --resume makes what is missing of its study, --overwrite replaces it",
        EEXIST);
  }
  if (existing == Existing::complete) {
    check_same(study, folder, present, json, watch);
  }
  check_room(study, folder, study.size() - present.file_count, json.size() + csv.size());
  std::error_code error;
  fs::create_directories(own_path(folder), error);
  if (error) {
    fail(folder, "cannot be made: ", error);
  }
  // What a study is completed by comes first.
  if (existing == Existing::overwrite || !present.json) {
    write_whole(in_folder(folder, kManifestJson), json);
  }
  if (existing == Existing::overwrite || !present.csv) {
    write_whole(in_folder(folder, kManifestCsv), csv);
  }
  return work_on_all_cores(
      study.size(), NewFiles::most_at_once(core_count()),
      [&](const Block& block) {
        NewFiles files(folder);
        for (std::uint64_t index = block.first; index < block.last; ++index) {
          if (!present.files[index]) {
            files.add(study.file_name(index), study.contents(index));
          } else if (existing == Existing::overwrite) {
            write_whole(in_folder(folder, study.file_name(index)), study.contents(index));
          }
        }
        files.publish();
      },
      watch);
}

std::optional<std::uint64_t> seed_of_manifest(const std::string& folder) {
  const std::string path = in_folder(folder, kManifestJson);
  if (!exists(path)) {
    return std::nullopt;
  }
  const Json manifest = parse_json(path, read_file(path));
  return manifest.is_object() && manifest.contains("seed") && manifest["seed"].is_number_unsigned()
             ? std::optional(manifest["seed"].get<std::uint64_t>())
             : std::nullopt;
}

}  // namespace qelpro
