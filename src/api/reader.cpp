#include <limits>

#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "api/members.h"
#include "api/ownership.h"

using qel::ValueBuffer;

namespace {

// A size of 0 says nothing of the buffer's.
constexpr std::size_t kAnySize = std::numeric_limits<std::size_t>::max();

// Reads into the caller's buffer, or into the thread's where there is none. A failing read leaves
// the caller's pointer alone.
template <class Read>
bool hand_out(char* buffer, std::size_t size, ValueBuffer (*of_thread)(), char*& value, Read read) {
  return qel::attempt([&] {
    const ValueBuffer room = buffer != nullptr ? ValueBuffer{buffer, size} : of_thread();
    if (!read(room)) {
      return false;
    }
    value = room.text;
    return true;
  });
}

}  // namespace

CQELPROReader_Manipulator::CQELPROReader_Manipulator() = default;

CQELPROReader_Manipulator::CQELPROReader_Manipulator(const CQELPROReader_Manipulator& other)
    : session_(qel::share(other.session_)), raw_reads_disabled_(other.raw_reads_disabled_) {}

CQELPROReader_Manipulator& CQELPROReader_Manipulator::operator=(
    const CQELPROReader_Manipulator& other) {
  if (this != &other) {
    CQELPROReader* previous = session_;
    session_ = qel::share(other.session_);
    raw_reads_disabled_ = other.raw_reads_disabled_;
    qel::release(previous);
  }
  return *this;
}

CQELPROReader_Manipulator::~CQELPROReader_Manipulator() { qel::release(session_); }

bool CQELPROReader_Manipulator::OpenSession() {
  if (session_ == nullptr) {
    session_ = qel::make_session<CQELPROReader>();
    raw_reads_disabled_ = 0;
  }
  return session_ != nullptr;
}

bool CQELPROReader_Manipulator::SetFilePath(const char* path) {
  return OpenSession() && qel::open(*session_, path, CQELPROIO::kReading);
}

bool CQELPROReader_Manipulator::SetFilePath(const wchar_t* path) {
  return OpenSession() && qel::open(*session_, path, CQELPROIO::kReading);
}

bool CQELPROReader_Manipulator::SetFilePtr(std::FILE*& stream) {
  return OpenSession() && qel::lend(*session_, stream);
}

void CQELPROReader_Manipulator::CloseFile() {
  if (session_ != nullptr) {
    qel::close(*session_);
  }
}

bool CQELPROReader_Manipulator::GetFilePath(const char*& path) {
  if (session_ == nullptr) {
    return false;
  }
  path = session_->document().narrow_path();
  return true;
}

bool CQELPROReader_Manipulator::ReadString(const char* section, const char* key, char*& value,
                                           char* buffer, unsigned int size) {
  if (raw_reads_disabled_ != 0 || session_ == nullptr) {
    return false;
  }
  return hand_out(buffer, size, &ValueBuffer::of_thread, value, [&](const ValueBuffer& room) {
    return session_->document().ReadOnce(qel::name_of(section), qel::name_of(key), room) ==
           qel::Result::done;
  });
}

bool CQELPROReader_Manipulator::ReadValue(const char* section, const char* key, char*& value,
                                          char* buffer, unsigned int size) {
  if (raw_reads_disabled_ != 0 || session_ == nullptr || section == nullptr || key == nullptr) {
    return false;
  }
  const std::size_t room_size = size != 0 ? size : kAnySize;
  return hand_out(
      buffer, room_size, &ValueBuffer::of_thread_for_scans, value, [&](const ValueBuffer& room) {
        return session_->document().ScanValue(session_->document().own_path(), section, key, room);
      });
}
