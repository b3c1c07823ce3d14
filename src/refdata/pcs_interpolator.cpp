#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "QELPROEngine/CQELPCSInterpolator.h"
#include "objects/attempt.h"
#include "objects/owners.h"
#include "platform/os_file.h"
#include "refdata/coolant_table.h"
#include "refdata/user_file.h"

struct QELCoolantTables {
  std::vector<qel::refdata::Coolant> coolants;
};

namespace {

using Tables = qel::Shared<QELCoolantTables>;

Tables* tables_of(QELCoolantTables* tables) { return static_cast<Tables*>(tables); }

// The number in the file of a coolant that a program knows by its identifier; false for one that
// has none.
bool number_of(int identifier, int& number) {
  constexpr int kFirstRefused = 3;
  constexpr int kFirstUserCoolant = 6;
  if (identifier >= kFirstRefused && identifier < kFirstUserCoolant) {
    return false;
  }
  number =
      identifier < kFirstRefused ? identifier : identifier - (kFirstUserCoolant - kFirstRefused);
  return true;
}

}  // namespace

CQELPCSInterpolator::CQELPCSInterpolator() = default;

CQELPCSInterpolator::CQELPCSInterpolator(const CQELPCSInterpolator& other)
    : tables_(qel::share(tables_of(other.tables_))) {}

CQELPCSInterpolator& CQELPCSInterpolator::operator=(const CQELPCSInterpolator& other) {
  if (this != &other) {
    QELCoolantTables* previous = tables_;
    tables_ = qel::share(tables_of(other.tables_));
    qel::release(tables_of(previous));
  }
  return *this;
}

CQELPCSInterpolator::~CQELPCSInterpolator() { qel::release(tables_of(tables_)); }

bool CQELPCSInterpolator::LoadDataFromFile(const char* path) {
  return qel::attempt([&] {
    qel::release(tables_of(tables_));
    tables_ = nullptr;  // should there be no memory for another
    tables_ = new Tables;
    qel::platform::OsFile file;
    if (path == nullptr || !file.open_for_reading(path)) {
      return false;
    }
    auto coolants = qel::refdata::read_coolants(file);
    if (!coolants) {
      return false;
    }
    tables_->coolants = *std::move(coolants);
    return true;
  });
}

bool CQELPCSInterpolator::InterpolateCoolantProperties(int coolant, double argument, double& p1,
                                                       double& p2, double& p3, double& p4) {
  int number = 0;
  if (tables_ == nullptr || !number_of(coolant, number)) {
    return false;
  }
  const auto& coolants = tables_->coolants;
  const auto found = std::find_if(coolants.begin(), coolants.end(),
                                  [number](const auto& record) { return record.number == number; });
  if (found == coolants.end() || !found->valid) {
    return false;
  }
  const auto properties = found->properties_at(argument);
  p1 = properties[0];
  p2 = properties[1];
  p3 = properties[2];
  p4 = properties[3];
  return true;
}

bool g_GetCurrentUserPSCFilePath(char* buffer, unsigned int size) {
  return qel::attempt([&] {
    const std::string path = qel::refdata::user_coolant_file();
    if (buffer == nullptr || path.empty() || path.size() >= size) {
      return false;
    }
    std::memcpy(buffer, path.c_str(), path.size() + 1);
    return true;
  });
}
