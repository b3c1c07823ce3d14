#include <QELPROEngine/CQELPROReader_Manipulator.h>

#include <array>
#include <memory>
#include <string>

#include "blocks/catalogue.h"
#include "commands.h"
#include "file/document_text.h"
#include "file/names.h"
#include "file/value_check.h"
#include "system/failure.h"
#include "system/files.h"
#include "text/entry_edit.h"
#include "text/text.h"

namespace qelpro {

namespace {

// Line breaks at a value's very end are no part of it.
std::string without_line_breaks_after(const std::string& value) {
  return value.substr(0, value.find_last_not_of("\r\n") + 1);
}

void check_encoding(const std::string& section, const std::string& key, const std::string& value) {
  int number = 0;
  const Reading reading =
      reading_of(qel::find_section(section.c_str(), number), key, qel::text::index_value(value));
  if (reading.unread) {
    throw Failure(kUsage, "\"" + value + "\" would not be read back whole: " + *reading.unread +
                              " (it is read as: " + reading.key->encoding->name +
                              "); --force stores it nevertheless");
  }
}

// The engine's own reading of the entry. Its lines are shorter than the buffer.
bool is_read_back(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value) {
  std::array<char, 2 * qel::text::kLongestLine> buffer{};
  CQELPROReader_Manipulator reader;
  char* found = nullptr;
  return reader.SetFilePath(file.c_str()) &&
         reader.ReadString(section.c_str(), key.c_str(), found, buffer.data(),
                           static_cast<unsigned int>(buffer.size())) &&
         qel::text::index_value(value) == found;
}

void store(const SetArguments& arguments, const std::string& section, const std::string& value) {
  Replacement file(arguments.file);
  const SectionedText document = document_text(arguments.file, file.old_contents());
  const std::string contents = qel::with_entry(document, section, arguments.key, value);
  if (contents == document.contents()) {
    return;
  }
  const std::string& written = file.write(contents);
  if (!is_read_back(written, section, arguments.key, value)) {
    throw Failure(kFileError, at({arguments.file, 0, section, arguments.key},
                                 "not stored: another line of the file would be read in its place; "
                                 "qelpro show tells the lines that are passed over"));
  }
  file.commit();
}

}  // namespace

int run_set(const SetArguments& arguments) {
  const std::string value = without_line_breaks_after(arguments.value);
  std::string section;
  try {
    section = section_name(arguments.section);
    check_entry(section, arguments.key, value);
    if (!arguments.force) {
      check_encoding(section, arguments.key, value);
    }
  } catch (const Failure& failure) {
    throw Failure(
        failure.status(),
        at({arguments.file, 0, section.empty() ? arguments.section : section, arguments.key},
           failure.what()));
  }
  store(arguments, section, value);
  return kDone;
}

}  // namespace qelpro
