#include "text/sip_hash.h"

#include <gtest/gtest.h>

#include "text/name_hash.h"

namespace qel {
namespace {

std::uint64_t hash(const HashKey& key, std::string_view text) { return SipHash(key).with(text); }

// As Python 3.11 says with PYTHONHASHSEED=0: hash(b"Key") % 2**64.
TEST(SipHash, HashesAsOthersDo) {
  EXPECT_EQ(hash({0, 0}, "a"), 0x407448d2b89b1813U);
  EXPECT_EQ(hash({0, 0}, "Key"), 0xcd0f44441c3b7719U);
  EXPECT_EQ(hash({0, 0}, "[Flow-1]"), 0xfd6c4587cb97bdc9U);
  EXPECT_EQ(hash({0, 0}, "InjectionPressureProfile"), 0x5ce801ec44f464a6U);
  EXPECT_EQ(hash({0, 0}, "[Flow-1]Key"), 0x8651199b9cdc59daU);
}

// The key of its authors' examples: the bytes 0 to 15.
TEST(SipHash, HashesUnderAKey) {
  const HashKey key{0x0706050403020100U, 0x0f0e0d0c0b0a0908U};
  EXPECT_EQ(hash(key, ""), 0xabac0158050fc4dcU);
  EXPECT_EQ(hash(key, "a"), 0x1c2697ab786a6237U);
  EXPECT_EQ(hash(key, "InjectionPressureProfile"), 0x5fe900db0e1153b0U);
}

TEST(NameHash, IsAnotherForEveryOwner) {
  EXPECT_NE(name_hash(1, "Key"), name_hash(2, "Key"));
  EXPECT_NE(name_hash(1, "Key"), name_hash("Key"));
  EXPECT_EQ(name_hash(1, "Key"), name_hash(1, "Key"));
}

}  // namespace
}  // namespace qel
