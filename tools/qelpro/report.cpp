#include "picture/report.h"

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
  std::deque<Loaded> documents;  // whose places stay
  std::vector<ReportedFile> files;
  for (const std::string& file : arguments.files) {
    files.push_back({file, &documents.emplace_back(file).document});
  }
  write_answer(arguments.output, [&files](Sink& page) { write_report(page, files); });
  return kDone;
}

}  // namespace qelpro
