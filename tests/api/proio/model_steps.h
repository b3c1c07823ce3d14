#pragma once

#include <cctype>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "support/naive_older_object.h"

namespace qelpro_test {

/// The number that a text begins with, or what else there is to be.
inline double real_in(const std::string& text, double otherwise) {
  // The C library at hand takes the point of a hexadecimal number that has no digits.
  const std::size_t number = text.find_first_not_of(" \t\n\v\f\r+-");
  const std::string front = number != std::string::npos ? text.substr(number, 4) : "";
  const bool lacks_digits =
      (front.starts_with("0x.") || front.starts_with("0X.")) &&
      (front.size() < 4 || std::isxdigit(static_cast<unsigned char>(front[3])) == 0);
  double value = otherwise;
  return !lacks_digits && std::sscanf(text.c_str(), "%lf", &value) == 1 ? value : otherwise;
}

/// Makes one store or lookup in the object and in its model. `pick` chooses a number below its
/// argument; `found` counts the lookups that found something. What they disagree in, or nothing.
inline std::string step_beside(NaiveOlderObject& model, CPROIO_Manipulator& object,
                               const std::function<int(int)>& pick, int& found) {
  const int stage = 1 + pick(2);
  const std::string flow = "[Flow-" + std::to_string(stage) + "]";
  switch (pick(9)) {
    case 0: {
      const int time = pick(100000) / 8;
      model.set(flow, "FillTime", std::to_string(time));
      return object.SetFillTime(time, stage) ? "" : "SetFillTime";
    }
    case 1: {
      std::string remark(static_cast<std::size_t>(pick(200)), 'r');
      model.set("[Machine]", "Remark", remark);
      return object.SetMachineRemark(remark.data()) ? "" : "SetMachineRemark";
    }
    case 2: {
      const int point = 1 + pick(3);
      model.set(flow, "FR-" + std::to_string(point), "1\t2");
      return object.SetFRProfile(point, 1, 2, stage) ? "" : "SetFRProfile";
    }
    case 3: {
      const int line = 1 + pick(4);
      if (pick(3) == 0) {
        int count = -1;
        char* read = nullptr;
        const auto expected = model.line(line);
        const bool done = object.GetBCCountName(line, count, read);
        return done == expected.has_value() && count == (expected ? leading_number(*expected) : -1)
                   ? ""
                   : "GetBCCountName";
      }
      std::string name(static_cast<std::size_t>(1 + pick(20)), 'n');
      model.set_line(line, "7\t" + name);
      return object.SetBCCountName(line, 7, name.data()) ? "" : "SetBCCountName";
    }
    case 4: {
      const int count = pick(3);
      model.set("[Summary]", "TotalNodeBC", std::to_string(count));
      return object.SetBoundaryConditionNo(count) ? "" : "SetBoundaryConditionNo";
    }
    case 5: {
      const int condition = 1 + pick(2);
      const int point = 1 + pick(3);
      bool named = false;
      const auto line = model.line_of_point(condition, point, named);
      if (line < 1) {
        return object.SetBCProfile(condition, point, 3, 4) ? "SetBCProfile" : "";
      }
      model.set_line(line, std::to_string(point) + " = 3\t4");
      return object.SetBCProfile(condition, point, 3, 4) ? "" : "SetBCProfile";
    }
    case 6: {
      const int condition = 1 + pick(2);
      const int point = 1 + pick(3);
      bool named = false;
      const auto line = model.line_of_point(condition, point, named);
      const auto expected = line < 1 ? std::nullopt : model.line(line);
      double x = -1;
      double y = -1;
      const bool done = object.GetBCProfile(condition, point, x, y);
      if (done && expected && expected->substr(1) == " = 3\t4\n") {
        ++found;
        return x == 3 && y == 4 ? "" : "a point of GetBCProfile";
      }
      return done == (named && expected) ? "" : "GetBCProfile";
    }
    case 7: {
      char* text = nullptr;
      const bool done = object.GetMachineRemark(text);
      const auto expected = model.get("[Machine]", "Remark");
      found += done ? 1 : 0;
      return done == expected.has_value() && (!done || expected->substr(0, 127) == text)
                 ? ""
                 : "GetMachineRemark";
    }
    default: {
      double time = -1;
      const bool done = object.GetFillTime(time, stage);
      const auto expected = model.get(flow, "FillTime");
      const double value = expected ? real_in(*expected, -1) : -1;
      found += done ? 1 : 0;
      return done == expected.has_value() && (time == value || (time != time && value != value))
                 ? ""
                 : "GetFillTime";
    }
  }
}

}  // namespace qelpro_test
