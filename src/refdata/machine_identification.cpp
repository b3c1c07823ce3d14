#include <cstring>
#include <string>
#include <vector>

#include "QELPROEngine/CQELMachineIdentification.h"
#include "objects/attempt.h"
#include "objects/owners.h"
#include "platform/os_file.h"
#include "refdata/machine_bank.h"

namespace qel::refdata {

// A path that is given in one of two ways; the other is empty then.
struct Path {
  std::string narrow;
  std::wstring wide;

  void set(const char* text) {
    narrow = std::string(text);
    wide.clear();
  }
  void set(const wchar_t* text) {
    wide = std::wstring(text);
    narrow.clear();
  }
  [[nodiscard]] bool open(qel::platform::OsFile& file) const {
    if (!wide.empty()) {
      return file.open_for_reading(wide.c_str());
    }
    return !narrow.empty() && file.open_for_reading(narrow.c_str());
  }
};

}  // namespace qel::refdata

struct QELMachineRecord {
  std::vector<const char*> handed_out;
  int version = 0;
  qel::refdata::Path user_bank;
  qel::refdata::Path identification;
  qel::refdata::Makers makers;
  std::vector<const std::string*> makers_in_order;
};

namespace {

using Record = qel::Shared<QELMachineRecord>;

Record* record_of(QELMachineRecord* record) { return static_cast<Record*>(record); }

Record* make_record() {
  Record* record = nullptr;
  qel::attempt([&record] { return (record = new Record) != nullptr; });
  return record;
}

// An object that found no memory for its record makes it here.
template <class Character>
void set_path(QELMachineRecord*& record, qel::refdata::Path QELMachineRecord::*path,
              const Character* text) {
  if (record == nullptr) {
    record = make_record();
  }
  if (record == nullptr || text == nullptr) {
    return;
  }
  // Without memory the path before stays.
  qel::attempt([&] {
    (record->*path).set(text);
    return true;
  });
}

// No terminator is added when the text fills the buffer.
bool copy_bounded(const std::string& text, char* buffer, unsigned int size) {
  std::strncpy(buffer, text.c_str(), size);
  return true;
}

std::vector<const std::string*> in_order(const qel::refdata::Makers& makers) {
  std::vector<const std::string*> names;
  names.reserve(makers.size());
  for (const auto& maker : makers) {
    names.push_back(&maker.first);
  }
  return names;
}

const std::vector<std::string>* grades_of(const QELMachineRecord* record, const char* maker) {
  if (record == nullptr || maker == nullptr) {
    return nullptr;
  }
  const auto found = record->makers.find(maker);
  return found != record->makers.end() ? &found->second : nullptr;
}

template <class Texts, class TextOf>
bool hand_out(QELMachineRecord& record, const Texts& texts, TextOf text_of, const char*** list,
              int* count) {
  if (texts.empty() || list == nullptr || count == nullptr) {
    return false;
  }
  return qel::attempt([&] {
    std::vector<const char*> pointers;
    pointers.reserve(texts.size());
    for (const auto& text : texts) {
      pointers.push_back(text_of(text).c_str());
    }
    record.handed_out = std::move(pointers);
    *list = record.handed_out.data();
    *count = static_cast<int>(record.handed_out.size());
    return true;
  });
}

}  // namespace

CQELMachineIdentification::CQELMachineIdentification() : record_(make_record()) {}

CQELMachineIdentification::CQELMachineIdentification(const CQELMachineIdentification& other)
    : record_(qel::share(record_of(other.record_))) {}

CQELMachineIdentification& CQELMachineIdentification::operator=(
    const CQELMachineIdentification& other) {
  if (this != &other) {
    QELMachineRecord* previous = record_;
    record_ = qel::share(record_of(other.record_));
    qel::release(record_of(previous));
  }
  return *this;
}

CQELMachineIdentification::~CQELMachineIdentification() { qel::release(record_of(record_)); }

void CQELMachineIdentification::SetMachineUserBankPath(const char* path) {
  set_path(record_, &QELMachineRecord::user_bank, path);
}
void CQELMachineIdentification::SetMachineUserBankPath(const wchar_t* path) {
  set_path(record_, &QELMachineRecord::user_bank, path);
}
void CQELMachineIdentification::SetIdentificationPath(const char* path) {
  set_path(record_, &QELMachineRecord::identification, path);
}
void CQELMachineIdentification::SetIdentificationPath(const wchar_t* path) {
  set_path(record_, &QELMachineRecord::identification, path);
}

bool CQELMachineIdentification::LoadFileData() {
  if (record_ == nullptr) {
    return false;
  }
  return qel::attempt([this] {
    record_->makers_in_order.clear();
    record_->makers.clear();
    record_->handed_out.clear();
    try {
      qel::platform::OsFile file;
      const bool loaded = record_->user_bank.open(file) &&
                          qel::refdata::read_machine_bank(file, record_->version, record_->makers);
      record_->makers_in_order = in_order(record_->makers);
      return loaded;
    } catch (...) {
      record_->makers.clear();  // those read so far would be known by name, and not be listed
      throw;
    }
  });
}

int CQELMachineIdentification::GetMakerCount() {
  return record_ != nullptr ? static_cast<int>(record_->makers_in_order.size()) : 0;
}

bool CQELMachineIdentification::GetMaker(int index, char* buffer, unsigned int size) {
  if (index < 0 || index >= GetMakerCount() || buffer == nullptr || size == 0) {
    return false;
  }
  return copy_bounded(*record_->makers_in_order[static_cast<std::size_t>(index)], buffer, size);
}

int CQELMachineIdentification::GetGradeCount(const char* maker) {
  const std::vector<std::string>* grades = grades_of(record_, maker);
  return grades != nullptr ? static_cast<int>(grades->size()) : 0;
}

bool CQELMachineIdentification::GetGrade(const char* maker, int index, char* buffer,
                                         unsigned int size) {
  if (index < 0 || index >= GetGradeCount(maker) || buffer == nullptr || size == 0) {
    return false;
  }
  return copy_bounded((*grades_of(record_, maker))[static_cast<std::size_t>(index)], buffer, size);
}

bool CQELMachineIdentification::GetAllMaker(const char*** makers, int* count) {
  return record_ != nullptr &&
         hand_out(
             *record_, record_->makers_in_order,
             [](const std::string* maker) -> const std::string& { return *maker; }, makers, count);
}

bool CQELMachineIdentification::GetAllGrade(const char* maker, const char*** grades, int* count) {
  const std::vector<std::string>* found = grades_of(record_, maker);
  return found != nullptr &&
         hand_out(
             *record_, *found, [](const std::string& grade) -> const std::string& { return grade; },
             grades, count);
}

bool CQELMachineIdentification::HasMachineIdentification(const char* /*maker*/,
                                                         const char* /*grade*/,
                                                         const char* /*third*/) {
  return false;
}

bool CQELMachineIdentification::GetALLIdentity(const char* /*first*/, const char* /*second*/,
                                               const char*** /*texts*/, int* /*count*/) {
  return false;
}
