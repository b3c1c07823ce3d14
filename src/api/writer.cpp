#include <cstdarg>
#include <string>

#include "QELPROEngine/CQELPROWriter_Manipulator.h"
#include "api/members.h"
#include "api/ownership.h"
#include "platform/format.h"
#include "refdata/user_file.h"

namespace {

// The text is kept and not used: the document has a copy of its own. Without memory for it, none is
// kept.
void keep(std::string& path, const std::string& other) {
  if (!qel::attempt([&] { return path = other, true; })) {
    path.clear();
  }
}

}  // namespace

CQELPROWriter_Manipulator::CQELPROWriter_Manipulator() = default;

CQELPROWriter_Manipulator::CQELPROWriter_Manipulator(const CQELPROWriter_Manipulator& other)
    : session_(qel::share(other.session_)) {
  keep(path_, other.path_);
}

CQELPROWriter_Manipulator& CQELPROWriter_Manipulator::operator=(
    const CQELPROWriter_Manipulator& other) {
  if (this != &other) {
    CQELPROWriter* previous = session_;
    session_ = qel::share(other.session_);
    keep(path_, other.path_);
    qel::release(previous);
  }
  return *this;
}

CQELPROWriter_Manipulator::~CQELPROWriter_Manipulator() { qel::release(session_); }

bool CQELPROWriter_Manipulator::OpenSession() {
  if (session_ == nullptr) {
    session_ = qel::make_session<CQELPROWriter>();
  }
  return session_ != nullptr;
}

bool CQELPROWriter_Manipulator::SetFilePath(const char* path) {
  if (path == nullptr || !OpenSession()) {
    return false;
  }
  return qel::attempt([&] {
    std::string copy(path);
    qel::refdata::make_folder_for_save(path);
    const bool opened = qel::open(*session_, path, CQELPROIO::kWriting);
    if (opened) {
      path_ = std::move(copy);
    }
    return opened;
  });
}

bool CQELPROWriter_Manipulator::SetFilePath(const wchar_t* path) {
  return OpenSession() && qel::open(*session_, path, CQELPROIO::kWriting);
}

bool CQELPROWriter_Manipulator::SetFilePtr(std::FILE*& stream) {
  return OpenSession() && qel::lend(*session_, stream);
}

void CQELPROWriter_Manipulator::CloseFile() {
  if (session_ != nullptr) {
    qel::close(*session_);
  }
}

bool CQELPROWriter_Manipulator::GetFilePath(const char*& path) {
  if (session_ == nullptr) {
    return false;
  }
  path = session_->document().narrow_path();
  return true;
}

bool CQELPROWriter_Manipulator::WriteString(const char* section, const char* key,
                                            const char* value) {
  return session_ != nullptr && value != nullptr && qel::attempt([&] {
           return session_->document().WriteOnce(qel::name_of(section), qel::name_of(key), value) ==
                  qel::Result::done;
         });
}

bool CQELPROWriter_Manipulator::WriteItems(const char* section, const char* key, const char* format,
                                           ...) {
  if (session_ == nullptr || format == nullptr) {
    return false;
  }
  std::va_list arguments;
  va_start(arguments, format);
  const bool done = qel::attempt([&] {
    const std::optional<std::string> value = qel::platform::format(format, arguments);
    return value && WriteString(section, key, value->c_str());
  });
  va_end(arguments);
  return done;
}
