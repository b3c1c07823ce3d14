#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <variant>

#include "blocks/key.h"
#include "text/key_table.h"

/// What a load does with a section, drawn from its rows when the program is compiled.
namespace qel {

/// An item, or a list.
struct LoadStep {
  const KeyInfo* key = nullptr;  ///< Of the item, or of the points.
  std::string_view text;         ///< The key; of one with a number what stands before that.
  bool numbered = false;
  std::string_view count;  ///< The key that counts the points; empty where none does.
};

constexpr bool is_list(const Destination& destination) {
  return std::holds_alternative<ProcessList>(destination) ||
         std::holds_alternative<InletList>(destination);
}

constexpr bool counts_points(const KeyInfo& key) {
  return is_list(key.details.loader) && !is_numbered(key.text);
}

template <const auto& keys>
consteval std::size_t step_count() {
  std::size_t count = 0;
  for (const KeyInfo& key : keys) {
    if (is_somewhere(key.details.loader) && !counts_points(key)) {
      ++count;
    }
  }
  return count;
}

/// In the order of the rows. A count without its points after it does not compile.
template <const auto& keys>
consteval auto steps_of() {
  std::array<LoadStep, step_count<keys>()> steps{};
  std::size_t size = 0;
  std::string_view count;  // of the points that follow
  Destination counted;
  for (const KeyInfo& key : keys) {
    if (!is_somewhere(key.details.loader)) {
      continue;
    }
    if (!count.empty() && (counts_points(key) || key.details.loader != counted)) {
      throw "a count without its points";
    }
    if (counts_points(key)) {
      count = key.text;
      counted = key.details.loader;
    } else {
      steps[size++] = {&key, prefix_of(key.text), is_numbered(key.text), count};
      count = {};
    }
  }
  return steps;
}

/// The steps of a section, and where in a table of their keys each has its own.
template <std::size_t count>
struct LoadPlan {
  static constexpr std::size_t kKeys = 2 * count;

  std::array<LoadStep, count> steps;
  KeyTable<kKeys> keys;
  std::array<std::size_t, count> key{};        ///< Of the item, or of the points.
  std::array<std::size_t, count> count_key{};  ///< `KeyTable::kNone` where nothing counts them.
};

template <const auto& keys>
consteval auto plan_of() {
  constexpr auto kSteps = steps_of<keys>();
  LoadPlan<kSteps.size()> plan{kSteps, {}};
  const auto is_point = [&plan](std::string_view text) {
    const NumberedKey key = numbered_key(text);
    return key.number >= 0 && plan.keys.find(0, key.prefix, true) != plan.keys.kNone;
  };
  for (std::size_t at = 0; at < kSteps.size(); ++at) {
    plan.key[at] = plan.keys.enter(0, kSteps[at].text, kSteps[at].numbered);
    plan.count_key[at] =
        kSteps[at].count.empty() ? plan.keys.kNone : plan.keys.enter(0, kSteps[at].count, false);
  }
  for (const LoadStep& step : kSteps) {
    if ((step.numbered && numbered_key(step.text).number >= 0) ||
        (!step.numbered && is_point(step.text)) || is_point(step.count)) {
      throw "a key that is another's number";
    }
  }
  return plan;
}

template <const auto& keys>
inline constexpr auto kPlan = plan_of<keys>();

}  // namespace qel
