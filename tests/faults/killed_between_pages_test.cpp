#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "faults/io_calls.h"
#include "support/scratch.h"

// A program is killed between two pages of a write, after every page of every kind of store in
// turn. What it leaves has each entry as it was or as the store leaves it, for readers of every
// kind.

namespace qelpro_test {
namespace {

using Address = std::pair<std::string, std::string>;

// A process file of four inlets, some 20 KB.
struct File {
  File() {
    section("[FileHeader]");
    entry("Name", "lid.pro");
    entry("Date", "2026/11/15 09:05:07");
    section("[FlowCTLInfo]");
    entry("TotalInlet", "4");
    for (int inlet = 1; inlet <= 4; ++inlet) {
      const std::string number = std::to_string(inlet) + "]";
      section("[Flow-" + number);
      entry("FillTime", "1.25");
      entry("MeltTemp", "230");
      profile("FR", 60);
      section("[Pack-" + number);
      entry("PackTime", "5.5");
      profile("PP", 60);
      section("[GateValve-" + number);
      entry("GCId", std::to_string(inlet));
      entry("GC-1", "1 2 3");
    }
    section("[Machine]");
    entry("Maker", "Maker A");
  }

  std::string text;
  std::vector<Address> addresses;

 private:
  void section(const std::string& name) {
    text += "\n" + name + "\n";
    section_ = name;
  }
  void entry(const std::string& key, const std::string& value) {
    char line[128];
    std::snprintf(line, sizeof line, "%-20s = %s\n", key.c_str(), value.c_str());
    text += line;
    addresses.emplace_back(section_, key);
  }
  void profile(const std::string& name, int points) {
    entry(name + "Set", std::to_string(points));
    for (int point = 1; point <= points; ++point) {
      entry(name + "-" + std::to_string(point),
            std::to_string(point * 10) + "\t" + std::to_string(100 - point));
    }
  }
  std::string section_;
};

struct Kind {
  const char* name;
  std::function<bool(const std::string& path)> store;
  std::vector<Address> added = {};
};

std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.name; }

template <class Store>
std::function<bool(const std::string&)> by_writer(Store store) {
  return [store](const std::string& path) {
    CQELPROWriter_Manipulator writer;
    return writer.SetFilePath(path.c_str()) && store(writer);
  };
}

template <class Store>
std::function<bool(const std::string&)> by_stream(Store store) {
  return [store](const std::string& path) {
    std::FILE* stream = std::fopen(path.c_str(), "r+");
    CQELPROWriter_Manipulator writer;
    const bool done = writer.SetFilePtr(stream) && store(writer);
    std::fclose(stream);
    return done;
  };
}

template <class Store>
std::function<bool(const std::string&)> by_object(Store store) {
  return [store](const std::string& path) {
    CPROIO_Manipulator object;
    return object.SetFilePath(path.c_str()) && store(object);
  };
}

// A stamp's time is not known before.
std::string without_time(const std::string& value) {
  constexpr std::string_view kStamp = "2026/11/15 09:05:07";
  return value.size() == kStamp.size() && value[4] == '/' && value[13] == ':' ? "(a time)" : value;
}

class KilledBetweenPages : public testing::TestWithParam<Kind> {};

// What each reader finds under every address: a session, and the older object, whose scan goes on.
std::vector<std::string> found_in(const std::string& path, const std::vector<Address>& addresses) {
  std::vector<std::string> found;
  CQELPROReader_Manipulator session;
  EXPECT_TRUE(session.SetFilePath(path.c_str()));
  for (const auto& [section, key] : addresses) {
    char* text = nullptr;
    const bool is_there = session.ReadString(section.c_str(), key.c_str(), text, nullptr, 0);
    found.push_back(without_time(is_there ? text : "(absent)"));
    char value[256];
    char* found_anywhere = nullptr;
    const bool is_there_too =
        session.ReadValue(section.c_str(), key.c_str(), found_anywhere, value, sizeof value);
    found.push_back(without_time(is_there_too ? found_anywhere : "(absent)"));
  }
  CPROIO_Manipulator object;
  EXPECT_TRUE(object.SetFilePath(path.c_str()));
  for (int inlet = 1; inlet <= 4; ++inlet) {
    double value = -1;
    object.GetFillTime(value, inlet);
    found.push_back(std::to_string(value));
    object.GetPackTime(value, inlet);
    found.push_back(std::to_string(value));
  }
  return found;
}

TEST_P(KilledBetweenPages, LeavesEveryEntryOldOrNew) {
  const Scratch scratch;
  const File file;
  const std::string path = scratch.path();
  std::vector<Address> addresses = file.addresses;
  addresses.insert(addresses.end(), GetParam().added.begin(), GetParam().added.end());
  put_bytes(path, file.text);
  const std::vector<std::string> before = found_in(path, addresses);
  ASSERT_TRUE(GetParam().store(path));
  const std::vector<std::string> after = found_in(path, addresses);
  EXPECT_NE(before, after);
  int stops = 0;
  for (bool ended = false; !ended; ++stops) {
    put_bytes(path, file.text);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      io_calls::end_after_pages(stops);
      ::_exit(GetParam().store(path) ? 0 : 2);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    ASSERT_NE(WEXITSTATUS(status), 2);
    ended = WEXITSTATUS(status) == 0;
    const std::vector<std::string> found = found_in(path, addresses);
    for (std::size_t at = 0; at < found.size(); ++at) {
      EXPECT_TRUE(found[at] == before[at] || found[at] == after[at])
          << "after " << stops << " pages, value " << at << " is " << found[at] << ", was "
          << before[at] << ", is to be " << after[at];
    }
  }
  EXPECT_GT(stops, 1);
}

// Each kind, near the file's beginning and so with some pages behind it.
INSTANTIATE_TEST_SUITE_P(
    Stores, KilledBetweenPages,
    testing::Values(
        Kind{"longer",
             by_writer([](auto& w) { return w.WriteString("[Flow-1]", "FillTime", "1.2345"); })},
        Kind{"much longer", by_writer([](auto& w) {
               return w.WriteString("[FileHeader]", "Name", std::string(90, 'n').c_str());
             })},
        Kind{"shorter", by_writer([](auto& w) { return w.FlowX_WriteFillingTime(2, 1); })},
        Kind{"much shorter",
             by_writer([](auto& w) { return w.WriteString("[FileHeader]", "Date", "1"); })},
        Kind{"new key",
             by_writer([](auto& w) { return w.FlowX_WriteFRProfile(1, 2, 99, 1); }),
             {{"[Flow-1]", "FR-99"}}},
        Kind{"new section",
             by_writer([](auto& w) { return w.WriteString("[New]", "a", "1"); }),
             {{"[New]", "a"}}},
        Kind{"replaced in the whole file",
             by_writer([](auto& w) { return w.GateValveX_WriteGateSetting(4.5, 1, 1, 1, 1); })},
        Kind{"through a lent stream",
             by_stream([](auto& w) { return w.WriteString("[Flow-1]", "FillTime", "1.2345"); })},
        Kind{"shorter, through a lent stream",
             by_stream([](auto& w) { return w.WriteString("[Flow-1]", "FillTime", "2"); })},
        Kind{"by the older object, longer",
             by_object([](auto& o) { return o.SetFillTime(1.2345, 1); })},
        Kind{"by the older object, shorter",
             by_object([](auto& o) { return o.SetFillTime(2, 1); })},
        Kind{"by the older object, new",
             by_object([](auto& o) { return o.SetCureTime(2, 1); }),
             {{"[Cure-1]", "CureTime"}}}));

}  // namespace
}  // namespace qelpro_test
