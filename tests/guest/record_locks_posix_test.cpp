#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <string>

#include "QELPROEngine/QELPROEngine.h"
#include "support/child.h"
#include "support/scratch.h"

// What becomes of the locks that a host holds on a file which it works on through the library:
// docs/hosts.md tells hosts which kind to take.

namespace qelpro_test {
namespace {

enum class Kind { record, description, whole };

bool lock(int fd, Kind kind, bool waits_for_none) {
  if (kind == Kind::whole) {
    return ::flock(fd, LOCK_EX | (waits_for_none ? LOCK_NB : 0)) == 0;
  }
  struct flock bytes {};
  bytes.l_type = F_WRLCK;
  bytes.l_whence = SEEK_SET;
  bytes.l_len = 10;
  return ::fcntl(fd, kind == Kind::record ? F_SETLK : F_OFD_SETLK, &bytes) == 0;
}

// Whether another program is kept away.
bool is_locked(const std::string& path, Kind kind) {
  return !in_child({}, [&] {
    const int fd = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    return lock(fd, kind, true);
  });
}

class HostsLock : public testing::TestWithParam<Kind> {};

TEST_P(HostsLock, StaysUnlessItIsARecordLock) {
  const Scratch scratch;
  const std::string path = scratch.file("[Flow-1]\nFillTime = 1\n");
  for (const bool stores : {true, false}) {
    const int fd = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_TRUE(lock(fd, GetParam(), false));
    ASSERT_TRUE(is_locked(path, GetParam()));
    if (stores) {
      CQELPROWriter_Manipulator writer;
      EXPECT_TRUE(writer.SetFilePath(path.c_str()) && writer.FlowX_WriteFillingTime(2, 1));
    } else {
      CQELPROReader_Manipulator reader;
      double time = 0;
      EXPECT_TRUE(reader.SetFilePath(path.c_str()) && reader.FlowX_ReadFillingTime(time, 1));
      EXPECT_TRUE(is_locked(path, GetParam())) << "nothing was closed yet";
      reader.CloseFile();
    }
    EXPECT_EQ(is_locked(path, GetParam()), GetParam() != Kind::record);
    ::close(fd);
  }
}

INSTANTIATE_TEST_SUITE_P(Kind, HostsLock,
                         testing::Values(Kind::record, Kind::description, Kind::whole),
                         [](const auto& row) {
                           return row.param == Kind::record        ? "Record"
                                  : row.param == Kind::description ? "Description"
                                                                   : "Whole";
                         });

}  // namespace
}  // namespace qelpro_test
