#pragma once

#include <atomic>

#include "objects/attempt.h"

/// What copies of an exported object share: a record that counts its `owners`, of which the last
/// one deletes it. The copies may come and go on different threads.
namespace qel {

template <class Record>
struct Shared : Record {
  std::atomic<int> owners{1};
};

template <class Owned>
Owned* share(Owned* record) {
  if (record != nullptr) {
    ++record->owners;
  }
  return record;
}

template <class Owned>
void release(Owned* record) {
  if (record != nullptr && --record->owners == 0) {
    give_back([record] { delete record; });
  }
}

}  // namespace qel
