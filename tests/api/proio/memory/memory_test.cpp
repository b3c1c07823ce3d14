#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/accessors.h"
#include "api/proio/memory/failing_memory.h"
#include "api/proio/support.h"

// Memory fails at every allocation of a member, one after the other. Nothing leaves the member, a
// getter says no, a setter says yes where its value stands in the file nevertheless, the stamp
// alone being missed, and no where the file is what it was. The object goes on to work.

namespace qelpro_test {
namespace {

struct Member {
  std::string name;
  std::function<bool(Object&)> call;
  bool writes = true;
};

char* a_long_text() {
  static char text[] =
      "a text that is longer than what a string holds without asking for memory, and then some "
      "more of the same";
  return text;
}

std::vector<Member> members() {
  static const QELPRO_MMM_MECHANICAL record{{1, 2, 3}, {4, 5, 6}, "P20"};
  static int number = 3;
  std::vector<Member> all = {
      {"SetDefault", [](Object& o) { return o.SetDefault(); }},
      {"SetFileDate", [](Object& o) { return o.SetFileDate(); }},
      {"SetUnitVolume", [](Object& o) { return o.SetUnitVolume(); }},
      {"SetVPSwitch", [](Object& o) { return o.SetVPSwitch(true); }},
      {"SetIsTransientInletConv", [](Object& o) { return o.SetIsTransientInletConv(true); }},
      {"SetMoldOpenDirection", [](Object& o) { return o.SetMoldOpenDirection(1.25, 2.5, 1e-10); }},
      {"SetFlowHeatTransferCoefficient",
       [](Object& o) { return o.SetFlowHeatTransferCoefficient(25000.5); }},
      {"SetValveGateControlData",
       [](Object& o) { return o.SetValveGateControlData(1, 2, 1.5, 2, 3, 4); }},
      {"SetCoolant", [](Object& o) { return o.SetCoolant(1, 1, 2, 3, 4, 5, a_long_text(), 6, 7); }},
      {"SetcoolChannelControlPoint",
       [](Object& o) { return o.SetcoolChannelControlPoint(1, 2, 1.5, 3, 2, 4, 0.1); }},
      {"SetCoolChannelGroupID", [](Object& o) { return o.SetCoolChannelGroupID(1, number); }},
      {"SetMoldbase", [](Object& o) { return o.SetMoldbase(1, 1, 2, 3, a_long_text()); }},
      {"SetMoldMetalMaterial", [](Object& o) { return o.SetMoldMetalMaterial(1, record); }},
      {"SetBCCountName", [](Object& o) { return o.SetBCCountName(3, 2, a_long_text()); }},
      {"SetBCProfile", [](Object& o) { return o.SetBCProfile(1, 2, 2.5, 1e-10); }},
      {"GetBCProfile",
       [](Object& o) {
         double x = 777;
         double y = 777;
         const bool done = o.GetBCProfile(1, 1, x, y);
         EXPECT_EQ(done, x == 2 && y == 3);
         EXPECT_TRUE(done || (x == 777 && y == 777));
         return done;
       },
       false},
      {"GetBCSetting",
       [](Object& o) {
         int count = 777;
         int type = 777;
         char* name = nullptr;
         return o.GetBCSetting(1, count, name, type) && count == 1;
       },
       false},
      {"SetFilePath of a file that exists",
       [](Object& o) {
         const char* path = nullptr;
         return o.GetFilePath(path) && o.SetFilePath(path);
       },
       false},
      {"Copies",
       [](Object& o) {
         Object copy(o);
         Object other;
         other = copy;
         int version = 0;
         return other.GetFileVersion(version) && version == 1010;
       },
       false},
  };
  for (const auto& row : text_accessors()) {
    if (row.set) {
      all.push_back({row.name, [&row](Object& o) { return row.set(o, a_long_text()); }});
    }
  }
  for (const auto& row : integer_accessors()) {
    if (row.set) {
      all.push_back({row.name, [&row](Object& o) { return row.set(o, -1234567); }});
    }
  }
  for (const auto& row : real_accessors()) {
    if (row.set) {
      all.push_back({row.name, [&row](Object& o) { return row.set(o, -1.25e-100); }});
    }
  }
  for (const auto& row : point_accessors()) {
    if (row.set) {
      all.push_back({row.name, [&row](Object& o) { return row.set(o, -1.25e-100, 2); }});
    }
  }
  return all;
}

class WithoutMemory : public ProcessObject {
 protected:
  const std::string kFile =
      "[FileHeader]\n" + entry("Date", "2001/01/01 00:00:00") +
      "[CaeHeader]\nFileVersion = 1010\n[Summary]\nTotalNodeBC = 1\n" +
      "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\tTop\n1 = 2\t3\n[Flow-1]\nFillTime = 1\n" +
      std::string(300, 'y') + "\n";
};

TEST_F(WithoutMemory, MembersSayWhatIsDoneAndTheObjectGoesOn) {
  int failures = 0;
  int failed_stamps = 0;
  for (const Member& member : members()) {
    SCOPED_TRACE(member.name);
    over(kFile);
    ASSERT_TRUE(member.call(object_));
    const std::string after = masked_bytes();
    EXPECT_EQ(after != masked(kFile), member.writes && member.name != "SetFileDate");
    bool failed = true;
    for (int n = 1; failed; ++n) {
      over(kFile);
      failing_memory::fail(n);
      const bool done = member.call(object_);
      failed = failing_memory::stop().failed;
      const std::string left = masked_bytes();
      if (after == masked(kFile)) {
        ASSERT_EQ(done, !failed) << "allocation " << n;
      } else if (member.name == "SetDefault") {  // which looks at each entry that it has written
        ASSERT_TRUE(!done || left == after) << "allocation " << n << ": " << left;
      } else {
        ASSERT_EQ(done, left == after) << "allocation " << n << ": " << left;
      }
      if (!done && member.name != "SetDefault") {  // which writes entry after entry
        EXPECT_EQ(left, masked(kFile)) << "allocation " << n;
      }
      failures += failed ? 1 : 0;
      failed_stamps += failed && done ? 1 : 0;
      ASSERT_TRUE(member.call(object_)) << "allocation " << n;
      EXPECT_EQ(masked_bytes(), after) << "allocation " << n;
    }
  }
  EXPECT_GT(failures, 500);
  EXPECT_GT(failed_stamps, 100);
}

}  // namespace
}  // namespace qelpro_test
