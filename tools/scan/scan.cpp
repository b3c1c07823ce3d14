#include "scan/scan.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "file/entries.h"
#include "file/typed.h"
#include "scan/wanted.h"
#include "system/failure.h"
#include "system/files.h"
#include "system/visible.h"
#include "work/workers.h"

namespace qelpro {
namespace {

struct Found {
  std::size_t request = 0;
  std::string address;  // of a pattern's match; empty for what a word names
  ScannedValue value;
};

struct FileValues {
  std::vector<Found> found;
  std::exception_ptr reason;
  std::string message;

  // The first one counts.
  void fail(const std::exception_ptr& why, const std::string& what) {
    if (!reason) {
      reason = why;
      message = what;
    }
  }
};

ScannedValue value_of(TypedValue typed, std::string_view text) {
  if (typed.key == nullptr || typed.fields.empty()) {
    return std::string(text);
  }
  if (typed.fields.size() > 1) {
    return std::move(typed.fields);
  }
  if (const int* const whole = std::get_if<int>(&typed.fields.front())) {
    return *whole;
  }
  if (const double* const real = std::get_if<double>(&typed.fields.front())) {
    return *real;
  }
  return std::get<std::string>(std::move(typed.fields.front()));
}

void take(const std::string& file, const Entries& entries, const FileEntry& entry,
          std::size_t request, std::string address, FileValues& values) {
  TypedValue typed = typed_value(entries, entry);
  if (!typed.unread) {
    values.found.push_back({request, std::move(address), value_of(std::move(typed), entry.value)});
    return;
  }
  const Failure failure(
      kUsage,
      at({file, entries.line_number(entry), std::string(entries.section_of(entry)), entry.key},
         in_quotes(entry.value) + " is not read whole: " + *typed.unread));
  values.fail(std::make_exception_ptr(failure), failure.what());
}

void read_values(const ScannedFile& file, const std::vector<Wanted>& all, FileValues& values) {
  const SectionedText document =
      document_text(file.name, under_name(file.name, [&file] { return read_file(file.path); }));
  const Entries entries(document, [&all](std::string_view section) {
    return std::ranges::any_of(all,
                               [&](const Wanted& wanted) { return wanted.may_be_in(section); });
  });
  for (std::size_t request = 0; request < all.size(); ++request) {
    for (const FileEntry* const entry : entries.find(all[request].request())) {
      take(file.name, entries, *entry, request,
           all[request].is_pattern() ? text_of(entries.address_of(*entry)) : std::string(), values);
    }
  }
}

// Puts the values of the files together, file by file.
class Columns {
 public:
  explicit Columns(const std::vector<Wanted>& all) : of_request_(all.size()) {
    for (std::size_t request = 0; request < all.size(); ++request) {
      if (!all[request].is_pattern()) {
        column_of(request, all[request].request().argument);
      }
    }
  }

  void add(std::size_t row, std::vector<Found>& all) {
    for (Found& found : all) {
      const std::size_t at = found.address.empty() ? of_request_[found.request]
                                                   : column_of(found.request, found.address);
      ScannedColumn& column = columns_[at];
      // Another pattern may have matched it.
      if (column.rows.empty() || column.rows.back() != row) {
        column.rows.push_back(static_cast<std::uint32_t>(row));
        column.values.push_back(std::move(found.value));
      }
    }
  }

  std::vector<ScannedColumn> take() {
    std::ranges::stable_sort(columns_, {}, &ScannedColumn::request);
    return std::move(columns_);
  }

 private:
  std::size_t column_of(std::size_t request, const std::string& name) {
    const auto [known, is_new] = by_name_.emplace(name, columns_.size());
    if (is_new) {
      columns_.push_back({request, name, {}, {}});
    } else {
      // It stands where it was asked for first.
      columns_[known->second].request = std::min(columns_[known->second].request, request);
    }
    of_request_[request] = known->second;
    return known->second;
  }

  std::vector<ScannedColumn> columns_;
  std::vector<std::size_t> of_request_;
  std::unordered_map<std::string, std::size_t> by_name_;
};

}  // namespace

ScannedTable scan_files(const std::vector<ScannedFile>& files,
                        const std::vector<std::string>& words, std::size_t threads,
                        const std::function<bool()>& watch) {
  constexpr std::uint64_t kBlock = 256;
  const std::vector<Wanted> all = wanted_of(words);
  std::vector<FileValues> values(files.size());
  work_on_cores(
      threads == 0 ? core_count() : threads, files.size(), kBlock,
      [&](const Block& block) {
        for (std::uint64_t index = block.first; index < block.last; ++index) {
          try {
            read_values(files[index], all, values[index]);
          } catch (const Failure& failure) {
            values[index].fail(std::current_exception(), failure.what());
          }
        }
      },
      [&](std::uint64_t /*done*/) { return watch(); });
  ScannedTable table;
  Columns columns(all);
  for (std::size_t row = 0; row < files.size(); ++row) {
    columns.add(row, values[row].found);
    if (values[row].reason) {
      table.errors.push_back({row, values[row].reason, std::move(values[row].message)});
    }
  }
  table.columns = columns.take();
  return table;
}

}  // namespace qelpro
