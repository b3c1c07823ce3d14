#include "scan/scan.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <utility>

#include "file/entries.h"
#include "file/typed.h"
#include "file/wanted.h"
#include "system/failure.h"
#include "system/files.h"
#include "work/workers.h"

namespace qelpro {
namespace {

// Files that stand one behind the other.
struct Part {
  std::size_t first = 0;
  Columns columns;
  std::vector<ScanError> errors;

  // The first of a file counts. It is thrown as what it is.
  template <class Kind>
  void fail(std::size_t row, const Kind& failure) {
    if (errors.empty() || errors.back().row != row) {
      errors.push_back({row, std::make_exception_ptr(failure), failure.what()});
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

// Of a file under its name and row.
class Reader {
 public:
  Reader(const std::vector<Request>& requests, Part& part)
      : requests_(requests), wanted_(requests), part_(part) {}

  void read(std::size_t row, const ScannedFile& file) {
    try {
      const SectionedText document =
          document_text(file.name, under_name(file.name, [&file] { return read_file(file.path); }));
      const Entries entries(document, wanted_);
      for (std::size_t request = 0; request < requests_.size(); ++request) {
        for (const FileEntry* const entry : entries.find(requests_[request])) {
          take(row, file.name, request, entries, *entry);
        }
      }
    } catch (const SystemFailure& failure) {
      part_.fail(row, failure);
    } catch (const Failure& failure) {
      part_.fail(row, failure);
    }
  }

 private:
  void take(std::size_t row, const std::string& file, std::size_t request, const Entries& entries,
            const FileEntry& entry) {
    TypedValue typed = typed_value(entries, entry);
    if (typed.unread) {
      part_.fail(row, unread_failure(file, entries, entry, typed));
      return;
    }
    part_.columns.add(row, request,
                      requests_[request].is_pattern ? text_of(entries.address_of(entry))
                                                    : requests_[request].argument,
                      value_of(std::move(typed), entry.value));
  }

  const std::vector<Request>& requests_;
  WantedEntries wanted_;
  Part& part_;
};

// In the order of the files.
ScannedTable table_of(const std::vector<Request>& requests, std::vector<Part> parts) {
  std::ranges::sort(parts, {}, &Part::first);
  ScannedTable table;
  Columns columns(requests);
  for (Part& part : parts) {
    columns.append(std::move(part.columns));
    std::ranges::move(part.errors, std::back_inserter(table.errors));
    part.errors.clear();
  }
  table.columns = columns.take();
  return table;
}

}  // namespace

ScannedTable scan_files(const std::vector<ScannedFile>& files,
                        const std::vector<std::string>& words, std::size_t threads,
                        const std::function<bool()>& watch) {
  constexpr std::uint64_t kBlock = 256;
  const std::vector<Request> requests = wanted_of(words);
  std::mutex mutex;
  std::vector<Part> parts;
  work_on_cores(
      threads == 0 ? core_count() : threads, files.size(), kBlock,
      [&](const Block& block) {
        Part part{block.first, Columns(requests), {}};
        Reader reader(requests, part);
        for (std::uint64_t row = block.first; row < block.last; ++row) {
          reader.read(row, files[row]);
        }
        const std::lock_guard lock(mutex);
        parts.push_back(std::move(part));
      },
      [&](std::uint64_t /*done*/) { return watch(); });
  return table_of(requests, std::move(parts));
}

}  // namespace qelpro
