#include <QELG/QELG.h>
#include <QELPROEngine/QELPROEngine.h>

#include <memory>

int main(int, char** arguments) {
  CQELPROWriter_Manipulator writer;
  writer.SetFilePath(arguments[1]);
  writer.FlowX_WriteFillingTime(1.5, 1);
  const std::unique_ptr<const QELG_SimulatorProcess> process(
      CQELProcessData_Manipulator().GetProcessDataStructure(arguments[1]));
  double time = 0;
  return GetPRODLLVersion() == 9103 &&
                 get_process_FillTime(*process->GetFlowPackOfInlet(0), time) && time == 1.5
             ? 0
             : 1;
}
