#include "blocks/gate_valve_x.h"

#include <optional>

#include "blocks/summary.h"

using qel::Integer;
using qel::Result;
using qel::Snapshot;

namespace {

// Loads the file as it stands now. One that cannot be read cannot be rewritten either.
Result load(CQELPROIO* document, Snapshot& file) {
  if (document == nullptr) {
    return Result::no_file;
  }
  return document->own_path() != nullptr && file.load(document->own_path()) ? Result::done
                                                                            : Result::no_open;
}

std::string section_of(int valve) {
  return std::string(qel::NumberedName(qel::gate_valve_x::kSection, valve).str());
}

int integer(Snapshot& file, const std::string& section, const char* key, int otherwise) {
  if (const auto text = file.value(section, key)) {
    Integer::scan(std::string(*text).c_str(), otherwise);
  }
  return otherwise;
}

int identifier(Snapshot& file, int valve) {
  return integer(file, section_of(valve), qel::key_of(qel::gate_valve_x::kKeys, "GCId"), 0);
}

std::optional<int> find_valve(Snapshot& file, int id) {
  const int total =
      integer(file, qel::summary::kSection, qel::key_of(qel::summary::kKeys, "TotalGateCTL"), 0);
  if (id == 0) {
    // A valve without an identifier counts, so that the search ends after the valves that the file
    // holds.
    for (int valve = 1; valve <= total; ++valve) {
      if (identifier(file, valve) == 0) {
        return valve;
      }
    }
    return std::nullopt;
  }
  for (const int valve : file.numbered_sections(qel::gate_valve_x::kSection, total)) {
    if (identifier(file, valve) == id) {
      return valve;
    }
  }
  return std::nullopt;
}

}  // namespace

qel::Result CQELPROBlockIOGateValveX::WriteGateSetting(const std::string& text, int point,
                                                       int valve, Snapshot& file) {
  const int count =
      integer(file, section_of(valve), qel::key_of(qel::gate_valve_x::kKeys, "GCSet"), 1);
  const qel::NumberedName key(qel::key_of(qel::gate_valve_x::kKeys, "GC-%d"), point);
  const qel::Result result = document()->ReplaceValue(section_of(valve), key.str(), text);
  if (result != Result::done || count >= point) {
    return result;
  }
  return Write<Integer>(qel::key_of(qel::gate_valve_x::kKeys, "GCSet"), qel::in_section(valve),
                        point);
}

qel::Result CQELPROBlockIOGateValveX::WriteGateSetting(const std::string& text, int point,
                                                       int valve) {
  Snapshot file;
  const Result loaded = load(document(), file);
  return loaded == Result::done ? WriteGateSetting(text, point, valve, file) : loaded;
}

qel::Result CQELPROBlockIOGateValveX::WriteGateSettingByValveGateID(const std::string& text,
                                                                    int point, int id) {
  Snapshot file;
  const Result loaded = load(document(), file);
  if (loaded != Result::done) {
    return loaded;
  }
  const std::optional<int> valve = find_valve(file, id);
  return valve ? WriteGateSetting(text, point, *valve, file) : Result::absent;
}
