#include <array>
#include <cstdio>

#include "platform/clock.h"
#include "platform/os_file.h"
#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;
namespace platform = qel::platform;

CPROIO_Manipulator::CPROIO_Manipulator() = default;
CPROIO_Manipulator::CPROIO_Manipulator(const CPROIO_Manipulator& other) = default;
CPROIO_Manipulator& CPROIO_Manipulator::operator=(const CPROIO_Manipulator& other) = default;
CPROIO_Manipulator::~CPROIO_Manipulator() = default;

// NOLINTNEXTLINE(readability-non-const-parameter): the signature is the exported one.
void CPROIO_Manipulator::SetFilePath(char* path) {
  path_ = path;
}  // NOLINT(readability-non-const-parameter): the constant one looks at the file

bool CPROIO_Manipulator::SetFilePath(const char* path) {
  const bool can_be_read = path != nullptr && qel::attempt([path] {
                             platform::OsFile file;
                             return file.open_for_reading(path);
                           });
  if (can_be_read) {
    path_ = path;
  }
  return can_be_read;
}

bool CPROIO_Manipulator::GetFilePath(const char*& path) {
  path = path_;
  return path_ != nullptr;
}

bool CPROIO_Manipulator::Test() { return true; }

// Written without a stamp: it is the stamp.
bool CPROIO_Manipulator::SetFileDate() {
  const platform::LocalTime now = platform::local_time();
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "%04d/%02d/%02d %02d:%02d:%02d", now.year, now.month,
                now.day, now.hour, now.minute, now.second);
  return IsOK(
      Write(SectionOf(file_header::kDate), KeyOf(file_header::kDate), text.data(), false, kByKey));
}
