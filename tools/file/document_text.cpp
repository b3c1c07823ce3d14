#include "file/document_text.h"

#include <utility>

#include "system/failure.h"
#include "system/files.h"
#include "text/text.h"

namespace qelpro {

SectionedText document_text(const std::string& file, std::string contents) {
  if (qel::is_utf16(contents)) {
    throw Failure(kFileError,
                  at(file, "UTF-16 text, in which no section is found: save it as UTF-8"));
  }
  return SectionedText(std::move(contents));
}

SectionedText load_document(const std::string& file) {
  return document_text(file, read_file(file));
}

std::string limit_of(const TextLine& line) {
  if (line.whole.size() != line.text.size()) {
    return "what stands behind a NUL byte is not read";
  }
  return line.goes_on
             ? "line too long: behind its first " + std::to_string(qel::text::kLongestLine) +
                   " characters another line is read"
             : std::string();
}

}  // namespace qelpro
