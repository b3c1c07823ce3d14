#include "members/every_call.h"

#include <ostream>
#include <tuple>
#include <type_traits>

namespace qelpro_test {
namespace {

constexpr const char* kLongText = "a text that no string holds without memory";

// One argument of a call, and what stands there after the call.
template <class Argument>
struct Given;

template <>
struct Given<int> {
  static int pass() { return 1; }
  static void tell(std::vector<std::string>& /*outputs*/) {}
};
template <>
struct Given<double> {
  static double pass() { return 1.5; }
  static void tell(std::vector<std::string>& /*outputs*/) {}
};
template <>
struct Given<bool> {
  static bool pass() { return true; }
  static void tell(std::vector<std::string>& /*outputs*/) {}
};
template <>
struct Given<char*> {
  // Some members keep the pointer.
  static char* pass() {
    static std::string text = kLongText;
    return text.data();
  }
  static void tell(std::vector<std::string>& /*outputs*/) {}
};
template <>
struct Given<const char*> : Given<char*> {};
template <>
struct Given<const QELPRO_MMM_MECHANICAL&> {
  QELPRO_MMM_MECHANICAL row{{1.5, 2.5, 3.5}, {4.5, 5.5, 6.5}, kLongText};
  const QELPRO_MMM_MECHANICAL& pass() const { return row; }
  static void tell(std::vector<std::string>& /*outputs*/) {}
};

template <class Number>
struct GivenOutput {
  Number number;
  Number& pass() { return number; }
  void tell(std::vector<std::string>& outputs) const { outputs.push_back(std::to_string(number)); }
};
template <>
struct Given<int&> : GivenOutput<int> {
  Given() : GivenOutput{-777001} {}
};
template <>
struct Given<double&> : GivenOutput<double> {
  Given() : GivenOutput{-777.125} {}
};
template <>
struct Given<bool&> : GivenOutput<bool> {
  Given() : GivenOutput{true} {}
};
template <class Character>
struct GivenTextOutput {
  Character* text = before();
  Character*& pass() { return text; }
  void tell(std::vector<std::string>& outputs) const {
    outputs.emplace_back(text != nullptr ? text : "(null)");
  }
  static char* before() {
    static char untouched[] = "untouched";
    return untouched;
  }
};
template <>
struct Given<char*&> : GivenTextOutput<char> {};
template <>
struct Given<const char*&> : GivenTextOutput<const char> {};
template <>
struct Given<QELPRO_MMM_MECHANICAL&> {
  QELPRO_MMM_MECHANICAL row{{-7, -7, -7}, {-7, -7, -7}, nullptr};
  QELPRO_MMM_MECHANICAL& pass() { return row; }
  void tell(std::vector<std::string>& outputs) const {
    for (const double* values : {row.thermal, row.mechanical}) {
      outputs.insert(outputs.end(), {std::to_string(values[0]), std::to_string(values[1]),
                                     std::to_string(values[2])});
    }
    outputs.emplace_back(row.name != nullptr ? row.name : "(null)");
  }
};

template <class... Arguments>
struct With {
  static Answer answer(const std::tuple<Given<Arguments>...>& given, bool threw, bool done) {
    Answer answer{threw, done, {}};
    std::apply([&answer](const auto&... each) { (each.tell(answer.outputs), ...); }, given);
    return answer;
  }

  template <class Object>
  static EveryCall<Object> call(const char* name, bool (Object::*member)(Arguments...)) {
    const auto make = [member](Object& object, const Around& around) {
      std::tuple<Given<Arguments>...> given;
      bool threw = false;
      bool done = false;
      around.begin();
      try {
        done = std::apply(
            [&object, member](auto&... each) { return (object.*member)(each.pass()...); }, given);
      } catch (...) {
        threw = true;
      }
      around.end();
      return answer(given, threw, done);
    };
    return {name, make, answer({}, false, false)};
  }
};

}  // namespace

std::ostream& operator<<(std::ostream& out, const Answer& answer) {
  out << (answer.threw ? "an exception" : answer.done ? "true" : "false");
  for (const std::string& output : answer.outputs) {
    out << ", " << output;
  }
  return out;
}

#define MEMBER(name, ...) With<__VA_ARGS__>::call<CLASS>(#name, &CLASS::name),

#define CLASS CQELPROReader_Manipulator
const std::vector<EveryCall<CLASS>>& reader_calls() {
  static const std::vector<EveryCall<CLASS>> calls = {
#include "Reader_members.inc"
  };
  return calls;
}
#undef CLASS

#define CLASS CQELPROWriter_Manipulator
const std::vector<EveryCall<CLASS>>& writer_calls() {
  static const std::vector<EveryCall<CLASS>> calls = {
#include "Writer_members.inc"
  };
  return calls;
}
#undef CLASS

#define CLASS CPROIO_Manipulator
const std::vector<EveryCall<CLASS>>& object_calls() {
  static const std::vector<EveryCall<CLASS>> calls = {
#include "Object_members.inc"
  };
  return calls;
}
#undef CLASS

#define CLASS CQEL_ProcessAdapter
const std::vector<EveryCall<CLASS>>& adapter_calls() {
  static const std::vector<EveryCall<CLASS>> calls = {
#include "Adapter_members.inc"
  };
  return calls;
}
#undef CLASS
#undef MEMBER

}  // namespace qelpro_test
