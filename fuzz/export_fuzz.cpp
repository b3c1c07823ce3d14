#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "file/change.h"
#include "file/entries.h"
#include "file/forms.h"
#include "file/typed.h"
#include "json/json_input.h"
#include "support.h"
#include "system/failure.h"
#include "text/text.h"

// Any file: what the tool exports is imported to the same bytes in the exact form. In the plain
// form the file that is made of it exports the same, and so does the old file with its own values
// set; in both the engine reads what it read before.

using namespace qelpro;
using qelpro_fuzz::fail;

namespace {

constexpr const char* kName = "file";

std::string json_text(const Json& value) {
  TextSink sink;
  write_json(sink, value);
  return sink.text();
}

// What stands in a file by the engine's own reader; nothing where it finds nothing.
class EngineView {
 public:
  explicit EngineView(std::string_view contents) {
    if (!reader_.SetFilePath(qelpro_fuzz::file_with(contents))) {
      fail("a readable file was not opened");
    }
  }
  std::optional<std::string> value(std::string_view section, const std::string& key) {
    char buffer[8192];
    char* text = nullptr;
    return reader_.ReadString(std::string(section).c_str(), key.c_str(), text, buffer,
                              sizeof buffer)
               ? std::optional<std::string>(text)
               : std::nullopt;
  }

 private:
  CQELPROReader_Manipulator reader_;
};

bool is_read_whole(const TextLine& line) {
  return !line.goes_on && line.whole.size() == line.text.size();
}

bool is_looked_up_by_key(const Entries& entries, const FileEntry& entry) {
  const std::string_view section = entries.section_of(entry);
  return !qel::is_positional(section) && qel::text::is_findable(section);
}

struct Known {
  std::string section, key, value;
  bool whole;  // it reads all of the value
};

// The entries that the engine finds by their keys, each as it reads it.
std::vector<Known> known_values(const std::string& contents) {
  const SectionedText document(contents);
  const Entries entries(document);
  EngineView engine(contents);
  std::vector<Known> all;
  for (const FileEntry& entry : entries.all()) {
    if (!is_looked_up_by_key(entries, entry)) {
      continue;
    }
    const TextLine line = document.line(entry.line);
    const std::string section(entries.section_of(entry));
    const auto read = engine.value(section, entry.key);
    if (!read || (is_read_whole(line) ? *read != entry.value : !entry.value.starts_with(*read))) {
      fail({"the tool lists ", section, " ", entry.key, " with \"", entry.value,
            "\", and the engine reads \"", read.value_or("nothing"), "\" in\n", contents});
    }
    all.push_back({section, entry.key, std::string(entry.value), is_read_whole(line)});
  }
  return all;
}

// Whether the catalogue reads the same of both texts.
bool is_same_value(const Known& entry, const std::string& text) {
  if (entry.value == text || (!entry.whole && entry.value.starts_with(text))) {
    return true;
  }
  const qel::SectionInfo* const section = known_section(entry.section);
  const TypedValue old_value = typed_value(section, entry.key, entry.value);
  const TypedValue new_value = typed_value(section, entry.key, text);
  return old_value.key != nullptr && old_value.key == new_value.key && !old_value.unread &&
         !new_value.unread && old_value.fields == new_value.fields;
}

void compare(const char* what, const std::vector<Known>& old_values, const std::string& contents,
             const std::string& old_contents) {
  EngineView engine(contents);
  for (const Known& entry : old_values) {
    const auto read = engine.value(entry.section, entry.key);
    if (!read || !is_same_value(entry, *read)) {
      fail({what, ": ", entry.section, " ", entry.key, " was \"", entry.value, "\" and is \"",
            read.value_or("nothing"), "\" in\n", contents, "\nmade of\n", old_contents});
    }
  }
}

std::string plain_text_of(const std::string& contents) {
  const SectionedText document(contents);
  return json_text(plain_form(Entries(document)));
}

void check_new_file(const Json& form, const std::string& text, const std::vector<Known>& values,
                    const std::string& old_contents) {
  std::string made;
  try {
    made = contents_of(kName, form);
  } catch (const Failure& failure) {
    if (failure.status() != kUsage) {
      fail(std::string("what was exported is no form: ") + failure.what());
    }
    return;  // an entry that cannot be read back from a file of its own is refused
  }
  if (plain_text_of(made) != text) {
    fail("another export after an import:\n" + plain_text_of(made) + "\nand not\n" + text +
         "\nfrom\n" + made);
  }
  compare("after an import", values, made, old_contents);
}

void check_same_file(const Json& form, const std::string& text, const std::vector<Known>& values,
                     const SectionedText& document) {
  std::vector<Change> changes;
  try {
    changes = changes_of_form(kName, form);
    for (const Change& change : changes) {
      check_change(kName, change, true);
    }
  } catch (const Failure& failure) {
    if (failure.status() != kUsage) {
      fail(std::string("what was exported is no form: ") + failure.what());
    }
    return;
  }
  const Entries entries(document);
  bool changes_nothing = true;
  for (const Change& change : changes) {
    const FileEntry* const entry = entries.find(change.address);
    const std::string_view new_value = qel::text::index_value(change.value);
    changes_nothing = changes_nothing && entry != nullptr && entry->value == new_value &&
                      !entry->value.empty() && is_read_whole(document.line(entry->line)) &&
                      new_value == change.value && is_looked_up_by_key(entries, *entry);
  }
  const std::string changed = with_changes(document, changes);
  if (changes_nothing && changed != document.contents()) {
    fail("values as they stand changed the file to\n" + changed + "\nfrom\n" + document.contents());
  }
  if (plain_text_of(changed) != text) {
    fail("another export after an import into the same file:\n" + plain_text_of(changed) +
         "\nand not\n" + text + "\nfrom\n" + changed + "\nmade of\n" + document.contents());
  }
  compare("after an import into the same file", values, changed, document.contents());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string contents(qelpro_fuzz::text_of(data, size));
  const Json exact = parse_json(kName, json_text(exact_form(contents)));
  if (contents_of(kName, exact) != contents) {
    fail("the exact form makes other bytes");
  }
  if (qel::is_utf16(contents)) {
    return 0;
  }
  const SectionedText document(contents);
  const std::string text = plain_text_of(contents);
  const Json form = parse_json(kName, text);
  if (json_text(form) != text) {
    fail("JSON that is read and written is\n" + json_text(form) + "\nand not\n" + text);
  }
  const std::vector<Known> values = known_values(contents);
  check_new_file(form, text, values, contents);
  check_same_file(form, text, values, document);
  return 0;
}
