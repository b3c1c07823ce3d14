#include <functional>
#include <set>

#include "inner/core/document_fixture.h"
#include "text/name_hash.h"

// Names that someone chose so that a table without a key of its own would take each of them for the
// next.

namespace qelpro_test {
namespace {

TEST(NameHash, TellsNamesApartByEveryCharacterAndByTheirLength) {
  std::set<std::uint64_t> hashes;
  std::string name;
  for (int length = 0; length < 40; ++length) {
    for (char c = 0; c < 10; ++c) {
      hashes.insert(qel::name_hash(name + c));
    }
    hashes.insert(qel::name_hash(name));
    name += 'x';
  }
  EXPECT_EQ(hashes.size(), 440U);
  EXPECT_EQ(qel::name_hash("[Flow-1]"), qel::name_hash(std::string("[Flow-1]")));
}

#ifdef __GLIBCXX__
// The standard library's hash is MurmurHash64A with a fixed key: two halves of a word pair can be
// chosen so that they cancel out. The same block of eight bytes twice is enough for a family of
// names whose hashes agree in their low bits.
std::vector<std::string> names_of_one_slot(std::size_t count, std::size_t mask) {
  std::vector<std::string> names;
  for (unsigned number = 0; names.size() < count; ++number) {
    std::string name = "[" + std::to_string(number) + "]";
    if ((std::hash<std::string>()(name) & mask) == 0) {
      names.push_back(std::move(name));
    }
  }
  return names;
}

TEST(NameHash, SpreadsNamesThatAFixedHashPutsIntoOneSlot) {
  constexpr std::size_t kMask = 255;
  std::set<std::uint64_t> slots;
  for (const std::string& name : names_of_one_slot(300, kMask)) {
    slots.insert(qel::name_hash(name) & kMask);
  }
  EXPECT_GT(slots.size(), 100U);
}
#endif

}  // namespace
}  // namespace qelpro_test
