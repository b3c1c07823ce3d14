#include "picture/plot.h"

#include <algorithm>

#include "file/address.h"
#include "picture/character_plot.h"
#include "picture/markup.h"
#include "system/failure.h"
#include "system/sink.h"

namespace qelpro {

namespace {

bool is_meant(const Profile& profile, const Address& address) {
  return profile.section == address.section &&
         (profile.kind.name == address.key ||
          (profile.kind.count != nullptr && profile.kind.count->text == address.key));
}

[[noreturn]] void fail_without(const std::string& file, const std::string& wanted, bool is_there,
                               const std::vector<Profile>& profiles) {
  constexpr std::size_t kMost = 40;
  std::string names;
  std::size_t count = 0;
  for (const Profile& profile : profiles) {
    if (++count <= kMost) {
      names += (names.empty() ? "" : ", ") + profile.address();
    }
  }
  if (count > kMost) {
    names += " and " + std::to_string(count - kMost) + " more";
  }
  throw Failure(kNotFound, at(file, "\"" + wanted + "\" is no " +
                                        (is_there ? "curve: its points are no pairs of reals; "
                                                  : "profile of the file: ") +
                                        (names.empty() ? "it has none" : "there are " + names)));
}

std::vector<const Profile*> profiles_for(const Request& request,
                                         const std::vector<Profile>& profiles) {
  std::vector<const Profile*> found;
  for (const Profile& profile : profiles) {
    if (std::ranges::any_of(request.addresses,
                            [&](const Address& address) { return is_meant(profile, address); })) {
      found.push_back(&profile);
    }
  }
  if (found.empty() && request.is_pattern) {
    for (const Profile& profile : profiles) {
      if (matches_pattern(request.argument, profile.address())) {
        found.push_back(&profile);
      }
    }
  }
  return found;
}

// Those that are curves. Of two kinds of points under one count, those that are there.
std::vector<Profile> curves_among(const std::vector<Profile>& profiles) {
  std::vector<Profile> curves;
  std::ranges::copy_if(profiles, std::back_inserter(curves), [&](const Profile& profile) {
    return profile.kind.is_curve() &&
           (!profile.points.empty() || std::ranges::none_of(profiles, [&](const Profile& other) {
             return !other.points.empty() && other.address() == profile.address();
           }));
  });
  return curves;
}

// Whether two charts have room on one pair of axes.
bool is_alike(const Chart& a, const Chart& b) {
  return a.x == b.x && a.x_unit == b.x_unit && a.y_unit == b.y_unit &&
         (!a.y_unit.empty() || a.y == b.y);
}

void add_words(std::string& all, const std::string& words) {
  if ((", " + all + ", ").find(", " + words + ", ") == std::string::npos) {
    all += (all.empty() ? "" : ", ") + words;
  }
}

}  // namespace

Chart chart_of(const ProfileKind& kind) {
  ProfileWords words = words_of(kind);
  return {std::move(words.title),        std::move(words.x),
          unit_for_people(words.x_unit), std::move(words.y),
          unit_for_people(words.y_unit), {}};
}

std::vector<Chart> plot_of(const std::string& file, const Entries& entries,
                           const std::vector<std::string>& words) {
  const std::vector<Profile> profiles = profiles_of(entries);
  const std::vector<Profile> curves = curves_among(profiles);
  std::vector<Chart> charts;
  std::vector<const Profile*> drawn;
  for (const Request& request : requests_of(words)) {
    const std::vector<const Profile*> found = profiles_for(request, curves);
    if (found.empty()) {
      fail_without(file, request.argument, !profiles_for(request, profiles).empty(), curves);
    }
    for (const Profile* profile : found) {
      if (std::ranges::find(drawn, profile) != drawn.end()) {
        continue;
      }
      drawn.push_back(profile);
      Chart chart = chart_of(profile->kind);
      const auto alike =
          std::ranges::find_if(charts, [&](const Chart& other) { return is_alike(chart, other); });
      Chart& target = alike != charts.end() ? *alike : charts.emplace_back(chart);
      add_words(target.title, chart.title);
      add_words(target.y, chart.y);
      target.curves.push_back({profile->address(), profile->curve()});
    }
  }
  return charts;
}

std::string svg_of(const std::vector<Chart>& charts, const std::string& title) {
  TextSink text;
  Markup markup(text);
  markup.verbatim(R"(<?xml version="1.0" encoding="UTF-8"?>)");
  constexpr ChartSize kSize{760, 380};
  write_picture(markup, charts, title, kSize);
  return std::move(text.text());
}

std::string characters_of(const std::vector<Chart>& charts, std::size_t width) {
  std::string text;
  for (const Chart& chart : charts) {
    text += (text.empty() ? "" : "\n") + character_plot(chart, width);
  }
  return text;
}

}  // namespace qelpro
