#include <gtest/gtest.h>

#include "study/sweep.h"
#include "support/scratch.h"

// The threads of a sweep share its study and take the files one after the other.

namespace qelpro_test {
namespace {

TEST(Threads, OfASweepMakeEveryFileOnce) {
  const Scratch scratch;
  const qelpro::Study study(
      "base.pro", "[Flow-1]\nFillTime = 1\nMeltTemp = 200\n",
      {{{"Flow-1.FillTime", "1:10:1", {}}, {"Flow-1.MeltTemp", "200:229:1", {}}}, {}, 0, false});
  const std::string folder = scratch.path("sweep");
  std::uint64_t told = 0;
  const std::uint64_t made =
      qelpro::make_files(study, folder, qelpro::Existing::refuse, [&told](std::uint64_t done) {
        told = done;
        return true;
      });
  EXPECT_EQ(made, 300U);
  EXPECT_LE(told, 300U);
  for (std::uint64_t index = 0; index < study.size(); ++index) {
    EXPECT_EQ(bytes_of(folder + "/" + study.file_name(index)), study.contents(index));
  }
}

}  // namespace
}  // namespace qelpro_test
