#include <memory>
#include <optional>
#include <string>

#include "commands.h"
#include "file/document_text.h"
#include "file/names.h"
#include "output.h"
#include "system/failure.h"
#include "text/text.h"

namespace qelpro {

namespace {

// What a line that begins with a blank says is not found, though it stands there.
std::string why_not_found(const SectionedText& document, const TextSection* section,
                          const std::string& key) {
  if (section == nullptr) {
    return "not found: the file has no such section";
  }
  if (qel::is_positional(section->name)) {
    return "not found: its lines have a position and no key; qelpro show prints them";
  }
  for (std::size_t index = section->header + 1; index < section->after; ++index) {
    const TextLine candidate = document.line(index);
    std::string_view line = candidate.text;
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (qel::text::first_token_is(line, key) && qel::kind_of(candidate) == LineKind::indented) {
      return "not found: line " + std::to_string(candidate.number) +
             " begins with a blank and is never read";
    }
  }
  return "not found: the section has no such key";
}

}  // namespace

int run_get(const GetArguments& arguments) {
  const std::string section_wanted = section_name(arguments.section);
  const SectionedText document = load_document(arguments.file);
  Where where{arguments.file, 0, section_wanted, arguments.key};
  const TextSection* section = document.find(section_wanted);
  std::optional<TextLine> line;
  if (section != nullptr && !qel::is_positional(section->name)) {
    line = document.find(*section, arguments.key);
  }
  if (!line) {
    throw Failure(kNotFound, at(where, why_not_found(document, section, arguments.key)));
  }
  where.line = line->number;
  if (const std::string limit = limit_of(*line); !limit.empty()) {
    complain(at(where, limit));
  }
  // A value that is too long is handed out whole; that the engine reads no more than its beginning
  // was said above.
  answer() << (line->goes_on ? qel::text::entry_value(document.to_line_break(*line))
                             : qel::whole_value(*line))
           << '\n';
  return kDone;
}

}  // namespace qelpro
