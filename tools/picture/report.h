#pragma once

#include <string>
#include <vector>

#include "file/document_text.h"
#include "system/sink.h"

namespace qelpro {

/// A file that is reported on. The document has to outlive the call.
struct ReportedFile {
  std::string name;
  const SectionedText* document = nullptr;
};

/// One page of HTML about one file, or about several side by side: what the file is, the machine,
/// run control, inlets, gates, cooling, what `check_document` finds, and every other entry. It
/// needs nothing but itself.
void write_report(Sink& output, const std::vector<ReportedFile>& files);

}  // namespace qelpro
