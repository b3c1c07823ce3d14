#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <new>
#include <ostream>
#include <string>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "api/proio/support.h"
#include "faults/allocations.h"
#include "support/scratch.h"

// What the members have no list for: making, copying, assigning and destroying the exported
// objects, their files, raw access and reference data, with every allocation failing once, in turn,
// alone and with all after it.

namespace qelpro_test {
namespace {

using allocations::Failure;

// Runs work in which allocations fail, and no exception may come out.
using Armed = std::function<void(const std::function<void()>&)>;

struct Files {
  std::string process;
  std::string bank;
  std::string coolants;
};

struct Case {
  const char* name;
  /// Yields what shows that the object is still of use: the same whatever failed before.
  std::function<std::string(const Files&, const Armed&)> run;
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

constexpr const char* kContents =
    "[FileHeader]\nName = the name of a file that is kept in memory\nDate = 2001/01/01 "
    "00:00:00\n[CaeHeader]\nProjectType = 1 0\n[Summary]\n"
    "TotalGateCTL = 1\n[FlowCTL]\nMoldTemperature = 60\nMeltTemperature = 230\nVPSwitchCtrl = "
    "0\nVolumeFilled = 98\n[Flow-1]\nFillTime = 1.5\n"
    "FRSet = 2\nFR-1 = 0 10\nFR-2 = 100 20\n[GateValve-1]\nGCId = 9\nGCSet = 5\n";
constexpr const char* kBank =
    "[Header]\nVersion,7007\n[Machine Database]\n1,A maker of injection machines,A grade of that "
    "maker's,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,"
    "22\n1,Another maker of machines,A grade of the other "
    "maker's,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22\n";
constexpr const char* kCoolants =
    "[Coolant-1]\nName = Water_with_a_name_of_many_letters\nDataCount = 2\nData-1 = 10 1 2 3 "
    "4\nData-2 = 20 3 6 -3 4\n";

std::string name_in(CQELPROReader_Manipulator& reader) {
  char* name = nullptr;
  return reader.FileHeader_ReadName(name) ? name : "(none)";
}

std::string stored(CQELPROWriter_Manipulator& writer, const std::string& path) {
  return (writer.FlowX_WriteFillingTime(7.5, 1) ? "stored\n" : "not stored\n") +
         masked(bytes_of(path));
}

std::string raw(CQELPROReader_Manipulator& reader) {
  char buffer[100];
  char* text = nullptr;
  return reader.ReadString("[FileHeader]", "Name", text, buffer, sizeof buffer) ? text : "(none)";
}

// The same for both ways in which a raw value is stored.
template <class Store>
std::function<std::string(const Files&, const Armed&)> writes(Store store) {
  return [store](const Files& files, const Armed& armed) {
    CQELPROWriter_Manipulator writer;
    EXPECT_TRUE(writer.SetFilePath(files.process.c_str()));
    const std::string before = bytes_of(files.process);
    bool done = false;
    armed([&] { done = store(writer); });
    EXPECT_TRUE(done || bytes_of(files.process) == before)
        << "refused, but the file is not as it was";
    store(writer);
    return stored(writer, files.process);
  };
}

class MemoryFor : public testing::TestWithParam<Case> {
 protected:
  Files files() {
    return {scratch_.file(kContents, "a process file of many letters.pro"),
            scratch_.file(kBank, "a machine bank of many letters.bank"),
            scratch_.file(kCoolants, "a coolant file of many letters.pcs")};
  }
  Scratch scratch_;
};

TEST_P(MemoryFor, MayLackAtAnyAllocation) {
  int calls = 0;
  allocations::Outcome outcome;
  const auto armed_at = [&outcome](int n, Failure failure) -> Armed {
    return [&outcome, n, failure](const std::function<void()>& work) {
      bool threw = false;
      allocations::fail(n, failure);
      try {
        work();
      } catch (...) {
        threw = true;
      }
      outcome = allocations::stop();
      EXPECT_FALSE(threw);
    };
  };
  const std::string undisturbed = GetParam().run(files(), armed_at(0, Failure::none));
  calls = outcome.calls;
  EXPECT_GT(calls, 0);
  for (const Failure failure : {Failure::one, Failure::all_after}) {
    for (int n = 1; n <= calls && !HasFailure(); ++n) {
      SCOPED_TRACE("allocation " + std::to_string(n) + " of " + std::to_string(calls) +
                   (failure == Failure::one ? "" : " and all behind it"));
      EXPECT_EQ(GetParam().run(files(), armed_at(n, failure)), undisturbed);
      EXPECT_TRUE(outcome.failed);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Reader, MemoryFor,
    testing::Values(
        Case{"Path",
             [](const Files& files, const Armed& armed) {
               CQELPROReader_Manipulator reader;
               armed([&] { reader.SetFilePath(files.process.c_str()); });
               EXPECT_TRUE(reader.SetFilePath(files.process.c_str()));
               return name_in(reader);
             }},
        Case{"WidePath",
             [](const Files& files, const Armed& armed) {
               const std::wstring path = std::filesystem::path(files.process).wstring();
               CQELPROReader_Manipulator reader;
               armed([&] { reader.SetFilePath(path.c_str()); });
               EXPECT_TRUE(reader.SetFilePath(path.c_str()));
               return name_in(reader) + raw(reader);
             }},
        Case{"Stream",
             [](const Files& files, const Armed& armed) {
               std::FILE* stream = std::fopen(files.process.c_str(), "r");
               std::string name;
               {
                 CQELPROReader_Manipulator reader;
                 armed([&] { reader.SetFilePtr(stream); });
                 EXPECT_TRUE(reader.SetFilePtr(stream));
                 name = name_in(reader) + raw(reader);
               }
               std::fclose(stream);
               return name;
             }},
        Case{"Copies",
             [](const Files& files, const Armed& armed) {
               CQELPROReader_Manipulator reader;
               EXPECT_TRUE(reader.SetFilePath(files.process.c_str()));
               armed([&] {
                 CQELPROReader_Manipulator copy(reader);
                 CQELPROReader_Manipulator other;
                 other.SetFilePath(files.process.c_str());
                 other = copy;
                 const char* path = nullptr;
                 other.GetFilePath(path);
               });
               return name_in(reader);
             }},
        Case{"RawReads",
             [](const Files& files, const Armed& armed) {
               CQELPROReader_Manipulator reader;
               EXPECT_TRUE(reader.SetFilePath(files.process.c_str()));
               char buffer[100] = "untouched";
               char* text = buffer;
               bool done = false;
               armed([&] {
                 done = reader.ReadString("[FileHeader]", "Name", text, buffer, sizeof buffer);
               });
               EXPECT_TRUE(done || std::string(buffer) == "untouched");
               return raw(reader);
             }},
        Case{"RawValues",
             [](const Files& files, const Armed& armed) {
               CQELPROReader_Manipulator reader;
               EXPECT_TRUE(reader.SetFilePath(files.process.c_str()));
               char buffer[100] = "untouched";
               char* text = buffer;
               bool done = false;
               armed([&] {
                 done = reader.ReadValue("[FileHeader]", "Name", text, buffer, sizeof buffer);
               });
               EXPECT_TRUE(done || std::string(buffer) == "untouched");
               EXPECT_TRUE(reader.ReadValue("[FileHeader]", "Name", text, buffer, sizeof buffer));
               return std::string(text);
             }}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Writer, MemoryFor,
    testing::Values(Case{"Path",
                         [](const Files& files, const Armed& armed) {
                           CQELPROWriter_Manipulator writer;
                           armed([&] { writer.SetFilePath(files.process.c_str()); });
                           EXPECT_TRUE(writer.SetFilePath(files.process.c_str()));
                           return stored(writer, files.process);
                         }},
                    Case{"AnotherPath",
                         [](const Files& files, const Armed& armed) {
                           CQELPROWriter_Manipulator writer;
                           EXPECT_TRUE(writer.SetFilePath(files.process.c_str()));
                           const std::string other = files.process + " beside it";
                           bool done = false;
                           armed([&] { done = writer.SetFilePath(other.c_str()); });
                           const std::string now = done ? other : files.process;
                           EXPECT_TRUE(writer.FlowX_WriteMeltTemperature(200, 1));
                           EXPECT_NE(bytes_of(now).find("MeltTemp"), std::string::npos)
                               << "it has the path before, or the new one";
                           EXPECT_TRUE(writer.SetFilePath(files.process.c_str()));
                           std::filesystem::remove(other);
                           put_bytes(files.process, kContents);
                           return stored(writer, files.process);
                         }},
                    Case{"WidePath",
                         [](const Files& files, const Armed& armed) {
                           const std::wstring path = std::filesystem::path(files.process).wstring();
                           CQELPROWriter_Manipulator writer;
                           armed([&] { writer.SetFilePath(path.c_str()); });
                           EXPECT_TRUE(writer.SetFilePath(path.c_str()));
                           return stored(writer, files.process);
                         }},
                    Case{"Stream",
                         [](const Files& files, const Armed& armed) {
                           std::FILE* stream = std::fopen(files.process.c_str(), "r+");
                           std::string result;
                           {
                             CQELPROWriter_Manipulator writer;
                             armed([&] {
                               writer.SetFilePtr(stream) &&
                                   writer.WriteString("[Flow-1]", "FillTime",
                                                      "the text of a value that is long");
                             });
                             EXPECT_TRUE(writer.SetFilePtr(stream));
                             put_bytes(files.process, kContents);
                             result = stored(writer, files.process);
                           }
                           std::fclose(stream);
                           return result;
                         }},
                    Case{"Copies",
                         [](const Files& files, const Armed& armed) {
                           CQELPROWriter_Manipulator writer;
                           EXPECT_TRUE(writer.SetFilePath(files.process.c_str()));
                           armed([&] {
                             CQELPROWriter_Manipulator copy(writer);
                             CQELPROWriter_Manipulator other;
                             other = copy;
                             const CQELPROWriter_Manipulator& same = other;
                             other = same;
                           });
                           CQELPROWriter_Manipulator copy(writer);
                           return stored(copy, files.process);
                         }},
                    Case{"CopiesThatCountControlPoints",
                         [](const Files& files, const Armed& armed) {
                           CQELPROWriter_Manipulator writer;
                           EXPECT_TRUE(writer.SetFilePath(files.process.c_str()));
                           alignas(CQELPROWriter_Manipulator)
                               std::byte room[sizeof(CQELPROWriter_Manipulator)];
                           CQELPROWriter_Manipulator* made = nullptr;
                           armed([&] { made = new (room) CQELPROWriter_Manipulator(writer); });
                           EXPECT_TRUE(made->GateValveX_WriteGateSetting(1.5, 1, 2, 3, 1));
                           made->~CQELPROWriter_Manipulator();
                           return stored(writer, files.process);
                         }},
                    Case{"Replace", writes([](auto& w) {
                           return w.WriteString("[Flow-1]", "FillTime",
                                                "the text of a value that is long");
                         })},
                    Case{"NewKey", writes([](auto& w) {
                           return w.WriteString("[Flow-1]", "A-key-of-many-letters", "a value");
                         })},
                    Case{"NewSection", writes([](auto& w) {
                           return w.WriteString("[A-section-of-many-letters]",
                                                "A-key-of-many-letters", "a value of many letters");
                         })},
                    Case{"Items", writes([](auto& w) {
                           return w.WriteItems("[Flow-1]", "Items-of-many-letters", "%d %s %g", 1,
                                               "a text of many letters", 1.5);
                         })},
                    Case{"UnitBlock",
                         [](const Files& files, const Armed& armed) {
                           CQELPROWriter_Manipulator writer;
                           EXPECT_TRUE(writer.SetFilePath(files.process.c_str()));
                           armed([&] { writer.WriteUnitBlock(); });
                           put_bytes(files.process, kContents);
                           writer.WriteUnitBlock();
                           return stored(writer, files.process);
                         }}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Others, MemoryFor,
    testing::Values(
        Case{"Adapter",
             [](const Files& files, const Armed& armed) {
               armed([&] {
                 CQEL_ProcessAdapter adapter;
                 adapter.SetProcessPath(files.process.c_str());
                 CQEL_ProcessAdapter copy(adapter);
                 CQEL_ProcessAdapter other;
                 other = copy;
                 other.SetGateCount(3);
                 double mold = 0;
                 double melt = 0;
                 other.GetMaterialTemperature(mold, melt);
                 other.EndFile();
               });
               CQEL_ProcessAdapter adapter;
               EXPECT_TRUE(adapter.SetProcessPath(files.process.c_str()) &&
                           adapter.SetGateCount(4));
               double mold = 0;
               double melt = 0;
               adapter.GetMaterialTemperature(mold, melt);
               return std::to_string(mold) + " " + std::to_string(melt) + "\n" +
                      bytes_of(files.process);
             }},
        Case{"Machines",
             [](const Files& files, const Armed& armed) {
               alignas(CQELMachineIdentification) std::byte room[sizeof(CQELMachineIdentification)];
               CQELMachineIdentification* made = nullptr;
               const std::wstring wide = std::filesystem::path(files.bank).wstring();
               const char** texts = nullptr;
               int count = 0;
               char buffer[100] = "";
               armed([&] {
                 made = new (room) CQELMachineIdentification;
                 made->SetIdentificationPath(wide.c_str());
                 made->SetMachineUserBankPath(wide.c_str());
                 made->SetMachineUserBankPath(files.bank.c_str());
                 made->LoadFileData();
                 CQELMachineIdentification copy(*made);
                 CQELMachineIdentification other;
                 other = copy;
                 other.GetMaker(0, buffer, sizeof buffer);
                 other.GetGrade("A maker of injection machines", 0, buffer, sizeof buffer);
                 other.GetGradeCount("Another maker of machines");
                 other.GetAllMaker(&texts, &count);
                 other.GetAllGrade("Another maker of machines", &texts, &count);
                 other.HasMachineIdentification("A maker of injection machines",
                                                "A grade of that maker's", "and a text");
                 other.GetALLIdentity("A maker of injection machines", "A grade of that maker's",
                                      &texts, &count);
               });
               EXPECT_EQ(made->GetMakerCount() != 0,
                         made->GetGradeCount("Another maker of machines") != 0)
                   << "listed and known";
               made->SetMachineUserBankPath(files.bank.c_str());
               EXPECT_TRUE(made->LoadFileData());
               EXPECT_TRUE(made->GetAllMaker(&texts, &count));
               const std::string result = std::to_string(count) + texts[0] + texts[1];
               made->~CQELMachineIdentification();
               return result;
             }},
        Case{"Coolants",
             [](const Files& files, const Armed& armed) {
               CQELPCSInterpolator tables;
               EXPECT_TRUE(tables.LoadDataFromFile(files.coolants.c_str()));
               std::array<double, 4> p{};
               armed([&] {
                 tables.LoadDataFromFile(files.coolants.c_str());
                 CQELPCSInterpolator copy(tables);
                 CQELPCSInterpolator other;
                 other = copy;
                 other.InterpolateCoolantProperties(1, 15, p[0], p[1], p[2], p[3]);
               });
               EXPECT_TRUE(tables.LoadDataFromFile(files.coolants.c_str()));
               EXPECT_TRUE(tables.InterpolateCoolantProperties(1, 15, p[0], p[1], p[2], p[3]));
               return std::to_string(p[0]) + " " + std::to_string(p[2]);
             }},
        Case{"UserFile",
             [](const Files& /*files*/, const Armed& armed) {
               std::array<char, 1000> path{};
               armed([&] {
                 g_GetCurrentUserPSCFilePath(path.data(), static_cast<unsigned int>(path.size()));
               });
               g_GetCurrentUserPSCFilePath(path.data(), static_cast<unsigned int>(path.size()));
               return std::string(path.data());
             }},
        Case{"ProcessData",
             [](const Files& files, const Armed& armed) {
               CQELProcessData_Manipulator loader;
               const QELG_SimulatorProcess* process = nullptr;
               const auto points = [&process] {
                 return process != nullptr ? process->GetFlowPackOfInlet(0)
                                                 ->GetFlowRateProfile()
                                                 ->GetNumOfDataPoints()
                                           : 0;
               };
               armed([&] {
                 process = loader.GetProcessDataStructure(files.process.c_str());
                 CQELProcessData_Manipulator copy(loader);
                 CQELProcessData_Manipulator other;
                 other = copy;
                 other.Dispose();
               });
               EXPECT_TRUE(process == nullptr || points() == 2)
                   << "no process, rather than half of one";
               delete process;
               process = loader.GetProcessDataStructure(files.process.c_str());
               const std::string result = std::to_string(points());
               delete process;
               return result;
             }},
        Case{"ValueReader",
             [](const Files& files, const Armed& armed) {
               CQELPROReader_Manipulator reader;
               EXPECT_TRUE(reader.SetFilePath(files.process.c_str()));
               CQELProcessValueReader values;
               int first = 0;
               int second = 0;
               double value = 0;
               armed([&] {
                 const CQELProcessValueReader copy(values);
                 values = copy;
                 values.GetVPSwitch(&reader, 1, 2, 3, 4, 5, 6, 7, first, second, value);
               });
               EXPECT_TRUE(values.GetVPSwitch(&reader, 1, 2, 3, 4, 5, 6, 7, first, second, value));
               return std::to_string(first) + std::to_string(second) + std::to_string(value);
             }},
        Case{"SelfContainedObject",
             [](const Files& files, const Armed& armed) {
               std::string path = files.process;
               CPROIO_Manipulator object;
               armed([&] {
                 object.SetFilePath(static_cast<const char*>(path.c_str()));
                 const CPROIO_Manipulator copy(object);
                 object = copy;
                 object.SetFilePath(path.data());
                 object.SetDefault();
               });
               put_bytes(files.process, kContents);
               object.SetFilePath(path.data());
               EXPECT_TRUE(object.SetFillTime(2.5, 1));
               return masked(bytes_of(files.process));
             }}),
    [](const auto& row) { return row.param.name; });

// Each of the seven entries is stored whatever becomes of the others.
TEST(UnitBlock, IsWrittenButForTheEntryThatLacksMemory) {
  const Scratch scratch;
  int most_entries = 0;
  int fewest_entries = 7;
  for (int n = 1; n <= 12; ++n) {
    const std::string path = scratch.file("[Unit]\n");
    CQELPROWriter_Manipulator writer;
    ASSERT_TRUE(writer.SetFilePath(path.c_str()));
    allocations::fail(n, Failure::one);
    writer.WriteUnitBlock();
    const bool failed = allocations::stop().failed;
    ASSERT_TRUE(failed);
    int entries = 0;
    for (const char* key :
         {"\nTime = ", "\nTemp = ", "\nPres = ", "\nFR = ", "\nIP = ", "\nPP = ", "\nVolume = "}) {
      entries += bytes_of(path).find(key) != std::string::npos ? 1 : 0;
    }
    most_entries = std::max(most_entries, entries);
    fewest_entries = std::min(fewest_entries, entries);
  }
  EXPECT_EQ(most_entries, 6);
  EXPECT_EQ(fewest_entries, 6);
}

}  // namespace
}  // namespace qelpro_test
