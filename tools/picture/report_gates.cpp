#include "picture/report_gates.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "blocks/gate_ctl.h"
#include "blocks/gate_valve_x.h"
#include "file/meaning.h"
#include "file/typed.h"
#include "picture/chart.h"
#include "picture/timeline.h"

namespace qelpro {

namespace {

namespace gate = qel::gate_ctl;
namespace valve = qel::gate_valve_x;

constexpr const char* kStart = qel::key_of(gate::kKeys, "ST-%d");
constexpr const char* kEnd = qel::key_of(gate::kKeys, "ET-%d");
constexpr const char* kPoint = qel::key_of(valve::kKeys, "GC-%d");

std::vector<std::string> labels_of(const ReportSources& sources) {
  std::vector<std::string> labels;
  for (const ReportSource& source : sources) {
    labels.push_back(source.label);
  }
  return labels;
}

std::string opening_words(const Span& span) {
  const std::string unit = " sec";
  return (span.from ? "opens at " + shortest(*span.from) + unit : std::string("no start time")) +
         ", " + (span.to ? "closes at " + shortest(*span.to) + unit : std::string("no end time"));
}

// Gates by their numbers: a bar from the start time to the end time.
Timeline opening_times(const ReportSources& sources, const std::vector<SectionGroup>& groups) {
  std::map<int, std::vector<std::vector<Span>>> gates;
  for (const SectionGroup& group : groups) {
    for (std::size_t file = 0; file < sources.size(); ++file) {
      if (group.of_file[file] == nullptr) {
        continue;
      }
      for (const FileEntry& entry : sources[file].entries->of(*group.of_file[file])) {
        const TypedValue typed = typed_value(*sources[file].entries, entry);
        const std::string_view key = typed.key != nullptr ? typed.key->text : "";
        if ((key != kStart && key != kEnd) || typed.unread) {
          continue;
        }
        auto& of_file = gates[typed.number];
        of_file.resize(sources.size());
        if (of_file[file].empty()) {
          of_file[file].emplace_back();
        }
        (key == kStart ? of_file[file][0].from : of_file[file][0].to) =
            std::get<double>(typed.fields.front());
      }
    }
  }
  Timeline timeline{"Gates: open from start to end time", "time", "sec", labels_of(sources), {}};
  for (auto& [number, of_file] : gates) {
    for (auto& spans : of_file) {
      for (Span& span : spans) {
        span.words = opening_words(span);
      }
    }
    timeline.rows.push_back({"Gate " + std::to_string(number), std::move(of_file)});
  }
  return timeline;
}

struct ControlPoint {
  double value;
  int flag;
  int mode;
};

std::vector<ControlPoint> points_of(const ReportSource& source, const TextSection& section) {
  std::vector<ControlPoint> points;
  for (const FileEntry& entry : source.entries->of(section)) {
    const TypedValue typed = typed_value(*source.entries, entry);
    if (typed.key == nullptr || typed.key->text != std::string_view(kPoint) || typed.unread ||
        typed.fields.size() < 3) {
      continue;
    }
    const auto value = std::get<double>(typed.fields[0]);
    if (std::isfinite(value)) {
      points.push_back({value, std::get<int>(typed.fields[1]), std::get<int>(typed.fields[2])});
    }
  }
  std::ranges::stable_sort(points, {}, &ControlPoint::value);
  return points;
}

// Valves by their numbers: a bar from each control point to the next, filled where the point's
// integer is not 0.
Timeline control_points(const ReportSources& sources, const std::vector<SectionGroup>& groups) {
  Timeline timeline{"Valve gates: control points", "switching value", "", labels_of(sources), {}};
  for (const SectionGroup& group : groups) {
    TimelineRow row{"Valve gate " + std::to_string(group.number),
                    std::vector<std::vector<Span>>(sources.size())};
    for (std::size_t file = 0; file < sources.size(); ++file) {
      if (group.of_file[file] == nullptr) {
        continue;
      }
      const std::vector<ControlPoint> points = points_of(sources[file], *group.of_file[file]);
      for (std::size_t at = 0; at < points.size(); ++at) {
        const ControlPoint& point = points[at];
        Span span{point.value, std::nullopt, "", point.flag != 0,
                  "mode " + std::to_string(point.mode)};
        if (at + 1 < points.size()) {
          span.to = points[at + 1].value;
        }
        span.words = "from " + shortest(point.value) + " on integer " + std::to_string(point.flag) +
                     ", mode " + std::to_string(point.mode);
        row.series[file].push_back(std::move(span));
      }
    }
    if (std::ranges::any_of(row.series, [](const auto& spans) { return !spans.empty(); })) {
      timeline.rows.push_back(std::move(row));
    }
  }
  return timeline;
}

void write(ReportPage& page, const Timeline& timeline, std::string_view note) {
  if (timeline.rows.empty()) {
    return;
  }
  Markup& markup = page.markup();
  markup.open("figure", {{"class", "wide"}});
  markup.element("figcaption", timeline.title);
  write_timeline(markup, timeline, page.new_id());
  markup.element("p", {{"class", "subject"}}, note);
  markup.close();
}

}  // namespace

void write_gate_timelines(ReportPage& page, const std::vector<SectionGroup>& times,
                          const std::vector<SectionGroup>& valves) {
  write(page, opening_times(page.sources(), times),
        "A dashed bar has no start or no end in the file, or ends before it starts.");
  write(page, control_points(page.sources(), valves),
        "A bar goes from a control point to the next one: filled where the point's integer is not "
        "0, hollow where it is 0. The last one goes on.");
}

}  // namespace qelpro
