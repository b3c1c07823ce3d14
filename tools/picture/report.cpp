#include "picture/report.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "blocks/inlet_source.h"
#include "blocks/sections.h"
#include "check/check.h"
#include "file/meaning.h"
#include "picture/chart.h"
#include "picture/markup.h"
#include "picture/report_gates.h"
#include "picture/report_page.h"
#include "picture/report_style.h"

namespace qelpro {

namespace {

ReportSources sources_of(const std::vector<ReportedFile>& files) {
  std::vector<std::string> names;
  std::ranges::transform(files, std::back_inserter(names), [](const ReportedFile& file) {
    return file.name == "-" ? std::string("standard input") : file.name;
  });
  const std::vector<std::string> labels = labels_of(names);
  ReportSources sources;
  for (std::size_t at = 0; at < files.size(); ++at) {
    sources.push_back({labels[at], names[at], std::make_unique<Entries>(*files[at].document),
                       check_document(names[at], *files[at].document)});
  }
  return sources;
}

std::string counted(std::size_t count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string sum_of(const std::vector<Finding>& findings) {
  std::string sum;
  for (const Severity severity : {Severity::error, Severity::warning, Severity::note}) {
    const auto count =
        static_cast<std::size_t>(std::ranges::count(findings, severity, &Finding::severity));
    if (count > 0) {
      sum += (sum.empty() ? "" : ", ") + counted(count, name_of(severity));
    }
  }
  return sum.empty() ? "nothing found" : sum;
}

// The chapters of a report, in their order.
class Report {
 public:
  Report(Markup& markup, const ReportSources& sources)
      : markup_(markup), sources_(sources), page_(markup, sources), groups_(sources) {}

  void write() {
    markup_.verbatim("<!DOCTYPE html>");
    markup_.open("html", {{"lang", "en"}});
    write_head();
    markup_.open("body");
    write_title();
    markup_.open("main");
    write_chapters();
    markup_.close().close().close();
    markup_.verbatim("\n");
  }

 private:
  [[nodiscard]] std::string title() const {
    std::string names;
    for (const ReportSource& source : sources_) {
      names += (names.empty() ? "" : ", ") + source.label;
    }
    return names;
  }

  void write_head() {
    markup_.open("head").empty("meta", {{"charset", "utf-8"}});
    markup_.empty("meta",
                  {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
    markup_.empty("meta", {{"name", "color-scheme"}, {"content", "light dark"}});
    markup_.element("title", title() + " \xE2\x80\x93 process report");
    markup_.open("style").verbatim(picture_style()).verbatim(report_style()).close();
    markup_.close();
  }

  // A line of the summary on top: what it is, and each file's text.
  template <class TextOf>
  void fact(const std::string& what, const TextOf& text_of) {
    std::vector<std::string> texts;
    for (const ReportSource& source : sources_) {
      texts.push_back(text_of(source));
    }
    if (std::ranges::all_of(texts, [](const std::string& text) { return text.empty(); })) {
      return;
    }
    markup_.open("tr").element("th", {{"scope", "row"}}, what);
    for (const std::string& text : texts) {
      markup_.open("td").element("bdi", text.empty() ? "\xE2\x80\x93" : text).close();
    }
    markup_.close();
  }

  void write_title() {
    markup_.open("header");
    markup_.element("p", {{"class", "kind"}},
                    page_.is_comparison() ? "Process files side by side" : "Process file");
    markup_.open("h1");
    for (std::size_t at = 0; at < sources_.size(); ++at) {
      markup_.text(at == 0 ? "" : ", ").element("bdi", sources_[at].label);
    }
    markup_.close();
    write_facts();
    markup_.open("nav", {{"aria-label", "chapters"}});
    for (const auto& [id, name] : kChapters) {
      markup_.element("a", {{"href", std::string("#") + id}}, name).text(" ");
    }
    markup_.close().close();
  }

  void write_facts() {
    namespace flow = qel::flow_ctl;
    page_.open_table("Summary", "facts");
    if (page_.is_comparison()) {
      page_.table_head({"file", ""});
    }
    markup_.open("tbody");
    const auto of = [](const char* section, const char* key) {
      return [section, key](const ReportSource& source) { return source.value(section, key); };
    };
    namespace header = qel::cae_header;
    namespace machine = qel::machine;
    fact("project", of(header::kSection, qel::key_of(header::kKeys, "Project")));
    fact("engineer", of(header::kSection, qel::key_of(header::kKeys, "Engineer")));
    fact("analysis", of(header::kSection, qel::key_of(header::kKeys, "Type")));
    fact("last change",
         of(qel::file_header::kSection, qel::key_of(qel::file_header::kKeys, "Date")));
    fact("machine", [](const ReportSource& source) {
      const std::string maker =
          source.value(machine::kSection, qel::key_of(machine::kKeys, "Maker"));
      const std::string grade =
          source.value(machine::kSection, qel::key_of(machine::kKeys, "Grade"));
      return maker + (maker.empty() || grade.empty() ? "" : " ") + grade;
    });
    fact("V/P switch-over", [](const ReportSource& source) {
      constexpr const char* kKey = qel::key_of(flow::kKeys, "VPSwitchCtrl");
      std::string value = source.value(flow::kSection, kKey);
      const qel::KeyInfo* const key = std::ranges::find_if(
          flow::kKeys, [](const qel::KeyInfo& row) { return std::string_view(row.text) == kKey; });
      for (const auto& [code, words] : codes_of(key->meaning)) {
        if (std::to_string(code) == value) {
          return "by " + words;
        }
      }
      return value;
    });
    fact("check", [](const ReportSource& source) { return sum_of(source.findings); });
    markup_.close();
    page_.close_table();
  }

  void open_chapter(std::size_t index) {
    markup_.open("section", {{"class", "chapter"}, {"id", kChapters.at(index).id}});
    markup_.element("h2", kChapters.at(index).name);
  }

  void nothing(std::string_view words) { markup_.element("p", {{"class", "subject"}}, words); }

  // All sections of these kinds.
  void chapter(std::size_t index, std::initializer_list<const qel::SectionInfo*> kinds) {
    open_chapter(index);
    if (!parts(kinds)) {
      nothing("No such section.");
    }
    markup_.close();
  }

  // The sections of these kinds, side by side where there is room; whether there are any.
  bool parts(std::initializer_list<const qel::SectionInfo*> kinds) {
    std::vector<SectionGroup> found;
    for (const qel::SectionInfo* kind : kinds) {
      std::ranges::move(groups_.take(*kind), std::back_inserter(found));
    }
    parts(found);
    return !found.empty();
  }

  void parts(const std::vector<SectionGroup>& groups) {
    if (groups.empty()) {
      return;
    }
    markup_.open("div", {{"class", page_.is_comparison() ? "parts wide"
                                   : groups.size() == 1  ? "parts one"
                                                         : "parts"}});
    for (const SectionGroup& group : groups) {
      page_.section(group, 3);
    }
    markup_.close();
  }

  void write_chapters() {
    std::size_t index = 0;
    chapter(index++, {&qel::file_header::kInfo, &qel::cae_header::kInfo, &qel::project::kInfo,
                      &qel::summary::kInfo});
    chapter(index++, {&qel::machine::kInfo});
    chapter(index++, {&qel::flow_ctl::kInfo, &qel::flow_ctl_info::kInfo, &qel::ram_position::kInfo,
                      &qel::advanced_setting::kInfo});
    write_inlets(index++);
    write_gates(index++);
    write_cooling(index++);
    write_findings(index++);
    write_rest(index++);
  }

  void write_inlets(std::size_t index) {
    open_chapter(index);
    const auto inlets = groups_.take_inlets(sources_);
    for (const auto& [number, stages] : inlets) {
      markup_.open("section", {{"class", "inlet"}});
      markup_.element("h3", inlet_name(number));
      page_.section(stages.filling, 4, "Filling");
      page_.section(stages.second_skin, 4, "Second skin");
      page_.section(stages.packing, 4, "Packing");
      page_.section(stages.curing, 4, "Curing");
      markup_.close();
    }
    if (inlets.empty()) {
      nothing("No section of an inlet.");
    }
    markup_.close();
  }

  [[nodiscard]] std::string inlet_name(int number) const {
    const bool shared = std::ranges::all_of(
        sources_, [](const ReportSource& source) { return source.inlets().shared; });
    return shared && number == 1 ? "All inlets" : "Inlet " + std::to_string(number);
  }

  void write_gates(std::size_t index) {
    open_chapter(index);
    const auto times = groups_.take(qel::gate_ctl::kInfo);
    const auto valves = groups_.take(qel::gate_valve_x::kInfo);
    const auto overflows = groups_.take(qel::overflow::kInfo);
    write_gate_timelines(page_, times, valves);
    parts(times);
    page_.family(valves, "Valve gates");
    page_.family(overflows, "Overflow valves");
    if (times.empty() && valves.empty() && overflows.empty()) {
      nothing("No gate is controlled.");
    }
    markup_.close();
  }

  void write_cooling(std::size_t index) {
    open_chapter(index);
    const bool any = parts({&qel::cool::kInfo, &qel::cool_ctl::kInfo, &qel::coolant::kInfo,
                            &qel::var_cool_ctl::kInfo, &qel::mold_preheat::kInfo});
    const auto channels = groups_.take(qel::cool_channel_x::kInfo);
    page_.family(channels, "Cooling channels");
    const auto preheat = groups_.take(qel::mold_preheat_cool_channel_x::kInfo);
    page_.family(preheat, "Channels that preheat the mold");
    if (!any && channels.empty() && preheat.empty()) {
      nothing("No section of cooling.");
    }
    markup_.close();
  }

  void write_findings(std::size_t index) {
    open_chapter(index);
    for (const ReportSource& source : sources_) {
      if (page_.is_comparison()) {
        markup_.open("h3").element("bdi", source.label).close();
      }
      markup_.element("p", {{"class", "subject"}}, sum_of(source.findings));
      if (source.findings.empty()) {
        continue;
      }
      page_.open_table("What check found in " + source.label, "findings");
      markup_.open("thead").open("tr");
      for (const char* name : {"severity", "line", "message", "code"}) {
        markup_.element("th", {{"scope", "col"}}, name);
      }
      markup_.close().close().open("tbody");
      constexpr std::size_t kMost = 1000;
      const std::size_t shown = std::min(source.findings.size(), kMost);
      for (const Finding& finding : std::span(source.findings).first(shown)) {
        const std::string severity = name_of(finding.severity);
        markup_.open("tr");
        markup_.element("th", {{"scope", "row"}, {"class", severity}}, severity);
        markup_.element("td", std::to_string(finding.line) + ":" + std::to_string(finding.column));
        markup_.open("td").element("bdi", finding.message).close();
        markup_.open("td").element("code", finding.code).close();
        markup_.close();
      }
      markup_.close();
      page_.close_table();
      if (shown < source.findings.size()) {
        nothing("And " + std::to_string(source.findings.size() - shown) +
                " more, which qelpro check prints.");
      }
    }
    markup_.close();
  }

  void write_rest(std::size_t index) {
    open_chapter(index);
    const auto rest = groups_.take_all();
    parts(rest);
    if (rest.empty()) {
      nothing("Every entry stands above.");
    }
    markup_.close();
  }

  struct ChapterName {
    const char* id;
    const char* name;
  };
  static constexpr std::array<ChapterName, 8> kChapters{{{"file", "File"},
                                                         {"machine", "Machine"},
                                                         {"control", "Run control"},
                                                         {"inlets", "Inlets"},
                                                         {"gates", "Gates"},
                                                         {"cooling", "Cooling"},
                                                         {"check", "Check"},
                                                         {"rest", "Other entries"}}};

  Markup& markup_;
  const ReportSources& sources_;
  ReportPage page_;
  SectionGroups groups_;
};

}  // namespace

void write_report(Sink& output, const std::vector<ReportedFile>& files) {
  const ReportSources sources = sources_of(files);
  Markup markup(output);
  Report(markup, sources).write();
}

}  // namespace qelpro
