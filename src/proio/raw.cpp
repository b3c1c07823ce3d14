#include "platform/os_file.h"
#include "proio/catalogue.h"
#include "proio/line_store.h"
#include "proio/typed.h"

using namespace qel::proio;
namespace platform = qel::platform;

namespace {

int to_int(Code code) { return static_cast<int>(code); }

bool store_into(const char* path, const Target& target, const char* value) {
  platform::OsFile file;
  return (file.open_for_update(path) || file.create(path)) && store(file, target, value) && file.close();
}

}  // namespace

char* CPROIO_Manipulator::GetBlock(int number, BLOCK kind) { return block_name(number, kind, scratch().section); }

char* CPROIO_Manipulator::GetKey(int number, KEY kind) { return key_name(number, kind, scratch().key); }

const char* CPROIO_Manipulator::SectionOf(const Entry& entry) {
  return entry.section.text != nullptr ? entry.section.text : GetBlock(entry.section_number, entry.section.kind);
}

const char* CPROIO_Manipulator::KeyOf(const Entry& entry) {
  return entry.key.text != nullptr ? entry.key.text : GetKey(entry.key_number, entry.key.kind);
}

bool CPROIO_Manipulator::IsOK(int code) { return code == to_int(Code::success); }

int CPROIO_Manipulator::Read(const char* section, const char* key, char*& value, int index) {
  platform::OsFile file;
  if (path_ == nullptr || !file.open_for_reading(path_)) {
    return to_int(Code::no_file);
  }
  Buffer& buffer = scratch().value;
  const Code code = read(file, {section, key, index}, buffer);
  if (code == Code::success) {
    value = buffer.text();
  }
  return to_int(code);
}

// A file that cannot be written is not reported: the callers of old take every write for done.
int CPROIO_Manipulator::Write(const char* section, const char* key, const char* value, bool stampDate, int index) {
  if (path_ == nullptr || value == nullptr) {
    return to_int(Code::refused);
  }
  attempt([&] { return store_into(path_, {section, key, index}, value); });
  if (stampDate) {
    SetFileDate();
  }
  return to_int(Code::success);
}

bool CPROIO_Manipulator::checkIsThisPROFileSupport(int version) {
  int file_version = 0;
  return GetFileVersion(file_version) && file_version >= version;
}

bool CPROIO_Manipulator::GetFlag(const Entry& entry, bool& flag) {
  int value = 0;
  Get(entry, value);
  return flag = value == 1;
}
