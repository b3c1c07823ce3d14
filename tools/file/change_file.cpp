#include <QELPROEngine/CQELPROReader_Manipulator.h>

#include <array>
#include <map>
#include <string>

#include "blocks/catalogue.h"
#include "file/change.h"
#include "file/names.h"
#include "file/value_check.h"
#include "system/failure.h"
#include "system/files.h"
#include "text/text.h"

namespace qelpro {
namespace {

namespace text = qel::text;

// The engine's own reading of the entry. Its lines are shorter than the buffer.
bool is_read_back(CQELPROReader_Manipulator& reader, const Change& change) {
  std::array<char, 2 * text::kLongestLine> buffer{};
  char* found = nullptr;
  return reader.ReadString(with_brackets(change.address.section).c_str(),
                           change.address.key.c_str(), found, buffer.data(),
                           static_cast<unsigned int>(buffer.size())) &&
         text::index_value(change.value) == found;
}

void check_stored(const std::string& file, const std::string& written,
                  const std::vector<Change>& changes) {
  CQELPROReader_Manipulator reader;
  // By section and key: what was set and is there at the end.
  std::map<std::string, std::map<std::string, const Change*>> last;
  for (const Change& change : changes) {
    const std::string section = header_of(change.address.section);
    if (change.kind == Change::Kind::remove_section) {
      last.erase(section);
    } else if (change.kind != Change::Kind::add_section) {
      last[section][change.address.key] = &change;
    }
  }
  const bool is_open = reader.SetFilePath(written.c_str());
  for (const auto& [section, keys] : last) {
    for (const auto& [key, change] : keys) {
      if (change->kind == Change::Kind::set && !qel::is_positional(section) &&
          !(is_open && is_read_back(reader, *change))) {
        throw Failure(kFileError, at({file, 0, section, key},
                                     "not stored: another line of the file would be read in its "
                                     "place; qelpro check tells which lines are passed over"));
      }
    }
  }
}

void check_encoding(const std::string& section, const Change& change) {
  int number = 0;
  const Reading reading = reading_of(qel::find_section(section.c_str(), number), change.address.key,
                                     text::index_value(change.value));
  if (reading.unread) {
    throw Failure(kUsage, "\"" + change.value + "\" would not be read back whole: " +
                              *reading.unread + " (it is read as: " + reading.key->encoding->name +
                              "); --force stores it nevertheless");
  }
}

}  // namespace

void check_change(const std::string& file, const Change& change, bool force) {
  const std::string section = header_of(change.address.section);
  try {
    if (qel::is_positional(section)) {
      check_positional_line(change.address.key, change.value);
      return;
    }
    check_entry(section_name(section), change.address.key, change.value);
    if (!force) {
      check_encoding(section, change);
    }
  } catch (const Failure& failure) {
    throw Failure(failure.status(), at({file, 0, section, change.address.key}, failure.what()));
  }
}

void change_file(const std::string& file,
                 const std::function<std::vector<Change>(const SectionedText&)>& make) {
  Replacement replacement(file);
  const SectionedText document = document_text(file, replacement.old_contents());
  const std::vector<Change> changes = make(document);
  const std::string contents = with_changes(document, changes);
  if (contents == document.contents()) {
    return;
  }
  check_stored(file, replacement.write(contents), changes);
  replacement.commit();
}

}  // namespace qelpro
