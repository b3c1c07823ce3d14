#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "picture/markup.h"
#include "picture/report_source.h"

namespace qelpro {

/// A report while it is written: the parts of which its chapters are made.
class ReportPage {
 public:
  ReportPage(Markup& markup, const ReportSources& sources) : markup_(markup), sources_(sources) {}

  [[nodiscard]] Markup& markup() { return markup_; }
  [[nodiscard]] const ReportSources& sources() const { return sources_; }
  /// The same for every file's own column.
  [[nodiscard]] bool is_comparison() const { return sources_.size() > 1; }
  /// An `id` that no other element has.
  std::string new_id();

  /// A section under a heading (of that level): its curves, and a table of its other entries.
  void section(const SectionGroup& group, int level, const std::string& title = "");
  /// Sections of one kind as the rows of one table, their keys as its columns.
  void family(const std::vector<SectionGroup>& groups, const std::string& title);
  /// A heading with the names of the sections that it is about behind it.
  void heading(int level, std::string_view title, std::string_view names = "");

  /// A table in a box of its own, in which it scrolls where the page is narrow.
  void open_table(const std::string& caption, std::string_view style = "");
  void close_table();
  /// The head's cells, one a file in the place of the empty name.
  void table_head(const std::vector<std::string>& names);

 private:
  void charts(const SectionGroup& group, std::vector<const FileEntry*>& drawn);
  void points(const std::vector<const Profile*>& of_file, const std::string& title);
  void entries(const SectionGroup& group, const std::vector<const FileEntry*>& drawn);
  void rows(std::span<const EntryGroup> entries, const std::string& caption);
  [[nodiscard]] const qel::KeyInfo* key_of(const EntryGroup& entry) const;
  void value(std::size_t file, const FileEntry* entry);

  Markup& markup_;
  const ReportSources& sources_;
  int last_id_ = 0;
};

/// A description without the unit that it ends with, which stands elsewhere.
std::string meaning_without_unit(std::string_view meaning);

}  // namespace qelpro
