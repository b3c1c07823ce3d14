#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "support/scratch.h"

namespace qelpro_test {

/// One thing that a host asks of the library.
struct Use {
  std::string object;  ///< The class that serves it.
  std::string member;
  std::function<bool()> run;  ///< Whether it was done, which no second one changes.
};

/// Everything that a host can ask of the library, member by member, over files of its own which
/// hold a value for each.
class Uses {
 public:
  Uses();
  Uses(const Uses&) = delete;
  Uses& operator=(const Uses&) = delete;
  ~Uses();

  [[nodiscard]] const std::vector<Use>& all() const { return all_; }
  /// Those of which all have been done once; the others say no for a reason of their own.
  [[nodiscard]] std::vector<Use> done() const;
  /// The file that the writers store into.
  [[nodiscard]] const std::string& written() const { return written_; }

  /// Called right before and right after a section member.
  static void (*before)();
  static void (*after)();

 private:
  void add_section_members();
  void add_lifecycles();
  void add_reference_data();
  void add_processes();

  Scratch scratch_;
  std::string read_;
  std::string written_;
  std::string wide_read_;
  std::string bank_;
  std::string coolants_;
  std::FILE* stream_ = nullptr;
  CQELPROReader_Manipulator reader_;
  CQELPROReader_Manipulator stream_reader_;
  CQELPROWriter_Manipulator writer_;
  CPROIO_Manipulator object_;
  CQEL_ProcessAdapter adapter_;
  CQELMachineIdentification machines_;
  CQELPCSInterpolator interpolator_;
  std::vector<Use> all_;
};

}  // namespace qelpro_test
