#include <cstdint>
#include <deque>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "blocks/catalogue.h"
#include "commands.h"
#include "file/document_text.h"
#include "file/entry_json.h"
#include "file/names.h"
#include "file/positional.h"
#include "json/json_text.h"
#include "output.h"
#include "system/failure.h"
#include "text/text.h"

namespace qelpro {

namespace {

/// Why no lookup takes a value from a line.
enum class Why : std::uint8_t {
  none,
  comment,
  no_key,
  blank_before,
  return_in_key,
  no_equals,
  before_sections,
  not_counted
};

const char* text_of(Why why) {
  switch (why) {
    case Why::comment:
      return "a comment";
    case Why::no_key:
      return "no key before the \"=\"";
    case Why::blank_before:
      return "it begins with a blank";
    case Why::return_in_key:
      return "a carriage return stands in its key";
    case Why::no_equals:
      return "no \"=\"";
    case Why::before_sections:
      return "it stands before the first section";
    case Why::not_counted:
      return "no condition counts it";
    case Why::none:
      break;
  }
  return "";
}

/// Takes a file section by section, and of each its entries and the lines that the engine passes
/// over, in the file's order.
class Printer {
 public:
  explicit Printer(const SectionedText& document) : document_(document) {}
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  virtual ~Printer() = default;

  /// `section` has "section", "known" and, where they apply, "subject" and "repeated".
  virtual void begin_section(const Json& section) = 0;
  virtual void entry(const Json& entry) = 0;
  virtual void passed_over(std::size_t line, Why why) = 0;
  virtual void note(const std::string& note) = 0;
  virtual void end_section() = 0;
  virtual void end() = 0;

 protected:
  [[nodiscard]] const SectionedText& document() const { return document_; }

 private:
  const SectionedText& document_;
};

class PlainPrinter : public Printer {
 public:
  using Printer::Printer;
  void begin_section(const Json& section) override {
    if (plain_text(section["section"]).empty()) {
      answer() << "# before the first section\n";
      return;
    }
    answer() << plain_text(section["section"])
             << (section["known"] ? "  # " + plain_text(section["subject"]) : "  # unknown section")
             << (section.contains("repeated") ? ", repeated: never read\n" : "\n");
  }
  void entry(const Json& entry) override {
    const bool known = entry["known"];
    std::string value;
    if (known) {
      for (const Json& field : entry["values"]) {
        value += (value.empty() ? "" : "  ") + plain_text(field);
      }
    } else {
      value = plain_text(entry["text"]);
    }
    answer() << "  " << plain_text(entry["key"]) << " = " << value;
    if (known && entry.contains("note")) {
      answer() << "  (\"" << plain_text(entry["text"]) << "\")";
    }
    answer() << (known ? "  # " + plain_text(entry["meaning"]) : "  # unknown key")
             << (entry.contains("repeated") ? ", repeated: never read" : "")
             << (entry.contains("note")
                     ? "; line " + plain_text(entry["line"]) + ": " + plain_text(entry["note"])
                     : "")
             << '\n';
  }
  void passed_over(std::size_t index, Why why) override {
    const TextLine line = document().line(index);
    answer() << "  # line " << std::to_string(line.number) << " is passed over, " << text_of(why)
             << ": " << line.whole << '\n';
  }
  void note(const std::string& note) override { answer() << "  # " << note << '\n'; }
  void end_section() override {}
  void end() override {}
};

/// One section is complete before the next one is begun: no more of a long file is held than the
/// lines that were passed over.
class JsonPrinter : public Printer {
 public:
  using Printer::Printer;
  void begin_section(const Json& section) override {
    answer() << (any_section_ ? ",\n  {" : "[\n  {");
    any_section_ = true;
    for (const auto& item : section.items()) {
      write_member(item.key());
      write_json(answer(), item.value(), kMembers);
      answer() << ',';
    }
    write_member("entries");
    answer() << '[';
    any_entry_ = false;
    passed_over_.clear();
    whys_.clear();
    notes_.clear();
  }
  void entry(const Json& entry) override {
    answer() << (any_entry_ ? ",\n" : "\n") << std::string(kMembers + 2, ' ');
    any_entry_ = true;
    write_json(answer(), entry, kMembers + 2);
  }
  void passed_over(std::size_t line, Why why) override {
    passed_over_.push_back(line);
    whys_.push_back(why);
  }
  void note(const std::string& note) override { notes_.push_back(note); }
  void end_section() override {
    answer() << (any_entry_ ? "\n" + std::string(kMembers, ' ') + "]" : "]");
    if (!passed_over_.empty()) {
      answer() << ',';
      write_member("passed over");
      answer() << '[';
      for (std::size_t index = 0; index < passed_over_.size(); ++index) {
        const TextLine line = document().line(passed_over_[index]);
        answer() << (index == 0 ? "\n" : ",\n") << std::string(kMembers + 2, ' ');
        write_json(answer(),
                   {{"line", line.number},
                    {"text", std::string(line.whole)},
                    {"why", text_of(whys_[index])}},
                   kMembers + 2);
      }
      answer() << '\n' << std::string(kMembers, ' ') << ']';
    }
    if (!notes_.empty()) {
      answer() << ',';
      write_member("notes");
      write_json(answer(), Json(notes_), kMembers);
    }
    answer() << "\n  }";
  }
  void end() override { answer() << (any_section_ ? "\n]\n" : "[]\n"); }

