#include "picture/report.h"

#include <algorithm>
#include <deque>
#include <string>
#include <vector>

#include "commands.h"
#include "output.h"
#include "system/failure.h"

namespace qelpro {

namespace {

struct Loaded {
  explicit Loaded(const std::string& file) : document(load_document(file)) {}
  SectionedText document;
};

}  // namespace

int run_report(const ReportArguments& arguments) {
  if (std::ranges::count(arguments.files, "-") > 1) {
    throw Failure(kUsage, "report: standard input can be one of the files, not several");
  }
  std::deque<Loaded> documents;  // whose places stay
  std::vector<ReportedFile> files;
  int status = kDone;
  for (const std::string& file : arguments.files) {
    try {
      files.push_back({file, &documents.emplace_back(file).document});
    } catch (const Failure& failure) {
      // The other files are answered.
      complain(failure.what());
      status = kFileError;
    }
  }
  if (!files.empty()) {
    write_answer(arguments.output, arguments.files,
                 [&files](Sink& page) { write_report(page, files); });
  }
  return status;
}

}  // namespace qelpro
