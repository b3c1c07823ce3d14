#include <algorithm>
#include <limits>

#include "platform/os_file.h"
#include "platform/steady_read.h"
#include "proio/dialect.h"
#include "proio/line_store.h"
#include "proio/rows.h"
#include "proio/typed.h"
#include "proio/words.h"
#include "text/file_edit.h"
#include "text/line_scanner.h"

using namespace qel::proio;
using qel::Line;
using qel::LineScanner;
using qel::Target;
namespace fields = qel::fields;
namespace platform = qel::platform;

namespace {

constexpr Target kConditions{summary::kBoundaryConditionNo.section.text,
                             summary::kBoundaryConditionNo.key.text};

// Where a profile point stands after the header of the boundary conditions.
struct Place {
  long long line = 0;
  bool named = false;     // whether each of the conditions before has a name line
  bool readable = false;  // whether all that this rests on could be read
};

// `Source` is a file, or the contents of one. What is missing counts 0.
template <class Source>
Place place_of(Source& source, int condition, int point) {
  LineScanner head = lines_of(source);
  Buffer text;
  int conditions = 0;
  if (read(head, kConditions, text) == Code::success) {
    scan_values(text.text(), conditions);
  }
  Place place;
  place.line = static_cast<long long>(conditions) + point;
  LineScanner names = lines_of(source);
  constexpr Target kNextLine{boundary_condition::kPositionalSection, {}, 1};
  Line name;
  int k = 1;
  for (bool more = seek_section(names, boundary_condition::kPositionalSection);
       more && k < condition; ++k) {
    more = seek_line(names, kNextLine, name);
    if (!more) {
      break;
    }
    int count = 0;
    scan_values(text.assign(name.text).text(), count);
    place.line += count;
  }
  place.named = k >= condition;
  place.readable = !head.failed() && !names.failed();
  return place;
}

int as_index(long long line) {
  return static_cast<int>(std::min<long long>(line, std::numeric_limits<int>::max()));
}

}  // namespace

bool CPROIO_Manipulator::ReadBC(long long line, char*& text) {
  return line >= 1 && IsOK(Read(boundary_condition::kPositionalSection, "", text, as_index(line)));
}

bool CPROIO_Manipulator::WriteBC(long long line, const char* text) {
  return line >= 1 &&
         IsOK(Write(boundary_condition::kPositionalSection, "", text, true, as_index(line)));
}

// A line of up to three words has a name of one word; a longer one has a name of several, and a
// type.
bool CPROIO_Manipulator::GetBC(const char* text, int& count, char*& name, int& type) {
  if (text == nullptr) {
    return false;
  }
  Buffer& buffer = scratch().boundary_condition_name.assign({});
  name = buffer.text();
  const Words words(text);
  if (words.count() < 4) {
    scan_values(text, count, Word{name, &Scratch::boundary_condition_name}, type);
    return true;
  }
  const std::size_t last = words.count() - 1;
  scan_values(words[0].data(), count);
  scan_values(words[last].data(), type);
  buffer.assign(words.stretch(1, last - 1));
  return true;
}

bool CPROIO_Manipulator::GetBCCountName(int line, int& count, char*& name) {
  int type = 0;
  return GetBCSetting(line, count, name, type);
}

bool CPROIO_Manipulator::SetBCCountName(int line, int count, char* name) {
  return !qel::is_null(name) &&
         qel::attempt([&] { return WriteBC(line, fields::print("\t", count, name).c_str()); });
}

bool CPROIO_Manipulator::GetBCSetting(int line, int& count, char*& name, int& type) {
  char* text = nullptr;
  return ReadBC(line, text) && GetBC(text, count, name, type);
}

bool CPROIO_Manipulator::GetBCProfile(int bc, int point, double& x, double& y) {
  return qel::attempt([&] {
    platform::OsFile file;
    if (path_ == nullptr || !file.open_for_reading(path_)) {
      return false;
    }
    Buffer text;
    const bool found = platform::read_steadily(file, [&] {
      const Place place = place_of<platform::ReadAccess>(file, bc, point);
      if (!place.readable || !place.named || place.line < 1) {
        return false;
      }
      LineScanner lines = lines_of(file);
      return read(lines, {boundary_condition::kPositionalSection, {}, as_index(place.line)},
                  text) == Code::success;
    });
    if (!found) {
      return false;
    }
    int number = 0;
    x = y = 0;
    scan_values(text.text(), number, fields::Separator{}, x, y);
    return true;
  });
}

// The place is read from the same contents that the line goes into: a place that rests on a failed
// read would be that of another line. A file that cannot be written is not reported, as ever.
bool CPROIO_Manipulator::SetBCProfile(int bc, int point, double x, double y) {
  return qel::attempt([&] {
    if (path_ == nullptr) {
      return false;
    }
    const std::string line = fields::print(" = ", point, fields::print("\t", x, y).c_str());
    platform::OsFile file;
    if (point < 1 ? !file.open_for_store(path_) : !file.open_or_create_for_store(path_)) {
      return point >= 1;
    }
    qel::FileEdit edit(file, kDialect);
    if (!edit.load()) {
      return true;
    }
    const std::string_view text = edit.contents();
    const Place place = place_of(text, bc, point);
    if (place.line < 1) {
      return false;
    }
    if (store(edit, {boundary_condition::kPositionalSection, {}, as_index(place.line)}, line) &&
        file.close()) {
      SetFileDate();  // the point stands in the file, with a stamp or without
    }
    return true;
  });
}
