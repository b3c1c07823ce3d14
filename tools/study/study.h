#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "file/change.h"
#include "file/entries.h"
#include "json/json_text.h"
#include "study/plan.h"
#include "system/sink.h"

namespace qelpro {

/// An entry, or the entries that a pattern matches, and the values that it is to take.
struct Setting {
  std::string address;
  std::string text;                 ///< "V1,V2,V3", "FROM:TO:STEP" or "FROM:TO".
  std::vector<std::string> values;  ///< One by one, in the place of those of the text.
};
/// That of "ADDRESS=VALUES". A `Failure` of usage for any other text.
Setting setting_of(const std::string& text);

/// That of values of JSON, each in the text that the key of the first entry meant has; of a text as
/// on a command line. A `Failure` of usage for what the key's encoding does not hold.
Setting setting_of(const Entries& entries, const std::string& address, const Json& values);

/// What a study is to vary, the samples where not every combination is made, and the seed that they
/// are drawn with.
struct StudyRequest {
  std::vector<Setting> settings;
  std::optional<std::uint64_t> samples;
  std::uint64_t seed = 0;
  bool force = false;  ///< Takes values too that an encoding does not read whole.
};

/// The files of a parameter study: a process file, each time with other values.
class Study {
 public:
  /// Checks every value, as one that is set is checked. A `Failure` where a pattern matches
  /// nothing, and of usage for all else that is wrong with the request.
  Study(std::string file, std::string contents, StudyRequest request);

  [[nodiscard]] std::uint64_t size() const { return plan_.size(); }
  /// "NAME-0001.pro" for the first one, whose index is 0.
  [[nodiscard]] std::string file_name(std::uint64_t index) const;
  /// The index of the file of that name; nothing for another name.
  [[nodiscard]] std::optional<std::uint64_t> index_of(std::string_view file_name) const;
  /// What stands in a file. May be called by several threads.
  [[nodiscard]] std::string contents(std::uint64_t index) const;

  /// Which file has which values: a table of comma separated values as RFC 4180 quotes them, with
  /// a column an address, and the same with all that makes the plan as JSON
  /// (docs/schema/manifest.json).
  void write_csv(Sink& output) const;
  void write_json(Sink& output) const;

 private:
  // The entries that one setting changes.
  struct Target {
    std::vector<Address> addresses;
  };
  [[nodiscard]] std::vector<Change> changes(std::uint64_t index) const;
  void find_targets();
  void check_values() const;
  void check_reading() const;

  std::string file_;
  std::string stem_;
  StudyRequest request_;
  SectionedText document_;
  std::vector<Target> targets_;
  Plan plan_;
  int digits_;  // of a file's number
};

}  // namespace qelpro
