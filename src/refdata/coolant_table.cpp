#include "refdata/coolant_table.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include "platform/number.h"
#include "refdata/bounded_lines.h"
#include "refdata/interpolation.h"

namespace qel::refdata {
namespace {

constexpr std::string_view kSection = "[Coolant-";

bool contains(std::string_view line, std::string_view text) {
  return line.find(text) != std::string_view::npos;
}

// A section without a number, such as "[Coolant-Water]", is none of a coolant's.
bool has_number(const char* text, int& number) { return platform::scan_int(text, number); }

void read_row(const std::string& key, const char* numbers, Coolant& coolant) {
  constexpr std::string_view kRow = "Data-";
  const char* at = key.c_str() + key.find(kRow) + kRow.size();
  std::int64_t number = 0;
  if (!platform::scan_int64(at, number) || number < 1 || number > coolant.row_count) {
    return;
  }
  Coolant::Row row{};
  for (double& value : row) {
    if (!platform::scan_real(numbers, value)) {
      return;
    }
  }
  coolant.rows[static_cast<int>(number - 1)] = row;
}

// A key, a blank or the first "=", and a value. The keys are told by what they contain.
void read_entry(std::string line, Coolant& coolant) {
  if (const std::size_t equals = line.find('='); equals != std::string::npos) {
    line[equals] = ' ';
  }
  const char* at = line.c_str();
  std::string key;
  std::string value;
  if (!platform::scan_word(at, key)) {
    return;
  }
  const char* const after_key = at;
  if (!platform::scan_word(at, value)) {
    return;
  }
  if (contains(key, "Name")) {
    coolant.name = value;
  } else if (contains(key, "DataCount")) {
    const char* number = value.c_str();
    if (platform::scan_int(number, coolant.row_count)) {
      coolant.rows.clear();
      coolant.valid = coolant.row_count > 0;
    }
  } else if (contains(key, "Data-")) {
    read_row(key, after_key, coolant);
  }
}

}  // namespace

std::array<double, kProperties> Coolant::properties_at(double argument) const {
  const auto column = [this](std::size_t value) {
    return [this, value](std::int64_t row) {
      const auto found = rows.find(static_cast<int>(row));
      return found != rows.end() ? found->second[value] : 0.0;
    };
  };
  std::array<double, kProperties> result{};
  for (std::size_t property = 0; property < kProperties; ++property) {
    result[property] = row_count == 1
                           ? column(1 + property)(0)
                           : interpolate(column(0), column(1 + property), row_count, argument);
  }
  return result;
}

std::optional<std::vector<Coolant>> read_coolants(platform::ReadAccess& file) {
  std::vector<Coolant> coolants;
  BoundedLines lines(file);
  bool in_section = false;
  for (std::string line; lines.next(line) && !contains(line, "[EOF]");) {
    if (!line.empty() && line.front() == '[') {
      const std::size_t name = line.find(kSection);
      int number = 0;
      in_section =
          name != std::string::npos && has_number(line.c_str() + name + kSection.size(), number);
      if (in_section) {
        coolants.emplace_back().number = number;
      }
    } else if (in_section) {
      read_entry(line, coolants.back());
    }
  }
  return lines.failed() ? std::nullopt : std::optional(std::move(coolants));
}

}  // namespace qel::refdata
