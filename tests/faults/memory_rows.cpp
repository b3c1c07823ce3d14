#include "faults/memory_rows.h"

#include <cctype>
#include <string_view>

#include "QELPROEngine/QELPROEngine.h"
#include "members/every_call.h"

namespace qelpro_test::memory {
namespace {

// The text with every date and time masked.
std::string undated(std::string text) {
  constexpr std::string_view kDate = "dddd/dd/dd dd:dd:dd";
  for (std::size_t at = 0; at + kDate.size() <= text.size(); ++at) {
    bool is_date = text[at + 4] == '/';
    for (std::size_t i = 0; is_date && i < kDate.size(); ++i) {
      is_date = kDate[i] == 'd' ? std::isdigit(static_cast<unsigned char>(text[at + i])) != 0
                                : text[at + i] == kDate[i];
    }
    if (is_date) {
      text.replace(at, kDate.size(), std::string(kDate.size(), 'd'));
    }
  }
  return text;
}

const Around kUndisturbed{[] {}, [] {}};

}  // namespace

std::string Stage::bytes() const {
  return watched_.empty() ? std::string() : undated(bytes_of(watched_));
}

std::string Stage::watch(const std::string& bytes, const char* name) {
  watched_ = scratch_.file(bytes, name);
  return watched_;
}

std::string Stage::process_file() {
  if (lacks_.empty()) {
    return watch(contents(), "a process file.pro");
  }
  std::string without = contents();
  for (std::size_t at = without.find(lacks_); at != std::string::npos; at = without.find(lacks_)) {
    without.erase(at, without.find('\n', at) + 1 - at);
  }
  return watch(without, "a process file.pro");
}

const std::string& Stage::contents() {
  static const std::string all = [] {
    const Scratch scratch;
    std::string path = scratch.file("[FileHeader]\nRemark = " + std::string(200, 'r') + "\n");
    for (const auto& call : writer_calls()) {
      CQELPROWriter_Manipulator writer;
      writer.SetFilePath(std::as_const(path).c_str());
      call.make(writer, kUndisturbed);
    }
    CPROIO_Manipulator object;
    object.SetFilePath(path.data());
    object.SetDefault();
    for (const auto& call : object_calls()) {
      CPROIO_Manipulator each;
      each.SetFilePath(path.data());
      call.make(each, kUndisturbed);
    }
    return bytes_of(path);
  }();
  return all;
}

std::string Stage::short_file() {
  return watch(
      "[FileHeader]\nName = the name of a file that is kept in memory\n[CaeHeader]\nProjectType = "
      "1 0\n[Summary]\nTotalGateCTL = 1\n[FlowCTL]\nMoldTemperature = 60\nMeltTemperature = "
      "230\nVPSwitchCtrl = 0\nVolumeFilled = 98\n[Flow-1]\nFillTime = 1.5\nMaterial = a material "
      "of many letters\nFRSet = 2\nFR-1 = 0 10\nFR-2 = 100 20\n[Machine]\nMaker = a maker of many "
      "letters\n[GateValve-1]\nGCId = 9\nGCSet = 5\n",
      "a short file.pro");
}

std::string Stage::machine_bank() const {
  return scratch_.file(
      "[Header]\nVersion,7007\n[Machine Database]\n1,A maker of injection machines,A grade of that "
      "maker's,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22\n1,Another maker of machines,A "
      "grade of the other maker's,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22\n",
      "a machine bank of many letters.bank");
}

std::string Stage::coolant_file() const {
  return scratch_.file(
      "[Coolant-1]\nName = Water_with_a_name_of_many_letters\nDataCount = 2\nData-1 = 10 1 2 3 "
      "4\nData-2 = 20 3 6 -3 4\n",
      "a coolant file of many letters.pcs");
}

std::vector<Row> all_rows() {
  std::vector<Row> all = listed_rows();
  for (const auto& more : {session_rows(), other_rows(), simulator_rows()}) {
    all.insert(all.end(), more.begin(), more.end());
  }
  return all;
}

}  // namespace qelpro_test::memory
