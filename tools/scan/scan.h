#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "scan/columns.h"

namespace qelpro {

/// Where a file is, and what messages call it.
struct ScannedFile {
  std::string path;
  std::string name;
};

/// Why a file is not in the table, or not whole.
struct ScanError {
  std::size_t row = 0;
  std::exception_ptr reason;
  std::string message;
};

struct ScannedTable {
  /// In the order of the words; of a pattern in the order in which the files have them.
  std::vector<ScannedColumn> columns;
  /// The first error of each file that has one, in the order of the files.
  std::vector<ScanError> errors;
};

/// The values of the addresses that the words name ("Flow-1.FillTime", "Flow-*.MeltTemp") in many
/// files, each of which is read once, on so many threads; 0 for as many as there are cores. What
/// a word names alone has a column, found or not; an address that several words name has one.
/// `watch` is called now and then on the caller's thread; false stops. A `Failure` of usage for a
/// word that is no address.
ScannedTable scan_files(const std::vector<ScannedFile>& files,
                        const std::vector<std::string>& words, std::size_t threads,
                        const std::function<bool()>& watch);

}  // namespace qelpro
