#include "guest/uses.h"

#include "QELG/QELG.h"
#include "members/every_call.h"

namespace qelpro_test {
namespace {

constexpr const char* kBank =
    "[Header]\nVersion,7007\n[Machine Database]\n1,Maker,Grade,4,5,6,7,8,9,10,11,12,13,14,15,16,"
    "17,18,19,20,21,22\n";
constexpr const char* kCoolants =
    "[Coolant-1]\nName = Water\nDataCount = 2\nData-1 = 10 1 2 3 4\nData-2 = 20 3 6 -3 4\n";

const Around kAround{[] { Uses::before(); }, [] { Uses::after(); }};

template <class Object>
void add(std::vector<Use>& uses, const char* name, const std::vector<EveryCall<Object>>& calls,
         Object& object) {
  for (const EveryCall<Object>& call : calls) {
    uses.push_back({name, call.name, [&call, &object] { return call.make(object, kAround).done; }});
  }
}

// The work of a use that is no single member of the lists.
template <class Work>
std::function<bool()> around(Work work) {
  return [work] {
    Uses::before();
    const bool done = work();
    Uses::after();
    return done;
  };
}

std::wstring widened(const std::string& path) { return {path.begin(), path.end()}; }

}  // namespace

void (*Uses::before)() = [] {};
void (*Uses::after)() = [] {};

Uses::Uses()
    : read_(scratch_.file("[FileHeader]\nName = a file\n", "read.pro")),
      written_(scratch_.file("[FileHeader]\nName = a file\n", "written.pro")),
      bank_(scratch_.file(kBank, "machines.bank")),
      coolants_(scratch_.file(kCoolants, "coolants.pcs")) {
  CQELPROWriter_Manipulator first;
  first.SetFilePath(read_.c_str());
  for (const auto& call : writer_calls()) {
    call.make(first, kAround);
  }
  put_bytes(written_, bytes_of(read_));
  reader_.SetFilePath(read_.c_str());
  stream_ = std::fopen(read_.c_str(), "r");
  stream_reader_.SetFilePtr(stream_);
  writer_.SetFilePath(written_.c_str());
  object_.SetFilePath(written_.data());
  adapter_.SetProcessPath(written_.c_str());
  machines_.SetMachineUserBankPath(bank_.c_str());
  machines_.LoadFileData();
  interpolator_.LoadDataFromFile(coolants_.c_str());
  add_section_members();
  add_lifecycles();
  add_reference_data();
  add_processes();
  for (const Use& use : all_) {
    use.run();  // the longest the file gets, and what is set up once is set up
  }
}

Uses::~Uses() { std::fclose(stream_); }

std::vector<Use> Uses::done() const {
  std::vector<Use> result;
  for (const Use& use : all_) {
    if (use.run()) {
      result.push_back(use);
    }
  }
  return result;
}

void Uses::add_section_members() {
  add(all_, "CQELPROReader_Manipulator", reader_calls(), reader_);
  add(all_, "CQELPROReader_Manipulator, lent stream", reader_calls(), stream_reader_);
  add(all_, "CQELPROWriter_Manipulator", writer_calls(), writer_);
  add(all_, "CPROIO_Manipulator", object_calls(), object_);
  add(all_, "CQEL_ProcessAdapter", adapter_calls(), adapter_);
}

void Uses::add_lifecycles() {
  const auto of_reader = [this](const char* member, auto work) {
    all_.push_back({"CQELPROReader_Manipulator", member, around(work)});
  };
  const auto of_writer = [this](const char* member, auto work) {
    all_.push_back({"CQELPROWriter_Manipulator", member, around(work)});
  };
  of_reader("a life", [this] {
    CQELPROReader_Manipulator reader;
    CQELPROReader_Manipulator copy(reader);
    copy = reader_;
    const char* path = nullptr;
    return reader.SetFilePath(read_.c_str()) && reader.GetFilePath(path) && copy.GetFilePath(path);
  });
  of_reader("SetFilePath, wide", [this] {
    CQELPROReader_Manipulator reader;
    const bool done = reader.SetFilePath(widened(read_).c_str());
    reader.CloseFile();
    return done;
  });
  of_reader("SetFilePtr", [this] {
    std::FILE* stream = std::fopen(read_.c_str(), "r");
    CQELPROReader_Manipulator reader;
    char* text = nullptr;
    const bool done = reader.SetFilePtr(stream) && reader.FileHeader_ReadName(text);
    reader.CloseFile();
    return done;
  });
  of_reader("ReadString", [this] {
    char* text = nullptr;
    return reader_.ReadString("[FileHeader]", "Name", text, nullptr, 0);
  });
  of_reader("ReadValue", [this] {
    char* text = nullptr;
    return reader_.ReadValue("[FileHeader]", "Name", text, nullptr, 0);
  });
  of_writer("a life", [this] {
    CQELPROWriter_Manipulator writer;
    CQELPROWriter_Manipulator copy(writer);
    copy = writer_;
    const char* path = nullptr;
    return writer.SetFilePath(written_.c_str()) && writer.GetFilePath(path) &&
           copy.GetFilePath(path);
  });
  of_writer("SetFilePath, wide", [this] {
    CQELPROWriter_Manipulator writer;
    const bool done = writer.SetFilePath(widened(written_).c_str()) &&
                      writer.FileHeader_WriteDate(const_cast<char*>("2001/01/01 00:00:00"));
    writer.CloseFile();
    return done;
  });
  of_writer("SetFilePtr", [this] {
    std::FILE* stream = std::fopen(written_.c_str(), "r+");
    CQELPROWriter_Manipulator writer;
    const bool done = writer.SetFilePtr(stream) && writer.FlowX_WriteFillingTime(1.5, 1);
    writer.CloseFile();
    return done;
  });
  of_writer("WriteString", [this] { return writer_.WriteString("[FileHeader]", "Note", "text"); });
  of_writer("WriteItems",
            [this] { return writer_.WriteItems("[FileHeader]", "Note", "%d %g", 1, 1.5); });
  of_writer("WriteUnitBlock", [this] {
    writer_.WriteUnitBlock();
    return true;
  });
  of_writer("FileHeader_WriteDate, of now", [this] { return writer_.FileHeader_WriteDate(); });
  all_.push_back({"CPROIO_Manipulator", "a life", around([this] {
                    CPROIO_Manipulator object;
                    object.SetFilePath(written_.data());
                    CPROIO_Manipulator copy(object);
                    copy = object;
                    const char* path = nullptr;
                    return copy.SetFilePath(static_cast<const char*>(written_.c_str())) &&
                           copy.GetFilePath(path);
                  })});
  all_.push_back(
      {"CPROIO_Manipulator", "SetDefault", around([this] { return object_.SetDefault(); })});
  all_.push_back({"CQEL_ProcessAdapter", "a life", around([this] {
                    CQEL_ProcessAdapter adapter;
                    CQEL_ProcessAdapter copy(adapter);
                    copy = adapter_;
                    const bool done = adapter.SetProcessPath(written_.c_str());
                    adapter.EndFile();
                    return done;
                  })});
  all_.push_back({"CQEL_ProcessAdapter", "GetMaterialTemperature", around([this] {
                    double mold = 0;
                    double melt = 0;
                    adapter_.GetMaterialTemperature(mold, melt);
                    adapter_.GetMaterialDefaultValue(1, mold, melt, mold, melt);
                    return melt != 0;
                  })});
}

void Uses::add_reference_data() {
  all_.push_back({"CQELMachineIdentification", "LoadFileData", around([this] {
                    CQELMachineIdentification machines;
                    machines.SetMachineUserBankPath(widened(bank_).c_str());
                    machines.SetIdentificationPath(bank_.c_str());
                    machines.SetMachineUserBankPath(bank_.c_str());
                    CQELMachineIdentification copy(machines);
                    copy = machines_;
                    return machines.LoadFileData() || machines.GetMakerCount() == 1;
                  })});
  all_.push_back({"CQELMachineIdentification", "the getters", around([this] {
                    char name[100] = {};
                    const char** names = nullptr;
                    int count = 0;
                    return machines_.GetMaker(0, name, sizeof name) &&
                           machines_.GetGrade("Maker", 0, name, sizeof name) &&
                           machines_.GetAllMaker(&names, &count) &&
                           machines_.GetAllGrade("Maker", &names, &count) &&
                           !machines_.HasMachineIdentification("Maker", "Grade", "") &&
                           !machines_.GetALLIdentity("", "", &names, &count);
                  })});
  all_.push_back({"CQELPCSInterpolator", "LoadDataFromFile", around([this] {
                    CQELPCSInterpolator interpolator;
                    CQELPCSInterpolator copy(interpolator);
                    copy = interpolator_;
                    return interpolator.LoadDataFromFile(coolants_.c_str());
                  })});
  all_.push_back({"CQELPCSInterpolator", "InterpolateCoolantProperties", around([this] {
                    double p[4] = {};
                    return interpolator_.InterpolateCoolantProperties(1, 15, p[0], p[1], p[2],
                                                                      p[3]);
                  })});
  all_.push_back({"functions", "g_GetCurrentUserPSCFilePath", around([] {
                    char path[1000] = {};
                    return g_GetCurrentUserPSCFilePath(path, sizeof path) &&
                           GetPRODLLVersion() != 0;
                  })});
}

void Uses::add_processes() {
  all_.push_back({"CQELProcessData_Manipulator", "GetProcessDataStructure", around([this] {
                    CQELProcessData_Manipulator loader;
                    const std::unique_ptr<const QELG_SimulatorProcess> process(
                        loader.GetProcessDataStructure(read_.c_str()));
                    CQELProcessData_Manipulator copy(loader);
                    copy.Dispose();
                    return process != nullptr;
                  })});
  all_.push_back({"CQELProcessValueReader", "GetVPSwitch", around([this] {
                    CQELProcessValueReader values;
                    int first = 0;
                    int second = 0;
                    double value = 0;
                    return values.GetVPSwitch(&reader_, 1, 2, 3, 4, 5, 6, 7, first, second, value);
                  })});
  all_.push_back({"QELG_SimulatorProcess", "a life", around([] {
                    QELG_SimulatorProcess process;
                    set_process_ProjectType(process, 1);
                    QELG_SimulatorFlowPackProcess* inlet = process.AppendFlowPackProcess();
                    return inlet != nullptr && inlet->GetFlowRateProfile_mod()->AppendDataPoint({});
                  })});
}

}  // namespace qelpro_test
