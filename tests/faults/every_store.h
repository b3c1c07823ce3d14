#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "faults/io_calls.h"

/// A store of every kind, by every class that stores.
namespace qelpro_test {

struct StoreCase {
  const char* name;
  std::string contents;  ///< Of the file before.
  std::function<bool(const std::string& path)> run;
};
inline std::ostream& operator<<(std::ostream& out, const StoreCase& row) { return out << row.name; }

struct NameOfStore {
  template <class Info>
  std::string operator()(const Info& info) const {
    return info.param.name;
  }
};
inline constexpr NameOfStore name_of_store;

/// By a path, narrow and wide.
const std::vector<StoreCase>& document_stores();
/// Through a stream that the caller opened.
const std::vector<StoreCase>& stream_stores();
/// By those members of the adapter that tell whether they stored.
const std::vector<StoreCase>& adapter_stores();
/// By the self-contained object. It yields true whatever happens, and writes twice: the entry,
/// which holds 7.5, and the stamp.
const std::vector<StoreCase>& object_stores();

/// A document of a few sections, and one with boundary conditions and a stamp.
extern const char* const kStamp;
const std::string& flow_file();
const std::string& conditions_file();

}  // namespace qelpro_test
