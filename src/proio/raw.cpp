#include <cstring>

#include "platform/os_file.h"
#include "proio/catalogue.h"
#include "proio/dialect.h"
#include "proio/line_store.h"
#include "proio/typed.h"
#include "text/file_edit.h"
#include "text/text.h"

using namespace qel::proio;
namespace platform = qel::platform;

namespace {

int to_int(Code code) { return static_cast<int>(code); }

// An end mark in a text would be the end of the file for others.
bool is_storable(const char* value) {
  return value != nullptr && std::strchr(value, qel::text::kEndMark) == nullptr;
}

bool store_into(const char* path, const qel::Target& target, const char* value) {
  platform::OsFile file;
  if (!file.open_or_create_for_store(path)) {
    return false;
  }
  qel::FileEdit edit(file, kDialect);
  return edit.load() && store(edit, target, value) && file.close();
}

}  // namespace

char* CPROIO_Manipulator::GetBlock(int number, BLOCK kind) {
  return block_name(number, kind, scratch().section);
}

char* CPROIO_Manipulator::GetKey(int number, KEY kind) {
  return key_name(number, kind, scratch().key);
}

const char* CPROIO_Manipulator::SectionOf(const Row& row) {
  return row.section.text != nullptr ? row.section.text
                                     : GetBlock(row.section_number, row.section.kind);
}

const char* CPROIO_Manipulator::KeyOf(const Row& row) {
  return row.key.text != nullptr ? row.key.text : GetKey(row.key_number, row.key.kind);
}

bool CPROIO_Manipulator::IsOK(int code) { return code == to_int(Code::success); }

int CPROIO_Manipulator::Read(const char* section, const char* key, char*& value, int index) {
  Code code = Code::no_file;
  qel::attempt([&] {
    platform::OsFile file;
    if (path_ != nullptr && file.open_for_reading(path_)) {
      qel::LineScanner lines = lines_of(file);
      code = read(lines, {section, key, index}, scratch().value);
    }
    return true;
  });
  if (code == Code::success) {
    value = scratch().value.text();
  }
  return to_int(code);
}

// A file that cannot be written is not reported: the callers of old take every write for done.
// Memory that is missing is, unless the value stands in the file already and the stamp alone is
// missed.
int CPROIO_Manipulator::Write(const char* section, const char* key, const char* value,
                              bool stampDate, int index) {
  const bool taken =
      is_storable(value) && qel::attempt([&] {
        if (path_ != nullptr && store_into(path_, {section, key, index}, value) && stampDate) {
          SetFileDate();
        }
        return path_ != nullptr;
      });
  return to_int(taken ? Code::success : Code::refused);
}

bool CPROIO_Manipulator::checkIsThisPROFileSupport(int version) {
  int file_version = 0;
  return GetFileVersion(file_version) && file_version >= version;
}

bool CPROIO_Manipulator::GetFlag(const Row& row, bool& flag) {
  int value = 0;
  Get(row, value);
  return flag = value == 1;
}