 private:
  static constexpr std::size_t kMembers = 4;

  static void write_member(const std::string& name) {
    answer() << '\n' << std::string(kMembers, ' ') << '"' << name << "\": ";
  }

  bool any_section_ = false;
  bool any_entry_ = false;
  // The lines: a deque, which does not hold them twice while it grows.
  std::deque<std::size_t> passed_over_;
  std::deque<Why> whys_;
  std::vector<std::string> notes_;
};

// Why no lookup takes a value from the line; none for an entry and for a blank line.
Why why_passed_over(const TextLine& line) {
  switch (qel::kind_of(line)) {
    case LineKind::comment:
      return Why::comment;
    case LineKind::indented:
      return line.text.front() == '='                    ? Why::no_key
             : qel::text::first_token(line.text).empty() ? Why::blank_before
                                                         : Why::return_in_key;
    case LineKind::without_equals:
      return Why::no_equals;
    case LineKind::blank:
    case LineKind::entry:
      break;
  }
  return Why::none;
}

/// What the catalogue knows of sections, of which many in a row may have one name.
class KnownSections {
 public:
  const qel::SectionInfo* find(std::string_view name) {
    if (!any_ || name != last_) {
      int number = 0;
      any_ = true;
      last_ = name;
      found_ = qel::find_section(
          std::string(qel::is_positional(name) ? qel::text::kPositionalHeader : name).c_str(),
          number);
    }
    return found_;
  }

