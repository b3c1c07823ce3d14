#include "generated_file.h"

#include <cstdio>

namespace {

class Text {
 public:
  void section(const std::string& name) { text_ += "\n" + name + "\n"; }
  void entry(const std::string& key, const std::string& value) {
    char line[128];
    std::snprintf(line, sizeof line, "%-20s = %s\n", key.c_str(), value.c_str());
    text_ += line;
  }
  void profile(const std::string& count_key, const std::string& prefix) {
    entry(count_key, std::to_string(kProfilePoints));
    for (int point = 1; point <= kProfilePoints; ++point) {
      entry(prefix + std::to_string(point),
            std::to_string(point * 10) + "\t" + std::to_string(100 - point));
    }
  }
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace

std::string generated_file(int inlets) {
  Text text;
  text.section("[FileHeader]");
  text.entry("Name", "Default.pro");
  text.entry("Date", "2026/11/15 09:05:07");
  text.section("[CaeHeader]");
  text.entry("ProjectType", "1 0");
  text.section("[FlowCTL]");
  text.entry("VPSwitchCtrl", "0");
  text.entry("VolumeFilled", "98");
  text.section("[FlowCTLInfo]");
  text.entry("TotalInlet", std::to_string(inlets));
  for (int inlet = 1; inlet <= inlets; ++inlet) {
    const std::string number = std::to_string(inlet) + "]";
    text.section("[Flow-" + number);
    for (const char* key :
         {"FillTime", "MaxFillingTime", "MeltTemp", "MoldTemp", "InjectPres", "PreFill"}) {
      text.entry(key, "1.25");
    }
    for (const char* prefix : {"FR", "IP", "UserFR", "UserIP"}) {
      text.profile(std::string(prefix) + "Set", std::string(prefix) + "-");
    }
    text.section("[Pack-" + number);
    for (const char* key : {"PackTime", "PackPres", "PackSwch"}) {
      text.entry(key, "5.5");
    }
    text.profile("PPSet", "PP-");
    text.profile("UserPPSet", "UserPP-");
    text.section("[Cure-" + number);
    text.entry("CureTime", "20");
    text.profile("CPSet", "CP-");
  }
  text.section("[Machine]");
  text.entry("Maker", "Maker A");
  text.entry("Diameter", "45");
  return text.text();
}
