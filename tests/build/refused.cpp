// Compiles as it stands, and with none of the macros that stand in it.

#include <tuple>

#include "QELPROEngine/QELPROEngine.h"
#include "blocks/flow_x.h"

namespace {

using Writer = CQELPROWriter_Manipulator;
using Reader = CQELPROReader_Manipulator;

#ifdef A_KEY_WITHOUT_A_ROW
constexpr const char* kKey = qel::key_of(qel::flow_x::kKeys, "Filltime");
#else
constexpr const char* kKey = qel::key_of(qel::flow_x::kKeys, "FillTime");
#endif

constexpr qel::Argument kOne[] = {{"value", "the value"}};
#ifdef A_FIELD_WITHOUT_AN_ARGUMENT
using Values = std::tuple<double, double>;
#else
using Values = std::tuple<double>;
#endif
constexpr auto kFields = qel::field_arguments<Values>(kOne);

}  // namespace

bool calls(Writer& writer, Reader& reader) {
  double number = 0;
  int count = 0;
  char* text = nullptr;
#ifdef A_TEXT_FOR_A_NUMBER
  writer.FlowX_WriteFillingTime("1.5", 1);
#endif
#ifdef AN_INTEGER_FOR_A_REAL
  reader.FlowX_ReadFillingTime(count, 1);
#endif
#ifdef NO_INLET
  writer.FlowX_WriteFillingTime(1.5);
#endif
#ifdef A_CONSTANT_FOR_A_RESULT
  const double constant = 0;
  reader.FlowX_ReadFillingTime(constant, 1);
#endif
  return kKey != nullptr && kFields.size() == 1 && writer.FlowX_WriteFillingTime(1.5, 1) &&
         writer.FlowX_WriteFRSection(count, 1) && reader.FlowX_ReadFillingTime(number, 1) &&
         reader.FileHeader_ReadName(text);
}