 private:
  bool any_ = false;
  std::string_view last_;
  const qel::SectionInfo* found_ = nullptr;
};

// The keys of the lines that have no "=".
std::set<std::string_view> keys_of_lines_without_equals(const SectionedText& document,
                                                        const TextSection& section) {
  std::set<std::string_view> keys;
  for (std::size_t index = section.header + 1; index < section.after; ++index) {
    const TextLine line = document.line(index);
    if (qel::kind_of(line) == LineKind::without_equals) {
      keys.insert(qel::text::first_token(line.text));
    }
  }
  return keys;
}

// Those of them that an entry has, too.
std::set<std::string_view> keys_that_lines_share(const SectionedText& document,
                                                 const TextSection& section) {
  const std::set<std::string_view> without_equals = keys_of_lines_without_equals(document, section);
  std::set<std::string_view> shared;
  for (std::size_t index = section.header + 1; !without_equals.empty() && index < section.after;
       ++index) {
    const TextLine line = document.line(index);
    if (qel::kind_of(line) == LineKind::entry &&
        without_equals.contains(qel::text::first_token(line.text))) {
      shared.insert(qel::text::first_token(line.text));
    }
  }
  return shared;
}

void print_entries(const SectionedText& document, const TextSection& section,
                   const qel::SectionInfo* known_section, Printer& printer) {
  const std::set<std::string_view> shared = keys_that_lines_share(document, section);
  std::set<std::string_view> keys;
  for (std::size_t index = section.header + 1; index < section.after; ++index) {
    const TextLine line = document.line(index);
    const LineKind kind = qel::kind_of(line);
    if (kind == LineKind::blank) {
      continue;
    }
    const std::string_view key = qel::text::first_token(line.text);
    // The engine reads an empty value from a line without "=". One whose key nobody else knows is a
    // line like any other.
    const bool has_empty_value =
        kind == LineKind::without_equals && !keys.contains(key) &&
        (shared.contains(key) || reading_of(known_section, key, "").key != nullptr);
    if (kind != LineKind::entry && !has_empty_value) {
      printer.passed_over(index, why_passed_over(line));
      continue;
    }
    const std::string text(qel::whole_value(line));
    const Reading reading = reading_of(known_section, key, text);
    Json entry = typed_entry(std::string(key), line, text, reading);
    if (has_empty_value && limit_of(line).empty()) {
      entry["note"] = "no \"=\": the value is empty";
    }
    if (!keys.insert(key).second) {
      entry["repeated"] = true;
    }
    printer.entry(entry);
  }
}

void print_section(const SectionedText& document, const TextSection& section,
                   const qel::SectionInfo* known, Printer& printer) {
  Json head = {{"section", std::string(section.name)}, {"known", known != nullptr}};
  if (known != nullptr) {
    head["subject"] = known->subject;
  }
  if (section.repeated) {
    head["repeated"] = true;
  }
  printer.begin_section(head);
  const TextLine header = document.line(section.header);
  if (const std::string_view after =
          qel::text::index_value(header.text.substr(section.name.size()));
      !after.empty()) {
    printer.note("line " + std::to_string(header.number) + ": \"" + std::string(after) +
                 "\" behind the header is not read");
  }
  if (qel::is_positional(section.name) && !section.repeated) {
    visit_positional_lines(
        document, section,
        {[&printer](const Json& entry) { printer.entry(entry); },
         [&printer](std::size_t line) { printer.passed_over(line, Why::not_counted); },
         [&printer](const std::string& note) { printer.note(note); }});
  } else {
    print_entries(document, section, known, printer);
  }
  printer.end_section();
}

// Lines that belong to no section.
void print_front(const SectionedText& document, Printer& printer) {
  bool any = false;
  for (std::size_t index = 0; index < document.lines_before_sections(); ++index) {
    const LineKind kind = qel::kind_of(document.line(index));
    if (kind == LineKind::blank) {
      continue;
    }
    if (!any) {
      printer.begin_section({{"section", ""}, {"known", false}});
      any = true;
    }
    printer.passed_over(index, kind == LineKind::comment ? Why::comment : Why::before_sections);
  }
  if (any) {
    printer.end_section();
  }
}

}  // namespace

int run_show(const ShowArguments& arguments) {
  const std::string wanted = arguments.section ? section_name(*arguments.section) : "";
  const SectionedText document = load_document(arguments.file);
  const TextSection* const first = wanted.empty() ? nullptr : document.find(wanted);
  if (!wanted.empty() && first == nullptr) {
    throw Failure(kNotFound,
                  at({arguments.file, 0, wanted, ""}, "not found: the file has no such section"));
  }
  const std::unique_ptr<Printer> printer =
      arguments.json ? std::unique_ptr<Printer>(std::make_unique<JsonPrinter>(document))
                     : std::make_unique<PlainPrinter>(document);
  if (wanted.empty()) {
    print_front(document, *printer);
  }
  KnownSections known;
  for (const TextSection& section : document.sections()) {
    if (wanted.empty() || section.name == wanted || &section == first) {
      print_section(document, section, known.find(section.name), *printer);
    }
  }
  printer->end();
  return kDone;
}

}  // namespace qelpro
