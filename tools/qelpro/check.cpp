#include "check/check.h"

#include <algorithm>
#include <string>
#include <vector>

#include "check/finding_json.h"
#include "check/sarif.h"
#include "color.h"
#include "command_line.h"
#include "commands.h"
#include "output.h"
#include "progress.h"
#include "system/failure.h"
#include "system/streams.h"
#include "system/visible.h"

namespace qelpro {
namespace {

void check_codes(const std::vector<std::string>& codes) {
  for (const std::string& code : codes) {
    if (std::ranges::none_of(rules(), [&](const Rule& rule) { return rule.code == code; })) {
      throw Failure(kUsage, "check: --disable: \"" + code + "\" is no code; they are " +
                                rules().front().code + " to " + rules().back().code);
    }
  }
}

Color color_of(Severity severity) {
  switch (severity) {
    case Severity::error:
      return Color::red;
    case Severity::warning:
      return Color::yellow;
    default:
      return Color::cyan;
  }
}

/// Prints findings as they come.
class FindingPrinter {
 public:
  explicit FindingPrinter(const CheckArguments& arguments)
      : arguments_(arguments), painter_(arguments.color) {}

  void print(Finding&& finding) {
    ++count_;
    has_error_ = has_error_ || finding.severity == Severity::error;
    has_warning_ = has_warning_ || finding.severity == Severity::warning;
    if (arguments_.sarif) {
      for_sarif_.push_back(std::move(finding));
    } else if (arguments_.json) {
      answer() << (count_ == 1 ? "[\n  " : ",\n  ");
      write_json(answer(), json_of(finding), 2);
    } else if (!arguments_.quiet) {
      print_line(finding);
    }
  }

  void finish() {
    if (arguments_.sarif) {
      write_json(answer(), sarif_of(for_sarif_, tool_version()));
      answer() << '\n';
    } else if (arguments_.json) {
      answer() << (count_ == 0 ? "[]\n" : "\n]\n");
    } else if (arguments_.quiet) {
      answer() << std::to_string(count_) << '\n';
    }
  }

  [[nodiscard]] int status() const {
    return has_error_ || (arguments_.strict && has_warning_) ? kNotFound : kDone;
  }

 private:
  void print_line(const Finding& finding) {
    painter_.print(answer(),
                   in_one_line(finding.file + ":" + std::to_string(finding.line) + ":" +
                               std::to_string(finding.column) + ":"),
                   Color::bold);
    answer() << ' ';
    painter_.print(answer(), name_of(finding.severity) + std::string(":"),
                   color_of(finding.severity));
    answer() << ' ' << in_one_line(finding.message) << " [" << finding.code << "]\n";
  }

  static std::string in_one_line(const std::string& text) {
    return text.find_first_of("\r\n") == std::string::npos ? text
                                                           : visible(text, Controls::line_breaks);
  }

  const CheckArguments& arguments_;
  Painter painter_;
  std::size_t count_ = 0;
  bool has_error_ = false;
  bool has_warning_ = false;
  std::vector<Finding> for_sarif_;
};

void check_file(const std::string& file, const std::vector<std::string>& disabled,
                FindingPrinter& printer) {
  check_document(file, load_document(file), [&](Finding&& finding) {
    if (std::ranges::find(disabled, finding.code) == disabled.end()) {
      printer.print(std::move(finding));
    }
  });
}

}  // namespace

int run_check(const CheckArguments& arguments) {
  check_codes(arguments.disabled);
  FindingPrinter printer(arguments);
  int status = kDone;
  Progress progress(arguments.files.size(), "files");
  std::uint64_t done = 0;
  for (const std::string& file : arguments.files) {
    try {
      check_file(file, arguments.disabled, printer);
    } catch (const Failure& failure) {
      // The other files are answered.
      if (failure.status() != kFileError) {
        throw;
      }
      progress.clear();
      complain(failure.what());
      status = kFileError;
    }
    // Findings that a person sees are progress enough.
    if (arguments.files.size() > 1 && !is_terminal(stdout)) {
      progress.show(++done);
    }
  }
  progress.clear();
  printer.finish();
  return status != kDone ? status : printer.status();
}

}  // namespace qelpro
