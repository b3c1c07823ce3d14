#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/statvfs.h>

#include <fstream>
#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "api/proio/support.h"
#include "support/scratch.h"

// Stores into a file system that fills up. Needs the right to mount one.

namespace qelpro_test {
namespace {

class FullDisk : public testing::Test {
 protected:
  void SetUp() override {
    if (::mount("tmpfs", scratch_.path("").c_str(), "tmpfs", 0, "size=64k") != 0) {
      GTEST_SKIP() << "no file system may be mounted here";
    }
    mounted_ = true;
  }
  void TearDown() override {
    if (mounted_) {
      ::umount2(scratch_.path("").c_str(), MNT_DETACH);
    }
  }
  // Leaves so many pages of 4 KiB free.
  void fill(unsigned pages) const {
    struct statvfs status {};
    ASSERT_EQ(::statvfs(scratch_.path("").c_str(), &status), 0);
    ASSERT_GE(status.f_bfree, pages);
    std::ofstream(scratch_.path("filler"), std::ios::binary)
        << std::string((status.f_bfree - pages) * status.f_bsize, '#');
  }

  Scratch scratch_;
  bool mounted_ = false;
};

TEST_F(FullDisk, LosesNoEntryOfTheDocument) {
  std::string contents = "[Flow-1]\nFillTime = 1\n";
  for (int i = 0; i < 200; ++i) {
    contents += "k" + std::to_string(i) + " = " + std::to_string(i) + "\n";
  }
  const std::string path = scratch_.file(contents);
  fill(2);
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  int refused = 0;
  for (std::size_t length = 100; length <= 4000; length += 300) {
    for (int key = 0; key < 12; ++key) {
      const std::string before = bytes_of(path);
      const std::string value(length, 'v');
      const bool done =
          writer.WriteString("[Flow-1]", ("new" + std::to_string(key)).c_str(), value.c_str());
      if (!done) {
        ++refused;
        ASSERT_TRUE(bytes_of(path) == before);
      } else {
        ASSERT_NE(bytes_of(path).find("new" + std::to_string(key) + " "), std::string::npos);
      }
    }
  }
  EXPECT_GT(refused, 50);
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  for (int i = 0; i < 200; ++i) {
    char buffer[16];
    char* value = nullptr;
    ASSERT_TRUE(reader.ReadString("[Flow-1]", ("k" + std::to_string(i)).c_str(), value, buffer,
                                  sizeof buffer))
        << i;
    EXPECT_EQ(value, std::to_string(i));
  }
  EXPECT_TRUE(writer.FlowX_WriteFillingTime(2, 1)) << "what needs no room is still stored";
}

TEST_F(FullDisk, LosesNoEntryOfTheSelfContainedObject) {
  std::string path = scratch_.path();
  CPROIO_Manipulator object;
  object.SetFilePath(path.data());
  ASSERT_TRUE(object.SetDefault());
  fill(0);
  const std::string before = masked(bytes_of(path));
  std::string remark(120, 'r');
  for (int stage = 1; stage <= 60; ++stage) {
    const std::string earlier = masked(bytes_of(path));
    EXPECT_TRUE(object.SetFillTime(stage, stage + 1));
    const std::string later = masked(bytes_of(path));
    EXPECT_EQ(later.substr(0, earlier.size()), earlier) << "an append appends, or does nothing";
  }
  EXPECT_EQ(masked(bytes_of(path)).substr(0, before.size()), before);
  EXPECT_LE(bytes_of(path).size(), 4096U) << "the page that it had";
}

}  // namespace
}  // namespace qelpro_test
