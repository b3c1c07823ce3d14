#include <memory>
#include <string>

#include "QELG/QELG.h"
#include "QELPROEngine/QELPROEngine.h"

// What a host loads that has plug-ins: this library, which brings the engine and the simulator
// library with it, and takes them along when it goes.

#ifdef _WIN32
#define EXPORTED __declspec(dllexport)
#else
#define EXPORTED __attribute__((visibility("default")))
#endif

/// Uses each class on files in a folder; whether all was done.
extern "C" EXPORTED int use_each_class(const char* folder) {
  const std::string in = std::string(folder) + "/";
  std::string process = in + "process.pro";
  std::string older = in + "older.pro";
  const std::string bank = in + "machines.bank";
  const std::string coolants = in + "coolants.pcs";
  bool done = true;

  CQELPROWriter_Manipulator writer;
  done = writer.SetFilePath(process.c_str()) && writer.FlowX_WriteFillingTime(1.5, 1) &&
         writer.WriteItems("[Flow-1]", "FRSet", "%d", 1) &&
         writer.FlowX_WriteFRProfile(0, 10, 1, 1) && writer.FlowCTL_WriteVPSwitchCtrl(0) &&
         writer.Coolant_WriteCoolant(1, 2, 3, 4, 5, "Water", 6, 7, 1) && done;

  CQELPROReader_Manipulator reader;
  double real = 0;
  double more[5] = {};
  int integer = 0;
  int integers[2] = {};
  char* text = nullptr;
  done = reader.SetFilePath(process.c_str()) && reader.FlowX_ReadFillingTime(real, 1) &&
         real == 1.5 && reader.ReadString("[Flow-1]", "FRSet", text, nullptr, 0) &&
         reader.ReadValue("[Flow-1]", "FRSet", text, nullptr, 0) &&
         reader.Coolant_ReadCoolant(more[0], more[1], more[2], more[3], integers[0], text, more[4],
                                    integers[1], 1) &&
         std::string(text) == "Water" && done;

  CPROIO_Manipulator object;
  object.SetFilePath(older.data());
  done = object.SetDefault() && object.GetFillTime(real, 1) && done;

  CQELProcessData_Manipulator loader;
  const std::unique_ptr<const QELG_SimulatorProcess> loaded(
      loader.GetProcessDataStructure(process.c_str()));
  done = loaded != nullptr && done;

  CQELProcessValueReader values;
  done = values.GetVPSwitch(&reader, 1, 2, 3, 4, 5, 6, 7, integer, integers[0], real) && done;

  CQEL_ProcessAdapter adapter;
  done = adapter.SetProcessPath(process.c_str()) && adapter.SetGateCount(1) && done;

  CQELMachineIdentification machines;
  const char** names = nullptr;
  machines.SetMachineUserBankPath(bank.c_str());
  machines.LoadFileData();
  done = machines.GetAllMaker(&names, &integer) && done;

  CQELPCSInterpolator interpolator;
  done = interpolator.LoadDataFromFile(coolants.c_str()) &&
         interpolator.InterpolateCoolantProperties(1, 15, more[0], more[1], more[2], more[3]) &&
         done;

  // A failure that is thrown inside, and caught there.
  CQELPROReader_Manipulator missing;
  return done && !missing.SetFilePath((in + "missing.pro").c_str()) ? 1 : 0;
}
