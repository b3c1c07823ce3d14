#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "study/study.h"

namespace qelpro {

/// The files that tell which file has which values.
inline constexpr const char* kManifestJson = "manifest.json";
inline constexpr const char* kManifestCsv = "manifest.csv";

/// What is to become of files of the study that are there already.
enum class Existing {
  refuse,    ///< Nothing is written where there is one.
  complete,  ///< Those that belong to this very study stay, and what is missing is made.
  overwrite  ///< They are replaced, each of them whole.
};

/// Called now and then, on the thread of the caller, with how many files there are; false stops.
using SweepWatch = std::function<bool(std::uint64_t done)>;

/// Puts the files of a study and its two manifests into a folder, which is made where it is not
/// there, on all cores. Every file is there whole or not at all, whenever it ends. A `Failure` in
/// front of the first write where the folder cannot take them. Yields how many there are: fewer
/// than the study has where it was stopped.
std::uint64_t make_files(const Study& study, const std::string& folder, Existing existing,
                         const SweepWatch& watch);

/// The seed of the study in a folder; nothing where there is none.
std::optional<std::uint64_t> seed_of_manifest(const std::string& folder);

}  // namespace qelpro
