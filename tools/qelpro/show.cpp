#include <CLI/CLI.hpp>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "blocks/catalogue.h"
#include "commands.h"
#include "core/text.h"
#include "document_text.h"
#include "entry_json.h"
#include "json_text.h"
#include "names.h"
#include "output.h"
#include "positional.h"
#include "status.h"

namespace {

struct Arguments {
  std::string file;
  std::string section;
  bool json = false;
};

/// Takes a file section by section, and of each its entries and the lines that the engine passes over, in the file's order.
class Printer {
 public:
  Printer() = default;
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  virtual ~Printer() = default;

  /// `section` has "section", "known" and, where they apply, "subject" and "repeated".
  virtual void begin_section(const Json& section) = 0;
  virtual void entry(const Json& entry) = 0;
  virtual void passed_over(const TextLine& line, const std::string& why) = 0;
  virtual void note(const std::string& note) = 0;
  virtual void end_section() = 0;
  virtual void end() = 0;
};

class PlainPrinter : public Printer {
 public:
  void begin_section(const Json& section) override {
    if (plain_text(section["section"]).empty()) {
      answer() << "# before the first section\n";
      return;
    }
    answer() << plain_text(section["section"]) << (section["known"] ? "  # " + plain_text(section["subject"]) : "  # unknown section")
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
    answer() << (known ? "  # " + plain_text(entry["meaning"]) : "  # unknown key") << (entry.contains("repeated") ? ", repeated: never read" : "")
             << (entry.contains("note") ? "; line " + plain_text(entry["line"]) + ": " + plain_text(entry["note"]) : "") << '\n';
  }
  void passed_over(const TextLine& line, const std::string& why) override {
    answer() << "  # line " << std::to_string(line.number) << " is passed over, " << why << ": " << line.whole << '\n';
  }
  void note(const std::string& note) override { answer() << "  # " << note << '\n'; }
  void end_section() override {}
  void end() override {}
};

/// One section is complete before the next one is begun: no more of a long file is held than the lines that were passed over.
class JsonPrinter : public Printer {
 public:
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
    notes_.clear();
  }
  void entry(const Json& entry) override {
    answer() << (any_entry_ ? ",\n" : "\n") << std::string(kMembers + 2, ' ');
    any_entry_ = true;
    write_json(answer(), entry, kMembers + 2);
  }
  void passed_over(const TextLine& line, const std::string& why) override { passed_over_.push_back({&line, why}); }
  void note(const std::string& note) override { notes_.push_back(note); }
  void end_section() override {
    answer() << (any_entry_ ? "\n" + std::string(kMembers, ' ') + "]" : "]");
    if (!passed_over_.empty()) {
      answer() << ',';
      write_member("passed over");
      answer() << '[';
      for (const PassedOver& line : passed_over_) {
        answer() << (&line == passed_over_.data() ? "\n" : ",\n") << std::string(kMembers + 2, ' ');
        write_json(answer(), {{"line", line.line->number}, {"text", std::string(line.line->whole)}, {"why", line.why}}, kMembers + 2);
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

  static void write_member(const std::string& name) { answer() << '\n' << std::string(kMembers, ' ') << '"' << name << "\": "; }

  struct PassedOver {
    const TextLine* line;
    std::string why;
  };
  bool any_section_ = false;
  bool any_entry_ = false;
  std::vector<PassedOver> passed_over_;
  std::vector<std::string> notes_;
};

// Why no lookup takes a value from the line; empty for an entry and for a blank line.
std::string why_passed_over(const TextLine& line) {
  switch (kind_of(line)) {
    case LineKind::comment:
      return "a comment";
    case LineKind::indented:
      return line.text.front() == '=' ? "no key before the \"=\"" : "it begins with a blank";
    case LineKind::without_equals:
      return "no \"=\"";
    case LineKind::blank:
    case LineKind::entry:
      break;
  }
  return {};
}

void print_entries(const DocumentText& document, const TextSection& section, Printer& printer) {
  int section_number = 0;
  const qel::SectionInfo* known_section = qel::find_section(std::string(section.name).c_str(), section_number);
  std::set<std::string_view> keys;
  for (std::size_t index = section.header + 1; index < section.behind; ++index) {
    const TextLine& line = document.lines()[index];
    const std::string_view key = qel::text::first_token(line.text);
    if (const std::string why = why_passed_over(line); !why.empty()) {
      printer.passed_over(line, why);
      // A lookup takes the first line of a key, and finds an empty value where that has no "=".
      if (kind_of(line) == LineKind::without_equals) {
        keys.insert(key);
      }
      continue;
    }
    if (kind_of(line) == LineKind::blank) {
      continue;
    }
    const std::string text(whole_value(line));
    Json entry = typed_entry(std::string(key), line, text, reading_of(known_section, key, text));
    if (!keys.insert(key).second) {
      entry["repeated"] = true;
    }
    printer.entry(entry);
  }
}

void print_section(const DocumentText& document, const TextSection& section, Printer& printer) {
  int number = 0;
  const qel::SectionInfo* known = qel::find_section(std::string(section.name).c_str(), number);
  Json head = {{"section", std::string(section.name)}, {"known", known != nullptr}};
  if (known != nullptr) {
    head["subject"] = known->subject;
  }
  if (section.repeated) {
    head["repeated"] = true;
  }
  printer.begin_section(head);
  const TextLine& header = document.lines()[section.header];
  if (const std::string_view behind = qel::text::index_value(header.text.substr(section.name.size())); !behind.empty()) {
    printer.note("line " + std::to_string(header.number) + ": \"" + std::string(behind) + "\" behind the header is not read");
  }
  if (is_positional(section) && !section.repeated) {
    const PositionalLines lines = positional_lines(document, section);
    for (const Json& entry : lines.entries) {
      printer.entry(entry);
    }
    for (const std::size_t line : lines.passed_over) {
      printer.passed_over(document.lines()[line], "no condition counts it");
    }
    for (const std::string& note : lines.notes) {
      printer.note(note);
    }
  } else {
    print_entries(document, section, printer);
  }
  printer.end_section();
}

// Lines that belong to no section.
void print_front(const DocumentText& document, Printer& printer) {
  bool any = false;
  for (std::size_t index = 0; index < document.lines_before_sections(); ++index) {
    const TextLine& line = document.lines()[index];
    if (kind_of(line) == LineKind::blank) {
      continue;
    }
    if (!any) {
      printer.begin_section({{"section", ""}, {"known", false}});
      any = true;
    }
    printer.passed_over(line, kind_of(line) == LineKind::comment ? "a comment" : "it stands before the first section");
  }
  if (any) {
    printer.end_section();
  }
}

int show(const Arguments& arguments) {
  const std::string wanted = arguments.section.empty() ? "" : section_name(arguments.section);
  const DocumentText document = load_document(arguments.file);
  if (!wanted.empty() && document.find(wanted) == nullptr) {
    throw Failure(kNotFound, at({arguments.file, 0, wanted, ""}, "not found: the file has no such section"));
  }
  const std::unique_ptr<Printer> printer =
      arguments.json ? std::unique_ptr<Printer>(std::make_unique<JsonPrinter>()) : std::make_unique<PlainPrinter>();
  if (wanted.empty()) {
    print_front(document, *printer);
  }
  for (const TextSection& section : document.sections()) {
    if (wanted.empty() || section.name == wanted) {
      print_section(document, section, *printer);
    }
  }
  printer->end();
  return kDone;
}

}  // namespace

void add_show(CLI::App& app, int& status) {
  auto arguments = std::make_shared<Arguments>();
  CLI::App* command = app.add_subcommand("show", "Print every entry with its meaning and its typed value, and the lines that are never read");
  command->add_option("FILE", arguments->file, "The process file")->required();
  command->add_option("SECTION", arguments->section, "One section, with or without its brackets");
  command->add_flag("--json", arguments->json, "Print JSON");
  command->footer("Example: qelpro show Default.pro Flow-1");
  command->callback([arguments, &status] { status = show(*arguments); });
}
