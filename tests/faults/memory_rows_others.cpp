#include <array>
#include <filesystem>
#include <memory>
#include <optional>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"
#include "faults/memory_rows.h"

namespace qelpro_test::memory {
namespace {

// The four members that the language gives a class. `set_up` makes an object ready, `tell` says
// what it holds.
template <class Object, class SetUp, class Tell>
void add_special(std::vector<Row>& rows, const std::string& name, SetUp set_up, Tell tell) {
  rows.push_back({name + "::" + name, "default", [=](Stage& stage) {
                    std::string told;
                    std::optional<Object> object;
                    stage.call([&] { object.emplace(); });
                    set_up(stage, *object);
                    stage.trial.outputs_again = tell(*object);  // made with memory, of use
                  }});
  rows.push_back({name + "::" + name, "copy", [=](Stage& stage) {
                    Object object;
                    set_up(stage, object);
                    std::optional<Object> copy;
                    stage.call([&] { copy.emplace(object); });
                    stage.trial.outputs_again = tell(*copy);
                  }});
  rows.push_back({name + "::operator=", "", [=](Stage& stage) {
                    Object object;
                    set_up(stage, object);
                    Object other;
                    stage.call([&] { other = object; });
                    stage.trial.outputs_again = tell(other);
                  }});
  rows.push_back({name + "::~" + name, "", [=](Stage& stage) {
                    std::optional<Object> object(std::in_place);
                    set_up(stage, *object);
                    stage.call([&] { object.reset(); });
                  }});
}

constexpr const char* kMaker = "A maker of injection machines";
constexpr const char* kGrade = "A grade of that maker's";

std::string machines_of(CQELMachineIdentification& machines) {
  const char** texts = nullptr;
  int count = 0;
  std::string told = std::to_string(machines.GetMakerCount()) + " makers, " +
                     std::to_string(machines.GetGradeCount(kMaker)) + " grades";
  return machines.GetAllMaker(&texts, &count) ? told + ", " + texts[0] : told;
}

void add_machines(std::vector<Row>& rows) {
  using Machines = CQELMachineIdentification;
  const std::string of = "CQELMachineIdentification::";
  const auto set_up = [](Stage& stage, Machines& machines) {
    machines.SetMachineUserBankPath(stage.machine_bank().c_str());
    machines.LoadFileData();
  };
  add_special<Machines>(rows, "CQELMachineIdentification", set_up,
                        [](Machines& machines) { return machines_of(machines); });
  const auto add = [&](const char* member, const char* way, auto call) {
    rows.push_back({of + member, way, [=](Stage& stage) {
                      Machines machines;
                      set_up(stage, machines);
                      std::string outputs;
                      std::array<char, 100> buffer{"untouched"};
                      const char** texts = nullptr;
                      int count = -1;
                      stage.call([&] { return call(machines, buffer, texts, count); },
                                 [&] {
                                   return std::string(buffer.data()) + ", " +
                                          (texts != nullptr ? texts[0] : "none") + ", " +
                                          std::to_string(count);
                                 });
                    }});
  };
  using Buffer = std::array<char, 100>;
  using Texts = const char**;
  add("GetMakerCount", "",
      [](Machines& m, Buffer&, Texts&, int&) { return m.GetMakerCount() == 2; });
  add("GetMaker", "", [](Machines& m, Buffer& buffer, Texts&, int&) {
    return m.GetMaker(1, buffer.data(), static_cast<unsigned int>(buffer.size()));
  });
  add("GetGradeCount", "",
      [](Machines& m, Buffer&, Texts&, int&) { return m.GetGradeCount(kMaker) == 1; });
  add("GetGrade", "", [](Machines& m, Buffer& buffer, Texts&, int&) {
    return m.GetGrade(kMaker, 0, buffer.data(), static_cast<unsigned int>(buffer.size()));
  });
  add("GetAllMaker", "",
      [](Machines& m, Buffer&, Texts& texts, int& count) { return m.GetAllMaker(&texts, &count); });
  add("GetAllGrade", "", [](Machines& m, Buffer&, Texts& texts, int& count) {
    return m.GetAllGrade(kMaker, &texts, &count);
  });
  add("HasMachineIdentification", "", [](Machines& m, Buffer&, Texts&, int&) {
    return m.HasMachineIdentification(kMaker, kGrade, "and a text");
  });
  add("GetALLIdentity", "", [](Machines& m, Buffer&, Texts& texts, int& count) {
    return m.GetALLIdentity(kMaker, kGrade, &texts, &count);
  });
  rows.push_back({of + "LoadFileData", "", [](Stage& stage) {
                    Machines machines;
                    machines.SetMachineUserBankPath(stage.machine_bank().c_str());
                    stage.call([&] { return machines.LoadFileData(); },
                               [&] { return machines_of(machines); });
                  }});
  // Which path an object has is seen by what it loads from there.
  const auto add_path = [&](const char* member, const char* way, auto set) {
    rows.push_back({of + member, way, [=](Stage& stage) {
                      Machines machines;
                      const std::string bank = stage.machine_bank();
                      const std::wstring wide = std::filesystem::path(bank).wstring();
                      stage.call([&] { set(machines, bank, wide); },
                                 [&] {
                                   return machines.LoadFileData() ? machines_of(machines)
                                                                  : std::string("no bank");
                                 });
                    }});
  };
  add_path("SetMachineUserBankPath", "narrow",
           [](Machines& m, const std::string& narrow, const std::wstring&) {
             m.SetMachineUserBankPath(narrow.c_str());
           });
  add_path("SetMachineUserBankPath", "wide",
           [](Machines& m, const std::string&, const std::wstring& wide) {
             m.SetMachineUserBankPath(wide.c_str());
           });
  add_path("SetIdentificationPath", "narrow",
           [](Machines& m, const std::string& narrow, const std::wstring&) {
             m.SetIdentificationPath(narrow.c_str());
           });
  add_path("SetIdentificationPath", "wide",
           [](Machines& m, const std::string&, const std::wstring& wide) {
             m.SetIdentificationPath(wide.c_str());
           });
}

std::string properties_of(CQELPCSInterpolator& tables) {
  std::array<double, 4> p{-1, -1, -1, -1};
  tables.InterpolateCoolantProperties(1, 15, p[0], p[1], p[2], p[3]);
  return std::to_string(p[0]) + ", " + std::to_string(p[1]) + ", " + std::to_string(p[2]) + ", " +
         std::to_string(p[3]);
}

void add_coolants(std::vector<Row>& rows) {
  using Tables = CQELPCSInterpolator;
  const auto set_up = [](Stage& stage, Tables& tables) {
    tables.LoadDataFromFile(stage.coolant_file().c_str());
  };
  add_special<Tables>(rows, "CQELPCSInterpolator", set_up,
                      [](Tables& tables) { return properties_of(tables); });
  rows.push_back({"CQELPCSInterpolator::LoadDataFromFile", "", [](Stage& stage) {
                    Tables tables;
                    const std::string path = stage.coolant_file();
                    stage.call([&] { return tables.LoadDataFromFile(path.c_str()); },
                               [&] { return properties_of(tables); });
                  }});
  rows.push_back(
      {"CQELPCSInterpolator::InterpolateCoolantProperties", "", [=](Stage& stage) {
         Tables tables;
         set_up(stage, tables);
         std::array<double, 4> p{};
         stage.call(
             [&] { return tables.InterpolateCoolantProperties(1, 15, p[0], p[1], p[2], p[3]); },
             [&] { return std::to_string(p[0]) + ", " + std::to_string(p[3]); });
       }});
  rows.push_back({"g_GetCurrentUserPSCFilePath", "", [](Stage& stage) {
                    std::array<char, 1000> path{};
                    stage.call(
                        [&] {
                          return g_GetCurrentUserPSCFilePath(
                              path.data(), static_cast<unsigned int>(path.size()));
                        },
                        [&] { return std::string(path.data()); });
                  }});
  rows.push_back({"GetPRODLLVersion", "",
                  [](Stage& stage) { stage.call([] { return GetPRODLLVersion() > 0; }); }});
}

void add_loader(std::vector<Row>& rows) {
  using Loader = CQELProcessData_Manipulator;
  const auto set_up = [](Stage&, Loader&) {};
  add_special<Loader>(rows, "CQELProcessData_Manipulator", set_up,
                      [](Loader&) { return std::string(); });
  Row load{"CQELProcessData_Manipulator::GetProcessDataStructure", "", [](Stage& stage) {
             const std::string path = stage.short_file();
             Loader loader;
             // The process is made without memory, and looked at with it.
             std::unique_ptr<const QELG_SimulatorProcess> process;
             stage.call(
                 [&] {
                   process.reset(loader.GetProcessDataStructure(path.c_str()));
                   return process != nullptr;
                 },
                 [&] {
                   if (process == nullptr) {
                     return std::string("none");
                   }
                   const char* maker = "no maker";
                   const char* material = "no material";
                   get_process_machine_Maker(*process, maker);
                   const auto& inlet = *process->GetFlowPackOfInlet(0);
                   get_process_Material(inlet, material);
                   const auto* points = inlet.GetFlowRateProfile();
                   return std::string(maker) + ", " + material + ", " +
                          std::to_string(points->GetNumOfDataPoints()) + " points";
                 });
           }};
  load.done_nevertheless = "what a process holds is asked for once more";
  rows.push_back(load);
  rows.push_back({"CQELProcessData_Manipulator::Dispose", "", [](Stage& stage) {
                    Loader loader;
                    stage.call([&] { loader.Dispose(); });
                  }});
}

void add_value_reader(std::vector<Row>& rows) {
  using Values = CQELProcessValueReader;
  rows.push_back({"CQELProcessValueReader::CQELProcessValueReader", "default",
                  [](Stage& stage) { stage.call([] { const Values values; }); }});
  rows.push_back({"CQELProcessValueReader::CQELProcessValueReader", "copy", [](Stage& stage) {
                    const Values values;
                    stage.call([&] { const Values copy(values); });
                  }});
  rows.push_back({"CQELProcessValueReader::operator=", "", [](Stage& stage) {
                    Values values;
                    const Values other;
                    stage.call([&] { values = other; });
                  }});
  Row row{
      "CQELProcessValueReader::GetVPSwitch", "", [](Stage& stage) {
        const std::string path = stage.short_file();
        CQELPROReader_Manipulator reader;
        reader.SetFilePath(path.c_str());
        int first = 0;
        int second = 0;
        double value = 0;
        stage.call(
            [&] { return Values::GetVPSwitch(&reader, 1, 2, 3, 4, 5, 6, 7, first, second, value); },
            [&] {
              return std::to_string(first) + ", " + std::to_string(second) + ", " +
                     std::to_string(value);
            });
      }};
  row.done_nevertheless = kCopy;
  rows.push_back(row);
}

void add_adapter(std::vector<Row>& rows) {
  using Adapter = CQEL_ProcessAdapter;
  const std::string of = "CQEL_ProcessAdapter::";
  static std::string path;
  const auto set_up = [](Stage& stage, Adapter& adapter) {
    path = stage.short_file();
    adapter.SetProcessPath(path.c_str());
  };
  const auto temperatures = [](Adapter& adapter) {
    double mold = -1;
    double melt = -1;
    adapter.GetMaterialTemperature(mold, melt);
    return std::to_string(mold) + ", " + std::to_string(melt);
  };
  add_special<Adapter>(rows, "CQEL_ProcessAdapter", set_up, temperatures);
  rows.push_back({of + "SetProcessPath", "a file", [=](Stage& stage) {
                    path = stage.short_file();
                    std::optional<Adapter> adapter;
                    stage.call([&] {
                      adapter.emplace();  // it takes a path once
                      return adapter->SetProcessPath(path.c_str());
                    });
                    stage.trial.outputs_again = temperatures(*adapter);
                  }});
  rows.push_back({of + "EndFile", "", [=](Stage& stage) {
                    Adapter adapter;
                    set_up(stage, adapter);
                    stage.call([&] { adapter.EndFile(); });
                  }});
  rows.push_back({of + "GetMaterialDefaultValue", "", [=](Stage& stage) {
                    Adapter adapter;
                    std::array<double, 4> p{};
                    stage.call([&] { adapter.GetMaterialDefaultValue(0, p[0], p[1], p[2], p[3]); },
                               [&] { return std::to_string(p[0]) + ", " + std::to_string(p[3]); });
                  }});
  rows.push_back({of + "GetMaterialTemperature", "",
                  [=](Stage& stage) {
                    Adapter adapter;
                    set_up(stage, adapter);
                    double mold = -1;
                    double melt = -1;
                    stage.call([&] { adapter.GetMaterialTemperature(mold, melt); },
                               [&] { return std::to_string(mold) + ", " + std::to_string(melt); });
                  },
                  Leaves::entries});
}

void add_older(std::vector<Row>& rows) {
  using Older = CPROIO_Manipulator;
  static std::string path;
  const auto set_up = [](Stage& stage, Older& object) {
    path = stage.short_file();
    object.SetFilePath(path.data());
  };
  const auto tell = [](Older& object) {
    double time = -1;
    object.GetFillTime(time, 1);
    return std::to_string(time);
  };
  add_special<Older>(rows, "CPROIO_Manipulator", set_up, tell);
  rows.push_back({"CPROIO_Manipulator::SetFilePath", "kept as it is", [=](Stage& stage) {
                    path = stage.short_file();
                    Older object;
                    stage.call([&] { object.SetFilePath(path.data()); },
                               [&] { return tell(object); });
                  }});
  rows.push_back({"CPROIO_Manipulator::SetFilePath", "of a file", [=](Stage& stage) {
                    path = stage.short_file();
                    Older object;
                    stage.call(
                        [&] { return object.SetFilePath(static_cast<const char*>(path.c_str())); },
                        [&] { return tell(object); });
                  }});
  Row row{"CPROIO_Manipulator::SetDefault", "in a new file",
          [](Stage& stage) {
            path = stage.watch("", "new.pro");
            Older object;
            object.SetFilePath(path.data());
            stage.call([&] { return object.SetDefault(); });
          },
          Leaves::entries};
  row.done_nevertheless = "a date that could not be stamped is stamped once more";
  rows.push_back(row);
}

}  // namespace

std::vector<Row> other_rows() {
  std::vector<Row> rows;
  add_machines(rows);
  add_coolants(rows);
  add_loader(rows);
  add_value_reader(rows);
  add_adapter(rows);
  add_older(rows);
  return rows;
}

}  // namespace qelpro_test::memory
