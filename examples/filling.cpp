#include <QELPROEngine/QELPROEngine.h>

#include <cstdio>

int main() {
  CQELPROWriter_Manipulator writer;
  bool written = writer.SetFilePath("Default.pro");
  written = written && writer.FlowX_WriteFillingTime(1.5, 1);  // "FillTime" of [Flow-1]
  written = written && writer.FlowX_WriteFRSection(2, 1);      // "FRSet": the curve has two points,
  written = written && writer.FlowX_WriteFRProfile(0.0, 50.0, 1, 1);    // "FR-1"
  written = written && writer.FlowX_WriteFRProfile(100.0, 80.0, 2, 1);  // and "FR-2"

  CQELPROReader_Manipulator reader;
  double time = 0;
  int points = 0;
  if (!written || !reader.SetFilePath("Default.pro") || !reader.FlowX_ReadFillingTime(time, 1) ||
      !reader.FlowX_ReadFRSection(points, 1)) {
    std::fputs("Default.pro cannot be written or read\n", stderr);
    return 1;
  }
  std::printf("filled in %g s, a curve of %d points:\n", time, points);
  for (int point = 1; point <= points; ++point) {
    double x = 0;
    double y = 0;
    if (reader.FlowX_ReadFRProfile(x, y, point, 1)) {
      std::printf("%g %g\n", x, y);
    }
  }
}
