#include "faults/every_store.h"

#include <cstdio>

#include "QELPROEngine/QELPROEngine.h"

namespace qelpro_test {
namespace {

template <class Store>
std::function<bool(const std::string&)> written(Store store) {
  return [store](const std::string& path) {
    CQELPROWriter_Manipulator writer;
    return writer.SetFilePath(path.c_str()) && store(writer);
  };
}

// The calls of the stream's own opening and closing are not the store's.
template <class Store>
std::function<bool(const std::string&)> through_a_stream(Store store) {
  return [store](const std::string& path) {
    std::FILE* stream = std::fopen(path.c_str(), "r+");
    bool done = false;
    {
      CQELPROWriter_Manipulator writer;
      done = writer.SetFilePtr(stream) && store(writer);
    }
    std::fclose(stream);
    return done;
  };
}

template <class Store>
std::function<bool(const std::string&)> by_wide_path(Store store) {
  return [store](const std::string& path) {
    const std::wstring wide(path.begin(), path.end());
    CQELPROWriter_Manipulator writer;
    return writer.SetFilePath(wide.c_str()) && store(writer);
  };
}

template <class Store>
std::function<bool(const std::string&)> adapted(Store store) {
  return [store](const std::string& path) {
    CQEL_ProcessAdapter adapter;
    return adapter.SetProcessPath(path.c_str()) && store(adapter);
  };
}

const std::string kRest = "[Pack-1]\nPackTime = 3\n" + std::string(6000, 'y') + "\n[Last]\nz = 1\n";
const std::string kFile =
    "[FileHeader]\nName = a.pro\n[Flow-1]\nFillTime = 1.5\nFR-1 = 0 10\n" + kRest;

// Of several pages, in which a change goes on over their ends.
std::string pages() {
  std::string text = "[FileHeader]\nName = a.pro\n[Flow-1]\nFillTime             = 1.5\n[Pack-1]\n";
  for (int key = 100; key < 500; ++key) {
    text += "K" + std::to_string(key) + "                 = 0123456789\n";
  }
  return text;
}
const std::string kPages = pages();

const std::string kStamped = "[FileHeader]\nDate           = 2001/01/01 00:00:00\n" + kFile;
const std::string kConditions =
    "[FileHeader]\nDate           = 2001/01/01 00:00:00\n[Summary]\nTotalNodeBC = 2\n"
    "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n1\tTop\n1\tSide\n1 = 2\t3\n1 = 1.5\t7\n" +
    kFile;

template <class Store>
std::function<bool(const std::string&)> by_object(Store store) {
  return [store](const std::string& path) {
    std::string copy = path;
    CPROIO_Manipulator object;
    object.SetFilePath(copy.data());
    return store(object);
  };
}

}  // namespace

const char* const kStamp = "Date           = ";
const std::string& flow_file() { return kFile; }
const std::string& conditions_file() { return kConditions; }

const std::vector<StoreCase>& document_stores() {
  static const std::vector<StoreCase> stores = {
      StoreCase{"SameLength", kFile,
                written([](auto& w) { return w.FlowX_WriteFillingTime(2.5, 1); })},
      StoreCase{"Longer", kFile, written([](auto& w) {
                  return w.WriteString("[Flow-1]", "FillTime", std::string(3000, 'v').c_str());
                })},
      StoreCase{"Shorter", kFile,
                written([](auto& w) { return w.WriteString("[Pack-1]", "PackTime", ""); })},
      StoreCase{"NewKey", kFile,
                written([](auto& w) { return w.FlowX_WriteMeltTemperature(230, 1); })},
      StoreCase{"NewSection", kFile, written([](auto& w) { return w.Cool_WriteCoolTime(20); })},
      StoreCase{"NewFile", "", written([](auto& w) { return w.Cool_WriteCoolTime(20); })},
      StoreCase{"Replace", kFile,
                written([](auto& w) { return w.GateValveX_WriteGateSetting(1.5, 1, 2, 1, 1); })},
      StoreCase{"ByPosition", kFile, written([](auto& w) {
                  char name[] = "Top";
                  return w.MoldTemperatureBCX_WriteBC(1, name, 2, 1);
                })},
      StoreCase{"Formatted", kFile, written([](auto& w) {
                  return w.WriteItems("[Flow-1]", "FillTime", "%d %s", 7, "of a text");
                })},
      StoreCase{"LongerOverPages", kPages,
                written([](auto& w) { return w.FlowX_WriteFillingTime(2.03125, 1); })},
      StoreCase{"ShorterOverPages", kPages,
                written([](auto& w) { return w.FlowX_WriteFillingTime(2, 1); })},
      StoreCase{"NewKeyOverPages", kPages,
                written([](auto& w) { return w.FlowX_WriteMeltTemperature(230, 1); })},
      StoreCase{"WidePath", kFile,
                by_wide_path([](auto& w) { return w.FlowX_WriteFillingTime(2.125, 1); })},
  };
  return stores;
}

const std::vector<StoreCase>& stream_stores() {
  static const std::vector<StoreCase> stores = {
      StoreCase{"SameLength", kFile,
                through_a_stream([](auto& w) { return w.FlowX_WriteFillingTime(2.5, 1); })},
      StoreCase{"Longer", kFile, through_a_stream([](auto& w) {
                  return w.WriteString("[Flow-1]", "FillTime", std::string(3000, 'v').c_str());
                })},
      StoreCase{"LongerOverPages", kPages,
                through_a_stream([](auto& w) { return w.FlowX_WriteFillingTime(2.03125, 1); })},
      StoreCase{"NewSection", kFile,
                through_a_stream([](auto& w) { return w.Cool_WriteCoolTime(20); })},
  };
  return stores;
}

const std::vector<StoreCase>& adapter_stores() {
  static const std::vector<StoreCase> stores = {
      StoreCase{"NewSection", kFile,
                adapted([](auto& a) { return a.SetCoolCTL_WriteCoolantTemperature(25.5, 1); })},
      StoreCase{"SameLength", kFile + "[CoolCTL]\nT-1 = 30.5\n" + kRest,
                adapted([](auto& a) { return a.SetCoolCTL_WriteCoolantTemperature(25.5, 1); })},
  };
  return stores;
}

const std::vector<StoreCase>& object_stores() {
  static const std::vector<StoreCase> stores = {
      StoreCase{"ByPosition", kConditions,
                by_object([](auto& o) { return o.SetBCProfile(2, 1, 7.5, 1); })},
      StoreCase{"Longer", kStamped, by_object([](auto& o) {
                  return o.SetRemark(("7.5" + std::string(3000, 'r')).data());
                })},
      StoreCase{"Replace", kStamped, by_object([](auto& o) { return o.SetFillTime(7.5, 1); })},
      StoreCase{"Append", kStamped,
                by_object([](auto& o) { return o.SetMeltTemperature(7.5, 1); })},
      StoreCase{"NewSection", kStamped, by_object([](auto& o) { return o.SetCoolTime(7.5); })}};
  return stores;
}

}  // namespace qelpro_test
