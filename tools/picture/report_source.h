#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/inlet_source.h"
#include "check/finding.h"
#include "file/entries.h"
#include "file/profile.h"

namespace qelpro {

/// A file of a report with all that is asked of it.
struct ReportSource {
  std::string label;  ///< A short name that no other file of the report has.
  std::string name;   ///< As it was given.
  std::unique_ptr<Entries> entries;
  std::vector<Finding> findings;

  /// The value of an entry as it stands; empty where there is none.
  [[nodiscard]] std::string value(std::string_view section, std::string_view key) const;
  /// Which sections its inlets are loaded from.
  [[nodiscard]] const qel::InletSource& inlets() const;
};
using ReportSources = std::vector<ReportSource>;

/// Short names: the last parts of the paths, as many as it takes to tell them apart.
std::vector<std::string> labels_of(const std::vector<std::string>& names);

/// A section of each file, side by side.
struct SectionGroup {
  const qel::SectionInfo* info = nullptr;   ///< Null where the catalogue does not know it.
  int number = 0;                           ///< That of the section's name.
  std::string name;                         ///< As it stands, with brackets.
  std::vector<const TextSection*> of_file;  ///< Null where a file lacks it.
};

/// The stages of an inlet; groups without a section where no file has one.
struct InletStages {
  SectionGroup filling;
  SectionGroup second_skin;
  SectionGroup packing;
  SectionGroup curing;
};

/// The sections of all files that are ever read, those of one name together, in the order of the
/// first file, then of the others.
class SectionGroups {
 public:
  explicit SectionGroups(const ReportSources& sources);

  /// Those of one kind, by their numbers; each is handed out once.
  std::vector<SectionGroup> take(const qel::SectionInfo& info);
  /// The sections of each file that its inlets are loaded from, by the inlet's number.
  std::map<int, InletStages> take_inlets(const ReportSources& sources);
  std::vector<SectionGroup> take_all();

 private:
  std::vector<SectionGroup> groups_;
};

/// An entry of each file, side by side.
struct EntryGroup {
  std::string key;
  std::vector<const FileEntry*> of_file;  ///< Null where a file lacks it.
};
std::vector<EntryGroup> entries_of(const ReportSources& sources, const SectionGroup& section);

/// Whether the files have different values there, or one of them has none. Spellings of one number
/// do not differ.
bool is_different(const ReportSources& sources, const EntryGroup& entry);

}  // namespace qelpro
