#include <algorithm>
#include <limits>

#include "platform/os_file.h"
#include "proio/entries.h"
#include "proio/line_store.h"
#include "proio/typed.h"
#include "proio/words.h"

using namespace qel::proio;
namespace platform = qel::platform;

namespace {

// How many profile lines the conditions before this one have together, by their name lines.
struct PointsBefore {
  long long count = 0;
  bool complete = false;  // whether each of them has a name line
};

PointsBefore points_before(const char* path, int condition) {
  PointsBefore points;
  platform::OsFile file;
  if (path == nullptr || !file.open_for_reading(path)) {
    return points;
  }
  LineScanner lines(file);
  const std::int64_t contents_end = length_without_padding(file);
  constexpr Target kNextLine{boundary_condition::kSection, {}, 1};
  Buffer text;
  Line line;
  int k = 1;
  for (bool more = seek_section(lines, boundary_condition::kSection); more && k < condition; ++k) {
    more = seek_line(lines, kNextLine, line, contents_end);
    if (!more) {
      break;
    }
    int count = 0;
    scan_items(text.assign(line.text).text(), count);
    points.count += count;
  }
  points.complete = k >= condition;
  return points;
}

int as_index(long long line) { return static_cast<int>(std::min<long long>(line, std::numeric_limits<int>::max())); }

}  // namespace

bool CPROIO_Manipulator::ReadBC(long long line, char*& text) {
  return line >= 1 && IsOK(Read(boundary_condition::kSection, "", text, as_index(line)));
}

bool CPROIO_Manipulator::WriteBC(long long line, const char* text) {
  return line >= 1 && IsOK(Write(boundary_condition::kSection, "", text, true, as_index(line)));
}

// A line of up to three words has a name of one word; a longer one has a name of several, and a type.
bool CPROIO_Manipulator::GetBC(const char* text, int& count, char*& name, int& type) {
  if (text == nullptr) {
    return false;
  }
  Buffer& buffer = scratch().boundary_condition_name.assign({});
  name = buffer.text();
  const Words words(text);
  if (words.count() < 4) {
    scan_items(text, count, Word{name, buffer}, type);
    return true;
  }
  const std::size_t last = words.count() - 1;
  scan_items(words[0].data(), count);
  scan_items(words[last].data(), type);
  buffer.assign(words.stretch(1, last - 1));
  return true;
}

bool CPROIO_Manipulator::GetBCCountName(int line, int& count, char*& name) {
  int type = 0;
  return GetBCSetting(line, count, name, type);
}

bool CPROIO_Manipulator::SetBCCountName(int line, int count, char* name) {
  return !is_null(name) && attempt([&] { return WriteBC(line, print_items(count, name).c_str()); });
}

bool CPROIO_Manipulator::GetBCSetting(int line, int& count, char*& name, int& type) {
  char* text = nullptr;
  return ReadBC(line, text) && GetBC(text, count, name, type);
}

bool CPROIO_Manipulator::GetBCProfile(int bc, int point, double& x, double& y) {
  int conditions = 0;
  char* text = nullptr;
  if (!GetBoundaryConditionNo(conditions)) {
    return false;
  }
  const PointsBefore before = points_before(path_, bc);
  if (!before.complete || !ReadBC(conditions + before.count + point, text)) {
    return false;
  }
  int number = 0;
  char equals = '\0';
  x = y = 0;
  scan_items(text, number, Symbol{equals}, x, y);
  return true;
}

bool CPROIO_Manipulator::SetBCProfile(int bc, int point, double x, double y) {
  int conditions = 0;
  GetBoundaryConditionNo(conditions);
  const long long line = conditions + points_before(path_, bc).count + point;
  return attempt([&] { return WriteBC(line, (print_item(point) + " = " + print_items(x, y)).c_str()); });
}
