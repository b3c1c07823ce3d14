#include "platform/change_count.h"

#include <array>

namespace qel::platform {
namespace {

constexpr std::size_t kCounters = 256;
std::array<std::atomic<std::uint32_t>, kCounters> counters;

}  // namespace

ChangeCount::ChangeCount(std::uint64_t device, std::uint64_t file)
    : counter_(&counters[(file + 31 * device) % kCounters]) {}

std::uint32_t ChangeCount::value() const {
  return counter_ != nullptr ? counter_->load(std::memory_order_acquire) : 0;
}

void ChangeCount::add() {
  if (counter_ != nullptr) {
    counter_->fetch_add(1, std::memory_order_release);
  }
}

}  // namespace qel::platform
