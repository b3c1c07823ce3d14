#pragma once

#include <functional>
#include <string>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"

/// Members of the exported classes, to be called with arguments that fit their types: every integer
/// is 1, every real 1.5, and every text is of more characters than a string holds without memory.
/// Outputs begin with values that no file holds.
namespace qelpro_test {

/// What is to happen right before and right after a call, in which the test itself uses no memory.
struct Around {
  void (*begin)();
  void (*end)();
};

struct Answer {
  bool threw = false;
  bool done = false;
  std::vector<std::string> outputs;
};
inline bool operator==(const Answer& a, const Answer& b) {
  return a.threw == b.threw && a.done == b.done && a.outputs == b.outputs;
}
std::ostream& operator<<(std::ostream& out, const Answer& answer);

template <class Object>
struct EveryCall {
  std::string name;
  std::function<Answer(Object&, const Around&)> make;
  Answer untouched;  ///< That of a call that did nothing.
};

const std::vector<EveryCall<CQELPROReader_Manipulator>>& reader_calls();
const std::vector<EveryCall<CQELPROWriter_Manipulator>>& writer_calls();
/// Of the self-contained object, its raw layer excepted.
const std::vector<EveryCall<CPROIO_Manipulator>>& object_calls();
const std::vector<EveryCall<CQEL_ProcessAdapter>>& adapter_calls();

}  // namespace qelpro_test
