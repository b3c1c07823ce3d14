#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/scratch.h"
#include "tool/shell.h"

/// Commands that write a file, as scripts of the shell.
namespace qelpro_test {

inline constexpr const char* kOld = "[A]\nx = 1\ny = 2\n";

/// What writes into "$1", where "$2" is a form of JSON.
struct Writer {
  const char* name;
  const char* command;
  const char* made;  ///< What the file is afterwards.
};
inline std::ostream& operator<<(std::ostream& out, const Writer& row) { return out << row.name; }

inline const std::vector<Writer> kWriters = {
    {"Set", "\"$0\" set \"$1\" A.x=5 B.z=6",
     "[A]\nx = 5\ny = 2\n\n[B]\nz                    = 6\n"},
    {"Unset", "\"$0\" unset \"$1\" A.x", "[A]\ny = 2\n"},
    {"ImportOnto", "\"$0\" import \"$2\" --onto \"$1\"", "[A]\nx = 7\ny = 2\n"},
    {"Import", "\"$0\" import \"$2\" -o \"$1\"", "[A]\nx                    = 7\n"},
    {"SetFrom", "\"$0\" set \"$1\" --from \"$3\"", "[A]\nx = 8\ny = 2\n"},
    {"Export", "\"$0\" export \"$2.pro\" -o \"$1\"", "{}\n"}};

struct NameOfWriter {
  template <class Info>
  std::string operator()(const Info& info) const {
    return info.param.name;
  }
};

class WritingCommand : public testing::TestWithParam<Writer> {
 protected:
  void SetUp() override {
    put_bytes(forms_.path("form.json"), "{\"A\": {\"x\": \"7\"}}");
    put_bytes(forms_.path("form.json.pro"), "");
    put_bytes(forms_.path("values.json"), "{\"A.x\": \"8\"}");
  }
  Outcome write(const std::string& file, const std::string& before = "",
                const std::string& after = "") {
    return shell(before + GetParam().command + after,
                 {file, forms_.path("form.json"), forms_.path("values.json")});
  }
  Scratch forms_;
  Scratch scratch_;
  std::string file_ = scratch_.file(kOld);
};

}  // namespace qelpro_test
