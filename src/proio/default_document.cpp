#include <string_view>

#include "platform/os_file.h"
#include "proio/dialect.h"
#include "proio/line_store.h"
#include "proio/rows.h"
#include "proio/typed.h"

using namespace qel::proio;

namespace {

struct Default {
  Row row;
  const char* text;
};

constexpr int kStage = 1;

// In the order of the entries in a new file.
constexpr Default kDefaults[] = {
    {file_header::kName, "Default.pro"},
    {file_header::kType, "PRO"},
    {file_header::kCreateBy, "PROIO Manipulator (QELProcEngine.dll)"},
    {file_header::kRemark, "Default process condition setting"},

    {cae_header::kVersion, "Vantor"},
    {cae_header::kRelease, ""},
    {cae_header::kProject, ""},
    {cae_header::kEngineer, ""},
    {cae_header::kParent, ""},
    {cae_header::kType, "Injection"},
    {cae_header::kFileVersion, "1008"},  // the layout without what the gated getters serve
    {cae_header::kFileType, "0"},

    {summary::kMeshLayer, "6"},
    {summary::kMeltEntranceNo, "1"},
    {summary::kCoolantNo, "0"},

    {unit::kTime, "sec       Time"},
    {unit::kTemp, "oC        Temperature"},
    {unit::kPres, "MPa       Pressure"},
    {unit::kFR, "cc/sec    FlowRate"},
    {unit::kIP, "MPa       InjectPressure"},
    {unit::kPP, "MPa       PackPressure"},
    {unit::kVolum, "cc        Volume"},

    {flow::kFillTime.in(kStage), "1"},
    {flow::kMeltTemperature.in(kStage), "230"},
    {flow::kMoldTemperature.in(kStage), "70"},
    {flow::kInjectPressure.in(kStage), "150"},
    {flow::kPreFill.in(kStage), "100"},
    {flow::kFRCount.in(kStage), "2"},
    {flow::kFRPoint.in(kStage).at(1), "0\t50"},
    {flow::kFRPoint.in(kStage).at(2), "100\t50"},
};

// Whether the file has the entry, of any text where none is given.
bool stands(const char* path, const qel::Target& target, const char* text) {
  qel::platform::OsFile file;
  if (!file.open_for_reading(path)) {
    return false;
  }
  qel::LineScanner lines = lines_of(file);
  Buffer value;
  if (read(lines, target, value) != Code::success) {
    return false;
  }
  std::string_view found(value.text());
  if (found.ends_with('\n')) {
    found.remove_suffix(1);
  }
  return text == nullptr || found == text;
}

}  // namespace

// Where the file does not take an entry, those after it are left, so that no entry is missed in the
// midst, and another call keeps to their order. That is not reported, as no store of the object is;
// memory that is missing is.
bool CPROIO_Manipulator::SetDefault() {
  for (const Default& entry : kDefaults) {
    if (!Set(entry.row, entry.text)) {
      return false;
    }
    bool goes_on = false;
    const bool has_memory = qel::attempt([&] {
      constexpr const Row& kDate = file_header::kDate;
      const auto has = [this](const Row& row, const char* text) {
        return stands(path_, {SectionOf(row), KeyOf(row), kByKey}, text);
      };
      if (!has(entry.row, entry.text)) {
        return true;
      }
      // A stamp that was missed would come to stand elsewhere with the next entry.
      if (!has(kDate, nullptr) && !SetFileDate()) {
        return false;
      }
      goes_on = has(kDate, nullptr);
      return true;
    });
    if (!has_memory || !goes_on) {
      return has_memory;
    }
  }
  return true;
}
